#pragma once

#include "AbstractGui/CVqAccelerators.h"
#include "AbstractGui/CVqMenuItem.h"
#include "AbstractGui/IVqMenuBase.h"
#include "arbor_qml_support_export.h"
#include "system/CVqRectBase.h"
#include "system/CVqStringW.h"
#include "system/VqText.h"
#include "system/VqTypes.h"

class CVqLiteVariantR;
class CVqLiteVariantW;
class CVqVariant;

/// The menu model: a tree of CVqMenuItem under a main root, two accelerator tables, a list of lonely
/// accelerators (keys with a command and without a menu entry), and an optional back end that mirrors the
/// tree into native menus.
///
/// A concrete menu derives, makes the root with create_item_mainroot(), sets the back end and overrides what
/// the group "For the concrete menu" names; it may replace any other operation. Tree work goes through
/// Manipulators(), so that a concrete menu can also make items of its own class.
///
/// Identifiers are the client's choice; nobody checks that they are unique, and of several items with one
/// identifier the first in depth-first order is found. 0 is the main root. Operations that return `int` give
/// 0 for success unless told otherwise; these codes come up:
///
/// | Code | Meaning |
/// |---|---|
/// | -2 | not implemented by the abstract class |
/// | -4 | not found where a popup was expected, or bad argument |
/// | -6 | parent not found in InsertSeparatorAfter() |
/// | -9 | parent, sibling or item missing |
/// | -12 | no back end |
/// | -13 | identifier not found |
///
/// Out parameters are written on success only. Texts are copied, and null reads as the empty text, unless
/// told otherwise. Everything belongs to the GUI thread; nothing is locked.
///
///     CVqQuickMenu menu;
///     menu.AppendPopup(1, 0, VQ_TEXT("&File"));
///     menu.AppendMenuItem(2, 1, VQ_TEXT("&Open\aCtrl+O"), VQ_TEXT("FileOpen"), 0);
///     menu.UpdateMnemonics(1, true);
class ARBOR_QML_SUPPORT_EXPORT CVqAbstractMenu
{
public:
    /// What an identifier stands for; also the values of CVqMenuItem::type().
    enum enMenuIdSense : vq_uint32
    {
        SenseAccel = 0, ///< A lonely accelerator.
        SenseItem = 2,  ///< A command.
        SenseTwoColor = 3,
        SenseOneColor = 4,
        SenseLineWidth = 5,
        SenseSeparator = 6,
        SensePopup = 7,
        SenseMainRoot = 8, ///< The root, with identifier 0.
        SenseAny = 9,      ///< Of no item; in a search it stands for every type.
    };

    class IVqVisitorData;
    struct SVqFindData;
    struct SVqFindDataByCommand;
    class SVqManipulators;

    /// Takes an item of EnumItems() and the client's pointer; false ends the walk.
    using EnumCallback = bool (*)(CVqMenuItem* item, void* user);

    /// No root, no back end, native value 0, empty tables with translation on.
    CVqAbstractMenu();

    /// Copies are shallow: tree, back end and the records of both tables are shared afterwards, and each of
    /// the two menus would free them. Whoever copies makes sure that only one dies. Duplicate() is the deep
    /// copy.
    CVqAbstractMenu(const CVqAbstractMenu& other);
    CVqAbstractMenu& operator=(const CVqAbstractMenu& other);

    /// Deletes the back end, then frees the root's tree, the root's siblings and the lonely accelerators,
    /// with the process-wide manipulators and not with those of Manipulators().
    virtual ~CVqAbstractMenu();

    // For the concrete menu ----------------------------------------------------------------------------

    /// A new menu with a deep copy of the tree, a Duplicate() of the back end and the native value; the
    /// caller owns it. Keys and lonely accelerators are not copied. Null on failure, which is what the
    /// abstract menu always gives: the new menu has no root to copy into. An override makes one.
    virtual CVqAbstractMenu* Duplicate();

