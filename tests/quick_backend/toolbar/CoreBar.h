#pragma once

#include "AbstractGui/VqControlCodes.h"
#include "quick_backend/toolbar/CVqQuickButton.h"
#include "quick_backend/toolbar/CVqQuickItemControl.h"
#include "quick_backend/toolbar/CVqQuickPicker.h"
#include "quick_backend/toolbar/CVqQuickSeparator.h"
#include "quick_backend/toolbar/CVqQuickToolbar.h"
#include "quick_backend/toolbar/CVqQuickToolbarArea.h"

#include <string>
#include <utility>

/// A toolbar of Qt Quick in a plain item, without a window and without looks, shown, 600 pixels long and 40
/// across.
class CoreBar
{
public:
    explicit CoreBar(EToolbarType type = EToolbarType::Main,
                     EOrientation orientation = EOrientation::Horizontal)
    {
        toolbar.SetToolbarVisibility(true);
        toolbar.CreateUI(reinterpret_cast<vq_uint64>(&root), type, VQ_TEXT("bar"));
        if (toolbar.Picker())
            popup().setParentItem(&root);
        toolbar.SetOrientation(orientation);
        Stretch(600);
    }

    /// Hands `control` to the toolbar under that name.
    template <class Control>
    Control& Take(Control* control, const char* name)
    {
        Name(*control, name);
        vq_uint64 id = 0;
        toolbar.AddControl(*control, id);
        return *control;
    }

    CVqQuickButton& AddButton(const char* name) { return Take(new CVqQuickButton, name); }

    /// A control that wants so many pixels.
    CVqQuickItemControl& AddSized(const char* name, int width, int height = 20)
    {
        return Take(new CVqQuickItemControl(SizedItem(width, height)), name);
    }

    static QQuickItem* SizedItem(int width, int height)
    {
        auto* item = new QQuickItem;
        item->setImplicitWidth(width);
        item->setImplicitHeight(height);
        return item;
    }

    static void Name(IVqUIcontrol& control, const char* name)
    {
        CVqStringW text(name);
        control.Set(vq_control_name, 0, &text);
    }

    /// Lays out in so many pixels along the toolbar.
    void Stretch(int length)
    {
        EOrientation orientation = EOrientation::Horizontal;
        toolbar.GetOrientation(orientation);
        area().setSize(orientation == EOrientation::Horizontal ? QSizeF(length, 40) : QSizeF(40, length));
        toolbar.Layout();
    }

    CVqQuickToolbarArea& area() { return *toolbar.Area(); }
    CVqQuickPicker& picker() { return *toolbar.Picker(); }
    CVqQuickToolbarArea& popup() { return *picker().Area(); }

    /// The names of the shown controls by the area in which they lie: "a b | c", with an arrow behind what is
    /// on the toolbar while the picker shows: "a b > | c".
    std::string Lies()
    {
        std::string on_bar;
        std::string in_popup;
        for (CVqList::CVqNode* node = toolbar.GetFirstNode(); node;) {
            auto* control = dynamic_cast<CVqQuickControl*>(toolbar.GetNextControl(node));
            if (control && control->Item()->isVisible())
                (control->Item()->parentItem() == &area() ? on_bar : in_popup)
                    += control->Name().toStdString() + " ";
        }
        const bool shows_picker = toolbar.Picker() && picker().Item()->isVisible();
        return on_bar + (shows_picker ? "> " : "") + "|" + (in_popup.empty() ? "" : " ")
            + in_popup.substr(0, in_popup.size() - (in_popup.empty() ? 0 : 1));
    }

    QQuickItem root; ///< Without a parent no item counts as visible.
    CVqQuickToolbar toolbar;
};

/// Where the frame of a control lies in its area.
inline QRectF PlaceOf(const CVqQuickControl& control)
{
    return {control.Item()->position(), control.Item()->size()};
}

inline int SetInt(IVqUIcontrol& control, unsigned code, vq_int32 value, vq_int64 index = 0)
{
    return control.Set(code, index, &value);
}

inline int SetText(IVqUIcontrol& control, unsigned code, const char* value, vq_int64 index = 0)
{
    CVqStringW text(value);
    return control.Set(code, index, &text);
}

inline int SetZoom(IVqUIcontrol& control, double zoom)
{
    return control.Set(vq_control_zoom, 0, &zoom);
}

/// What the control wants when nobody else says anything.
inline QSize WantedSize(IVqUIcontrol& control)
{
    CVqSizeBase<int> size;
    control.GetControlSize(size, -1);
    return {size.m_iWidth, size.m_iHeight};
}
