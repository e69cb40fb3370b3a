#pragma once

#include <QList>
#include <QSize>
#include <QString>

namespace Gallery {

/// A property of a page's root and its value, as the command line writes them.
struct RenderValue
{
    QString name; ///< May have points, as in "font.pixelSize".
    QString text;

    bool operator==(const RenderValue&) const = default;
};

/// A QML file that is to be drawn into a picture.
struct RenderJob
{
    /// A page of the gallery, a "qrc:" address or a local path, see PageAddress(); empty for none.
    QString file;
    QString out;               ///< The picture; its extension chooses the format.
    QSize size;                ///< Device pixels; invalid: as large as the page is by itself.
    QList<RenderValue> values; ///< Given to the root before it is complete.
};

}
