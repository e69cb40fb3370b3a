#pragma once

#include <QPointer>
#include <QString>

#include <vector>

class CVqQuickButtonToolbar;
class CVqQuickControl;

/// What customising may change about one bar, as it was when this was made: which controls in which order,
/// and of each what goes when it leaves the bar. The very objects come back; owns none of them.
class CVqToolbarState
{
public:
    explicit CVqToolbarState(CVqQuickButtonToolbar& bar);

    /// Null when the bar is gone.
    CVqQuickButtonToolbar* Bar() const { return m_bar; }

    /// The control that had this name then and still lives, or null.
    CVqQuickControl* Named(const QString& name) const;

    /// Whether `control` was on the bar then.
    bool Held(const CVqQuickControl& control) const;

    /// Whether the bar holds the same controls in the same order, under the names that they had.
    bool IsOrderKept() const;

    /// Puts the controls back on the bar, which is empty. No bar holds any of them.
    void PutBack() const;

    /// Puts back what is shown and how; the order is as it was.
    void RestoreLooks() const;

private:
    struct SVqPlace
    {
        QPointer<CVqQuickControl> m_control;
        QString m_name;
        bool m_visible = true;
        bool m_vertical = false;
        bool m_flat = false;
    };

    QPointer<CVqQuickButtonToolbar> m_bar;
    std::vector<SVqPlace> m_places;
};
