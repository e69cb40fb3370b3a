#pragma once

#include <QMetaEnum>
#include <QMetaMethod>
#include <QMetaProperty>

#include <string>
#include <vector>

/// What a class adds to its base's meta-object, as lines of text in the order of the meta-object.
namespace MetaObjectTexts {

/// Such as "QString qstrRole".
inline QByteArray Parameter(const QMetaMethod& method, int index)
{
    const QByteArray name = method.parameterNames().at(index);
    return method.parameterTypeName(index) + (name.isEmpty() ? "" : " ") + name;
}

/// Such as "signal void countChanged()" and "method int TranslateRole(QString qstrRole)".
inline std::vector<std::string> Methods(const QMetaObject& meta)
{
    static const char* const kinds[] = {"method ", "signal ", "slot ", "constructor "};
    std::vector<std::string> texts;
    for (int index = meta.methodOffset(); index < meta.methodCount(); ++index) {
        const QMetaMethod method = meta.method(index);
        QByteArrayList parameters;
        for (int at = 0; at < method.parameterCount(); ++at)
            parameters += Parameter(method, at);
        const QByteArray text = kinds[method.methodType()] + QByteArray(method.typeName()) + ' '
            + method.name() + '(' + parameters.join(", ") + ')';
        texts.push_back(text.toStdString());
    }
    return texts;
}

/// Such as "int count, read, notify countChanged".
inline std::vector<std::string> Properties(const QMetaObject& meta)
{
    std::vector<std::string> texts;
    for (int index = meta.propertyOffset(); index < meta.propertyCount(); ++index) {
        const QMetaProperty property = meta.property(index);
        std::string text = std::string(property.typeName()) + " " + property.name();
        text += property.isReadable() ? ", read" : "";
        text += property.isWritable() ? ", write" : "";
        if (property.hasNotifySignal())
            text += ", notify " + property.notifySignal().name().toStdString();
        texts.push_back(text);
    }
    return texts;
}

/// Such as "FilterSyntax: RegExp 0 Wildcard 1".
inline std::vector<std::string> Enumerations(const QMetaObject& meta)
{
    std::vector<std::string> texts;
    for (int index = meta.enumeratorOffset(); index < meta.enumeratorCount(); ++index) {
        const QMetaEnum values = meta.enumerator(index);
        std::string text = std::string(values.name()) + ":";
        for (int key = 0; key < values.keyCount(); ++key)
            text += std::string(" ") + values.key(key) + " " + std::to_string(values.value(key));
        texts.push_back(text);
    }
    return texts;
}

}
