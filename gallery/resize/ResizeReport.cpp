#include "gallery/resize/ResizeReport.h"

#include <QCoreApplication>
#include <QStringList>

namespace Gallery {

QString ResizeSummary(const ResizeReport& report)
{
    QStringList sentences;
    if (report.canceled)
        sentences << QCoreApplication::translate("Resize", "Cancelled.");
    sentences << QCoreApplication::translate("Resize", "Images resized: %1 of %2.")
                     .arg(report.done)
                     .arg(report.images);
    if (!report.failures.isEmpty())
        sentences << QCoreApplication::translate("Resize", "Failed: %1.").arg(report.failures.size());
    return sentences.join(u' ');
}

}
