#include "gallery/storage/StoredTree.h"

#include "system/CVqVariant.h"
#include "system/VqVariantStorage.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

constexpr qint64 g_largest = 16 << 20; // bytes; the gallery's own menu takes some 30 KiB

QString reason_of(EVqStorageResult result)
{
    switch (result) {
    case EVqStorageResult::Ok:
        return {};
    case EVqStorageResult::CutShort:
        return u"it is cut short"_s;
    case EVqStorageResult::TrailingBytes:
        return u"there is more behind its end"_s;
    case EVqStorageResult::TooDeep:
        return u"it has too many levels"_s;
    default:
        return u"it is not in the stored form"_s;
    }
}

}

QString ReadStoredTree(const QString& name, CVqVariant& tree)
{
    const QFileInfo info(name);
    if (info.exists() && !info.isFile())
        return info.isDir() ? u"it is a folder"_s : u"it is not a file"_s;
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly))
        return file.errorString();
    if (file.size() > g_largest)
        return u"it is too large"_s;
    return reason_of(VQ_ReadCbor(file, tree));
}

QString WriteStoredTree(const QString& name, const CVqVariant& tree)
{
    const QString folder = QFileInfo(name).absolutePath();
    if (!QDir().mkpath(folder))
        return u"the folder cannot be made"_s;
    QSaveFile file(name);
    if (!file.open(QIODevice::WriteOnly))
        return file.errorString();
    const EVqStorageResult result = VQ_WriteCbor(file, tree);
    if (result == EVqStorageResult::TooDeep)
        return reason_of(result);
    // A disk that is full shows here.
    return file.commit() ? QString() : file.errorString();
}

}
