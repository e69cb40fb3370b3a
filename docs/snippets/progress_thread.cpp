#include "docs/snippets/progress_guide.h"
#include "quick_backend/CVqQuickProgressWnd.h"

// [snippet]
// Runs on a thread of its own. The window lives on the GUI thread, which runs its event loop.
void work_on_a_thread(CVqQuickProgressWnd& progress, const QStringList& files,
                      const std::function<void(const QString&)>& work)
{
    unsigned int done = 0;
    for (const QString& file : files) {
        if (progress.IsCanceled())
            return;
        progress.PostLabel(file);
        work(file);
        progress.PostPos(++done);
    }
}
// [end]
