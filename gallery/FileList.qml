pragma ComponentBehavior: Bound

import QtQuick
import K7.Arbor

// The files of a folder, one of which is in hand; its name can be changed in its place.
RowList {
    id: list

    required property SortFilterProxyModel files
    property bool canUndo: false
    property bool renaming: false

    property int sizeWidth: 90
    property int changedWidth: 130

    readonly property FileRow row: currentItem as FileRow
    readonly property string path: row ? row.path : ""
    readonly property bool onFolder: row ? row.folder : false

    signal opened(path: string)
    signal upAsked
    signal renamed(path: string, name: string)
    signal removeAsked(path: string)
    signal undoAsked

    /// Takes the file in hand that has this path; the first one where there is none.
    function show(path: string): void {
        let index = Math.min(0, count - 1);
        for (let i = 0; i < count; ++i)
            if (files.get(i, "path") === path)
                index = i;
        currentIndex = -1;
        currentIndex = index;
    }

    function rename(): void {
        renaming = row !== null;
    }

    title: qsTr("Files")
    model: files
    ownKeys: [Qt.Key_Return, Qt.Key_Enter, Qt.Key_F2, Qt.Key_Delete, Qt.Key_Backspace, Qt.Key_Up | Qt.AltModifier,
        ...(canUndo ? [Qt.Key_Z | Qt.ControlModifier] : [])]
    onCurrentItemChanged: renaming = false
    onRenamingChanged: if (!renaming && activeFocus) view.forceActiveFocus(Qt.OtherFocusReason)
    onKeyPressed: event => {
        event.accepted = ownKeys.includes(codeOf(event));
        if (!event.accepted)
            return;
        switch (codeOf(event)) {
        case Qt.Key_F2:
            return rename();
        case Qt.Key_Delete:
            return row ? removeAsked(path) : undefined;
        case Qt.Key_Z | Qt.ControlModifier:
            return undoAsked();
        case Qt.Key_Return:
        case Qt.Key_Enter:
            return onFolder ? opened(path) : undefined;
        default:
            return upAsked();
        }
    }

    delegate: FileRow {}

    component FileRow: Rectangle {
        id: file

        required property string name
        required property string path
        required property bool folder
        required property string sizeText
        required property string changed
        required property int index
        readonly property bool current: ListView.isCurrentItem

        objectName: "file:" + name
        width: list.view.width
        height: list.rowHeight
        radius: Theme.radius
        color: current ? Theme.accentGround : hover.hovered ? Theme.hover : "transparent"

        Accessible.role: Accessible.ListItem
        Accessible.name: name
        Accessible.description: folder ? qsTr("Folder, changed %1").arg(changed) : qsTr("%1, changed %2").arg(sizeText).arg(changed)
        Accessible.selectable: true
        Accessible.selected: current
        Accessible.onPressAction: list.currentIndex = index

        FileIcon {
            id: icon

            anchors { left: parent.left; leftMargin: 12; verticalCenter: parent.verticalCenter }
            folder: file.folder
            color: file.folder ? Theme.accent : Theme.softInk
        }
        Text {
            anchors { left: icon.right; leftMargin: 10; right: size.left; rightMargin: 12; verticalCenter: parent.verticalCenter }
            visible: !field.active
            text: file.name
            textFormat: Text.PlainText
            color: Theme.ink
            font.pixelSize: Theme.text
            elide: Text.ElideMiddle
        }
        Loader {
            id: field

            anchors { left: icon.right; leftMargin: 3; right: size.left; rightMargin: 12; verticalCenter: parent.verticalCenter }
            active: file.current && list.renaming
            onActiveChanged: if (!active) focus = false
            sourceComponent: RowNameField {
                name: file.name
                chosen: file.folder ? name.length : FilePathApi.completeBaseName(file.path).length || name.length
                onTaken: name => list.renamed(file.path, name)
                onCanceled: list.renaming = false
            }
        }
        Text {
            id: size

            anchors { right: time.left; rightMargin: 20; verticalCenter: parent.verticalCenter }
            width: list.sizeWidth
            text: file.sizeText
            color: Theme.softInk
            font { pixelSize: Theme.text; features: { "tnum": 1 } }
            horizontalAlignment: Text.AlignRight
        }
        Text {
            id: time

            anchors { right: parent.right; rightMargin: 16; verticalCenter: parent.verticalCenter }
            width: list.changedWidth
            text: file.changed
            color: Theme.softInk
            font { pixelSize: Theme.text; features: { "tnum": 1 } }
        }
        HoverHandler {
            id: hover
        }
        TapHandler {
            enabled: !field.active
            onTapped: list.take(file.index)
            onDoubleTapped: if (file.folder) list.opened(file.path)
        }
    }
}
