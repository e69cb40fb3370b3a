#pragma once

#include "system/CVqStringW.h"
#include "system/VqText.h"

#include <list>
#include <map>
#include <string>
#include <string_view>

class SVqToolbarButtonHiddenCallback;

// What is hidden by name. The objects are defined beside the other static objects of the module, in
// arbor_qml_support.cpp, because the order in which they come to life is part of the module's contract.

/// "owner@name" -> hidden or not.
using VqHiddenStore = std::map<CVqStringW, bool>;

extern VqHiddenStore hidden_menu_commands;
extern VqHiddenStore personal_hidden_buttons;
extern VqHiddenStore system_hidden_buttons;
extern std::list<SVqToolbarButtonHiddenCallback*> hidden_button_observers;

/// The two names as they are, with "@" between them.
std::basic_string<vq_wchar> VqHiddenKey(std::basic_string_view<vq_wchar> owner,
                                        std::basic_string_view<vq_wchar> name);

/// False for a key that is not in the store.
bool VqIsHiddenIn(const VqHiddenStore& store, const CVqStringW& key);

/// Sets the entries whose key begins with "owner@"; adds none.
void VqSetAllOfOwner(VqHiddenStore& store, std::basic_string_view<vq_wchar> owner, bool hidden);
