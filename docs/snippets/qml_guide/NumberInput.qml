import QtQuick
import K7.Arbor

// [snippet]
TextInput {
    readonly property real number: Number.fromLocaleString(Qt.locale(), acceptableInput ? text : "0")

    validator: RegularExpressionValidator {
        regularExpression: new RegExp(GuiSupport.regexStr_float())
    }
}
// [end]
