#include "arbor_qml_support.h"

using namespace Qt::StringLiterals;

namespace {

// [snippet]
// "qrc:///shop/Main.qml" is compiled from Main.qml in this folder, which the build tells.
const ResourcePrefix shop_row(u"/shop/"_s, QStringLiteral(SHOP_QML_FOLDER "/"));
// [end]

}
