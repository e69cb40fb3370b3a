#include "gallery/resize/ResizeRun.h"

#include "gallery/resize/IResizeSteps.h"
#include "gallery/resize/ResizeImage.h"

#include <QDir>

namespace Gallery {

ResizeReport RunResize(const ResizePlan& plan, IResizeSteps& steps)
{
    const QDir in(plan.job.in);
    const QDir out(plan.job.out);
    ResizeReport report;
    report.images = plan.items.size();
    unsigned int position = 0;
    for (const ResizeItem& item : plan.items) {
        report.canceled = steps.CheckCanceled();
        if (report.canceled)
            break;
        steps.SetLabel(item.from);
        const QString reason
            = ResizeImage(in.filePath(item.from), out.filePath(item.to), item.format, plan.job.width);
        if (reason.isEmpty())
            ++report.done;
        else
            report.failures << ResizeFailure{item.from, reason};
        steps.SetPos(++position);
    }
    return report;
}

}
