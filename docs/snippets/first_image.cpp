// [snippet]
#include "quick_backend/CVqQuickBitmapPool.h"
#include "quick_backend/CVqQuickMenu.h"

#include <QGuiApplication>
#include <QQmlApplicationEngine>

int main(int argc, char** argv)
{
    QGuiApplication app(argc, argv);
    CVqQuickBitmapPool pool; // behind the application object, before what shows its images
    const int basket
        = CVqAbstractBitmapPool::AddImage(VQ_TEXT("k7_shop_images.dll"), VQ_TEXT("BASKET"), nullptr);

    CVqQuickMenu menu;
    menu.AppendPopup(1, 0, VQ_TEXT("&Shop"));
    menu.AppendMenuItem(2, 1, VQ_TEXT("&Buy"), VQ_TEXT("ShopBuy"), 0);
    menu.SetIdBitmap(2, basket);

    QQmlApplicationEngine engine;
    pool.AddImageProvider(engine); // image://arbor/INDEX
    engine.setInitialProperties(
        {{QStringLiteral("menu"), QVariant::fromValue(&menu)}, {QStringLiteral("basket"), basket}});
    engine.loadData(R"(
        import QtQuick
        import K7.Arbor.QuickBackend
        Window {
            id: window
            required property QuickMenu menu
            required property int basket
            visible: true; width: 640; height: 400
            MenuBar { menu: window.menu; imageSource: "image://arbor/"; width: parent.width }
            Image {
                anchors.centerIn: parent
                sourceSize: Qt.size(48, 48)
                source: "image://arbor/" + window.basket + "?color=" + encodeURIComponent(window.palette.windowText)
            }
        })");
    return app.exec();
}
// [end]
