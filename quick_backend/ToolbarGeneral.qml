// The look of a control that hosts an item: it draws nothing and keeps the item in the middle of its room. The
// item lies in the control's frame and not in here.
import QtQuick

ToolbarLook {
    id: look

    readonly property Item content: (control as QuickItemControl)?.content ?? null

    // The item itself, or the first in it that Tab would go to.
    function takeFocus(reason: int): bool {
        if (!content)
            return false;
        if (content.activeFocusOnTab)
            content.forceActiveFocus(reason);
        else
            firstStop()?.forceActiveFocus(reason);
        return isWithin(Window.activeFocusItem);
    }

    function firstStop(): Item {
        const next = content.nextItemInFocusChain(true);
        return isWithin(next) ? next : null;
    }

    function isWithin(item: Item): bool {
        while (item && item !== content)
            item = item.parent;
        return item !== null;
    }

    Accessible.ignored: true

    Binding {
        target: look.content
        property: "enabled"
        value: look.enabled && !look.session.customizing
    }

    Binding {
        target: look.content
        property: "width"
        value: look.width
        when: (look.content?.implicitWidth ?? 0) > 0
    }

    Binding {
        target: look.content
        property: "height"
        value: Math.min(look.height, look.content?.implicitHeight ?? 0)
        when: (look.content?.implicitHeight ?? 0) > 0
    }

    Binding {
        target: look.content
        property: "x"
        value: Math.round((look.width - (look.content?.width ?? 0)) / 2)
    }

    Binding {
        target: look.content
        property: "y"
        value: Math.round((look.height - (look.content?.height ?? 0)) / 2)
    }
}
