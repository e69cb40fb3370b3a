import QtQuick
import QtQuick.Shapes

// A folder or a sheet, drawn with strokes on a field of 18 by 18.
Item {
    id: icon

    property bool folder: false
    property color color: Theme.softInk

    implicitWidth: 18
    implicitHeight: 18

    Shape {
        anchors.fill: parent
        preferredRendererType: Shape.CurveRenderer

        ShapePath {
            strokeColor: icon.color
            strokeWidth: 1.3
            fillColor: icon.folder ? Qt.alpha(icon.color, 0.18) : "transparent"
            joinStyle: ShapePath.RoundJoin
            capStyle: ShapePath.RoundCap

            PathSvg {
                path: icon.folder ? "M2 5c0-.8.5-1.300 1.300-1.300H6.700L8.400 5.500H14.700C15.500 5.500 16 6 16 6.800V13.200C16 14 15.500 14.500 14.700 14.500H3.300C2.500 14.500 2 14 2 13.200z"
                    : "M4.500 2H10.500L14 5.500V16H4.500zM10.500 2V5.500H14"
            }
        }
    }
}
