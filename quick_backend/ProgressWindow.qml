// The window of a CVqQuickProgressWnd, which makes it. Its height follows what it shows; a user may widen it for long
// labels.
import QtQuick

Window {
    id: window

    required property ProgressView view

    objectName: "progressWindow"
    title: view.title
    flags: Qt.Dialog | Qt.CustomizeWindowHint | Qt.WindowTitleHint | Qt.WindowCloseButtonHint
    width: panel.implicitWidth
    height: panel.implicitHeight
    minimumWidth: 320
    minimumHeight: 110
    color: panel.palette.window

    onClosing: close => {
        close.accepted = false;
        view.cancel();
    }

    ProgressPanel {
        id: panel

        anchors.fill: parent
        focus: true
        view: window.view
    }
}
