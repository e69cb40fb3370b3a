import QtQuick

// A framed list of rows of one height, one of which is in hand. Arrows, Home, End and the page keys go through it;
// its owner hears of all other keys.
FocusScope {
    id: box

    property alias model: list.model
    property alias delegate: list.delegate
    property alias currentIndex: list.currentIndex
    property alias contentY: list.contentY
    property string title // for screen readers
    property string emptyText
    property int rowHeight: 34
    property list<int> ownKeys // with their modifiers added, that the menu may have too

    readonly property alias view: list
    readonly property alias count: list.count
    readonly property alias currentItem: list.currentItem
    readonly property bool focused: list.activeFocus
    readonly property int pageRows: Math.max(1, Math.floor(list.height / rowHeight) - 1)
    readonly property list<int> wayKeys: [Qt.Key_Up, Qt.Key_Down, Qt.Key_Home, Qt.Key_End, Qt.Key_PageUp, Qt.Key_PageDown]

    /// A key that is none of the way through the list; accept it if it is yours.
    signal keyPressed(event: KeyEvent)

    function codeOf(event: KeyEvent): int {
        return event.key | (event.modifiers & ~Qt.KeypadModifier);
    }

    function isOwn(event: KeyEvent): bool {
        return wayKeys.includes(codeOf(event)) || ownKeys.includes(codeOf(event));
    }

    /// Goes `step` rows further, no further than to an end.
    function move(step: int): void {
        list.currentIndex = Math.max(0, Math.min(list.currentIndex + step, list.count - 1));
    }

    /// Takes a row in hand, and the keyboard.
    function take(index: int): void {
        list.forceActiveFocus(Qt.MouseFocusReason);
        list.currentIndex = index;
    }

    function moveBy(key: int): bool {
        const steps = { [Qt.Key_Up]: -1, [Qt.Key_Down]: 1, [Qt.Key_PageUp]: -pageRows, [Qt.Key_PageDown]: pageRows,
            [Qt.Key_Home]: -count, [Qt.Key_End]: count };
        if (steps[key] === undefined)
            return false;
        move(steps[key]);
        return true;
    }

    Rectangle {
        anchors.fill: parent
        radius: Theme.radius
        color: Theme.field
        border { color: list.activeFocus ? Theme.accent : Theme.line; width: list.activeFocus ? 2 : 1 }
    }
    ListView {
        id: list

        objectName: box.objectName + "View"
        anchors { fill: parent; margins: 2 }
        focus: true
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        keyNavigationEnabled: false
        cacheBuffer: 0 // rows ahead are made by and by, which a reset must not meet halfway
        highlightMoveDuration: 0
        highlightResizeDuration: 0
        // The list has the keys: a row that took the focus would leave them to the menu.
        onCurrentItemChanged: if (currentItem) currentItem.focus = false
        onCountChanged: if (currentIndex < 0 && count > 0) currentIndex = 0

        Accessible.role: Accessible.List
        Accessible.name: box.title

        Keys.onShortcutOverride: event => event.accepted = box.isOwn(event)
        Keys.onPressed: event => {
            event.accepted = false;
            box.keyPressed(event);
            if (!event.accepted)
                event.accepted = box.moveBy(box.codeOf(event));
        }
    }
    Text {
        anchors { fill: parent; margins: 24 }
        visible: list.count === 0
        text: box.emptyText
        textFormat: Text.PlainText
        color: Theme.softInk
        font.pixelSize: Theme.text
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
    }
    Rectangle {
        anchors { right: parent.right; rightMargin: 4 }
        visible: list.contentHeight > list.height
        y: 4 + list.visibleArea.yPosition * (parent.height - 8)
        width: 5
        height: Math.max(24, list.visibleArea.heightRatio * (parent.height - 8))
        radius: 2.5
        color: Theme.edge
        opacity: 0.6
    }
}
