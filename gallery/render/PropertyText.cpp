#include "gallery/render/PropertyText.h"

#include <QColor>
#include <QMetaEnum>
#include <QQmlEngine>
#include <QQmlProperty>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

std::optional<QVariant> bool_of(const QString& text)
{
    if (text == "true"_L1 || text == "false"_L1)
        return text == "true"_L1;
    return {};
}

std::optional<QVariant> color_of(const QString& text)
{
    if (QColor::isValidColorName(text))
        return QColor::fromString(text);
    return {};
}

/// The number of a key, which may stand behind the name of its type as in QML: "Text.AlignRight".
std::optional<QVariant> key_of(const QMetaEnum& keys, const QString& text)
{
    bool known = false;
    const int number = keys.keysToValue(text.section(u'.', -1).toLatin1(), &known);
    return known ? std::optional<QVariant>(number) : std::nullopt;
}

std::optional<QVariant> converted(const QString& text, QMetaType type)
{
    QVariant value(text);
    return value.convert(type) ? std::optional(value) : std::nullopt;
}

/// What QML code would mean by `text`, where nothing tells the type.
QVariant guessed(const QString& text)
{
    if (const std::optional<QVariant> truth = bool_of(text))
        return *truth;
    return converted(text, QMetaType(QMetaType::Double)).value_or(text);
}

std::optional<QVariant> typed(const QQmlProperty& property, const QString& text)
{
    const QMetaType type = property.propertyMetaType();
    if (property.property().isEnumType())
        return key_of(property.property().enumerator(), text);
    switch (type.id()) {
    case QMetaType::Bool:
        return bool_of(text);
    case QMetaType::QColor:
        return color_of(text);
    case QMetaType::QUrl:
        return QUrl(text);
    case QMetaType::QVariant:
        return guessed(text);
    default:
        return converted(text, type);
    }
}

QString kind_of(const QQmlProperty& property)
{
    const QMetaType type = property.propertyMetaType();
    if (property.property().isEnumType())
        return u"a key of %1"_s.arg(QLatin1StringView(property.property().enumerator().enumName()));
    switch (type.id()) {
    case QMetaType::Bool:
        return u"true or false"_s;
    case QMetaType::QColor:
        return u"a colour"_s;
    case QMetaType::Int:
        return u"a whole number"_s;
    case QMetaType::Double:
    case QMetaType::Float:
        return u"a number"_s;
    default:
        return u"a value of the type %1"_s.arg(QLatin1StringView(property.propertyTypeName()));
    }
}

}

std::optional<QVariant> ReadPropertyText(QObject& object, const RenderValue& value, QString& error)
{
    const QQmlProperty property(&object, value.name, qmlContext(&object));
    std::optional<QVariant> result;
    if (!property.isProperty())
        error = u"The root has no property \"%1\"."_s.arg(value.name);
    else if (!property.isWritable())
        error = u"The property \"%1\" can only be read."_s.arg(value.name);
    else if (result = typed(property, value.text); !result)
        error = u"The property \"%1\" takes %2, not \"%3\"."_s.arg(value.name, kind_of(property), value.text);
    return result;
}

}
