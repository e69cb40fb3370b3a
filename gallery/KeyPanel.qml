pragma ComponentBehavior: Bound

import QtQuick

// The keys of the command that a KeyEditor has in hand: adding one, removing one, and what the factory gave.
Flickable {
    id: panel

    required property KeyEditor editor

    /// What gets the keyboard once a key was taken or a question answered.
    required property Item home

    property bool capturing: false
    property bool askingForAll: false
    property Item opener: home

    /// Waits for a key; `from` gets the keyboard back.
    function capture(from: Item): void {
        if (editor.command === "")
            return;
        opener = from;
        askingForAll = false;
        capturing = true;
        keyField.forceActiveFocus(Qt.OtherFocusReason);
    }

    function take(flags: int, key: int): void {
        capturing = false;
        editor.press(flags, key);
        if (editor.question === "")
            goBack();
        else
            question.forceActiveFocus(Qt.OtherFocusReason);
    }

    // By Esc, with the keyboard still here, or because the keyboard went elsewhere.
    function cancel(): void {
        if (!capturing)
            return;
        const stays = keyField.activeFocus;
        capturing = false;
        if (stays)
            goBack();
    }

    function goBack(): void {
        opener.forceActiveFocus(Qt.OtherFocusReason);
    }

    function goHome(): void {
        askingForAll = false;
        home.forceActiveFocus(Qt.OtherFocusReason);
    }

    contentHeight: facts.height
    boundsBehavior: Flickable.StopAtBounds
    interactive: contentHeight > height
    clip: true

    Column {
        id: facts

        width: parent.width
        spacing: 16
        visible: panel.editor.command !== ""

        Column {
            width: parent.width
            spacing: 3

            Text {
                objectName: "commandLabel"
                width: parent.width
                text: panel.editor.label
                textFormat: Text.PlainText
                color: Theme.ink
                font { pixelSize: Theme.text + 3; weight: Font.DemiBold }
                wrapMode: Text.Wrap
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }
            Text {
                width: parent.width
                text: panel.editor.place === "" ? qsTr("Without an entry in a menu") : panel.editor.place
                textFormat: Text.PlainText
                color: Theme.softInk
                font.pixelSize: Theme.text
                wrapMode: Text.Wrap
            }
            Text {
                width: parent.width
                visible: text !== panel.editor.label
                text: panel.editor.command
                textFormat: Text.PlainText
                color: Theme.softInk
                font.pixelSize: Theme.smallText
                elide: Text.ElideRight
            }
        }
        Column {
            width: parent.width
            spacing: 6

            Text {
                visible: panel.editor.keys.length === 0
                height: 28
                text: qsTr("It has no key.")
                color: Theme.softInk
                font.pixelSize: Theme.text
                verticalAlignment: Text.AlignVCenter
            }
            Repeater {
                model: panel.editor.keys

                Item {
                    id: keyRow

                    required property string modelData
                    required property int index

                    width: facts.width
                    height: 28

                    KeyChip {
                        anchors.verticalCenter: parent.verticalCenter
                        implicitHeight: 24
                        text: keyRow.modelData
                    }
                    PushButton {
                        objectName: "removeButton" + keyRow.index
                        anchors.right: parent.right
                        implicitHeight: 28
                        quiet: true
                        text: qsTr("Remove")
                        Accessible.name: qsTr("Remove %1").arg(keyRow.modelData)
                        onPushed: {
                            const index = keyRow.index; // the row goes with its key
                            panel.goHome();
                            panel.editor.remove(index);
                        }
                    }
                }
            }
        }
        PushButton {
            id: captureButton

            objectName: "captureButton"
            visible: !panel.capturing && panel.editor.question === ""
            width: parent.width
            text: qsTr("Add a key")
            onPushed: panel.capture(captureButton)
        }
        KeyField {
            id: keyField

            width: parent.width
            visible: panel.capturing
            label: panel.editor.label
            onTaken: (flags, key) => panel.take(flags, key)
            onCanceled: panel.cancel()
        }
        QuestionBox {
            id: question

            objectName: "question"
            width: parent.width
            visible: panel.editor.question !== ""
            text: panel.editor.question
            yes: qsTr("Take it over")
            no: qsTr("Leave it")
            onAccepted: {
                panel.editor.takeOver();
                panel.goBack();
            }
            onDeclined: {
                panel.editor.leave();
                panel.goBack();
            }
        }
        Text {
            objectName: "toldText"
            width: parent.width
            visible: text !== ""
            text: panel.editor.told
            textFormat: Text.PlainText
            color: Theme.ink
            font.pixelSize: Theme.text
            lineHeight: 1.2
            wrapMode: Text.Wrap
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        Rectangle {
            width: parent.width
            height: 1
            color: Theme.line
        }
        Column {
            width: parent.width
            spacing: 8

            PushButton {
                objectName: "resetButton"
                width: parent.width
                quiet: true
                enabled: panel.editor.own
                text: qsTr("Factory keys for this command")
                onPushed: {
                    panel.goHome(); // the button goes out
                    panel.editor.reset();
                }
            }
            PushButton {
                objectName: "resetAllButton"
                width: parent.width
                visible: !panel.askingForAll
                quiet: true
                enabled: panel.editor.ownCount > 0
                text: qsTr("Factory keys for all commands...")
                onPushed: {
                    panel.askingForAll = true;
                    allQuestion.forceActiveFocus(Qt.OtherFocusReason);
                }
            }
            QuestionBox {
                id: allQuestion

                objectName: "allQuestion"
                width: parent.width
                visible: panel.askingForAll
                text: qsTr("Commands with keys of your own: %1.").arg(panel.editor.ownCount)
                yes: qsTr("Take all back")
                no: qsTr("Keep them")
                onAccepted: {
                    panel.editor.resetAll();
                    panel.goHome();
                }
                onDeclined: panel.goHome()
            }
        }
    }
}
