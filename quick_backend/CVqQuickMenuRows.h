#pragma once

// QML: QuickMenuRows, made by a QuickMenu only. Roles as in roleNames(); `count`, `commandCount`,
// `separatorCount`; next(), byMnemonic(), isUniqueMnemonic(), submenuAt(), idAt(), textColumns().

#include "arbor_quick_backend_export.h"

#include <QAbstractListModel>
#include <QFont>
#include <QSizeF>
#include <QtQmlIntegration>

#include <vector>

class CVqMenuItem;
class CVqQuickMenuItem;
class IVqQuickMenuKeys;

/// The rows of one popup, or of the bar: one for each item of the sibling chain, hidden ones too.
///
/// Holds nothing but which items are rows, in their order; what a row shows is read from the item whenever a
/// view asks, so the model of the menu stays the only place of its state. Belongs to the back end, which
/// makes it for a popup's handle; lives on the GUI thread.
class ARBOR_QUICK_BACKEND_EXPORT CVqQuickMenuRows : public QAbstractListModel
{
    Q_OBJECT
    QML_NAMED_ELEMENT(QuickMenuRows)
    QML_UNCREATABLE("The rows of a popup belong to their menu.")
    Q_PROPERTY(int count READ Count NOTIFY shapeChanged FINAL)
    Q_PROPERTY(int commandCount READ CommandCount NOTIFY shapeChanged FINAL)
    Q_PROPERTY(int separatorCount READ SeparatorCount NOTIFY shapeChanged FINAL)

public:
    /// What a row is; the values are those of CVqAbstractMenu::enMenuIdSense.
    enum Kind
    {
        Command = 2,
        TwoColor = 3,
        OneColor = 4,
        LineWidth = 5,
        Separator = 6,
        Popup = 7,
    };
    Q_ENUM(Kind)

    enum Role
    {
        ItemIdRole = Qt::UserRole + 1,
        KindRole,
        LabelRole,            ///< Plain text: no marks, `&&` as `&`, no key text.
        StyledLabelRole,      ///< The same with the mnemonic underlined, for Text.StyledText.
        MnemonicRole,         ///< The one character, or an empty text.
        MnemonicPositionRole, ///< Its place in the label in 16-bit units, or -1.
        KeyTextRole, ///< The keys of both tables; failing these, what stands behind a TAB in the label.
        CheckedRole,
        RadioRole,  ///< The mark is a radio dot.
        GrayedRole, ///< Disabled or grayed.
        ShownRole,  ///< Neither removed nor deleted.
        Color1Role, ///< A colour; the item's number holds red in its lowest byte.
        Color2Role,
        LineWidthRole,
        ImageIndexRole,     ///< Index in the image pool, or -1.
        SubmenuRole,        ///< The QuickMenuRows of a popup, or null.
        AccessibleNameRole, ///< The label; for an item without one, its colours or its width.
        CommandRole,        ///< The command text.
    };
    Q_ENUM(Role)

    /// `keys` tells the key texts and may be null; not owned.
    explicit CVqQuickMenuRows(const IVqQuickMenuKeys* keys, QObject* parent = nullptr);
    ~CVqQuickMenuRows() override;

    // For views ----------------------------------------------------------------------------------------

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    int Count() const { return int(m_items.size()); }

    /// Rows that are shown: separators, and all others.
    int SeparatorCount() const;
    int CommandCount() const;

    /// The next row in direction `step` (1 or -1) behind `from` that can be picked: shown, not grayed, no
    /// separator. Goes round the ends; -1 when there is none. From -1 onwards it is the first, from `count`
    /// backwards the last.
    Q_INVOKABLE int next(int from, int step) const;

    /// The next row behind `from` that can be picked and whose mnemonic is the first character of `text`,
    /// whatever its case. Goes round the end; -1 when there is none.
    Q_INVOKABLE int byMnemonic(const QString& text, int from) const;

    /// Whether exactly one row answers to that mnemonic.
    Q_INVOKABLE bool isUniqueMnemonic(const QString& text) const;

    /// The rows below a popup row; null for other rows and outside the range.
    Q_INVOKABLE CVqQuickMenuRows* submenuAt(int row) const;

    /// The identifier of a row; 0 outside the range.
    Q_INVOKABLE uint idAt(int row) const;

    /// Widths in logical pixels of the widest label and the widest key text among the rows. Of many rows only
    /// those with the most characters are measured.
    Q_INVOKABLE QSizeF textColumns(const QFont& font) const;

    // For the back end ---------------------------------------------------------------------------------

    /// The roles that a change of the text or the mnemonic touches, and those of the status.
    static const QList<int>& TextRoles();
    static const QList<int>& StateRoles();

    /// Adds a row for `item` in front of that of `next`, or at the end when `next` is null or has no row
    /// here. An item that has a row already, here or elsewhere, stays where it is.
    void Insert(CVqQuickMenuItem& item, const CVqQuickMenuItem* next);

    /// Takes the row of `item` away; nothing happens when it has none here.
    void Remove(CVqQuickMenuItem& item);

    void RemoveAll();

    /// Tells the views that `roles` of the row changed.
    void Changed(const CVqQuickMenuItem& item, const QList<int>& roles);

    /// Tells the views that the key texts of all rows may have changed.
    void KeysChanged();

    /// -1 when the item has no row here.
    int RowOf(const CVqQuickMenuItem& item) const;

    /// Null outside the range.
    const CVqQuickMenuItem* ItemAt(int row) const;

Q_SIGNALS:
    /// Rows came, went, were hidden or shown, or a text changed: what a view's size hangs on.
    void shapeChanged();

private:
    ARBOR_QUICK_BACKEND_NO_EXPORT bool CanBePicked(int row) const;
    ARBOR_QUICK_BACKEND_NO_EXPORT void Renumber() const;

    const IVqQuickMenuKeys* m_keys;         // not owned
    std::vector<CVqQuickMenuItem*> m_items; // not owned
};
