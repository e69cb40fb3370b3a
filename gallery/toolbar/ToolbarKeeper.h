#pragma once

#include "gallery/storage/MenuHome.h"
#include "gallery/storage/TreeStore.h"
#include "gallery/toolbar/StoredToolbars.h"
#include "gallery/toolbar/ToolbarBuilder.h"
#include "quick_backend/toolbar/CVqQuickButtonToolbar.h"

#include <QObject>

namespace Gallery {

/// Fills toolbars at the start, as the last run left them or else as the factory made them, and stores them.
///
/// Stored are the toolbars that are no longer as the factory made them, and the buttons that the user hides.
/// Texts, images and items come anew from menu and document. What cannot be read is set aside.
class ToolbarKeeper : public QObject
{
    Q_OBJECT

public:
    /// The toolbars, which are empty, and the builder must outlive the keeper.
    ToolbarKeeper(const QList<CVqQuickButtonToolbar*>& bars, ToolbarBuilder& builder, const MenuHome& home,
                  QObject* parent = nullptr);

    /// Fills the toolbars; to be called once. What the store of hidden buttons held of them is gone.
    void Fill();

    /// Stores the toolbars as they are now. They themselves stay as they are, also when that fails.
    void Store();

    /// The record of a toolbar as the factory made it; empty for an unknown one.
    CVqVariant FactoryOf(const CVqQuickButtonToolbar& bar) const { return m_factory.value(bar.Name()); }

    /// One sentence on what the user should know of the folder; empty while all is well.
    const QString& Notice() const { return m_notice; }
    void ClearNotice() { tell({}); }

Q_SIGNALS:
    void NoticeChanged();

private:
    void build_all();
    bool load_all(const QList<StoredToolbar>& stored);
    StoredToolbar stored_of(CVqQuickButtonToolbar& bar) const;
    void set_aside();
    void tell(const QString& notice);

    const QList<CVqQuickButtonToolbar*> m_bars;
    ToolbarBuilder& m_builder;
    MenuHome m_home;
    TreeStore m_store;
    QHash<QString, CVqVariant> m_factory; // by name of the toolbar
    QString m_notice;
};

}
