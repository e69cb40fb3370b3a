#pragma once

#include "AbstractGui/CVqAbstractButtonToolbar.h"
#include "quick_backend/toolbar_setup/SVqMenuCommand.h"

#include <vector>

class CVqQuickMenu;
class CVqQuickMenuRows;

/// All commands that a button can run, in the order of the menu, each command once: those with a label that
/// neither they nor a popup above them are hidden as a command. `ask`, or null, is asked for the label of
/// each and may leave it out.
std::vector<SVqMenuCommand> VqMenuCommands(const CVqQuickMenu& menu,
                                           CVqAbstractButtonToolbar::setup_callback_type ask);

/// The lists of rows of a menu, the bar's first.
std::vector<const CVqQuickMenuRows*> VqMenuLists(const CVqQuickMenu& menu);