    /// TrackContextMenuEx() without a rectangle.
    virtual int TrackContextMenu(vq_uint32 id, int x, int y, __vq_hwnd* window, vq_uint32* resultId,
                                 bool flag1, bool flag2);

    /// Opens popup `id` as a context menu at `x`, `y` of `window` and stores the picked identifier in
    /// `resultId`. `rect`, which may be null, is what the menu should not cover. The abstract class gives -2.
    virtual int TrackContextMenuEx(vq_uint32 id, int x, int y, __vq_hwnd* window, vq_uint32* resultId,
                                   const CVqRectBase<int>* rect, bool flag1, bool flag2);

    /// The abstract class gives -2.
    virtual int ShowDisabledMenuButtons(bool show, int* value);

    // Getters by identifier: -13 when it is not found --------------------------------------------------

    /// Type of the item. The lonely accelerators are asked first.
    virtual int GetIdSense(vq_uint32 id, enMenuIdSense& sense);

    /// Identifier of the item's parent; -4 when it has none.
    virtual int GetIdParentPopup(vq_uint32 id, vq_uint32& parentId);

    /// Command of the item. The lonely accelerators are asked first, or last in the second form.
    virtual int GetIdCommand(vq_uint32 id, CVqStringW& command);
    virtual int GetIdCommandFromRoot(vq_uint32 id, CVqStringW& command);

    /// Image index, -1 for none.
    virtual int GetIdBitmap(vq_uint32 id, vq_int32& index);

    // Keys by identifier -------------------------------------------------------------------------------

    /// Adds a key to the main table, or to the second one, and writes all the keys of that table for `id`
    /// into the item's text. Gives the result of AddAccelKey(); an unknown `id` gets the key all the same.
    virtual int AppendIdAccelKey(vq_uint32 id, vq_uint32 flags, vq_wchar key, bool second);

    /// The same after removing the keys of `id` from that table and, when the combination is bound to another
    /// identifier there, all keys of that other one, whose text stays as it is.
    virtual int SetIdAccelKey(vq_uint32 id, vq_uint32 flags, vq_wchar key, bool second);

    // Getters by identifier, continued -----------------------------------------------------------------

    virtual int GetIdStatus(vq_uint32 id, vq_uint32& status);
    virtual int GetIdMenuString(vq_uint32 id, CVqStringW& text);

    /// Menu string of the item's parent; -13 also when it has none.
    virtual int GetIdParentMenuString(vq_uint32 id, CVqStringW& text);

    // Deleting and printing ----------------------------------------------------------------------------

    /// Destroys the item with its children and their keys, natively too. A lonely accelerator of that
    /// identifier goes as well, but the result tells of the tree alone: -13 when it holds no such item, and
    /// for the root, which stays.
    virtual int DeleteId(vq_uint32 id);

    /// Writes the item and its subtree, or the whole tree for an unknown identifier, to Qt's debug stream.
    virtual int PrintAllIn(vq_uint32 id);

    /// Destroys the children of the item with their keys and clears its `removed` flag. -13 if not found.
    virtual int DeleteAllIn(vq_uint32 id);

    /// Empties the menu: items, siblings of the root, both tables, lonely accelerators. The root stays.
    virtual int DeleteAll();

    // Setters by identifier: -13 when it is not found --------------------------------------------------

    /// -4 when the item is missing or `index` is -1.
    virtual int SetIdBitmap(vq_uint32 id, vq_int32 index);

    /// The lonely accelerators are asked first.
    virtual int SetIdCommand(vq_uint32 id, const vq_wchar* command);

    /// Sets the menu string. A key text behind a BEL replaces the keys of `id` in the main table; without a
    /// BEL the first key of that table is put behind the text.
    virtual int SetIdMenuString(vq_uint32 id, const vq_wchar* text);

    /// Bits 8 to 15 of `status` name those of the low byte that keep their value; the others take that of the
    /// low byte. Higher bits of the item go, unless bits 16 and up name them likewise.
    virtual int SetIdStatus(vq_uint32 id, vq_uint32 status);

