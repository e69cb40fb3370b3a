// What a progress window shows: title, label, bar, times and the Cancel button. Stands in any window of your own too:
//
//     ProgressPanel {
//         view: theView   // a ProgressView, of CVqQuickProgressWnd::View()
//         width: parent.width
//     }
//
// Esc cancels while the focus is in it. The button gets the focus by Tab only: keys that the user was typing when the
// window appeared must not press it.
import QtQuick
import QtQuick.Templates as T

T.Control {
    id: panel

    /// Ends with its progress window; null from then on, and the panel shows nothing.
    required property ProgressView view

    readonly property string elapsedText: view ? qsTr("%1 elapsed").arg(clockText(view.secondsElapsed)) : ""

    /// Empty while there is no estimate.
    readonly property string leftText: {
        if (!view || view.secondsLeft < 0 || view.cancelling)
            return "";
        return view.secondsLeft === 0 ? qsTr("almost done") : qsTr("about %1 left").arg(spanText(view.secondsLeft));
    }

    function twoDigits(number: int): string {
        return (number < 10 ? "0" : "") + number;
    }

    /// As a clock: "0:05", "12:40", "1:02:40".
    function clockText(seconds: int): string {
        const hours = Math.floor(seconds / 3600);
        const minutes = Math.floor(seconds / 60) % 60;
        const start = hours > 0 ? hours + ":" + twoDigits(minutes) : String(minutes);
        return start + ":" + twoDigits(seconds % 60);
    }

    /// The two largest units at most: "25 s", "3 min", "1 h 10 min".
    function spanText(seconds: int): string {
        if (seconds < 60)
            return qsTr("%1 s").arg(seconds);
        const minutes = Math.floor(seconds / 60);
        const hours = Math.floor(minutes / 60);
        if (hours === 0)
            return qsTr("%1 min").arg(minutes);
        return minutes % 60 === 0 ? qsTr("%1 h").arg(hours) : qsTr("%1 h %2 min").arg(hours).arg(minutes % 60);
    }

    objectName: "progressPanel"
    padding: 20
    implicitWidth: 440
    implicitHeight: contentItem.implicitHeight + topPadding + bottomPadding

    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true

    Accessible.role: Accessible.Dialog
    Accessible.name: view?.title ?? ""
    Keys.onEscapePressed: view?.cancel()

    background: Rectangle {
        color: panel.palette.window
    }

    contentItem: Item {
        implicitHeight: button.y + button.height

        Text {
            id: title

            objectName: "progressTitle"
            anchors {
                left: parent.left
                right: parent.right
            }
            text: panel.view?.title ?? ""
            textFormat: Text.PlainText
            elide: Text.ElideRight
            color: panel.palette.windowText
            font {
                family: panel.font.family
                pixelSize: metrics.font.pixelSize + 3
                weight: Font.DemiBold
            }
            Accessible.ignored: true
        }

        // The name that screen readers read follows the announcement, not each change of the text.
        Text {
            id: label

            objectName: "progressLabel"
            anchors {
                left: parent.left
                right: parent.right
                top: title.bottom
                topMargin: visible ? 6 : 0
            }
            height: visible ? metrics.height : 0
            visible: text !== ""
            text: panel.view?.label ?? ""
            textFormat: Text.PlainText
            elide: Text.ElideMiddle
            color: panel.palette.windowText
            font: panel.font
            Accessible.role: Accessible.StaticText
            Accessible.name: panel.view?.announcement ?? ""
        }

        ProgressStrip {
            id: bar

            objectName: "progressBar"
            anchors {
                left: parent.left
                right: parent.right
                top: label.bottom
                topMargin: 10
            }
            value: panel.view?.fraction ?? 0
            indeterminate: panel.view?.indeterminate ?? false
            Accessible.name: panel.view?.title ?? ""
            // Qt Quick tells screen readers no value of a bar.
            Accessible.description: indeterminate ? "" : Math.floor(value * 100) + "%"
        }

        Text {
            id: times

            objectName: "progressTimes"
            anchors {
                left: parent.left
                right: button.left
                rightMargin: 12
                verticalCenter: button.verticalCenter
            }
            text: panel.leftText === "" ? panel.elapsedText : panel.elapsedText + " \u00b7 " + panel.leftText
            textFormat: Text.PlainText
            elide: Text.ElideRight
            color: panel.palette.windowText
            opacity: 0.7
            font: panel.font
        }

        ProgressButton {
            id: button

            objectName: "progressCancel"
            anchors {
                right: parent.right
                top: bar.bottom
                topMargin: 16
            }
            text: panel.view?.cancelling ? qsTr("Cancelling...") : qsTr("Cancel")
            enabled: panel.view !== null && !panel.view.cancelling
            font: panel.font
            onClicked: panel.view?.cancel()
        }
    }

    FontMetrics {
        id: metrics

        font: panel.font
    }
}
