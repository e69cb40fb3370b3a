import QtQuick
import K7.Arbor

// [snippet]
ListView {
    id: view

    property AbstractListModel layers
    property string search

    model: SortFilterProxyModel {
        id: shown

        source: view.layers
        filterRole: "name"
        filterSyntax: SortFilterProxyModel.FixedString
        filterString: view.search
        sortRole: "name"
        sortOrder: Qt.AscendingOrder
    }
    delegate: Text {
        required property string name

        text: name
    }
}
// [end]
