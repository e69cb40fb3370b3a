#include "arbor_qml_support.h"
#include "docs/snippets/offscreen_guide.h"

// [snippet]
// Loads a page that fills the view, from the source tree where the developer's mode is on.
void load_at_size(OffscreenQuickView& view, const QUrl& url, const QSize& size)
{
    view.setResizeMode(OffscreenQuickView::SizeRootObjectToView);
    view.resize(size); // so that the view does not take the root's size
    view.setSource(FindQmlResource(url, {}));
    view.resize(size); // now the root takes the view's
}
// [end]
