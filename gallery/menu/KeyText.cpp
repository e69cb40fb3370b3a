#include "gallery/menu/KeyText.h"

#include "AbstractGui/CVqAccelerators.h"
#include "system/VqTranslation.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

constexpr char g_context[] = "AbstractGui\\CVqAbstractMenu";
constexpr int g_room = 512; // 16-bit units that a printed key may take

QString to_qstring(const vq_wchar* text)
{
    return QString::fromUtf16(text);
}

/// The modifier `lower` as the parser knows it; any other name as it is.
QString parsed_name(const QString& lower)
{
    if (lower == u"ctrl"_s)
        return to_qstring(VQ_GetTranslation(VQ_TEXT("ctrl"), g_context));
    if (lower == u"alt"_s)
        return to_qstring(VQ_GetTranslation(VQ_TEXT("alt"), VQ_TEXT("keyboard key"), g_context));
    if (lower == u"shift"_s)
        return to_qstring(VQ_GetTranslation(VQ_TEXT("shift"), VQ_TEXT("keyboard key"), g_context));
    return lower;
}

QString local_name(const QString& name)
{
    const QString lower = name.toLower();
    const QString parsed = parsed_name(lower);
    return parsed == lower ? name : parsed;
}

/// Whether `key` is only the first character of a longer word: so the parser reads words that it does not
/// know.
bool is_cut_word(const QString& text, const MenuKey& key)
{
    const QString word = text.section(u'+', -1);
    return word.size() > 1 && key.key == word.front().toUpper().unicode();
}

}

QString LocalKeyText(const QString& text)
{
    QStringList names = text.split(u'+');
    for (QString& name : names)
        name = local_name(name);
    return names.join(u'+');
}

std::optional<MenuKey> ParseKeyText(const QString& text)
{
    const std::u16string local = LocalKeyText(text).toStdU16String();
    MenuKey key;
    if (text.contains(u',') || !CVqAccelerators::ParseAccel(local.c_str(), &key.flags, &key.key))
        return std::nullopt;
    return is_cut_word(text, key) ? std::nullopt : std::optional(key);
}

QString PrintKey(const MenuKey& key)
{
    vq_wchar text[g_room] = {};
    CVqAccelerators::PrintAccel(key.flags, key.key, text);
    return to_qstring(text);
}

}
