#include "gallery/json/JsonFields.h"

#include "gallery/menu/MenuImage.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

QString joined(const QString& path, const QString& member)
{
    return path.isEmpty() ? member : member.isEmpty() ? path : path + u'/' + member;
}

QString quoted(const QString& text)
{
    return u"\"%1\""_s.arg(text);
}

bool has_control_character(const QString& text)
{
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c < u' '; });
}

}

bool IsWholeNumber(const QJsonValue& value, double low, double high)
{
    const double number = value.toDouble(low - 1);
    return number >= low && number <= high && number == static_cast<double>(static_cast<qint64>(number));
}

bool JsonFields::Fail(const QString& path, const QString& reason)
{
    if (!Failed())
        m_fault = {path, reason};
    return false;
}

bool JsonFields::Fail(const Source& source, const QString& member, const QString& rest)
{
    return Fail(joined(source.path, member), source.name + rest);
}

bool JsonFields::CheckMembers(const QJsonObject& object, const QString& path, const QString& name,
                              const QStringList& known)
{
    for (const QString& member : object.keys())
        if (!known.contains(member))
            return Fail(joined(path, member), name + u" has an unknown member "_s + quoted(member));
    return true;
}

QString JsonFields::describe(const QJsonObject& object) const
{
    for (const QString& member : {u"command"_s, u"text"_s})
        if (object.value(member).isString())
            return m_noun + u' ' + quoted(object.value(member).toString());
    return m_unnamed;
}

bool JsonFields::Open(const QJsonValue& value, const QString& path, Source& source)
{
    if (!value.isObject())
        return Fail(path, u"\"%1\" is not an object"_s.arg(path));
    source = {value.toObject(), path, describe(value.toObject())};
    return true;
}

bool JsonFields::ReadText(const Source& source, const QString& member, QString& text)
{
    text = source.object.value(member).toString();
    if (text.isEmpty())
        return Fail(source, member, u" needs a text as "_s + quoted(member));
    if (has_control_character(text))
        return Fail(source, member, u" has a control character in "_s + quoted(member));
    return true;
}

bool JsonFields::ReadFlag(const Source& source, const QString& member, bool& flag)
{
    const QJsonValue value = source.object.value(member);
    if (!value.isUndefined() && !value.isBool())
        return Fail(source, member, u" needs true or false as "_s + quoted(member));
    flag = value.toBool(flag);
    return true;
}

bool JsonFields::ReadImage(const Source& source, QString& image)
{
    if (!source.object.contains(u"image"_s))
        return true;
    if (!ReadText(source, u"image"_s, image))
        return false;
    return HasMenuImage(image)
        || Fail(source, u"image"_s, u" has the image %1, which the icons do not have"_s.arg(quoted(image)));
}

}
