#include "quick_backend/toolbar/CVqQuickButton.h"

#include <QFontMetricsF>
#include <QGuiApplication>

#include <algorithm>
#include <cmath>

CVqQuickButton::CVqQuickButton() : CVqQuickButton(Button) { }

CVqQuickButton::CVqQuickButton(Kind kind) : CVqQuickControl(kind) { }

bool CVqQuickButton::ShowsImage() const
{
    return ImageIndex() >= 0;
}

bool CVqQuickButton::ShowsText() const
{
    const SVqControlState* state = CurrentState();
    return state && !state->m_text.IsEmpty() && (m_text_beside_image || state->m_bitmap < 0);
}

void CVqQuickButton::SetTextBesideImage(bool beside)
{
    if (beside == m_text_beside_image)
        return;
    m_text_beside_image = beside;
    Changed();
}

// Layouts ask at each width, and measuring a text takes long.
CVqSizeBase<int> CVqQuickButton::text_size() const
{
    const CVqStringW& text = CurrentState()->m_text;
    const QFont font = QGuiApplication::font();
    if (m_measured && m_measured->m_text == text && m_measured->m_font == font)
        return m_measured->m_size;
    const QFontMetricsF metrics(font);
    const auto whole = [](qreal side) { return int(std::min(std::ceil(side), qreal(LargestSide))); };
    const CVqSizeBase<int> size{whole(metrics.horizontalAdvance(text.ToQString())), whole(metrics.height())};
    m_measured = SMeasured{text, font, size};
    return size;
}

CVqSizeBase<int> CVqQuickButton::content_size() const
{
    if (!ShowsText())
        return {ImageSide, ImageSide};
    const CVqSizeBase<int> text = text_size();
    if (!ShowsImage())
        return {std::max(text.m_iWidth, ImageSide), std::max(text.m_iHeight, ImageSide)};
    const bool stacked = GetTextPlace() == TextBelow || GetTextPlace() == TextAbove;
    if (stacked)
        return {std::max(text.m_iWidth, ImageSide), ImageSide + Gap + text.m_iHeight};
    return {ImageSide + Gap + text.m_iWidth, std::max(text.m_iHeight, ImageSide)};
}

CVqSizeBase<int> CVqQuickButton::NaturalSize() const
{
    CVqSizeBase<int> size = content_size();
    size.m_iWidth += 2 * Padding + (HasDropDown() ? ArrowWidth : 0);
    size.m_iHeight += 2 * Padding;
    return {Zoomed(size.m_iWidth), Zoomed(size.m_iHeight)};
}
