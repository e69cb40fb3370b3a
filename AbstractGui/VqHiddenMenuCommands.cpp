#include "AbstractGui/VqHiddenMenuCommands.h"

#include "AbstractGui/VqHiddenStores.h"

#include <algorithm>

namespace {

using Text = std::basic_string<vq_wchar>;
using TextView = std::basic_string_view<vq_wchar>;

TextView without_arguments(TextView command)
{
    command = command.substr(0, command.find_first_of(VQ_TEXT("(;")));
    if (command.starts_with(VQ_TEXT('_')))
        command.remove_prefix(1);
    return command;
}

CVqStringW command_key(const vq_wchar* name, const vq_wchar* command)
{
    Text key = VqHiddenKey(VqView(name), without_arguments(VqView(command)));
    std::ranges::replace(key, VQ_TEXT(' '), VQ_TEXT('_'));
    return CVqStringW(key);
}

}

int VQ_SetMenuCommandAsHidden(const vq_wchar* name, const vq_wchar* command, bool hidden)
{
    if (!name)
        return -9;
    if (command)
        hidden_menu_commands[command_key(name, command)] = hidden;
    else
        VqSetAllOfOwner(hidden_menu_commands, VqView(name), hidden);
    return 0;
}

bool VQ_IsMenuCommandSetAsHidden(const vq_wchar* name, const vq_wchar* command)
{
    return VqIsHiddenIn(hidden_menu_commands, command_key(name, command));
}
