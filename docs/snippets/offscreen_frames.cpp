#include "docs/snippets/offscreen_guide.h"

// [snippet]
// Hands on a picture after each change of the scene.
void show_each_frame(OffscreenQuickView& view, const std::function<void(const QImage&)>& show)
{
    QObject::connect(&view, &OffscreenQuickView::sceneRendered, &view, [&view, show] { show(view.grab()); });
    view.update(); // a first frame, should nothing change
}
// [end]
