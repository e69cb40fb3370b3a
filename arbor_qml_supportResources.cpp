#include "arbor_qml_support.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

ResourcePrefix::ResourcePrefix(QString prefix, QString path)
{
    const auto has_prefix = [&prefix](const auto& row) { return row.first == prefix; };
    const auto row = std::ranges::find_if(resourcePrefixes, has_prefix);
    if (row != resourcePrefixes.end())
        row->second = std::move(path);
    else
        resourcePrefixes.emplaceBack(std::move(prefix), std::move(path));
}

ResourcePrefix& ResourcePrefix::operator=(ResourcePrefix&&) noexcept
{
    return *this;
}

ResourcePrefix& ResourcePrefix::operator=(const ResourcePrefix&)
{
    return *this;
}

bool ResourcePrefix::replacePath(QString& path)
{
    for (const auto& [prefix, folder] : std::as_const(resourcePrefixes)) {
        if (path.startsWith(prefix, Qt::CaseSensitive)) {
            path.replace(prefix, folder, Qt::CaseSensitive);
            return true;
        }
    }
    return false;
}

// The local functions below give an empty address for "not here".

namespace {

// The folder that holds "branch9". The way up from the main source is taken in its path, not on the disk, so
// it holds too where the module's folder in that path is a link to a checkout elsewhere.
QDir source_tree_root()
{
    const QFileInfo main_source(QStringLiteral(ARBOR_MAIN_SOURCE));
    return QDir(main_source.dir().absoluteFilePath(u"../../../"_s));
}

bool is_compiled(const QString& resource, const QList<QString>& folders)
{
    const auto exists_in = [&resource](const QString& folder) {
        return QFileInfo::exists(QDir(folder).absoluteFilePath(resource));
    };
    return folders.isEmpty() ? QFileInfo::exists(resource) : std::ranges::any_of(folders, exists_in);
}

void tell_when_not_compiled(const QUrl& url, const QList<QString>& folders)
{
    const QLatin1StringView scheme("qrc:///");
    const QString address = url.toString();
    if (!address.startsWith(scheme, Qt::CaseSensitive))
        return;

    const QString resource = QString(address).replace(scheme, ":/"_L1, Qt::CaseSensitive);
    if (!is_compiled(resource, folders))
        qDebug().noquote().nospace() << u"Resource '%1' not in qrc file!"_s.arg(address) << Qt::endl;
}

QUrl in_source_tree(const QUrl& url, const QDir& root)
{
    QString path = url.path(QUrl::FullyDecoded);
    if (!ResourcePrefix::replacePath(path))
        return {};

    path = root.absoluteFilePath(path);
    return QFileInfo::exists(path) ? QUrl::fromLocalFile(path) : QUrl();
}

QUrl beside_application(const QUrl& url)
{
    static const QRegularExpression module_of(u"^qrc:///(.*?)/"_s, QRegularExpression::CaseInsensitiveOption);
    const QString address = url.toString();
    const QRegularExpressionMatch module = module_of.match(address);
    if (!module.hasMatch())
        return {};

    const QString application = QCoreApplication::applicationDirPath();
    for (const QString& root :
         {application + "/../../branch9/src/"_L1, application + "/../../Quillon/src/"_L1}) {
        for (const QLatin1StringView folder : {"/Resources/"_L1, "/"_L1}) {
            const QString path = QString(address).replace(
                module.captured(0), root + module.captured(1) + folder, Qt::CaseSensitive);
            if (QFile::exists(path))
                return QUrl::fromLocalFile(path);
        }
    }
    return {};
}

QUrl in_development(const QUrl& url, const QList<QString>& folders, const QDir& root)
{
    tell_when_not_compiled(url, folders);
    const QUrl found = in_source_tree(url, root);
    return found.isEmpty() && folders.isEmpty() ? beside_application(url) : found;
}

QUrl by_file_name(const QUrl& url, const QList<QString>& folders)
{
    const QString name = url.fileName(QUrl::FullyDecoded);
    for (const QString& folder : folders) {
        const QString file = QDir(folder).absoluteFilePath(name);
        if (QFileInfo::exists(file))
            return QUrl::fromLocalFile(file);
    }
    return {};
}

}

// NOLINTNEXTLINE(performance-unnecessary-value-param): by value is the interface.
QUrl FindQmlResource(const QUrl& url, QList<QString> folders)
{
    static const QDir root = source_tree_root();

    QUrl found;
    if (qEnvironmentVariableIsSet("ORV_DEVELOP_RESOURCES"))
        found = in_development(url, folders, root);
    if (found.isEmpty())
        found = by_file_name(url, folders);
    return found.isEmpty() ? url : found;
}

const vq_wchar* QmlWinClassName()
{
    // Windows have no class names here, so there is nothing to ask the system for.
    static const vq_wchar name[256] = VQ_TEXT("QQuickWindow");
    return name;
}
