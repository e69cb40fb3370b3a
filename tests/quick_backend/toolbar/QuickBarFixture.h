#pragma once

#include "AbstractGui/VqControlCodes.h"
#include "AbstractGui/VqHiddenToolbarButtons.h"
#include "quick_backend/toolbar/CVqQuickButtonToolbar.h"
#include "quick_backend/toolbar/CVqQuickToolbar.h"
#include "quick_backend/toolbar/SVqUiEvent.h"

#include <QCoreApplication>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <string>

/// A toolbar of buttons named "bar" of 600 by 40 pixels, without a window.
class QuickBarFixture : public testing::Test
{
protected:
    QuickBarFixture()
    {
        bar.Area()->setParentItem(&root);
        bar.Area()->setSize({600, 40});
    }

    ~QuickBarFixture() override
    {
        for (const bool system : {false, true})
            VQ_SetToolbarButtonAsHidden(VQ_TEXT("bar"), nullptr, false, system);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    CVqQuickControl& Control(vq_uint64 id) { return static_cast<CVqQuickControl&>(*bar.ControlFromId(id)); }

    /// A button of that name with a command in its first state.
    vq_uint64 Add(const vq_wchar* name, const vq_wchar* command = VQ_TEXT(""))
    {
        const vq_uint64 id = bar.AddButton(name);
        bar.SetTextsOnButton(id, 0, VQ_TEXT(""), name, command);
        return id;
    }

    void Send(vq_uint64 id, SVqUiEvent::EKind kind, QPointF place = {}) { Control(id).Send({kind, place}); }
    void Trigger(vq_uint64 id) { Send(id, SVqUiEvent::EKind::Triggered); }

    /// The names of all controls in order, in brackets where they are not shown; "-" for a separator.
    std::string Order()
    {
        std::string out;
        for (CVqList::CVqNode* node = bar.Toolbar().GetFirstNode(); node;) {
            auto& control = static_cast<CVqQuickControl&>(*bar.Toolbar().GetNextControl(node));
            const std::string name
                = control.GetKind() == CVqQuickControl::Separator ? "-" : control.Name().toStdString();
            out += (out.empty() ? "" : " ") + (control.IsShown() ? name : "(" + name + ")");
        }
        return out;
    }

    std::string TidiedOrder()
    {
        bar.Toolbar().Layout();
        return Order();
    }

    QQuickItem root; // what has no parent does not show
    CVqQuickButtonToolbar bar{VQ_TEXT("bar")};
};
