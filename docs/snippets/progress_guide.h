#pragma once

#include <QStringList>

#include <functional>

class CVqQuickProgressWnd;

// The functions that docs/progress.md shows.

/// Whether all files were worked on.
bool work_through(const QStringList& files, const std::function<void(const QString&)>& work);
void work_on_a_thread(CVqQuickProgressWnd& progress, const QStringList& files,
                      const std::function<void(const QString&)>& work);
