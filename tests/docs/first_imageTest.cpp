#include "quick_backend/CVqQuickMenu.h"

#include <QGuiApplication>
#include <QQuickItem>
#include <QQuickWindow>

#include <gtest/gtest.h>

int first_image(int argc, char** argv);

namespace {

constexpr int g_ready = 1; // of Image.status

/// What the program showed while its event loop ran.
struct Shown
{
    int menu_image = -1;
    int status = 0;
    double width = 0;
};

Shown shown_now()
{
    Shown shown;
    const auto* window = qobject_cast<QQuickWindow*>(QGuiApplication::topLevelWindows().value(0));
    if (!window)
        return shown;
    window->property("menu").value<CVqQuickMenu*>()->GetIdBitmap(2, shown.menu_image);
    for (const QQuickItem* item : window->contentItem()->childItems())
        if (item->inherits("QQuickImage")) {
            shown.status = item->property("status").toInt();
            shown.width = item->implicitWidth();
        }
    return shown;
}

}

TEST(firstImage, ShowsTheImageOfTheModuleAndHasItInTheMenu)
{
    delete QCoreApplication::instance();
    QObject sender;
    char name[] = "first_image";
    char* argv[] = {name, nullptr};
    Shown shown;

    const auto look = [&shown] {
        shown = shown_now();
        QCoreApplication::quit();
    };
    QMetaObject::invokeMethod(&sender, look, Qt::QueuedConnection);
    first_image(1, argv);

    EXPECT_EQ(shown.menu_image, 1);
    EXPECT_EQ(shown.status, g_ready);
    EXPECT_EQ(shown.width, 48);
}
