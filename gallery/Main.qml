import QtQuick
import QtQuick.Layouts
import K7.Arbor.QuickBackend

// The gallery's window: menu bar, tools, picture, side panel and status line.
Window {
    id: window

    required property Session session
    readonly property ViewState view: session.view

    width: 1180
    height: 760
    minimumWidth: 640
    minimumHeight: 420
    visible: true
    visibility: view.fullScreen ? Window.FullScreen : Window.Windowed
    title: qsTr("%1 - Arbor Gallery").arg(session.document.name)
    color: Theme.window

    palette {
        window: Theme.panel
        windowText: Theme.ink
        base: Theme.panel
        text: Theme.ink
        highlight: Theme.accent
        highlightedText: Theme.accentInk
    }

    Binding {
        target: Theme
        property: "dark"
        value: window.view.dark
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        MenuBar {
            id: bar

            Layout.fillWidth: true
            Layout.preferredHeight: height
            menu: window.session.menu

            Connections {
                target: bar.keys

                function onFired(id: int, keyText: string, nanoseconds: real): void {
                    window.session.keyFired(id, keyText, nanoseconds);
                }
            }
        }
        RowLayout {
            spacing: 0

            ToolStrip {
                Layout.fillHeight: true
                session: window.session
                visible: window.view.toolStrip
            }
            PictureArea {
                id: canvas

                Layout.fillWidth: true
                Layout.fillHeight: true
                document: window.session.document
                view: window.view
                desk: Theme.desk
                rulerColor: Theme.window
                rulerInk: Theme.softInk
                clip: true
                focus: true

                Accessible.role: Accessible.Graphic
                Accessible.name: qsTr("Picture")

                TapHandler {
                    acceptedButtons: Qt.RightButton
                    onTapped: point => {
                        const place = canvas.mapToGlobal(point.position);
                        window.session.openContextMenu(Math.round(place.x), Math.round(place.y));
                    }
                }
            }
            SidePanel {
                Layout.fillHeight: true
                session: window.session
                visible: window.view.sidePanel
            }
        }
        StatusLine {
            Layout.fillWidth: true
            session: window.session
            visible: window.view.statusLine
        }
    }

    ContextMenu {
        anchors.fill: parent
        menu: window.session.menu
    }
}