    virtual int SetIdDrawCallback(vq_uint32 id, void* callback);
    virtual int SetIdMeasureCallback(vq_uint32 id, void* callback);

    /// Enables the item and takes its gray away, or disables and grays it. The keys of `id` in both tables
    /// are marked likewise, also without an item.
    virtual int EnableId(vq_uint32 id, bool enable);

    virtual int CheckId(vq_uint32 id, bool check);

    /// Checks `id` and unchecks the others from the item of `firstId` along its siblings through the item of
    /// `lastId`, or to the end when that does not come. 0 also when `firstId` is not found.
    virtual int CheckRadioId(vq_uint32 id, vq_uint32 firstId, vq_uint32 lastId);

    virtual int GrayId(vq_uint32 id, bool gray);

    /// The client's pointer. The lonely accelerators are asked first.
    virtual int SetUserParam(vq_uint32 id, void* param);

    /// A null `param` stores nothing and changes no result.
    virtual int GetUserParam(vq_uint32 id, void** param);

    // Popups -------------------------------------------------------------------------------------------
    //
    // All operations that append give 0: an unknown parent is not reported, the item stays unattached and
    // nobody frees it. So do those that insert, at the sibling `siblingId` of `parentId`, where nothing else
    // is told. The back end hears of the new item in any case, see IVqMenuBase::InsertItem().

    virtual int InsertPopupBefore(vq_uint32 id, vq_uint32 parentId, vq_uint32 siblingId,
                                  const vq_wchar* text);
    virtual int InsertPopupAfter(vq_uint32 id, vq_uint32 parentId, vq_uint32 siblingId, const vq_wchar* text);
    virtual int AppendPopup(vq_uint32 id, vq_uint32 parentId, const vq_wchar* text);

    // Searching and counting ---------------------------------------------------------------------------

    /// 0 when `id` is a direct child of `popup`; -4 for a missing or empty popup, else -13.
    virtual int FindItemInPopup(vq_uint32 popup, vq_uint32 id);

    /// Identifiers of the direct children whose label is `text`: exactly, or ignoring case, marks, dots,
    /// repeated blanks and, in the child's label, `$`. Labels end at BEL or TAB. `count` holds the capacity
    /// of `ids`, at which the search ends, and receives the number found. -4 for a missing or empty popup or
    /// null `text`, which leaves `count`; -13 when none matched, with 0 in `count`.
    virtual int FindItemInPopup(vq_uint32 popup, const vq_wchar* text, vq_uint32* ids, vq_uint32& count,
                                bool exact);

    /// Identifiers of the items of the whole tree with that menu string, or that command; empty means any.
    /// `type` and `status` are those of SVqFindData. `count` holds the capacity of `ids` and receives the
    /// number found. -13 when none matched, with 0 in `count`.
    virtual int FindItems(const vq_wchar* text, vq_uint32 type, vq_uint32 status, vq_uint32* ids,
                          vq_uint32& count);
    virtual int FindItemsByCommand(const vq_wchar* command, vq_uint32 type, vq_uint32 status, vq_uint32* ids,
                                   vq_uint32& count);

    /// Number of children, or -13.
    virtual int GetCountInPopup(vq_uint32 popup);

    /// Identifier by index and back, hidden children included. -4 for a missing or empty popup, -13 when
    /// there is no such child.
    virtual int GetIdInPopupFromIndex(vq_uint32 popup, vq_uint32 index, vq_uint32& id);
    virtual int GetIndexInPopupFromId(vq_uint32 popup, vq_uint32 id, vq_uint32& index);

    /// Calls `callback` for the item and its following siblings, with `recursive` also for all below them,
    /// children before their parent, until it returns false. -4 for a missing item; 0 for a null callback.
    virtual int EnumItems(vq_uint32 id, bool recursive, EnumCallback callback, void* user);

