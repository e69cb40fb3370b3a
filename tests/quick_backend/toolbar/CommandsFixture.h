#pragma once

#include "quick_backend/CVqQuickMenu.h"
#include "tests/quick_backend/toolbar/QuickBarFixture.h"

#include <memory>

/// A toolbar whose buttons run the items of a menu:
/// File (1): Open (2), Save (3), Recent (4): One (5). View (6): Grid (7).
class CommandsFixture : public QuickBarFixture
{
protected:
    CommandsFixture()
    {
        menu->AppendPopup(1, 0, VQ_TEXT("&File"));
        menu->AppendMenuItem(2, 1, VQ_TEXT("&Open\aCtrl+O"), VQ_TEXT("Open"), 0);
        menu->AppendMenuItem(3, 1, VQ_TEXT("&Save"), VQ_TEXT("Save"), 0);
        menu->AppendPopup(4, 1, VQ_TEXT("&Recent"));
        menu->AppendMenuItem(5, 4, VQ_TEXT("&One"), VQ_TEXT("One"), 0);
        menu->AppendPopup(6, 0, VQ_TEXT("&View"));
        menu->AppendMenuItem(7, 6, VQ_TEXT("&Grid"), VQ_TEXT("Grid"), 0);
        menu->SetCmdHandler([this](vq_uint32 id) { ran = id; });
        bar.SetMenu(menu.get());
    }

    CVqQuickControl& Bound(const vq_wchar* command) { return Control(Add(command, command)); }
    CVqMenuItem& Item(vq_uint32 id) { return *menu->Manipulators().find_item(id, menu->getRootMenuItem()); }

    std::unique_ptr<CVqQuickMenu> menu = std::make_unique<CVqQuickMenu>();
    vq_uint32 ran = 0;
};
