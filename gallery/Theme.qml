pragma Singleton

import QtQuick

// The colours and measures of the gallery's window, light and dark. Lengths are logical pixels.
QtObject {
    readonly property bool dark: Session.view.dark

    readonly property color window: dark ? "#26282c" : "#f4f5f7"
    readonly property color panel: dark ? "#2c2e33" : "#fbfbfc"
    readonly property color field: dark ? "#1f2124" : "#ffffff"
    readonly property color line: dark ? "#3b3e44" : "#dfe1e6"
    readonly property color edge: dark ? "#7b818b" : "#8d939d" // around a colour that may equal its ground
    readonly property color ink: dark ? "#e6e8ec" : "#22252b"
    readonly property color softInk: dark ? "#9ba1ab" : "#666c76"
    readonly property color desk: dark ? "#1a1b1e" : "#d5d8de"
    readonly property color accent: dark ? "#6ea8e5" : "#2f67a8"
    readonly property color accentGround: dark ? "#33475e" : "#dce7f4"
    readonly property color accentInk: dark ? "#10161d" : "#ffffff"
    readonly property color danger: dark ? "#ef8a80" : "#b3261e"
    readonly property color red: dark ? "#e5736b" : "#c4342b"
    readonly property color green: dark ? "#74c27a" : "#2e8b3d"
    readonly property color blue: dark ? "#6ea8e5" : "#2f67a8"
    readonly property color knob: dark ? "#dfe2e7" : "#ffffff"
    readonly property color hover: dark ? "#383b41" : "#e9ebef"

    readonly property int space: 8
    readonly property int smallText: 11
    readonly property int text: 13
    readonly property int title: 20
    readonly property int radius: 4
}