    /// Hides the commands that are set as hidden under `name`, in the popup with identifier 12300 and its
    /// following siblings, whatever `id` is, and tidies the separators there. -4 when that popup is missing
    /// or empty.
    virtual int RemoveHiddenInPopup(vq_uint32 id, const vq_wchar* name);

    /// Number of children that are neither deleted nor removed, or -13.
    virtual int GetVisibleCountInPopup(vq_uint32 popup);

    /// Index of a direct child of the root. -4 without root or children, -13 if it is none of them.
    virtual int GetPopupIndexFromId(vq_uint32 id, vq_uint32& index);

    /// Builds the native menu of the item's children anew. -13 for a missing item, -9 without back end or
    /// children, else what the back end says.
    virtual int RecreatePopup(vq_uint32 id);

    // Commands and separators --------------------------------------------------------------------------

    /// A key text behind a BEL in `text` replaces the keys of `id` in the main table. -9 when parent or
    /// sibling is not found; then nothing is made.
    virtual int InsertMenuItemBefore(vq_uint32 id, vq_uint32 parentId, vq_uint32 siblingId,
                                     const vq_wchar* text, const vq_wchar* command);
    virtual int InsertMenuItemAfter(vq_uint32 id, vq_uint32 parentId, vq_uint32 siblingId,
                                    const vq_wchar* text, const vq_wchar* command);

    /// A key text counts as above. `status` replaces that of a new item unless it is 0.
    virtual int AppendMenuItem(vq_uint32 id, vq_uint32 parentId, const vq_wchar* text,
                               const vq_wchar* command, vq_uint32 status);

    virtual int InsertSeparatorBefore(vq_uint32 id, vq_uint32 parentId, vq_uint32 siblingId);

    /// -6, and a message in the debug stream, when the parent is not found.
    virtual int InsertSeparatorAfter(vq_uint32 id, vq_uint32 parentId, vq_uint32 siblingId);
    virtual int AppendSeparator(vq_uint32 id, vq_uint32 parentId);

    // Colours and line widths --------------------------------------------------------------------------

    virtual int InsertOneColorBefore(vq_uint32 id, vq_uint32 parentId, vq_uint32 siblingId, vq_uint32 colour,
                                     const vq_wchar* command);
    virtual int InsertOneColorAfter(vq_uint32 id, vq_uint32 parentId, vq_uint32 siblingId, vq_uint32 colour,
                                    const vq_wchar* command);
    virtual int AppendOneColor(vq_uint32 id, vq_uint32 parentId, vq_uint32 colour, const vq_wchar* command);
    virtual int InsertTwoColorBefore(vq_uint32 id, vq_uint32 parentId, vq_uint32 siblingId, vq_uint32 colour1,
                                     vq_uint32 colour2, const vq_wchar* command);
    virtual int InsertTwoColorAfter(vq_uint32 id, vq_uint32 parentId, vq_uint32 siblingId, vq_uint32 colour1,
                                    vq_uint32 colour2, const vq_wchar* command);
    virtual int AppendTwoColor(vq_uint32 id, vq_uint32 parentId, vq_uint32 colour1, vq_uint32 colour2,
                               const vq_wchar* command);
    virtual int InsertLineWidthBefore(vq_uint32 id, vq_uint32 parentId, vq_uint32 siblingId, vq_uint32 width,
                                      const vq_wchar* text, const vq_wchar* command);
    virtual int InsertLineWidthAfter(vq_uint32 id, vq_uint32 parentId, vq_uint32 siblingId, vq_uint32 width,
                                     const vq_wchar* text, const vq_wchar* command);
    virtual int AppendLineWidth(vq_uint32 id, vq_uint32 parentId, vq_uint32 width, const vq_wchar* text,
                                const vq_wchar* command);

    // The whole menu -----------------------------------------------------------------------------------

    /// Kept for the back end.
    virtual int EnableFixedLeftColumnWidth(bool enable);

    /// Passed on to the back end, whose result is not looked at; -12 without one.
    virtual int EnterMenu(vq_wchar character);

