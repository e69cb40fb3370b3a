#include "gallery/Translations.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace Gallery {

Translations::Translations(const QString& locale)
{
    if (m_keys.load(u":/i18n/arbor_%1.qm"_s.arg(locale)))
        QCoreApplication::installTranslator(&m_keys);
    if (m_gallery.load(u":/i18n/gallery_%1.qm"_s.arg(locale)))
        QCoreApplication::installTranslator(&m_gallery);
}

Translations::~Translations()
{
    QCoreApplication::removeTranslator(&m_gallery);
    QCoreApplication::removeTranslator(&m_keys);
}

}
