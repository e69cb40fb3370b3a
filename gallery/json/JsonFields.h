#pragma once

#include "system/VqTypes.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>

namespace Gallery {

/// What is wrong with a JSON file, and where.
struct JsonFault
{
    QString path;   ///< Of the value at fault, as JsonLines takes it.
    QString reason; ///< A sentence without its full stop. Empty: nothing is wrong.
};

/// Reads the objects of one JSON file member by member and keeps the first fault it meets.
///
/// Each operation that gives a bool gives false when it has noted a fault, so that checks can be joined.
class JsonFields
{
public:
    /// An object as it stands in the file.
    struct Source
    {
        QJsonObject object;
        QString path;
        QString name; ///< How a sentence calls it.
    };

    /// `noun` is what a sentence calls an object that has a command or a text, such as "entry" in
    /// `entry "EditUndo"`, and `unnamed` what it calls one without, such as "an entry".
    JsonFields(const QString& noun, const QString& unnamed) : m_noun(noun), m_unnamed(unnamed) { }

    const JsonFault& Fault() const { return m_fault; }
    bool Failed() const { return !m_fault.reason.isEmpty(); }

    /// Notes a fault unless there is one. Always false.
    bool Fail(const QString& path, const QString& reason);

    /// `member` is the member of `source` at fault; empty when it is the object as a whole. `rest` goes on
    /// from its name.
    bool Fail(const Source& source, const QString& member, const QString& rest);

    /// True when `object` has none but the members `known`; notes the first other one.
    bool CheckMembers(const QJsonObject& object, const QString& path, const QString& name,
                      const QStringList& known);

    /// Makes `source` of an object at `path`.
    bool Open(const QJsonValue& value, const QString& path, Source& source);

    /// A text that is not empty and has no control characters.
    bool ReadText(const Source& source, const QString& member, QString& text);

    /// What is missing leaves `flag` as it is.
    bool ReadFlag(const Source& source, const QString& member, bool& flag);

    /// The name of an icon, from the member "image", which may be missing.
    bool ReadImage(const Source& source, QString& image);

private:
    QString describe(const QJsonObject& object) const;

    const QString m_noun;
    const QString m_unnamed;
    JsonFault m_fault;
};

/// Whether `value` is a whole number from `low` to `high`.
bool IsWholeNumber(const QJsonValue& value, double low, double high);

}
