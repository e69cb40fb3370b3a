#include "gallery/render/SceneWait.h"

#include "gallery/script/WaitFor.h"
#include "offscreen/OffscreenQuickWindow.h"

#include <QDeadlineTimer>
#include <QQuickItem>

#include <algorithm>
#include <array>

namespace Gallery {

namespace {

constexpr int g_loading = 2; // the number of Loading in Image, Loader and FontLoader, of Processing in Shape
constexpr int g_quiet_frames = 2; // what the first one lays out may need the second one

bool is_loading(const QObject& object)
{
    const auto is_a = [&object](const char* name) { return object.inherits(name); };
    constexpr std::array loaders{"QQuickImageBase", "QQuickLoader", "QQuickFontLoader", "QQuickShape"};
    return std::ranges::any_of(loaders, is_a) && object.property("status").toInt() == g_loading;
}

bool has_loading(const QQuickItem& top)
{
    QList<const QQuickItem*> open{&top};
    while (!open.isEmpty()) {
        const QQuickItem& item = *open.takeLast();
        const auto child_is_loading = [](const QObject* child) { return is_loading(*child); };
        if (is_loading(item) || std::ranges::any_of(item.children(), child_is_loading))
            return true;
        for (const QQuickItem* child : item.childItems())
            open << child;
    }
    return false;
}

}

bool WaitForScene(OffscreenQuickWindow& window, std::chrono::milliseconds longest)
{
    const QDeadlineTimer end(longest);
    for (int quiet = 0; quiet < g_quiet_frames;) {
        window.update();
        WaitFor(window, &OffscreenQuickWindow::sceneRendered, std::chrono::milliseconds(end.remainingTime()));
        if (end.hasExpired())
            return false;
        quiet = has_loading(*window.contentItem()) ? 0 : quiet + 1;
    }
    return true;
}

}
