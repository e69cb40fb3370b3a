#include "gallery/resize/ResizePlan.h"

#include "gallery/resize/ResizeWidth.h"

#include <QCoreApplication>
#include <QDir>
#include <QImageReader>
#include <QImageWriter>
#include <QMimeDatabase>
#include <QSet>
#include <QTemporaryFile>

using namespace Qt::StringLiterals;

namespace Gallery {

namespace {

/// The format of an image, by its extension, then by its content; empty for what is no image.
QByteArray format_of(const QFileInfo& file)
{
    const QByteArray suffix = file.suffix().toLower().toLatin1();
    if (QImageReader::supportedImageFormats().contains(suffix))
        return suffix;
    const QString type = QMimeDatabase().mimeTypeForFile(file, QMimeDatabase::MatchContent).name();
    if (!QImageReader::supportedMimeTypes().contains(type.toLatin1()))
        return {};
    return QImageReader::imageFormat(file.filePath());
}

QList<ResizeItem> items_of(const QDir& folder)
{
    QList<ResizeItem> items;
    for (const QFileInfo& file : folder.entryInfoList(QDir::Files, QDir::Name))
        if (const QByteArray format = format_of(file); !format.isEmpty())
            items << ResizeItem{file.fileName(), file.fileName(), format};
    return items;
}

/// A name for the PNG of `from` that is not yet in `taken`, also where small and capital letters are one.
QString free_png_name(const QString& from, const QSet<QString>& taken)
{
    QString name = QFileInfo(from).completeBaseName() + u".png"_s;
    if (taken.contains(name.toCaseFolded()))
        name = from + u".png"_s;
    for (int number = 2; taken.contains(name.toCaseFolded()); ++number)
        name = u"%1-%2.png"_s.arg(from).arg(number);
    return name;
}

void name_targets(QList<ResizeItem>& items)
{
    const QList<QByteArray> formats = QImageWriter::supportedImageFormats();
    QSet<QString> taken;
    for (const ResizeItem& item : std::as_const(items))
        if (formats.contains(item.format))
            taken << item.to.toCaseFolded();
    for (ResizeItem& item : items) {
        if (formats.contains(item.format))
            continue;
        item.to = free_png_name(item.from, taken);
        item.format = "png";
        taken << item.to.toCaseFolded();
    }
}

QString why_no_folders(const ResizeJob& job)
{
    if (job.in.isEmpty())
        return QCoreApplication::translate("Resize", "There is no folder to take images from.");
    if (job.out.isEmpty())
        return QCoreApplication::translate("Resize", "There is no folder to put images into.");
    const QFileInfo in(job.in);
    if (!in.exists())
        return QCoreApplication::translate("Resize", "There is no folder %1.").arg(job.in);
    if (!in.isDir())
        return QCoreApplication::translate("Resize", "%1 is no folder.").arg(job.in);
    if (!in.isReadable())
        return QCoreApplication::translate("Resize", "The folder %1 cannot be read.").arg(job.in);
    const QFileInfo out(job.out);
    if (out.exists() && !out.isDir())
        return QCoreApplication::translate("Resize", "%1 is no folder.").arg(job.out);
    if (out.exists() && out.canonicalFilePath() == in.canonicalFilePath())
        return QCoreApplication::translate("Resize",
                                           "The images would replace themselves: both folders are the same.");
    return {};
}

QString why_no_target(const QString& out)
{
    if (!QDir().mkpath(out))
        return QCoreApplication::translate("Resize", "The folder %1 cannot be made.").arg(out);
    if (!QTemporaryFile(QDir(out).filePath(u".XXXXXX"_s)).open())
        return QCoreApplication::translate("Resize", "Nothing can be written into the folder %1.").arg(out);
    return {};
}

}

std::optional<ResizePlan> PlanResize(const ResizeJob& job, QString& error)
{
    error = WhyNoResizeWidth(job.width);
    if (error.isEmpty())
        error = why_no_folders(job);
    if (!error.isEmpty())
        return {};
    ResizePlan plan{job, items_of(QDir(job.in))};
    if (plan.items.isEmpty())
        return plan;
    error = why_no_target(job.out);
    if (!error.isEmpty())
        return {};
    name_targets(plan.items);
    return plan;
}

}
