#pragma once

#include "gallery/toolbar/ToolbarKeeper.h"
#include "quick_backend/toolbar_setup/CVqQuickToolbarSetup.h"

#include <QObject>

namespace Gallery {

/// The toolbars of one run: filled, bound to the menu, customised together, and stored when that is done.
class Toolbars : public QObject
{
    Q_OBJECT
    Q_PROPERTY(CVqQuickToolbarSetup* setup READ Setup CONSTANT)

public:
    /// One toolbar for each in `document`. `menu`, which is filled already, and `document` must outlive this.
    Toolbars(CVqQuickMenu& menu, const ToolbarDocument& document, const MenuHome& home,
             QObject* parent = nullptr);

    /// Null for an unknown name. Owned by this.
    Q_INVOKABLE CVqQuickButtonToolbar* bar(const QString& name) const;

    const QList<CVqQuickButtonToolbar*>& Bars() const { return m_bars; }
    CVqQuickToolbarSetup* Setup() { return &m_setup; }
    ToolbarKeeper& Keeper() { return m_keeper; }
    const ToolbarKeeper& Keeper() const { return m_keeper; }

private:
    void keep();

    ToolbarBuilder m_builder;
    const QList<CVqQuickButtonToolbar*> m_bars; // children of this
    ToolbarKeeper m_keeper;
    CVqQuickToolbarSetup m_setup;
};

}
