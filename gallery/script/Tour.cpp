#include "gallery/script/Tour.h"

#include "gallery/menu/MenuPath.h"

using namespace Qt::StringLiterals;

namespace Gallery {

QStringList TourKeys(CVqAbstractMenu& menu)
{
    QStringList keys = {u"Ctrl+Shift+S"_s,
                        u"Ctrl+Apostrophe"_s,
                        u"Ctrl+Plus"_s,
                        u"Ctrl+1"_s,
                        u"Ctrl+0"_s,
                        u"Ctrl+Shift+U"_s,
                        u"Ctrl+Z"_s,
                        u"Shift+H"_s,
                        u"Ctrl+Z"_s,
                        u"B"_s,
                        u"BracketRight"_s,
                        u"X"_s,
                        u"Ctrl+Comma"_s,
                        u"Ctrl+Alt+Right"_s,
                        u"Ctrl+Shift+F12"_s,
                        u"F9"_s,
                        u"F8"_s,
                        u"Ctrl+Z"_s};
    for (const QString& command : {u"SelectAll"_s, u"ViewGridSize(100)"_s, u"ImageFlip(vertical)"_s,
                                   u"EditUndo"_s, u"LayerBlend(multiply)"_s, u"LayerBlend(screen)"_s})
        keys += MnemonicKeys(menu, command);
    return keys;
}

}
