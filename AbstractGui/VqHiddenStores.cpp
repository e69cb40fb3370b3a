#include "AbstractGui/VqHiddenStores.h"

using Text = std::basic_string<vq_wchar>;
using TextView = std::basic_string_view<vq_wchar>;

Text VqHiddenKey(TextView owner, TextView name)
{
    Text key(owner);
    key += VQ_TEXT('@');
    key += name;
    return key;
}

bool VqIsHiddenIn(const VqHiddenStore& store, const CVqStringW& key)
{
    const auto found = store.find(key);
    return found != store.end() && found->second;
}

void VqSetAllOfOwner(VqHiddenStore& store, TextView owner, bool hidden)
{
    const Text prefix = VqHiddenKey(owner, {});
    for (auto& [key, value] : store)
        if (key.View().starts_with(prefix))
            value = hidden;
}
