pragma ComponentBehavior: Bound

import QtQuick
import K7.Arbor
import K7.Arbor.Gallery

// A list whose rows are moved, changed, inserted, removed, filtered and sorted, each in its place.
PageSheet {
    id: page

    readonly property list<string> roles: ["number", "name", "kind", "percent"]
    readonly property list<string> roleTitles: [qsTr("Number"), qsTr("Name"), qsTr("Kind"), qsTr("Opacity")]
    readonly property list<string> kinds: [qsTr("Paint"), qsTr("Light"), qsTr("Text"), qsTr("Shape")]

    property int filterRole: -1 // in roles; -1 for any of them
    property int sortRole: 0
    property bool descending: false
    property string told

    readonly property string filterName: filterRole < 0 ? "" : roles[filterRole]
    readonly property string sortName: roles[sortRole]
    readonly property bool byNumber: sortRole === 0 && !descending
    readonly property bool faulty: syntax.current === SortFilterProxyModel.RegExp && !isExpression(filterField.text)

    function isExpression(text: string): bool {
        try {
            return new RegExp(text) !== null;
        } catch (error) {
            return false;
        }
    }

    function entry(name: string, kind: int, percent: int): var {
        return { name: name, kind: kinds[kind], percent: percent };
    }

    function begin(): void {
        layers.Update([entry(qsTr("Sky"), 0, 100), entry(qsTr("Hills"), 0, 100), entry(qsTr("Harbour"), 0, 100),
            entry(qsTr("Boats"), 0, 95), entry(qsTr("Boats, mirrored"), 0, 40), entry(qsTr("Evening light"), 1, 60),
            entry(qsTr("Shadows"), 1, 35), entry(qsTr("Lamp glow"), 1, 80), entry(qsTr("Frame"), 3, 100),
            entry(qsTr("Title"), 2, 100), entry(qsTr("Title shadow"), 2, 50), entry(qsTr("Signature"), 2, 75)]);
        list.currentIndex = 0;
        told = "";
    }

    /// The row of the model that shows at `index`.
    function rowAt(index: int): int {
        return shown.get(index, "number") - 1;
    }

    /// The row of the model that is in hand; the one behind the last without any.
    function rowInHand(): int {
        return list.row === null ? layers.rowCount() : rowAt(list.currentIndex);
    }

    /// Takes the row `row` of the model in hand, if it shows.
    function show(row: int): void {
        for (let i = 0; i < list.count; ++i)
            if (rowAt(i) === row)
                list.currentIndex = i;
    }

    function move(from: int, to: int): void {
        const source = rowAt(from);
        const place = rowAt(to);
        const y = list.contentY;
        layers.moveRow(source, place);
        list.contentY = y;
        show(place);
        told = qsTr("Row %1 is row %2 now.").arg(source + 1).arg(place + 1);
    }

    function insert(row: int): void {
        layers.insert(row, entry(qsTr("New layer"), 0, 100));
        show(row);
        told = qsTr("Row %1 is new.").arg(row + 1);
    }

    function remove(): void {
        if (list.row === null)
            return;
        told = qsTr("%1 is removed.").arg(list.row.name);
        layers.remove(rowAt(list.currentIndex));
    }

    function change(role: string, value: var): void {
        if (list.row === null)
            return;
        const row = rowAt(list.currentIndex);
        layers.change(row, role, value);
        show(row); // it may sort to another place
    }

    function sortBy(role: int): void {
        const row = list.row === null ? -1 : rowAt(list.currentIndex);
        descending = sortRole === role && !descending;
        sortRole = role;
        show(row);
    }

    title: qsTr("Lists")
    lead: qsTr("One list in C++, shown through a filter. Carry a row by its handle, or with Alt and the arrows; F2 changes its name, Left and Right its opacity, Ins and Del add and remove rows.")
    Component.onCompleted: begin()

    LayerListModel {
        id: layers

        objectName: "layers"
    }
    SortFilterProxyModel {
        id: shown

        objectName: "shownLayers"
        source: layers
        filterCaseSensitivity: Qt.CaseInsensitive
        filterString: filterField.text
        filterSyntax: syntax.current
        filterRole: page.filterName
        sortCaseSensitivity: Qt.CaseInsensitive
        sortRole: page.sortName
        sortOrder: page.descending ? Qt.DescendingOrder : Qt.AscendingOrder
    }
    Row {
        width: parent.width
        height: Math.max(430, page.room)
        spacing: 28

        Column {
            width: parent.width - panel.width - parent.spacing
            height: parent.height
            spacing: 12

            LineField {
                id: filterField

                objectName: "filterField"
                width: parent.width
                title: qsTr("Show rows with")
                faulty: page.faulty
                ownKeys: [Qt.Key_Down]
                onAccepted: list.forceActiveFocus(Qt.OtherFocusReason)
                Keys.onDownPressed: list.forceActiveFocus(Qt.OtherFocusReason)
            }
            Row {
                id: choices

                width: parent.width
                spacing: 24

                ChoiceRow {
                    id: syntax

                    objectName: "syntaxChoice"
                    choices: [qsTr("Expression"), qsTr("Wildcards"), qsTr("Text")] // in the order of the syntaxes
                    current: SortFilterProxyModel.FixedString
                    onChosen: index => current = index
                }
                ChoiceRow {
                    objectName: "roleChoice"
                    choices: [qsTr("Anywhere"), ...page.roleTitles.slice(1)]
                    current: Math.max(0, page.filterRole)
                    onChosen: index => page.filterRole = index === 0 ? -1 : index
                }
            }
            Item {
                id: heads

                width: parent.width
                height: 24

                SortHeader {
                    objectName: "numberHeader"
                    x: 28
                    width: 36
                    toRight: true
                    title: "#"
                    spoken: page.roleTitles[0]
                    current: page.sortRole === 0
                    descending: page.descending
                    onPushed: page.sortBy(0)
                }
                SortHeader {
                    objectName: "nameHeader"
                    x: 78
                    width: parent.width - 78 - 200
                    title: page.roleTitles[1]
                    current: page.sortRole === 1
                    descending: page.descending
                    onPushed: page.sortBy(1)
                }
                SortHeader {
                    objectName: "kindHeader"
                    x: parent.width - 180
                    width: 84
                    title: page.roleTitles[2]
                    current: page.sortRole === 2
                    descending: page.descending
                    onPushed: page.sortBy(2)
                }
                SortHeader {
                    objectName: "percentHeader"
                    x: parent.width - width - 20
                    width: 64
                    toRight: true
                    title: page.roleTitles[3]
                    current: page.sortRole === 3
                    descending: page.descending
                    onPushed: page.sortBy(3)
                }
            }
            LayerList {
                id: list

                objectName: "layerList"
                width: parent.width
                height: parent.height - filterField.height - choices.height - heads.height - foot.height - 4 * parent.spacing
                focus: true
                layers: shown
                movable: page.byNumber
                emptyText: page.faulty ? qsTr("This is no expression yet.") : filterField.text === "" ? qsTr("The list is empty.") : qsTr("No row matches.")
                onMoved: (from, to) => page.move(from, to)
                onRenamed: name => page.change("name", name)
                onInsertAsked: page.insert(page.rowInHand())
                onRemoveAsked: page.remove()
                onOpacityAsked: step => { if (row !== null) page.change("percent", Math.max(0, Math.min(100, row.percent + step))); }
            }
            Item {
                id: foot

                width: parent.width
                height: 18

                Text {
                    objectName: "toldText"
                    text: page.byNumber ? page.told : page.told || qsTr("Rows can be moved while they are sorted upwards by their number.")
                    textFormat: Text.PlainText
                    color: Theme.ink
                    font.pixelSize: Theme.text

                    Accessible.role: Accessible.StaticText
                    Accessible.name: text
                }
                Text {
                    objectName: "countText"
                    anchors.right: parent.right
                    text: qsTr("Rows shown: %1").arg(list.count)
                    color: Theme.softInk
                    font.pixelSize: Theme.text
                }
            }
        }
        LayerPanel {
            id: panel

            width: 256
            row: list.row
            kinds: page.kinds
            movable: page.byNumber
            index: list.currentIndex
            count: list.count
            onKindChosen: kind => page.change("kind", kind)
            onPercentChosen: percent => page.change("percent", percent)
            onInsertAsked: page.insert(page.rowInHand())
            onAppendAsked: page.insert(layers.rowCount())
            onRenameAsked: list.rename()
            onRemoveAsked: page.remove()
            onShiftAsked: step => list.shift(step)
            onClearAsked: { layers.empty(); page.told = ""; }
            onBeginAsked: page.begin()
        }
    }
}
