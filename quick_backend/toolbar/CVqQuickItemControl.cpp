#include "quick_backend/toolbar/CVqQuickItemControl.h"

#include <QQmlEngine>
#include <QQuickItem>

#include <algorithm>
#include <cmath>
#include <utility>

CVqQuickItemControl::CVqQuickItemControl(QQuickItem* content) : CVqQuickControl(General), m_content(content)
{
    QQmlEngine::setObjectOwnership(content, QQmlEngine::CppOwnership);
    m_told_size = NaturalSize();
    for (const auto signal : {&QQuickItem::implicitWidthChanged, &QQuickItem::implicitHeightChanged,
                              &QQuickItem::widthChanged, &QQuickItem::heightChanged})
        connect(content, signal, this, &CVqQuickItemControl::content_resized);
}

CVqQuickItemControl::~CVqQuickItemControl()
{
    delete m_content;
}

QQuickItem* CVqQuickItemControl::Content() const
{
    return m_content;
}

// Its look may size it, which changes nothing where it has an implicit size.
void CVqQuickItemControl::content_resized()
{
    const CVqSizeBase<int> size = NaturalSize();
    if (std::exchange(m_told_size, size) != size)
        Changed();
}

vq_uint64 CVqQuickItemControl::CreateUI(vq_uint64 parent)
{
    const vq_uint64 handle = CVqQuickControl::CreateUI(parent);
    if (m_content)
        m_content->setParentItem(Item());
    return handle;
}

void CVqQuickItemControl::DestroyUI()
{
    if (m_content)
        m_content->setParentItem(nullptr);
    CVqQuickControl::DestroyUI();
}

CVqSizeBase<int> CVqQuickItemControl::NaturalSize() const
{
    if (!m_content)
        return {};
    const double width = m_content->implicitWidth() > 0 ? m_content->implicitWidth() : m_content->width();
    const double height = m_content->implicitHeight() > 0 ? m_content->implicitHeight() : m_content->height();
    const auto whole = [](double side) { return int(std::clamp(std::ceil(side), 0.0, double(LargestSide))); };
    return {whole(width), whole(height)};
}
