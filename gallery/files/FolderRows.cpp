#include "gallery/files/FolderRows.h"

#include "qml/CVqFilePathApi.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

QString patterns_of(const QString& words)
{
    static const QRegularExpression gap(u"[\\s;]+"_s);
    static const QRegularExpression wildcard(u"[*?[]"_s);
    QStringList patterns;
    for (const QString& word : words.split(gap, Qt::SkipEmptyParts))
        patterns << (word.contains(wildcard) ? word : u'*' + word + u'*');
    return patterns.join(u' ');
}

QVariantMap row_of(const CVqFilePathApi& api, const QFileInfo& file)
{
    const bool folder = file.isDir();
    const qint64 size = folder ? -1 : file.size();
    return {
        {u"name"_s, file.fileName()},
        {u"path"_s, file.filePath()},
        {u"folder"_s, folder},
        {u"size"_s, size},
        {u"sizeText"_s, folder ? QString() : QLocale().formattedDataSize(size, 1, QLocale::DataSizeSIFormat)},
        {u"stamp"_s, file.lastModified().toMSecsSinceEpoch()},
        {u"changed"_s, api.modifyTime(file.filePath(), u"yyyy-MM-dd HH:mm"_s)},
        {u"order"_s, (folder ? u'0' : u'1') + file.fileName()}};
}

}

QVariantList ReadFolder(const QString& folder, const QString& words)
{
    const CVqFilePathApi api;
    const QDir place(folder);
    QVariantList rows;
    for (const QString& name : api.filesInFolder(folder, patterns_of(words)))
        if (name != u"."_s && name != u".."_s)
            rows << row_of(api, QFileInfo(place.absoluteFilePath(name)));
    return rows;
}

}
