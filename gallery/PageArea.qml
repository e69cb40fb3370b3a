import QtQuick

// Where the present page shows, or what is wrong with its file.
FocusScope {
    id: area

    PageHolder {
        id: holder

        objectName: "pageHolder"
        anchors.fill: parent
        focus: true
        source: Session.pageUrl
    }
    PageErrors {
        anchors.fill: parent
        visible: holder.errors.length > 0
        errors: holder.errors
    }
    Connections {
        target: Session

        function onReloadAsked(): void {
            holder.reload();
        }
    }
}
