#pragma once

#include "AbstractGui/VqControlCodes.h"
#include "AbstractGui/VqHiddenToolbarButtons.h"
#include "quick_backend/CVqQuickMenu.h"
#include "quick_backend/toolbar/CVqQuickButtonToolbar.h"
#include "quick_backend/toolbar/CVqQuickItemControl.h"
#include "quick_backend/toolbar/CVqQuickToolbar.h"
#include "quick_backend/toolbar_setup/CVqQuickToolbarSetup.h"
#include "system/CVqLiteVariantR.h"
#include "system/CVqVariant.h"
#include "system/VqVariantStorage.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QQuickItem>
#include <QSignalSpy>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>

/// Two bars of one window, connected to one menu, and a setup that knows both:
///
/// - `first`, named "first": open save - zoom undo, where zoom is a general control
/// - `second`, named "second#2" and upright: cut copy
class SetupBars
{
public:
    SetupBars()
    {
        FillMenu();
        first.SetMenu(&menu);
        second.SetMenu(&menu);
        first.Area()->setSize({600, 40});
        second.Area()->setSize({60, 400});
        Add(first, "open", "FileOpen");
        Add(first, "save", "FileSave");
        first.AppendSeparator(nullptr);
        zoom_item = new QQuickItem;
        zoom_item->setImplicitWidth(80);
        zoom_item->setImplicitHeight(20);
        first.AddGeneralControl(new CVqQuickItemControl(zoom_item), VQ_TEXT("zoom"));
        Add(first, "undo", "Undo");
        Add(second, "cut", "Cut");
        Add(second, "copy", "Copy");
        setup = std::make_unique<CVqQuickToolbarSetup>();
        setup->AddToolbar(first, CVqVariant(), QStringLiteral("Main"));
        setup->AddToolbar(second, CVqVariant());
        Settle();
    }

    ~SetupBars()
    {
        setup.reset();
        first.RemoveAllControls();
        second.RemoveAllControls();
        for (const vq_wchar* bar : {VQ_TEXT("first"), VQ_TEXT("second"), VQ_TEXT("second#2")})
            for (const bool system : {false, true})
                VQ_SetToolbarButtonAsHidden(bar, nullptr, false, system);
        Settle();
    }

    /// Lays out, tells what is told late and deletes what is deleted late.
    void Settle()
    {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        first.Toolbar().Layout();
        second.Toolbar().Layout();
    }

    static CVqQuickControl* Add(CVqQuickButtonToolbar& bar, const char* name, const char* command)
    {
        const CVqStringW text(name);
        const vq_uint64 id = bar.AddButton(text);
        bar.SetTextsOnButton(id, 0, VQ_TEXT(""), text, CVqStringW(command));
        return static_cast<CVqQuickControl*>(bar.ControlFromId(id));
    }

    /// The control at a place of a bar, separators counted.
    static CVqQuickControl* At(CVqQuickButtonToolbar& bar, unsigned index)
    {
        return static_cast<CVqQuickControl*>(bar.ControlFromId(bar.GetButtonID(index, false)));
    }

    static CVqQuickControl* Named(CVqQuickButtonToolbar& bar, const char* name)
    {
        return static_cast<CVqQuickControl*>(bar.ControlFromId(bar.FindButton(CVqStringW(name))));
    }

    /// The names in order, in brackets where the control is hidden; "-" for a separator.
    static std::string Order(CVqQuickButtonToolbar& bar)
    {
        std::string out;
        for (unsigned i = 0; CVqQuickControl* control = At(bar, i); ++i) {
            const bool is_separator = control->GetKind() == CVqQuickControl::Separator;
            const std::string name = is_separator ? "-" : control->Name().toStdString();
            out += (out.empty() ? "" : " ") + (is_separator || control->IsShown() ? name : "(" + name + ")");
        }
        return out;
    }

    /// Both stored forms of a bar.
    static std::string Records(CVqQuickButtonToolbar& bar)
    {
        CVqVariant tree;
        CVqLiteVariantR stream;
        bar.Save(tree, VQ_TEXT("name"));
        bar.Save(stream);
        return Json(tree) + Json(stream);
    }

    /// All that customising may change: the very objects in their order, how they look, what is stored.
    std::string Everything()
    {
        std::string out;
        for (CVqQuickButtonToolbar* bar : {&first, &second}) {
            for (unsigned i = 0; CVqQuickControl* control = At(*bar, i); ++i)
                out += Describe(*control);
            out += '\n' + Order(*bar) + '\n' + Records(*bar) + '\n';
        }
        return out;
    }

    CVqQuickMenu menu;
    CVqQuickButtonToolbar first{VQ_TEXT("first")};
    CVqQuickButtonToolbar second{VQ_TEXT("second#2"), EToolbarType::Main, EOrientation::Vertical};
    std::unique_ptr<CVqQuickToolbarSetup> setup;
    QQuickItem* zoom_item = nullptr; // owned by its control

private:
    /// File: Open (Ctrl+O, image 5), Save, -, Recent: one; Edit: Undo, Cut, Copy, Paste, Separator (a command
    /// of that name)
    void FillMenu()
    {
        menu.AppendPopup(1, 0, VQ_TEXT("&File"));
        menu.AppendMenuItem(2, 1, VQ_TEXT("&Open\aCtrl+O"), VQ_TEXT("FileOpen"), 0);
        menu.SetIdBitmap(2, 5);
        menu.AppendMenuItem(3, 1, VQ_TEXT("&Save"), VQ_TEXT("FileSave"), 0);
        menu.AppendSeparator(4, 1);
        menu.AppendPopup(5, 1, VQ_TEXT("&Recent"));
        menu.AppendMenuItem(6, 5, VQ_TEXT("&one"), VQ_TEXT("One"), 0);
        menu.AppendPopup(10, 0, VQ_TEXT("&Edit"));
        menu.AppendMenuItem(11, 10, VQ_TEXT("&Undo"), VQ_TEXT("Undo"), 0);
        menu.AppendMenuItem(12, 10, VQ_TEXT("Cu&t"), VQ_TEXT("Cut"), 0);
        menu.AppendMenuItem(13, 10, VQ_TEXT("&Copy"), VQ_TEXT("Copy"), 0);
        menu.AppendMenuItem(14, 10, VQ_TEXT("&Paste && Go"), VQ_TEXT("Paste"), 0);
        menu.AppendMenuItem(15, 10, VQ_TEXT("Divide"), VQ_TEXT("Separator"), 0);
    }

    template <class Tree>
    static std::string Json(const Tree& tree)
    {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        VQ_WriteJson(buffer, tree);
        return buffer.data().toStdString();
    }

    static std::string Describe(CVqQuickControl& control)
    {
        const auto address = reinterpret_cast<quintptr>(&control);
        return std::to_string(address) + ' ' + control.Name().toStdString()
            + (control.GetControlVisibility() ? " visible" : "")
            + (control.IsListedAsHidden() ? " listed" : "") + (control.IsVertical() ? " vertical" : "")
            + (control.IsFlat() ? " flat" : "") + '\n';
    }
};

/// The bars in a session.
class SetupSession : public testing::Test, protected SetupBars
{
protected:
    SetupSession() { setup->begin(); }
};
