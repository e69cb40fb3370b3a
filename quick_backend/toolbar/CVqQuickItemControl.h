#pragma once

#include "quick_backend/toolbar/CVqQuickControl.h"

/// A control that hosts any item: a slider, a field, a colour.
///
/// Its size by itself is the item's implicit size, or its size where there is none, and follows it.
class ARBOR_QUICK_BACKEND_EXPORT CVqQuickItemControl final : public CVqQuickControl
{
    Q_OBJECT
    QML_NAMED_ELEMENT(QuickItemControl)
    Q_MOC_INCLUDE(<QQuickItem>)
    QML_UNCREATABLE("Made in C++.")
    Q_PROPERTY(QQuickItem* content READ Content CONSTANT FINAL)

public:
    /// `content` is not null and is owned by the control from then on.
    explicit CVqQuickItemControl(QQuickItem* content);
    ~CVqQuickItemControl() override;

    QQuickItem* Content() const;

    vq_uint64 CreateUI(vq_uint64 parent) override;
    void DestroyUI() override;
    CVqSizeBase<int> NaturalSize() const override;

private:
    ARBOR_QUICK_BACKEND_NO_EXPORT void content_resized();

    QPointer<QQuickItem> m_content; // owned
    CVqSizeBase<int> m_told_size;   // when it changed last
};
