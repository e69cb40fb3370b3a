import QtQuick
import QtQuick.Shapes

// The icon of a tool, drawn with strokes on a field of 24 by 24.
Item {
    id: icon

    property string tool
    property color color

    readonly property var paths: ({
        move: "M12 3v18M3 12h18M9.5 5.5 12 3l2.5 2.5M9.5 18.5 12 21l2.5-2.5M5.5 9.5 3 12l2.5 2.5M18.5 9.5 21 12l-2.5 2.5",
        rectselect: "M4 8V5h3M10.5 5h3M17 5h3v3M20 10.5v3M20 16v3h-3M13.5 19h-3M7 19H4v-3M4 13.5v-3",
        ellipseselect: "M12 5c4.4 0 8 3.1 8 7s-3.6 7-8 7-8-3.1-8-7 3.6-7 8-7z",
        lasso: "M7 15.5C4.6 14.4 3.5 12.900 3.500 11 3.500 7.400 7.300 5 12 5s8.500 2.400 8.500 6-3.800 6-8.500 6c-1.200 0-2.300-.1-3.300-.4M7 15.500c1.200-.3 2.300.4 2.300 1.600 0 1.300-1.300 2.100-2.600 1.600-1.100-.5-1.200-2.200.3-3.200zM7.500 18.800c.3 1 0 1.800-1 2.400",
        wand: "M4 20 14.500 9.500M17 3v4M15 5h4M20 10v3M18.500 11.500h3M10 4v3M8.500 5.500h3",
        crop: "M7 2.500V17h14.500M2.500 7H17v14.500",
        eyedropper: "M13.500 7.500l3 3L8 19l-4 1 1-4zM12 6l6 6M14.500 8.500l3-3.200c1-1 2.400-.2 2.400-.2s.8 1.500-.2 2.500l-3.200 3",
        brush: "M20 4c-4 2-8 6-9.500 9l1.500 1.500c3-1.500 6.500-6 8-10.500zM10 13.500c-2.500-.3-3.800 1.200-4 3.200-.1 1.400-1 2.300-2.500 2.500 3.500 1.600 7.800.6 8-4z",
        pencil: "M4 20l1-4.500L16.500 4 20 7.500 8.500 19zM14.500 6l3.500 3.500",
        eraser: "M9 19 4 14 14 4l6 6-9 9zM8.500 9.500l6 6M11 19h9",
        bucket: "M10 4.500l8 8-6.500 6.500c-.6.6-1.400.6-2 0l-6-6c-.6-.6-.6-1.400 0-2zM4 12.500h13.500M20 15.500c1.200 1.800 1.800 2.800 1.200 3.800-.5.8-1.900.8-2.400 0-.6-1 0-2 1.200-3.800z",
        gradient: "M4 6h16v12H4zM8 6v12M11 9v.010M11 12v.010M11 15v.010M14 10.500v.010M14 13.500v.010M17 12v.010",
        text: "M5 7V5h14v2M12 5v14M9 19h6",
        shape: "M4 10h10v10H4zM10 7.500C11 5.400 13 4 15 4c3 0 5.500 2.500 5.500 5.500S18 15 17 15",
        hand: "M8 12V6.200c0-1.600 2.200-1.600 2.200 0V11M10.200 10.500V4.700c0-1.600 2.300-1.600 2.300 0v6M12.500 10.800V5.700c0-1.600 2.200-1.600 2.200 0v6M14.700 11.500V8c0-1.500 2.200-1.500 2.200 0v6.500c0 3.500-2 6-5.400 6-3 0-4.300-1.500-5.500-3.800L4.200 13c-.7-1.500 1-2.400 2-1.200L8 14",
        zoom: "M10.500 4.500a6 6 0 1 1 0 12 6 6 0 1 1 0-12zM15 15l5 5"
    })

    implicitWidth: 24
    implicitHeight: 24

    Shape {
        anchors.fill: parent
        preferredRendererType: Shape.CurveRenderer

        ShapePath {
            strokeColor: icon.color
            strokeWidth: 1.5
            fillColor: "transparent"
            capStyle: ShapePath.RoundCap
            joinStyle: ShapePath.RoundJoin

            PathSvg {
                path: icon.paths[icon.tool] ?? ""
            }
        }
    }
}
