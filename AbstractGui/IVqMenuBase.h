#pragma once

#include "arbor_qml_support_export.h"
#include "system/VqText.h"
#include "system/VqTypes.h"

class CVqMenuItem;

/// The back end of a menu: mirrors the tree of a CVqAbstractMenu into native menus.
///
/// A menu has at most one back end, owns it and deletes it when it dies. All calls come on the GUI thread,
/// during the operation of the menu that causes them. Items that a call hands over belong to the menu: a back
/// end may keep an item's pointer until DestroyItem() of that item and must not delete it. Only an item that
/// InsertItem() shows to hang nowhere belongs to nobody.
///
/// The menu never calls the reserved operations. They keep the order of the table for back ends that were
/// made elsewhere, which may fill them as they need. The destructor stands last for the same reason.
class ARBOR_QML_SUPPORT_EXPORT IVqMenuBase
{
public:
    /// A new back end for the copy that CVqAbstractMenu::Duplicate() makes; the caller owns it. May be null.
    virtual IVqMenuBase* Duplicate() = 0;

    virtual void Reserved2();

    /// The user goes to the menu by keyboard: open what `character` picks, or only activate the menu if it
    /// is 0. The result is not looked at.
    virtual int EnterMenu(vq_wchar character) = 0;

    virtual void Reserved4();
    virtual void Reserved5();

    /// Makes a native popup and gives its handle, which becomes CVqMenuItem::menu() of the popup item. Called
    /// before a popup item is made and for each popup of a tree that is created natively. InsertItem() with
    /// that popup as `item` follows, and DestroyItem() of it ends the handle's life.
    virtual vq_uint64 CreateMenuHandle() = 0;

    /// `item` goes into the native menu of `parent`. Returns 0, or a code that ends the creation of a tree
    /// and becomes its result; single inserts look at no result.
    ///
    /// `item` is linked into the tree already, with one exception below. `position` says where it goes:
    ///
    /// | Call comes from | `position` |
    /// |---|---|
    /// | an append, and the creation of a whole tree (parents first, siblings in order) | null: at the end |
    /// | an insert before a sibling | that sibling: right before it |
    /// | an insert after a sibling | `item` itself: where its place among its siblings says |
    ///
    /// The model reports no missing parent or sibling for most inserts and makes the call all the same, so be
    /// prepared: `parent` is null when an append or insert named an unknown parent; the item then hangs
    /// nowhere. `position` is null in an insert when parent or sibling was not found; the item then is not
    /// among the children of `parent` either. `item` is null when memory ran out. In all three cases there is
    /// nothing to show: return a negative code. The menu forgets an item that hangs nowhere, so a back end
    /// may take it over and free it in the end; one that does not keeps no pointer to it. The parent of a
    /// top-level item is the main root, of type CVqAbstractMenu::SenseMainRoot. Removed and deleted items are
    /// inserted like others.
    virtual int InsertItem(CVqMenuItem* parent, CVqMenuItem* position, CVqMenuItem* item) = 0;

    /// The native counterpart of `item` goes away; forget the pointer. Of a tree, children and later siblings
    /// come before the item itself. May name an item that was never inserted, such as the main root.
    virtual void DestroyItem(CVqMenuItem* item) = 0;

    /// The text of `item` changed, marks included. A mnemonic that changes while the text stays the same is
    /// not told: a label may carry the mark already that its new mnemonic asks for.
    virtual void UpdateItemText(CVqMenuItem* item) = 0;

    virtual void Reserved10();

    /// The status of `item` was set; it may be the same as before.
    virtual void UpdateItemState(CVqMenuItem* item) = 0;

    virtual void Reserved12();
    virtual void Reserved13();
    virtual void Reserved14();

    virtual ~IVqMenuBase();
};
