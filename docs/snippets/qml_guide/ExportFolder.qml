import QtQuick
import K7.Arbor

// [snippet]
Text {
    property string folder
    readonly property bool writable: FilePathApi.isWritable(folder)

    text: writable ? folder : qsTr("%1 cannot be written to").arg(FilePathApi.toNativeSeparators(folder))
}
// [end]
