#include "docs/snippets/menu_guide.h"

// [snippet]
// Gives `id` a key of the user's own, unless it has it. False when another command does: ask first, nothing
// changed.
bool assign_user_key(CVqAbstractMenu& menu, vq_uint32 id, vq_uint32 flags, vq_wchar key)
{
    vq_uint64 target = 0;
    vq_uint32 holder = 0;
    if (menu.Translate(key, flags, target, holder))
        return holder == id;
    return menu.AppendIdAccelKey(id, flags | vq_accel_virtual_key, key, true) == 0;
}
// [end]
