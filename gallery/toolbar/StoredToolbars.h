#pragma once

#include "system/CVqVariant.h"

#include <QList>
#include <QStringList>

#include <optional>

class CVqAbstractButtonToolbar;

namespace Gallery {

/// What is kept of one toolbar between two runs.
struct StoredToolbar
{
    QString name;

    /// As SaveRecord() gives it; empty for a toolbar that is as the factory made it.
    CVqVariant record;

    QStringList hidden; ///< Names of the buttons that the user hides.
};

/// The record of `bar`: in the tree form, or in the lightweight form where the tree form has no room for all
/// controls, beyond 100 of them.
CVqVariant SaveRecord(CVqAbstractButtonToolbar& bar);

/// Loads a record of either form into `bar`, in place of all its controls. False when it is none, is too
/// large, or lacks something; `bar` holds what could be read, unless the record was none.
bool LoadRecord(CVqAbstractButtonToolbar& bar, const CVqVariant& record);

/// The tree in which `bars` are written.
CVqVariant ToTree(const QList<StoredToolbar>& bars);

/// None when `tree` holds no such thing, or one of another format.
std::optional<QList<StoredToolbar>> ToolbarsFromTree(const CVqVariant& tree);

}
