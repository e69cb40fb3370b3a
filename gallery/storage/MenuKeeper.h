#pragma once

#include "gallery/menu/MenuBuilder.h"
#include "gallery/storage/MenuHome.h"
#include "gallery/storage/StoredMenu.h"
#include "gallery/storage/TreeStore.h"

#include <QObject>

namespace Gallery {

/// Fills a menu at the start, with what the last run stored or else with the factory menu, and stores it.
///
/// Stored are entries, labels, images and keys. Marks and enabled states belong to the run: they begin as the
/// factory menu has them. Labels that were stored in another language are set anew. When the factory menu has
/// changed, it shows in place of the stored one, with the user's own keys. What cannot be read is set aside.
class MenuKeeper : public QObject
{
    Q_OBJECT

public:
    /// `menu`, which must be empty, and `document`, the factory menu, must outlive the keeper.
    MenuKeeper(CVqAbstractMenu& menu, const MenuDocument& document, const MenuHome& home,
               QObject* parent = nullptr);

    /// Fills the menu; to be called once. Gives the entries with a mark.
    QHash<vq_uint32, MenuRole> Fill();

    /// Stores the menu as it is now. The menu itself stays as it is, also when that fails.
    void Store();

    /// One sentence on what the user should know of the folder; empty while all is well.
    const QString& Notice() const { return m_notice; }
    void ClearNotice() { tell({}); }

Q_SIGNALS:
    void NoticeChanged();

private:
    bool load(const StoredMenu& stored);
    void set_aside();
    void tell(const QString& notice);

    CVqAbstractMenu& m_menu;
    const MenuDocument& m_document;
    MenuHome m_home;
    TreeStore m_store;
    QString m_notice;
};

}
