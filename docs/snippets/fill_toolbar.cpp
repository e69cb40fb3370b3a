#include "docs/snippets/toolbar_guide.h"

// [snippet]
void fill_toolbar(CVqQuickButtonToolbar& bar, CVqQuickMenu& menu)
{
    // Buttons run the items of the same command, and show whether they are enabled, checked or hidden.
    bar.SetMenu(&menu);

    const vq_uint64 open = bar.AddButton(VQ_TEXT("open"));
    bar.SetTextsOnButton(open, 0, VQ_TEXT("Open a picture"), VQ_TEXT("Open"), VQ_TEXT("FileOpen"));
    bar.SetBitmapOnButton(open, 0, VQ_TEXT("OPEN"), VQ_TEXT("k7_tile_assets.dll"));

    bar.AppendSeparator(nullptr);

    // One that shows its text, and a second state of it.
    const vq_uint64 play = bar.AddTextButton(VQ_TEXT("play"));
    bar.SetStatesCountOnButton(play, 2);
    bar.SetTextsOnButton(play, 0, VQ_TEXT("Play the macro"), VQ_TEXT("Play"), VQ_TEXT("MacroPlay"));
    bar.SetTextsOnButton(play, 1, VQ_TEXT("Stop the macro"), VQ_TEXT("Stop"), VQ_TEXT("MacroStop"));
}
// [end]
