#pragma once

#include "quick_backend/toolbar/CVqQuickButton.h"

/// A button that shows its text, beside its image where it has one.
class ARBOR_QUICK_BACKEND_EXPORT CVqQuickTextButton final : public CVqQuickButton
{
    Q_OBJECT

public:
    CVqQuickTextButton();
};
