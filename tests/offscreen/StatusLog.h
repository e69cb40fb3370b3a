#pragma once

#include "offscreen/OffscreenQuickView.h"

#include <vector>

/// The values of a view's statusChanged since this object was made.
class StatusLog : public QObject
{
public:
    explicit StatusLog(const OffscreenQuickView& view)
    {
        connect(&view, &OffscreenQuickView::statusChanged, this,
                [this](OffscreenQuickView::Status status) { m_values.push_back(status); });
    }

    const std::vector<OffscreenQuickView::Status>& Values() const { return m_values; }

private:
    std::vector<OffscreenQuickView::Status> m_values;
};
