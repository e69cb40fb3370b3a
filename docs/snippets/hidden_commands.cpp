#include "AbstractGui/VqHiddenMenuCommands.h"
#include "docs/snippets/menu_guide.h"

void hide_commands(CVqAbstractMenu& menu)
{
    // [snippet]
    VQ_SetMenuCommandAsHidden(VQ_TEXT("Viewer"), VQ_TEXT("FileImport(1);"), true);

    CVqMenuItem* root = menu.getRootMenuItem();
    menu.Manipulators().remove_hidden(root->subItem(), VQ_TEXT("Viewer"));
    menu.Manipulators().check_seps(root->subItem(), true);
    // [end]
}
