#include "docs/snippets/menu_guide.h"

void give_keys(CVqAbstractMenu& menu)
{
    // [snippet]
    // The first key stands in the text, behind a BEL.
    menu.AppendMenuItem(20, 10, VQ_TEXT("&Redo\aCtrl+Shift+Z"), VQ_TEXT("EditRedo"), 0);

    // Each further key is added with flags and key; the item's text then shows them all.
    menu.AppendIdAccelKey(20, vq_accel_ctrl | vq_accel_virtual_key, VQ_TEXT('Y'), false);

    // A key that no text can carry: Ctrl and the comma key.
    menu.AppendMenuItem(21, 10, VQ_TEXT("&Preferences..."), VQ_TEXT("EditPreferences"), 0);
    menu.AppendIdAccelKey(21, vq_accel_ctrl | vq_accel_virtual_key, 188, false);

    // A key without a menu entry.
    menu.AppendLonelyAccel(90, vq_accel_virtual_key, 112, VQ_TEXT("HelpContext"));
    // [end]
}
