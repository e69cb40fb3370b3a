#pragma once

#include <QString>

#include <map>
#include <utility>

class CVqQuickButtonToolbar;
class CVqQuickControl;

/// The user's own setting of which buttons are hidden, and what it was before it was changed through here.
///
/// Settings stand under the plain name of a bar, without what follows a '#', and so count for all its
/// instances.
class CVqHiddenButtonEdits
{
public:
    /// Whether the user hides `control` of `bar`.
    static bool IsHidden(CVqQuickButtonToolbar& bar, const CVqQuickControl& control);

    /// Whether the application hides it, whatever the user says.
    static bool IsLocked(CVqQuickButtonToolbar& bar, const CVqQuickControl& control);

    void Set(CVqQuickButtonToolbar& bar, const CVqQuickControl& control, bool hidden);

    /// Puts back what was there at first.
    void Restore();

    /// What is there now is final.
    void Forget() { m_before.clear(); }

private:
    std::map<std::pair<QString, QString>, bool> m_before; // bar and button
};
