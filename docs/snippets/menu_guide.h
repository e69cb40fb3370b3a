#pragma once

#include "AbstractGui/CVqAbstractMenu.h"

#include <QString>

// The pieces of docs/menus.md, as functions that tests/docs/menu_guideTest.cpp calls.
void give_keys(CVqAbstractMenu& menu);
bool assign_user_key(CVqAbstractMenu& menu, vq_uint32 id, vq_uint32 flags, vq_wchar key);
void hide_commands(CVqAbstractMenu& menu);
bool save_menu(CVqAbstractMenu& menu, const QString& name);
bool load_menu(CVqAbstractMenu& menu, const QString& name);
