import QtQuick

Text {
    text: "Shop"
}
