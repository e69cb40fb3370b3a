#pragma once

#include "arbor_qml_support_export.h"
#include "system/CVqSizeBase.h"
#include "system/CVqStringW.h"
#include "system/VqText.h"
#include "system/VqTypes.h"

class CVqAccelerators;
class CVqSiblingChain;

/// The node of a menu tree: a popup, a command, a separator, a colour or line-width item, the main root or
/// a lonely accelerator.
///
/// A plain data holder with virtual accessors; all tree logic is in CVqAbstractMenu::SVqManipulators. A back
/// end that needs more per item derives from this class and makes its items in its own allocMenuItem().
///
/// An item owns its two texts only. Neighbours, accelerator table, callbacks and user parameter belong to
/// others; whoever holds the tree frees it with SVqManipulators::free_all(). Deleting an item neither
/// unlinks it nor deletes its children. Belongs to the GUI thread.
///
/// Items of exactly this class let the manipulators remember the end of a long sibling chain, and so do
/// derived items that say FieldsStayHere; any other item in a chain makes them walk it at each append.
class ARBOR_QML_SUPPORT_EXPORT CVqMenuItem
{
public:
    /// Bits of status(). The low byte is for these, see SetIdStatus() of CVqAbstractMenu.
    enum enStatus : vq_uint32
    {
        StatusEnabled = 1,     ///< Set in a new item; a popup without it cannot be unrolled.
        StatusChecked = 2,     ///< Carries a check or radio mark.
        StatusGrayed = 4,      ///< Shown grayed.
        StatusNoMnemonic = 16, ///< Left out when mnemonics are assigned.
    };

    /// Enabled, of type 0, without image, mnemonic, texts and neighbours.
    CVqMenuItem();

    /// Copies are shallow: every field, the pointers into the tree included, so that the copy shares the
    /// neighbours of its source while none of them knows the copy. SVqManipulators::copy_items_tree() is the
    /// deep copy.
    CVqMenuItem(const CVqMenuItem& other);
    CVqMenuItem& operator=(const CVqMenuItem& other);

    virtual ~CVqMenuItem();

    // Position and debugging ---------------------------------------------------------------------------

    /// Visible position among the siblings: how many of those before this item are neither removed nor
    /// deleted. 0 without a parent and for the parent's first child.
    virtual int pos() const;

    /// A number above every identifier in this item's subtree and in those of its following siblings, and
    /// at least `seed`. Identifier 0xFFFFFFFF counts as 0, since the sum wraps at 32 bits.
    virtual vq_uint32 safeId(vq_uint32 seed) const;

    /// Appends the fields to `out` as one line for debugging. It looks like JSON and is not: nothing is
    /// quoted or escaped, a comma stands before the closing brace, and menu() is cut to its lower 32 bits.
    virtual void getAsJSON(CVqStringW& out) const;

    // Fields -------------------------------------------------------------------------------------------

    /// The menu string: a label with `&` before its mnemonic, then optionally BEL and the key text. Setters
    /// of texts copy; null reads as the empty text. The references live until the next set.
    virtual const CVqStringW& text() const { return m_strText; }
    virtual void setText(const vq_wchar* text);

    /// The command that the item runs.
    virtual const CVqStringW& command() const { return m_strCommand; }
    virtual void setCommand(const vq_wchar* command);

    /// Width and height of the item's image in pixels, 0 by 0 when it is not set.
    virtual CVqSizeBase<int> bmpSize() const { return m_sizeBmp; }
    virtual void setBmpSize(const CVqSizeBase<int>& size) { m_sizeBmp = size; }

    /// The table with the item's keys, or null. Not owned.
    virtual CVqAccelerators* accelerators() const { return m_pAccelerators; }
    virtual void setAccelerators(CVqAccelerators* accelerators) { m_pAccelerators = accelerators; }

    /// The popup or root that holds the item, or null.
    virtual CVqMenuItem* parentItem() const { return m_pParentItem; }
    virtual void setParentItem(CVqMenuItem* item) { m_pParentItem = item; }

    /// The following sibling, or null.
    virtual CVqMenuItem* nextItem() const { return m_pNextItem; }
    virtual void setNextItem(CVqMenuItem* item);

    /// The first child, or null.
    virtual CVqMenuItem* subItem() const { return m_pSubItem; }
    virtual void setSubItem(CVqMenuItem* item) { m_pSubItem = item; }

    /// Two pointers for the back end, null in a new item; the menu only keeps them.
    virtual void* drawCallback() const { return m_pDrawCallback; }
    virtual void setDrawCallback(void* callback) { m_pDrawCallback = callback; }
    virtual void* measureCallback() const { return m_pMeasureCallback; }
    virtual void setMeasureCallback(void* callback) { m_pMeasureCallback = callback; }

    /// A pointer for the client, null in a new item.
    virtual void* userParam() const { return m_pUserParam; }
    virtual void setUserParam(void* param) { m_pUserParam = param; }

    /// The back end's handle of a popup or root, 0 when there is none.
    virtual vq_uint64 menu() const { return m_hMenu; }
    virtual void setMenu(vq_uint64 menu) { m_hMenu = menu; }

