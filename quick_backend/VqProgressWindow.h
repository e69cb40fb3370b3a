#pragma once

#include <memory>

class CVqQuickProgressView;
class QQmlEngine;
class QQuickWindow;

/// Makes and shows the window of a progress view, before the application's window that has the focus, or
/// before the progress window that appeared last.
///
/// With `suppress_others` it is modal to the application; without it blocks the progress window below it and
/// nothing else. While it lives, a program that is asked to quit stays, and all progress windows are asked to
/// close, which cancels. Null, and a warning, when QML cannot make it. The engine must outlive it.
std::unique_ptr<QQuickWindow> VqShowProgressWindow(QQmlEngine& engine, CVqQuickProgressView& view,
                                                   bool suppress_others);

/// The progress window that appeared last and still lives; null for none.
QQuickWindow* VqTopProgressWindow();
