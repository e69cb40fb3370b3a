#include "AbstractGui/VqHiddenToolbarButtons.h"

#include "AbstractGui/VqHiddenStores.h"

#include <algorithm>

namespace {

using TextView = std::basic_string_view<vq_wchar>;

CVqStringW button_key(TextView toolbar, const vq_wchar* button)
{
    return CVqStringW(VqHiddenKey(toolbar, VqView(button)));
}

TextView without_instance(TextView toolbar)
{
    return toolbar.substr(0, toolbar.find(VQ_TEXT('#')));
}

}

int VQ_SetToolbarButtonAsHidden(const vq_wchar* toolbar, const vq_wchar* button, bool hidden, bool system)
{
    if (!toolbar)
        return -9;
    VqHiddenStore& store = system ? system_hidden_buttons : personal_hidden_buttons;
    if (button)
        store[button_key(VqView(toolbar), button)] = hidden;
    else
        VqSetAllOfOwner(store, VqView(toolbar), hidden);
    for (SVqToolbarButtonHiddenCallback* observer : hidden_button_observers)
        if (observer)
            observer->ButtonHiddenChanged(toolbar, button, hidden, system);
    return 0;
}

bool VQ_IsToolbarButtonSetAsHidden(const vq_wchar* toolbar, const vq_wchar* button)
{
    const TextView name = VqView(toolbar);
    return VqIsHiddenIn(system_hidden_buttons, button_key(name, button))
        || VqIsHiddenIn(personal_hidden_buttons, button_key(without_instance(name), button));
}

void VQ_SetToolbarButtonAsHiddenCallback(SVqToolbarButtonHiddenCallback* observer)
{
    auto& observers = hidden_button_observers;
    if (std::ranges::find(observers, observer) == observers.end())
        observers.push_back(observer);
}

void VQ_RemoveToolbarButtonAsHiddenCallback(SVqToolbarButtonHiddenCallback* observer)
{
    hidden_button_observers.remove(observer);
}
