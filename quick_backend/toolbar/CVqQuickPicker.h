#pragma once

#include "quick_backend/toolbar/CVqQuickControl.h"

#include <memory>

class CVqQuickToolbar;
class CVqQuickToolbarArea;

/// The last control of a main toolbar: a button that opens what did not fit.
///
/// Its popup holds an area of its own, which belongs to a toolbar of type InPicker that shares list, map and
/// boundary with the main one. The controls themselves move there, item, look and all, and not copies of
/// them.
///
/// Answers the codes vq_picker_boundary, vq_picker_callback, vq_picker_list and vq_picker_map with Set() and
/// vq_picker_take with Command(); -9 for null data where a control is expected.
class ARBOR_QUICK_BACKEND_EXPORT CVqQuickPicker : public CVqQuickControl
{
    Q_OBJECT
    QML_NAMED_ELEMENT(QuickPicker)
    QML_UNCREATABLE("The picker belongs to its toolbar.")
    Q_MOC_INCLUDE("quick_backend/toolbar/CVqQuickToolbarArea.h")
    Q_PROPERTY(CVqQuickToolbarArea* area READ Area NOTIFY areaChanged FINAL)
    Q_PROPERTY(bool opened READ IsOpened WRITE SetOpened NOTIFY openedChanged FINAL)

public:
    static constexpr int Length = 20; ///< Logical pixels along the toolbar, at zoom 1.

    CVqQuickPicker();
    ~CVqQuickPicker() override;

    /// Where the controls lie that did not fit; null without a widget.
    CVqQuickToolbarArea* Area() const;

    /// The toolbar of type InPicker; owned by the picker.
    CVqQuickToolbar& Popup() const { return *m_popup; }

    bool IsOpened() const { return m_opened; }
    void SetOpened(bool opened);

    vq_uint64 CreateUI(vq_uint64 parent) override;
    void DestroyUI() override;
    int Set(unsigned code, vq_int64 index, void* data) override;
    int Command(unsigned code, vq_int64 index, void* data) override;
    CVqSizeBase<int> NaturalSize() const override;

Q_SIGNALS:
    void areaChanged();
    void openedChanged();

private:
    const std::unique_ptr<CVqQuickToolbar> m_popup;
    bool m_opened = false;
};
