import QtQuick
import QtQuick.Layouts
import K7.Arbor.QuickBackend

// The gallery's window: menu bar, pages and status line.
Window {
    id: window

    width: 1180
    height: 760
    minimumWidth: 640
    minimumHeight: 420
    visible: true
    visibility: Session.view.fullScreen ? Window.FullScreen : Window.Windowed
    title: qsTr("%1 - Arbor Gallery").arg(Session.document.name)
    color: Theme.window

    palette {
        window: Theme.panel
        windowText: Theme.ink
        base: Theme.panel
        text: Theme.ink
        highlight: Theme.accent
        highlightedText: Theme.accentInk
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        MenuBar {
            id: bar

            Layout.fillWidth: true
            Layout.preferredHeight: height
            menu: Session.menu
            imageSource: "image://arbor/"

            Connections {
                target: bar.keys

                function onFired(id: int, keyText: string, nanoseconds: real): void {
                    Session.keyFired(id, keyText, nanoseconds);
                }
            }
        }
        PageSwitcher {
            Layout.fillWidth: true
            onEntered: area.forceActiveFocus(Qt.TabFocusReason)
        }
        NoticeStrip {
            Layout.fillWidth: true
            text: Session.notice
            onCleared: {
                Session.clearNotice();
                area.forceActiveFocus(Qt.OtherFocusReason);
            }
        }
        PageArea {
            id: area

            Layout.fillWidth: true
            Layout.fillHeight: true
            focus: true
        }
        StatusLine {
            Layout.fillWidth: true
            visible: Session.view.statusLine
        }
    }

    ContextMenu {
        anchors.fill: parent
        menu: Session.menu
        imageSource: "image://arbor/"
    }
}
