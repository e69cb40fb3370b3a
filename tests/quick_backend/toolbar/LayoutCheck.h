#pragma once

#include "tests/quick_backend/toolbar/RandomBar.h"

#include <algorithm>
#include <cstddef>
#include <vector>

/// What a toolbar has to show at a length, reckoned from the sizes of its controls alone, against what it
/// shows.
class LayoutCheck
{
public:
    explicit LayoutCheck(RandomBar& bar) : m_bar(bar), m_picker(bar.WantedBy(bar.picker()).length)
    {
        for (CVqQuickControl* control : bar.Controls())
            if (control->IsShown())
                m_shown.push_back(bar.WantedBy(*control));
        int begin = 0;
        for (const RandomBar::SWanted& wanted : m_shown) {
            m_begins.push_back(begin);
            begin += wanted.length + 1;
        }
    }

    /// How many of the shown controls stand on a toolbar of that length.
    std::size_t ExpectedCount(int length) const
    {
        const int limit = length - m_bar.Begin() - m_bar.End();
        if (m_shown.empty() || EndOf(m_shown.size() - 1) <= limit)
            return m_shown.size();
        std::size_t count = 0;
        while (EndOf(count) <= limit - m_picker)
            ++count;
        return count;
    }

    /// What is wrong with the toolbar as it was laid out last, at that length; null for nothing.
    const char* Fault(int length)
    {
        m_length = length;
        const std::size_t count = ExpectedCount(length);
        for (std::size_t at = 0; at < m_shown.size(); ++at)
            if (const char* fault = at < count ? FaultOnBar(at) : FaultInPopup(at))
                return fault;
        if (m_bar.picker().Item()->isVisible() != (count < m_shown.size()))
            return "the picker shows though it holds nothing, or the other way round";
        if (const char* fault = FaultOfPicker(count))
            return fault;
        if (const char* fault = FaultOfPlaces())
            return fault;
        if (count == m_last_count)
            return nullptr;
        m_last_count = count;
        return FaultOfLines(count);
    }

private:
    struct SSpan
    {
        int begin;
        int end;
    };

    int EndOf(std::size_t at) const { return m_begins[at] + m_shown[at].length; }

    // Along the main axis, in reading direction.
    SSpan SpanOf(const CVqQuickControl& control, const QQuickItem& area) const
    {
        const QQuickItem& item = *control.Item();
        if (m_bar.IsVertical())
            return {int(item.y()), int(item.y() + item.height())};
        const int left = int(item.x());
        const int right = int(item.x() + item.width());
        const int whole = int(&area == &m_bar.area() ? area.width() : area.implicitWidth());
        return m_bar.area().IsMirrored() ? SSpan{whole - right, whole - left} : SSpan{left, right};
    }

    SSpan AcrossOf(const CVqQuickControl& control) const
    {
        const QQuickItem& item = *control.Item();
        if (!m_bar.IsVertical())
            return {int(item.y()), int(item.y() + item.height())};
        const int left = int(item.x());
        const int right = int(item.x() + item.width());
        const int whole = int(m_bar.popup().implicitWidth());
        return m_bar.area().IsMirrored() ? SSpan{whole - right, whole - left} : SSpan{left, right};
    }

    const char* FaultOnBar(std::size_t at) const
    {
        const CVqQuickControl& control = *m_shown[at].control;
        if (control.Item()->parentItem() != &m_bar.area() || control.IsInPicker()
            || !control.Item()->isVisible())
            return "a control that fits does not stand on the toolbar";
        const SSpan span = SpanOf(control, m_bar.area());
        if (span.begin != m_bar.Begin() + m_begins[at] || span.end - span.begin != m_shown[at].length)
            return "a control stands elsewhere, or is longer or shorter than it wants";
        if (m_length >= m_bar.Begin() + m_bar.End() + m_picker && span.end > m_length - m_bar.End())
            return "a control reaches beyond the end";
        return nullptr;
    }

    const char* FaultInPopup(std::size_t at) const
    {
        const CVqQuickControl& control = *m_shown[at].control;
        if (control.Item()->parentItem() != &m_bar.popup() || !control.IsInPicker()
            || !control.Item()->isVisible())
            return "a control that does not fit is not in the picker";
        return nullptr;
    }

    const char* FaultOfPicker(std::size_t count) const
    {
        if (count == m_shown.size())
            return nullptr;
        const SSpan span = SpanOf(m_bar.picker(), m_bar.area());
        if (span.begin != std::max(m_bar.Begin(), m_length - m_bar.End() - m_picker))
            return "the picker does not stand at the end";
        if (count > 0 && span.begin < m_bar.Begin() + EndOf(count - 1))
            return "the picker stands on a control";
        return nullptr;
    }

    // Hidden ones, too: before the boundary on the toolbar, behind it in the picker.
    const char* FaultOfPlaces() const
    {
        CVqList::CVqNode* boundary = m_bar.picker().Popup().GetFirstNode();
        const IVqUIcontrol* first = boundary ? m_bar.picker().Popup().GetNextControl(boundary) : nullptr;
        bool behind = false;
        for (const CVqQuickControl* control : m_bar.Controls()) {
            behind = behind || control == first;
            const QQuickItem* area = behind ? &m_bar.popup() : &m_bar.area();
            if (control->IsInPicker() != behind || control->Item()->parentItem() != area)
                return "a control is not where the boundary puts it";
        }
        return nullptr;
    }

    // Lines follow each other, and so do the controls of each, with a pixel between them.
    const char* FaultOfLines(std::size_t count) const
    {
        SSpan across{0, -1};
        int end = 0;
        for (std::size_t at = count; at < m_shown.size(); ++at) {
            const SSpan span = SpanOf(*m_shown[at].control, m_bar.popup());
            const SSpan own = AcrossOf(*m_shown[at].control);
            const bool begins_line = at == count || span.begin <= end - m_shown[at - 1].length;
            if (begins_line ? own.begin <= across.end - 1 && at > count : span.begin != end + 1)
                return "controls overlap in the popup, or stand in another order";
            if (span.end - span.begin != m_shown[at].length)
                return "a control in the popup is longer or shorter than it wants";
            across.end = begins_line ? own.end : std::max(across.end, own.end);
            end = span.end;
        }
        return nullptr;
    }

    RandomBar& m_bar;
    const int m_picker;
    std::vector<RandomBar::SWanted> m_shown;
    std::vector<int> m_begins; // from the border on
    int m_length = 0;
    std::size_t m_last_count = std::size_t(-1);
};
