// What the looks of all controls have in common: whose they are, their colours, and what screen readers say.
import QtQuick
import QtQuick.Templates as T

T.Control {
    id: look

    required property QuickControl control
    required property ToolbarSession session

    readonly property real zoom: control?.zoom ?? 1
    readonly property real fade: enabled ? 1 : 0.42

    /// Gives it the keyboard; false when it has nothing to do with it.
    function takeFocus(reason: int): bool {
        forceActiveFocus(reason);
        return activeFocus;
    }

    objectName: "look:" + (control?.name ?? "")
    Keys.onShortcutOverride: event => event.accepted = session.takesKey(control, event)
    enabled: session.customizing || (control?.enabled ?? false)

    Accessible.name: session.nameOf(control)
    Accessible.description: session.descriptionOf(control)
    Accessible.focusable: enabled
}
