#include "arbor_qml_support.h"
#include "docs/snippets/resource_guide.h"

using namespace Qt::StringLiterals;

QUrl main_page()
{
    // [snippet]
    const QUrl page = FindQmlResource(QUrl(u"qrc:///shop/Main.qml"_s), {});
    // [end]
    return page;
}