    // Lonely accelerators and tables -------------------------------------------------------------------

    /// Binds a key to a command that has no menu entry. A known `id` keeps its command, and gets the key
    /// unless the first record of that combination in the main table is its own.
    virtual int AppendLonelyAccel(vq_uint32 id, vq_uint32 flags, vq_wchar key, const vq_wchar* command);

    /// Frees the list, and removes the keys of all but its last item from the main table. -9 when it is
    /// empty.
    virtual int DeleteAllLonelyAccels();

    /// Exchanges the list with `head`, ownership included.
    virtual int SwapLonelyAccels(CVqMenuItem*& head);

    /// Switches Translate() of both tables.
    virtual int EnableAccelTranslation(bool enable);

    /// True when the second table, or else the main table, binds the combination; `target` and `id` then
    /// receive the record's. Looks at the status of neither record nor item: ask before running a command.
    virtual bool Translate(vq_wchar key, vq_uint32 flags, vq_uint64& target, vq_uint32& id);

    /// Appends the records of the second table, then those of the main table, to `to`.
    virtual int CopyAccelsTo(CVqAccelerators& to);

    /// Exchanges the records of both tables.
    virtual int SwapAccels(CVqAccelerators& main, CVqAccelerators& second);

    /// An identifier that is free in the tree and at least `seed`; `seed` itself without a root. Lonely
    /// accelerators do not count.
    virtual vq_uint32 GetSafeId(vq_uint32 seed);

    // Persistence --------------------------------------------------------------------------------------

    /// Writes tree, keys of the main table and lonely accelerators. Always 0.
    virtual int Save(CVqLiteVariantR& out);
    virtual int Save(CVqVariant& out);

    /// Replaces the tree, and mirrors it natively. Gives what the back end says (-9 without one), or 0 when
    /// the loaded menu is empty. A bad container is not reported: what cannot be read is left out.
    virtual int Load(CVqLiteVariantR& in);
    virtual int Load(CVqVariant& in);

    // Mnemonics ----------------------------------------------------------------------------------------

    /// Gives each command and popup among the children of `id` a mnemonic of its own and marks it in the
    /// label, with `recursive` also one level below. -9 when the item is missing or no child takes part.
    virtual int UpdateMnemonics(vq_uint32 id, bool recursive);
    virtual int UpdateMnemonicsEx(CVqMenuItem* popup, bool recursive);

    // For the concrete menu ----------------------------------------------------------------------------

    /// Runs the command of `id`. The abstract class gives -2.
    virtual int CallCmdHandler(vq_uint32 id);

    /// Activates the menu for `id`, an enabled direct child of the root; -13 for any other.
    virtual int UnrollPopup(vq_uint32 id);

    /// Whether the native menu should start a new column at `id`. The abstract class says false.
    virtual bool IsMenuBreakRecommended(vq_uint32 id, int value);

    /// The main root, owned by the menu, or null.
    virtual CVqMenuItem* getRootMenuItem();

    /// Sets CVqMenuItem::ignoreAdditionalZoom() in the whole tree.
    virtual void setIgnoreAdditionalBitmapZoomRecursive(bool ignore);

    /// The toolbox that every operation goes through; the process-wide one here. An override returns an
    /// object that lives as long as the menu.
    virtual SVqManipulators& Manipulators();

protected:
    CVqMenuItem* m_pRoot = nullptr;     // owned
    vq_uint64 m_hNative = 0;            // for the concrete menu; Duplicate() copies it
    IVqMenuBase* m_pMenuBase = nullptr; // owned; without one, calls to the back end are left out
    bool m_bFixedLeftColumnWidth = false;
    CVqAccelerators m_accels;               // the main table: keys of the items
    CVqAccelerators m_accelsSecond;         // further keys, asked first
    CVqMenuItem* m_pLonelyAccels = nullptr; // head of a chain of accel items; owned
};

