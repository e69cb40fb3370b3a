#pragma once

#include "quick_backend/toolbar/CVqQuickControl.h"

/// A line between two groups of buttons. Answers vq_control_separator with 1 and vq_control_stays_last with
/// 0: at the end of a toolbar it goes.
class ARBOR_QUICK_BACKEND_EXPORT CVqQuickSeparator : public CVqQuickControl
{
    Q_OBJECT
    QML_NAMED_ELEMENT(QuickSeparator)
    QML_UNCREATABLE("Separators are made by their toolbar.")

public:
    static constexpr int Length = 9; ///< Logical pixels along the toolbar, at zoom 1.

    CVqQuickSeparator();

    int Get(unsigned code, vq_int64 index, void* data) override;
    CVqSizeBase<int> NaturalSize() const override;
};
