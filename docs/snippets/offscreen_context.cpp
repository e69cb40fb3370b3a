#include "docs/snippets/offscreen_guide.h"

#include <QOpenGLContext>

// [snippet]
// Takes a picture amid drawing of your own.
QImage grab_beside(OffscreenQuickView& view)
{
    QOpenGLContext* const context = QOpenGLContext::currentContext();
    QSurface* const surface = context ? context->surface() : nullptr;
    const QImage picture = view.grab();
    if (context)
        context->makeCurrent(surface);
    return picture;
}
// [end]
