#pragma once

#include <QTranslator>

namespace Gallery {

/// The translation of labels, key names and the window's own texts, installed while this lives.
class Translations
{
public:
    /// `locale` is "de", or "ja", which has names of keys alone; any other name installs nothing. Needs an
    /// application object.
    explicit Translations(const QString& locale);
    ~Translations();

    Translations(const Translations&) = delete;
    Translations& operator=(const Translations&) = delete;

private:
    QTranslator m_keys;
    QTranslator m_gallery;
};

}