/// Is shown the items of a walk, see SVqManipulators::visit_all(). Never deleted through this interface.
class ARBOR_QML_SUPPORT_EXPORT CVqAbstractMenu::IVqVisitorData
{
public:
    /// False ends the walk.
    virtual bool Visit(CVqMenuItem* item) = 0;

protected:
    IVqVisitorData() = default;
    IVqVisitorData(const IVqVisitorData&) = default;
    IVqVisitorData& operator=(const IVqVisitorData&) = default;
    ~IVqVisitorData() = default;
};

/// Collects the identifiers of items by menu string, type and status.
///
/// An empty text is any; another one is compared with the whole menu string. Type SenseAny is any. The low
/// byte of `status` holds the wanted bits, bits 8 to 15 name those that do not matter.
struct ARBOR_QML_SUPPORT_EXPORT CVqAbstractMenu::SVqFindData final : CVqAbstractMenu::IVqVisitorData
{
    /// `ids` has room for `capacity` identifiers and must outlive the search; null has room for none.
    SVqFindData(const CVqStringW& text, const CVqStringW& command, vq_uint32 type, vq_uint32 status,
                vq_uint32* ids, vq_uint32 capacity);

    /// Always true: a full array ends the collecting, not the walk.
    bool Visit(CVqMenuItem* item) override;

    CVqStringW m_strText;
    CVqStringW m_strCommand; // plays no part here
    vq_uint32 m_uiType;
    vq_uint32 m_uiStatus;
    vq_uint32 m_uiStatusMask; // bits of the status that matter
    vq_uint32* m_puiIds;      // not owned
    vq_uint32 m_uiCapacity;
    vq_uint32 m_uiCount = 0;
};

/// The same by command in place of the menu string.
struct ARBOR_QML_SUPPORT_EXPORT CVqAbstractMenu::SVqFindDataByCommand final : CVqAbstractMenu::IVqVisitorData
{
    /// `ids` has room for `capacity` identifiers and must outlive the search; null has room for none.
    SVqFindDataByCommand(const CVqStringW& text, const CVqStringW& command, vq_uint32 type, vq_uint32 status,
                         vq_uint32* ids, vq_uint32 capacity);

    /// Always true: a full array ends the collecting, not the walk.
    bool Visit(CVqMenuItem* item) override;

    CVqStringW m_strText; // plays no part here
    CVqStringW m_strCommand;
    vq_uint32 m_uiType;
    vq_uint32 m_uiStatus;
    vq_uint32 m_uiStatusMask; // bits of the status that matter
    vq_uint32* m_puiIds;      // not owned
    vq_uint32 m_uiCapacity;
    vq_uint32 m_uiCount = 0;
};

/// The stateless toolbox of tree operations.
///
/// There is one process-wide object. A concrete menu that wants items of its own class derives, overrides
/// allocMenuItem() and returns its object from Manipulators(); mark the derived class final, since objects
/// are never deleted through this type and it has no virtual destructor. The process-wide search cache is
/// shared by all.
///
/// Null items are taken everywhere. Operations loop along siblings and recurse once a level: through their
/// virtual selves, except remove_item().
class ARBOR_QML_SUPPORT_EXPORT CVqAbstractMenu::SVqManipulators
{
public:
    /// The process-wide object.
    static SVqManipulators& Instance();

    // Making and finding -------------------------------------------------------------------------------

    /// A new item, or null when memory runs out. Freed with freeMenuItem() or free_all().
    virtual CVqMenuItem* allocMenuItem();

    /// Clears the cached item of the search, then deletes `item`. Neighbours keep their pointers.
    virtual void freeMenuItem(CVqMenuItem* item);

    /// The first item with that command: `root` and its following siblings first, then their subtrees, those
    /// of the last sibling first. With one command on a sibling and on an earlier child the sibling wins.
    ///
    /// Both searches share a cache of one root and one item. A repeated search from the same root for the
    /// item found last costs no walk, and answers with it wherever it hangs meanwhile, until an item is
    /// freed or removed.
    virtual CVqMenuItem* find_item(CVqStringW command, CVqMenuItem* root);

