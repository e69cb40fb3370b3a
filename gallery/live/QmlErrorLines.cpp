#include "gallery/live/QmlErrorLines.h"

#include <QQmlError>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace Gallery {

QStringList QmlErrorLines(const QList<QQmlError>& errors)
{
    QStringList lines;
    for (const QQmlError& error : errors) {
        QString place = error.url().isLocalFile() ? error.url().toLocalFile() : error.url().toString();
        if (error.line() > 0)
            place += u":%1"_s.arg(error.line());
        lines << u"%1: %2"_s.arg(place, error.description());
    }
    return lines;
}

}
