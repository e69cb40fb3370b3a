#pragma once

#include <QPointF>
#include <QRectF>

class CVqQuickControl;
class CVqQuickToolbar;
class CVqQuickToolbarArea;

/// A place between the controls of an area, into which something is dropped.
struct SVqToolbarPlace
{
    /// The shown control of the area that it lies behind; null at the beginning.
    CVqQuickControl* m_behind = nullptr;

    /// The shown control of the area that it lies before; null at the end.
    CVqQuickControl* m_before = nullptr;

    /// Where to mark it, in logical pixels of the area.
    QRectF m_mark;
};

/// The place that is nearest to a point of `area`, in its reading order: along rows, or columns of an upright
/// bar, and from the right in a mirrored layout. `toolbar` is the one whose controls the area shows, or the
/// main one of a picker's area.
SVqToolbarPlace VqToolbarPlace(CVqQuickToolbar& toolbar, const CVqQuickToolbarArea& area, QPointF point);
