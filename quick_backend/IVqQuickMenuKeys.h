#pragma once

#include "arbor_quick_backend_export.h"

#include <QString>

class CVqMenuItem;

/// Tells the rows of a menu which keys fire an item. The item itself knows the main table only, so the menu,
/// which owns both tables, answers.
class ARBOR_QUICK_BACKEND_EXPORT IVqQuickMenuKeys
{
public:
    /// All keys of `item`, the second table first, joined by ", "; empty when it has none.
    virtual QString KeyText(const CVqMenuItem& item) const = 0;

protected:
    IVqQuickMenuKeys() = default;
    IVqQuickMenuKeys(const IVqQuickMenuKeys&) = default;
    IVqQuickMenuKeys& operator=(const IVqQuickMenuKeys&) = default;
    ~IVqQuickMenuKeys() = default;
};
