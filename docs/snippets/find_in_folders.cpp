#include "arbor_qml_support.h"
#include "docs/snippets/resource_guide.h"

using namespace Qt::StringLiterals;

QUrl skinned_icon(const QString& skin, const QString& standard)
{
    // [snippet]
    // open.png of the skin, else the standard one, else the compiled one.
    const QUrl icon = FindQmlResource(QUrl(u"qrc:///shop/icons/open.png"_s), {skin, standard});
    // [end]
    return icon;
}
