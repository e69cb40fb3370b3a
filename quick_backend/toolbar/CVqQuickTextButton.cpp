#include "quick_backend/toolbar/CVqQuickTextButton.h"

CVqQuickTextButton::CVqQuickTextButton() : CVqQuickButton(TextButton)
{
    SetTextBesideImage(true);
}
