#include "gallery/resize/ResizeWidth.h"

#include <QCoreApplication>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

QString large_sentence(const QString& width)
{
    return QCoreApplication::translate("Resize", "A width of %1 pixels is too large: %2 is the largest.")
        .arg(width)
        .arg(g_longest_image_side);
}

}

QString WhyNoResizeWidth(int width)
{
    if (width > g_longest_image_side)
        return large_sentence(QString::number(width));
    if (width < 1)
        return QCoreApplication::translate("Resize",
                                           "A width of %1 pixels leaves nothing: 1 is the smallest.")
            .arg(width);
    return {};
}

std::optional<int> ParseResizeWidth(const QString& text, QString& error)
{
    static const QRegularExpression digits(u"\\A[0-9]+\\z"_s);
    const QString number = text.trimmed();
    if (!digits.match(number).hasMatch()) {
        error = QCoreApplication::translate("Resize", "\"%1\" is no width: it is a whole number of pixels.")
                    .arg(number);
        return {};
    }
    bool fits = false;
    const int width = number.toInt(&fits);
    error = fits ? WhyNoResizeWidth(width) : large_sentence(number);
    return error.isEmpty() ? std::optional(width) : std::nullopt;
}

}
