// [snippet]
#include "quick_backend/CVqQuickMenu.h"

#include <QGuiApplication>
#include <QQmlApplicationEngine>

int main(int argc, char** argv)
{
    QGuiApplication app(argc, argv);

    CVqQuickMenu menu;
    menu.AppendPopup(1, 0, VQ_TEXT("&File"));
    menu.AppendMenuItem(2, 1, VQ_TEXT("&Open...\aCtrl+O"), VQ_TEXT("FileOpen"), 0);
    menu.AppendMenuItem(3, 1, VQ_TEXT("&Quit\aCtrl+Q"), VQ_TEXT("FileQuit"), 0);
    menu.SetCmdHandler([](vq_uint32 id) { id == 3 ? QCoreApplication::quit() : qInfo("command %u", id); });

    QQmlApplicationEngine engine;
    engine.setInitialProperties({{QStringLiteral("menu"), QVariant::fromValue(&menu)}});
    engine.loadData(R"(
        import QtQuick
        import K7.Arbor.QuickBackend
        Window {
            id: window
            required property QuickMenu menu
            visible: true; width: 640; height: 400
            MenuBar { menu: window.menu; width: parent.width }
        })");
    return app.exec();
}
// [end]
