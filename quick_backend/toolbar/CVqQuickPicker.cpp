#include "quick_backend/toolbar/CVqQuickPicker.h"

#include "AbstractGui/VqControlCodes.h"
#include "quick_backend/toolbar/CVqQuickButton.h"
#include "quick_backend/toolbar/CVqQuickToolbar.h"
#include "quick_backend/toolbar/CVqQuickToolbarArea.h"

CVqQuickPicker::CVqQuickPicker() : CVqQuickControl(Picker), m_popup(std::make_unique<CVqQuickToolbar>()) { }

CVqQuickPicker::~CVqQuickPicker() = default;

CVqQuickToolbarArea* CVqQuickPicker::Area() const
{
    return m_popup->Area();
}

void CVqQuickPicker::SetOpened(bool opened)
{
    if (opened == m_opened)
        return;
    m_opened = opened;
    Q_EMIT openedChanged();
}

vq_uint64 CVqQuickPicker::CreateUI(vq_uint64 parent)
{
    const vq_uint64 handle = CVqQuickControl::CreateUI(parent); // ends the former one, with its popup
    m_popup->CreateUI(0, EToolbarType::InPicker, nullptr);
    m_popup->SetToolbarVisibility(true);
    Q_EMIT areaChanged();
    return handle;
}

void CVqQuickPicker::DestroyUI()
{
    CVqQuickControl::DestroyUI();
    SetOpened(false);
    if (!Area())
        return;
    m_popup->DestroyUI();
    Q_EMIT areaChanged();
}

int CVqQuickPicker::Set(unsigned code, vq_int64 index, void* data)
{
    switch (code) {
    case vq_picker_boundary:
        m_popup->ShareBoundary(static_cast<CVqList::CVqNode*>(data));
        return 0;
    case vq_picker_callback: {
        // NOLINTNEXTLINE(performance-no-int-to-ptr): the callback's data come as the index.
        auto* const callback_data = reinterpret_cast<void*>(index);
        return m_popup->SetCallback(reinterpret_cast<CVqAbstractToolbar::callback_type>(data), callback_data);
    }
    case vq_picker_list:
        m_popup->ShareList(static_cast<CVqList*>(data));
        return 0;
    case vq_picker_map:
        m_popup->ShareMap(static_cast<CVqAbstractToolbar::id_map_type*>(data));
        return 0;
    default:
        return CVqQuickControl::Set(code, index, data);
    }
}

int CVqQuickPicker::Command(unsigned code, vq_int64 index, void* data)
{
    if (code != vq_picker_take)
        return CVqQuickControl::Command(code, index, data);
    auto* control = static_cast<IVqUIcontrol*>(data);
    if (!control || !Area())
        return -9;
    if (auto* quick = dynamic_cast<CVqQuickControl*>(control); quick && quick->Item()) {
        quick->SetInPicker(true);
        quick->Item()->setParentItem(Area());
    }
    m_popup->RequestLayout();
    return 0;
}

CVqSizeBase<int> CVqQuickPicker::NaturalSize() const
{
    const int length = Zoomed(Length);
    const int breadth = Zoomed(CVqQuickButton::ImageSide + 2 * CVqQuickButton::Padding);
    return IsVertical() ? CVqSizeBase<int>{breadth, length} : CVqSizeBase<int>{length, breadth};
}
