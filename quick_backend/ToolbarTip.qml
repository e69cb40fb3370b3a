// The tooltip of a toolbar: one for all its controls. It comes after a delay, and at once when the last one went just
// before.
import QtQuick
import QtQuick.Templates as T

T.ToolTip {
    id: tip

    required property ToolbarSession session

    /// Milliseconds that the pointer or the keyboard rests on a control before the tip shows.
    property int restDelay: 600

    /// What it tells about, shown or not.
    property QuickControl target: null

    readonly property string keyText: target?.keyText ?? ""
    readonly property real distance: 5

    /// The pointer or the keyboard is at `control`, or at none.
    function aim(control: QuickControl): void {
        if (control === target)
            return;
        target = control;
        if (!control || textOf(control) === "")
            return leave();
        parent = control.item;
        delay = visible || recent.running ? 0 : restDelay;
        place();
        open();
    }

    // A text that can be read on the button is no news, but a key is.
    function textOf(control: QuickControl): string {
        if (control.tooltip !== "" || control.keyText !== "")
            return control.tooltip || session.nameOf(control);
        const isRead = (control as QuickButton)?.showsText && !lookOf(control)?.truncated;
        const isNamed = control.kind !== QuickControl.Separator && control.kind !== QuickControl.General;
        return isNamed && !isRead ? session.nameOf(control) : "";
    }

    function lookOf(control: QuickControl): ToolbarButton {
        for (const child of control.item?.children ?? []) {
            const look = child as ToolbarButton;
            if (look)
                return look;
        }
        return null;
    }

    /// Goes until the pointer or the keyboard comes to another control.
    function dismiss(): void {
        close();
        recent.stop();
    }

    function leave(): void {
        if (visible)
            recent.restart();
        close();
    }

    // Below the control, or beside it in a vertical toolbar, or on the other side where there is no room.
    function place(): void {
        const item = parent;
        const start = item.mapToItem(null, 0, 0);
        const beside = target.vertical && !target.inPicker;
        const own = beside ? implicitWidth : implicitHeight;
        const length = beside ? item.width : item.height;
        const room = (beside ? item.Window.width : item.Window.height) - margins;
        const from = beside ? start.x : start.y;
        const behind = length + distance;
        const fitsBehind = from + behind + own <= room;
        const fitsBefore = from - distance - own >= margins;
        const prefersBefore = beside && session.mirrored;
        const goesBefore = prefersBefore ? fitsBefore || !fitsBehind : fitsBefore && !fitsBehind;
        const along = goesBefore ? -own - distance : behind;
        x = beside ? along : Math.round((item.width - implicitWidth) / 2);
        y = beside ? Math.round((item.height - implicitHeight) / 2) : along;
    }

    objectName: "toolbarTip"
    enabled: false
    margins: 4
    horizontalPadding: 8
    verticalPadding: 5
    timeout: -1
    closePolicy: T.Popup.NoAutoClose
    text: target ? textOf(target) : ""
    implicitWidth: news.width + (keyText === "" ? 0 : 12 + Math.ceil(key.implicitWidth)) + leftPadding + rightPadding
    implicitHeight: Math.ceil(news.height) + topPadding + bottomPadding

    onTargetChanged: {
        if (!target)
            leave();
    }
    onImplicitWidthChanged: {
        if (visible && target)
            place();
    }

    background: MenuPanel {
        radius: 4
        color: tip.session.ground
        ink: tip.session.ink
    }

    contentItem: Item {
        Text {
            id: news

            objectName: "tipText"
            x: tip.session.mirrored ? parent.width - width : 0
            width: Math.min(Math.ceil(implicitWidth), 320)
            text: tip.text
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            font: tip.font
            color: tip.session.ink
        }

        Text {
            id: key

            objectName: "tipKey"
            x: tip.session.mirrored ? 0 : parent.width - width
            visible: text !== ""
            text: tip.keyText
            textFormat: Text.PlainText
            font: tip.font
            color: Qt.alpha(tip.session.ink, 0.6)
        }
    }

    Timer {
        id: recent

        interval: 400
    }
}
