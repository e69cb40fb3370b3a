import QtQuick
import QtQuick.Layouts
import K7.Arbor.QuickBackend

// The gallery's window: menu bar, toolbars, pages and status line.
Window {
    id: window

    readonly property ViewState view: Session.view
    readonly property bool customising: Session.toolbars.setup.active

    // Tools and text bar belong to the picture.
    readonly property bool showsPicture: Session.page === "PicturePage"

    width: 1180
    height: 760
    minimumWidth: 640
    minimumHeight: 420
    visible: true
    visibility: Session.view.fullScreen ? Window.FullScreen : Window.Windowed
    title: qsTr("%1 - Arbor Gallery").arg(Session.document.name)
    color: Theme.window

    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true

    palette {
        window: Theme.panel
        windowText: Theme.ink
        base: Theme.panel
        text: Theme.ink
        button: Theme.field
        buttonText: Theme.ink
        placeholderText: Theme.softInk
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
        Toolbar {
            objectName: "mainBar"
            Layout.fillWidth: true
            visible: window.view.mainBar || window.customising
            toolbar: Session.toolbars.bar("main")
            imageSource: "image://arbor/"
            Accessible.name: qsTr("Main bar")
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
        Toolbar {
            objectName: "textBar"
            Layout.fillWidth: true
            visible: window.showsPicture && window.view.textBar || window.customising
            toolbar: Session.toolbars.bar("text")
            imageSource: "image://arbor/"
            Accessible.name: qsTr("Text bar")
        }
        RowLayout {
            spacing: 0

            Toolbar {
                objectName: "toolsBar"
                Layout.fillHeight: true
                visible: window.showsPicture && window.view.toolStrip || window.customising
                toolbar: Session.toolbars.bar("tools")
                imageSource: "image://arbor/"
                Accessible.name: qsTr("Tools")
            }
            PageArea {
                id: area

                Layout.fillWidth: true
                Layout.fillHeight: true
                focus: true

                SetupSheet {
                    anchors.fill: parent
                    setup: Session.toolbars.setup
                    dragLayer: dragLayer
                }
            }
        }
        StatusLine {
            Layout.fillWidth: true
            visible: window.view.statusLine
        }
    }

    ContextMenu {
        anchors.fill: parent
        menu: Session.menu
        imageSource: "image://arbor/"
    }
    ToolbarDragLayer {
        id: dragLayer

        anchors.fill: parent
        setup: Session.toolbars.setup
    }
    ToolbarMenu {
        anchors.fill: parent
        setup: Session.toolbars.setup
    }
}
