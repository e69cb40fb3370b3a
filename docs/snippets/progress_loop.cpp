#include "docs/snippets/progress_guide.h"
#include "quick_backend/CVqQuickProgressWnd.h"

// [snippet]
// Works on the GUI thread. Half a second passes before anything shows.
bool work_through(const QStringList& files, const std::function<void(const QString&)>& work)
{
    CVqQuickProgressWnd progress(VQ_TEXT("Batch resize"), unsigned(files.size()), 500);
    for (const QString& file : files) {
        progress.SetLabel(CVqStringW::FromQString(file));
        if (progress.CheckCanceled())
            return false;
        work(file);
        progress.IncrementPos();
    }
    return true;
}
// [end]