    /// The first item with that identifier among `root`, its subtree, its following siblings and theirs:
    /// depth first, an item before its children, children before following siblings.
    virtual CVqMenuItem* find_item(vq_uint32 id, CVqMenuItem* root);

    // Native menus -------------------------------------------------------------------------------------

    /// Builds the native menus of `item`, its following siblings and all popups below: CreateMenuHandle() for
    /// a popup, InsertItem() at the end, then its children. Only popups are entered. -9 for null arguments,
    /// else the first result of InsertItem() that is not 0, which ends the work.
    virtual int create_all(IVqMenuBase* base, CVqMenuItem* item);

    /// DestroyItem() for `item`, its following siblings and all below: first all subtrees from first to last,
    /// then the siblings from the last back to `item`. Does nothing without `base`.
    virtual void destroy_all(IVqMenuBase* base, CVqMenuItem* item);

    // Walking ------------------------------------------------------------------------------------------

    /// Writes getAsJSON() of `item` to Qt's debug stream, four blanks a level in front, then its subtree, and
    /// at a depth other than 0 its following siblings with theirs.
    virtual void print_all(CVqMenuItem* item, int depth);

    /// Shows the chain from `first` with all below to `visitor`, children before their parent. False when the
    /// visitor ended the walk.
    virtual bool visit_all(CVqMenuItem* first, IVqVisitorData& visitor);

    /// The same without descending.
    virtual bool visit_one(CVqMenuItem* first, IVqVisitorData& visitor);

    // Hiding -------------------------------------------------------------------------------------------

    /// Hides needless separators of the chain from `first` by their `removed` flag and shows the others: a
    /// leading one and each further one of a run go. With `recursive`, in all levels below too, and a
    /// trailing one goes as well; without, a trailing one is shown.
    virtual void check_seps(CVqMenuItem* first, bool recursive);

    /// Sets `deleted` on the items of the chain, and below, whose command is set as hidden under `name`, and
    /// on popups that have nothing left. Whether something of the chain stays; false for a null item and for
    /// a null or empty name.
    virtual bool remove_hidden(CVqMenuItem* item, const vq_wchar* name);

    // Factories: null when allocMenuItem() gives null; what is not named keeps its default -------------

    virtual CVqMenuItem* create_item_popup(vq_uint32 id, vq_uint64 menu, const vq_wchar* text);

    /// `accelerators` is not owned.
    virtual CVqMenuItem* create_item_item(vq_uint32 id, const vq_wchar* text, const vq_wchar* command,
                                          CVqAccelerators* accelerators);
    virtual CVqMenuItem* create_item_separator(vq_uint32 id);
    virtual CVqMenuItem* create_item_onecolor(vq_uint32 id, vq_uint32 colour, const vq_wchar* command);
    virtual CVqMenuItem* create_item_twocolor(vq_uint32 id, vq_uint32 colour1, vq_uint32 colour2,
                                              const vq_wchar* command);
    virtual CVqMenuItem* create_item_linewidth(vq_uint32 id, vq_uint32 width, const vq_wchar* text,
                                               const vq_wchar* command);
    virtual CVqMenuItem* create_item_accel(vq_uint32 id, const vq_wchar* command,
                                           CVqAccelerators* accelerators);
    virtual CVqMenuItem* create_item_mainroot(vq_uint64 menu);

    // Whole trees --------------------------------------------------------------------------------------

    /// Frees `item`, its following siblings and all below, children and later siblings first.
    virtual void free_all(CVqMenuItem* item);

    /// Makes `destination` and new items below it a copy of `source` with its subtree. Not copied: menu
    /// handles, tables, line width, image size, zoom. The children that `destination` had are not freed. -4
    /// for null arguments; -3 when an item could not be made, with the copy left incomplete.
    virtual int copy_items_tree(CVqMenuItem* destination, CVqMenuItem* source);