    /// The identifier, chosen by the client. 0 is the main root's.
    virtual vq_uint32 id() const { return m_uiId; }
    virtual void setId(vq_uint32 id) { m_uiId = id; }

    /// A value of CVqAbstractMenu::enMenuIdSense.
    virtual vq_uint32 type() const { return m_uiType; }
    virtual void setType(vq_uint32 type);

    /// Bits of enStatus.
    virtual vq_uint32 status() const { return m_uiStatus; }
    virtual void setStatus(vq_uint32 status) { m_uiStatus = status; }

    /// The width that a line-width item stands for, in a unit of the client's choice.
    virtual vq_uint32 lineWidth() const { return m_uiLineWidth; }
    virtual void setLineWidth(vq_uint32 width) { m_uiLineWidth = width; }

    /// The colours of a one- or two-colour item; a one-colour item has the first only. The menu just keeps
    /// the numbers; back ends read red from the lowest byte, then green and blue.
    virtual vq_uint32 col1() const { return m_uiCol1; }
    virtual void setCol1(vq_uint32 colour) { m_uiCol1 = colour; }
    virtual vq_uint32 col2() const { return m_uiCol2; }
    virtual void setCol2(vq_uint32 colour) { m_uiCol2 = colour; }

    /// Index of the enabled state's image in the image pool; -1 is none.
    virtual vq_int32 enaBmpIndex() const { return m_iEnaBmpIndex; }
    virtual void setEnaBmpIndex(vq_int32 index) { m_iEnaBmpIndex = index; }

    /// The character that picks the item while its popup is open; 0 is none.
    virtual vq_wchar mnemonic() const { return m_cMnemonic; }
    virtual void setMnemonic(vq_wchar mnemonic);

    /// Hidden by the tidying of separators, or by a stored configuration. The item keeps its place.
    virtual bool removed() const { return m_bRemoved; }
    virtual void setRemoved(bool removed);

    /// Hidden because its command is. The item keeps its place.
    virtual bool deleted() const { return m_bDeleted; }
    virtual void setDeleted(bool deleted);

    /// Whether the item's image is left out of the additional zoom of images.
    virtual bool ignoreAdditionalZoom() const { return m_bIgnoreAdditionalZoom; }
    virtual void setIgnoreAdditionalZoom(bool ignore) { m_bIgnoreAdditionalZoom = ignore; }

    /// The same for this item, its whole subtree and all following siblings with theirs.
    virtual void setIgnoreAdditionalZoomRecursive(bool ignore);

protected:
    /// What a final derived class passes when it stores each field through this class and reads it from here,
    /// so that its setters may add to the work of these but replace none.
    struct FieldsStayHere
    { };
    explicit CVqMenuItem(FieldsStayHere);

private:
    friend class CVqSiblingChain;

    // The item's place in what is known about its sibling chain. It is not a field: a copy is in no chain,
    // and an item that is assigned to or destroyed leaves its own.
    class ARBOR_QML_SUPPORT_NO_EXPORT Membership
    {
    public:
        Membership() = default;
        Membership(const Membership& other);
        Membership& operator=(const Membership& other);
        ~Membership();

        CVqSiblingChain* chain = nullptr; // counted, shared by all members
        bool fieldsStayHere = false;
    };

    CVqStringW m_strText;
    CVqStringW m_strCommand;
    CVqSizeBase<int> m_sizeBmp{};
    CVqAccelerators* m_pAccelerators = nullptr; // not owned
    CVqMenuItem* m_pParentItem = nullptr;       // not owned, as all neighbours
    CVqMenuItem* m_pNextItem = nullptr;
    CVqMenuItem* m_pSubItem = nullptr;
    void* m_pDrawCallback = nullptr;
    void* m_pMeasureCallback = nullptr;
    void* m_pUserParam = nullptr;
    vq_uint64 m_hMenu = 0;
    vq_uint32 m_uiId = 0;
    vq_uint32 m_uiType = 0;
    vq_uint32 m_uiStatus = StatusEnabled;
    vq_uint32 m_uiLineWidth = 0;
    vq_uint32 m_uiCol1 = 0;
    vq_uint32 m_uiCol2 = 0;
    vq_int32 m_iEnaBmpIndex = -1;
    vq_wchar m_cMnemonic = 0;
    bool m_bRemoved = false;
    bool m_bDeleted = false;
    bool m_bIgnoreAdditionalZoom = false;
    Membership m_siblings;
};

/// The mnemonic that a new item takes from the marks in its own menu string `text`, or 0.
///
/// `first` is the first sibling of the chain that the item joins, or null; the item itself counts when it is
/// linked already. Of the characters behind a `&` the first wins that no sibling has, ignoring case; failing
/// that, the first that no sibling has in exactly this case: &File beside a sibling with f takes F, beside
/// one with F it takes none. The second `&` of a pair counts as a mark like any other, so `&&x` gives x, and
/// a `&` at the end of the text is none.
ARBOR_QML_SUPPORT_EXPORT vq_wchar _get_mnemonic(const CVqMenuItem* first, const CVqStringW& text);
