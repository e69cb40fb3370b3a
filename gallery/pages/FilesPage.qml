pragma ComponentBehavior: Bound

import QtQuick
import K7.Arbor
import K7.Arbor.Gallery

// A folder in step with the disk: sorted, chosen by name, with names to change and a trash to take back from.
PageSheet {
    id: page

    property string start // the folder to begin with; empty for the user's own

    property string order: "order" // the role that sorts
    property bool descending: false
    property string trouble // why a folder was not opened

    function go(path: string): bool {
        const opened = folder.go(path);
        trouble = opened ? "" : qsTr("There is no folder %1 that can be read.").arg(path);
        if (opened) {
            pathField.text = FilePathApi.toNativeSeparators(folder.path);
            list.show("");
        }
        return opened;
    }

    function goUp(): void {
        const from = folder.path;
        if (go(FilePathApi.absolutePath(from)))
            list.show(from);
    }

    function sortBy(role: string): void {
        const path = list.path;
        descending = order === role && !descending;
        order = role;
        list.show(path);
    }

    function remove(): void {
        trouble = "";
        edits.remove(list.path);
        if (edits.question !== "")
            question.forceActiveFocus(Qt.OtherFocusReason);
    }

    function undo(): void {
        trouble = "";
        edits.undo();
        list.forceActiveFocus(Qt.OtherFocusReason);
    }

    function timesOf(path: string, changed: string): string {
        const made = FilePathApi.creationTime(path);
        return made === "" ? qsTr("Changed %1").arg(changed) : qsTr("Made %1, changed %2").arg(made).arg(changed);
    }

    title: qsTr("Files")
    lead: qsTr("A folder, in step with the disk. Enter opens a folder and Backspace goes up; F2 changes a name, and Del puts a file into the trash.")
    Component.onCompleted: {
        if (start === "" || !go(start))
            pathField.text = FilePathApi.toNativeSeparators(folder.path);
        list.show("");
    }

    Folder {
        id: folder

        objectName: "folder"
        words: wordsField.text
    }
    FileEdits {
        id: edits

        objectName: "fileEdits"
        onEdited: path => {
            folder.refresh();
            check.check();
            if (path !== "")
                list.show(path);
        }
    }
    WriteCheck {
        id: check

        objectName: "writeCheck"
        path: pathField.text.trim() === "" ? folder.path : FilePathApi.fromNativeSeparators(pathField.text)
    }
    SortFilterProxyModel {
        id: sorted

        source: folder.rows
        sortRole: page.order
        sortOrder: page.descending ? Qt.DescendingOrder : Qt.AscendingOrder
        sortCaseSensitivity: Qt.CaseInsensitive
    }
    Connections {
        // What cannot be watched may have changed meanwhile.
        target: Application

        function onStateChanged(): void {
            if (Application.state !== Qt.ApplicationActive)
                return;
            folder.refresh();
            check.check();
        }
    }
    Column {
        width: parent.width
        height: Math.max(400, page.room)
        spacing: 12

        Row {
            id: fields

            width: parent.width
            spacing: 12

            PushButton {
                objectName: "upButton"
                anchors.bottom: parent.bottom
                implicitHeight: 36
                quiet: true
                enabled: FilePathApi.absolutePath(folder.path) !== folder.path
                text: qsTr("Up")
                onPushed: page.goUp()
            }
            LineField {
                id: pathField

                objectName: "pathField"
                width: parent.width - 96 - wordsField.width - 2 * parent.spacing
                title: qsTr("Folder")
                faulty: page.trouble !== ""
                onEdited: page.trouble = ""
                onAccepted: if (page.go(FilePathApi.fromNativeSeparators(text))) list.forceActiveFocus(Qt.OtherFocusReason)
            }
            LineField {
                id: wordsField

                objectName: "wordsField"
                width: 230
                title: qsTr("Names, such as *.png")
                ownKeys: [Qt.Key_Down]
                onAccepted: list.forceActiveFocus(Qt.OtherFocusReason)
                Keys.onDownPressed: list.forceActiveFocus(Qt.OtherFocusReason)
            }
        }
        WriteLight {
            id: light

            objectName: "writeLight"
            check: check
        }
        Item {
            id: heads

            width: parent.width
            height: 24

            SortHeader {
                objectName: "nameHeader"
                x: 14
                width: parent.width - 14 - list.sizeWidth - list.changedWidth - 50
                title: qsTr("Name")
                current: page.order === "order"
                descending: page.descending
                onPushed: page.sortBy("order")
            }
            SortHeader {
                objectName: "sizeHeader"
                x: parent.width - width - list.changedWidth - 38
                width: list.sizeWidth
                title: qsTr("Size")
                toRight: true
                current: page.order === "size"
                descending: page.descending
                onPushed: page.sortBy("size")
            }
            SortHeader {
                objectName: "changedHeader"
                x: parent.width - width - 18
                width: list.changedWidth
                title: qsTr("Changed")
                current: page.order === "stamp"
                descending: page.descending
                onPushed: page.sortBy("stamp")
            }
        }
        FileList {
            id: list

            objectName: "fileList"
            width: parent.width
            height: parent.height - fields.height - light.height - heads.height - foot.height - 4 * parent.spacing
            focus: true
            files: sorted
            canUndo: edits.canUndo
            emptyText: !folder.there ? qsTr("The folder is not there any more.") : folder.words === "" ? qsTr("Nothing lies in this folder.") : qsTr("No name here matches.")
            onOpened: path => page.go(path)
            onUpAsked: page.goUp()
            onRemoveAsked: page.remove()
            onUndoAsked: page.undo()
            onRenamed: (path, name) => {
                page.trouble = "";
                if (edits.rename(path, name))
                    renaming = false;
            }
        }
        Item {
            id: foot

            width: parent.width
            height: 88

            Column {
                visible: !question.visible
                width: parent.width
                spacing: 12

                Text {
                    objectName: "factsText"
                    width: parent.width
                    height: 18
                    text: list.row === null ? "" : page.timesOf(list.path, list.row.changed)
                    textFormat: Text.PlainText
                    color: Theme.softInk
                    font.pixelSize: Theme.text
                    elide: Text.ElideMiddle
                }
                Item {
                    width: parent.width
                    height: buttons.height

                    Row {
                        id: buttons

                        spacing: 8

                        PushButton {
                            objectName: "renameButton"
                            quiet: true
                            enabled: list.row !== null
                            text: qsTr("Rename")
                            onPushed: list.rename()
                        }
                        PushButton {
                            objectName: "removeButton"
                            quiet: true
                            enabled: list.row !== null
                            text: qsTr("Remove")
                            onPushed: page.remove()
                        }
                        PushButton {
                            objectName: "undoButton"
                            quiet: true
                            enabled: edits.canUndo
                            text: qsTr("Take back")
                            onPushed: page.undo()
                        }
                    }
                    Text {
                        objectName: "toldText"
                        anchors { left: buttons.right; leftMargin: 16; right: parent.right; verticalCenter: parent.verticalCenter }
                        text: page.trouble || edits.told
                        textFormat: Text.PlainText
                        color: page.trouble !== "" || edits.failed ? Theme.danger : Theme.ink
                        font.pixelSize: Theme.text
                        elide: Text.ElideMiddle
                        maximumLineCount: 2
                        wrapMode: Text.Wrap

                        Accessible.role: Accessible.StaticText
                        Accessible.name: text
                    }
                }
            }
            QuestionBox {
                id: question

                objectName: "removeQuestion"
                width: parent.width
                visible: edits.question !== ""
                text: edits.question
                yes: qsTr("Remove for good")
                no: qsTr("Keep it")
                onAccepted: {
                    list.forceActiveFocus(Qt.OtherFocusReason);
                    edits.removeForGood();
                }
                onDeclined: {
                    list.forceActiveFocus(Qt.OtherFocusReason);
                    edits.keep();
                }
            }
        }
    }
}
