#include "AbstractGui/VqHiddenMenuCommands.h"

#include "system/CVqStringW.h"

#include <algorithm>
#include <map>
#include <string>
#include <string_view>

namespace {

using Text = std::basic_string<vq_wchar>;
using TextView = std::basic_string_view<vq_wchar>;
using HiddenCommands = std::map<CVqStringW, bool>;

// Made when the module is loaded, before anybody can ask.
HiddenCommands hidden_commands;

TextView without_arguments(TextView command)
{
    command = command.substr(0, command.find_first_of(VQ_TEXT("(;")));
    if (command.starts_with(VQ_TEXT('_')))
        command.remove_prefix(1);
    return command;
}

Text owner_prefix(const vq_wchar* name)
{
    return Text(VqView(name)) + VQ_TEXT('@');
}

CVqStringW command_key(const vq_wchar* name, const vq_wchar* command)
{
    Text key = owner_prefix(name);
    key += without_arguments(VqView(command));
    std::replace(key.begin(), key.end(), VQ_TEXT(' '), VQ_TEXT('_'));
    return CVqStringW(key);
}

void set_all_of_owner(const vq_wchar* name, bool hidden)
{
    const Text prefix = owner_prefix(name);
    for (auto& [key, value] : hidden_commands)
        if (key.View().starts_with(prefix))
            value = hidden;
}

}

int VQ_SetMenuCommandAsHidden(const vq_wchar* name, const vq_wchar* command, bool hidden)
{
    if (!name)
        return -9;
    if (command)
        hidden_commands[command_key(name, command)] = hidden;
    else
        set_all_of_owner(name, hidden);
    return 0;
}

bool VQ_IsMenuCommandSetAsHidden(const vq_wchar* name, const vq_wchar* command)
{
    const auto found = hidden_commands.find(command_key(name, command));
    return found != hidden_commands.end() && found->second;
}