    /// Unlinks every item with that identifier among `root`, its following siblings and all below. Gives the
    /// one of them nearest to `root`, with its children and its parent pointer, or null; the caller owns it.
    /// The others, and what is below them, are lost.
    virtual CVqMenuItem* remove_item(vq_uint32 id, CVqMenuItem* root);

    /// Removes the keys of `item`, its following siblings and all below from the table.
    virtual void remove_accels(CVqMenuItem* item, CVqAccelerators* accelerators);

    /// With a BEL in `text`, the key text behind it replaces the keys of `id`, and `text` stays. Without, the
    /// first key of `id` in the table is put behind `text` if there is one.
    virtual void set_accel(CVqAccelerators* accelerators, vq_uint32 id, CVqStringW& text);

    // Linking ------------------------------------------------------------------------------------------
    //
    // Each sets the item's parent and gives it the mnemonic of its own marks, see _get_mnemonic().

    /// Puts `item`, without the siblings that follow it, before or after the direct child `id` of `parent`.
    /// Gives the sibling that follows `item` then, which is the child with that identifier, or in the second
    /// form `item`; null, with nothing done, when there is no such child. Separators are not tidied.
    virtual CVqMenuItem* insert_item_before(vq_uint32 id, CVqMenuItem* parent, CVqMenuItem* item);
    virtual CVqMenuItem* insert_item_after(vq_uint32 id, CVqMenuItem* parent, CVqMenuItem* item);

    /// Puts `item`, with the siblings that follow it, behind the last child of `parent`. Calls check_seps()
    /// without recursion unless it is the first child.
    virtual void append_item(CVqMenuItem* parent, CVqMenuItem* item);

    // Menu strings -------------------------------------------------------------------------------------

    /// Replaces the part of the item's text behind the label by `accelText`; an empty one, a popup or the
    /// main root get the label alone.
    virtual void update_menustring(CVqMenuItem* item, const vq_wchar* accelText);

    /// Copies `source` to `destination`, which has room for it, with no other mark than that of `mnemonic`
    /// (`&&` stays), and cuts it at the last occurrence of the first delimiter that occurs. Gives the part
    /// behind it, in `destination`, or null. No delimiters at all cut nothing; the result then points behind
    /// their terminator and is not to be read.
    virtual const vq_wchar* handle_mnemonics_and_split(vq_wchar* destination, const vq_wchar* source,
                                                       vq_wchar mnemonic, const vq_wchar* delimiters);

    // Persistence --------------------------------------------------------------------------------------

    /// Writes `item`, its following siblings and all below. -9 for a null item.
    virtual int save_to_variant(CVqAccelerators* accelerators, CVqMenuItem* item, CVqLiteVariantW& out);
    virtual int save_to_variant(CVqAccelerators* accelerators, CVqMenuItem* item, CVqVariant& out);

    /// Appends the items of a container to `parent`. 0.
    virtual int load_from_variant(CVqAccelerators* accelerators, CVqMenuItem* parent, CVqLiteVariantR& in);
    virtual int load_from_variant(CVqAccelerators* accelerators, CVqMenuItem* parent, CVqVariant& in);

    /// The same for a chain of lonely accelerators. -9 for a null item.
    virtual int save_accels_to_variant(CVqAccelerators* accelerators, CVqMenuItem* item,
                                       CVqLiteVariantW& out);
    virtual int save_accels_to_variant(CVqAccelerators* accelerators, CVqMenuItem* item, CVqVariant& out);

    /// Appends to the chain at `*head`, which may be empty. 0.
    virtual int load_accels_from_variant(CVqAccelerators* accelerators, CVqMenuItem** head,
                                         CVqLiteVariantR& in);
    virtual int load_accels_from_variant(CVqAccelerators* accelerators, CVqMenuItem** head, CVqVariant& in);

protected:
    constexpr SVqManipulators() = default;
    SVqManipulators(const SVqManipulators&) = default;
    SVqManipulators& operator=(const SVqManipulators&) = default;
    ~SVqManipulators() = default;
};
