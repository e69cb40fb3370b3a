// Uses something of each library through the installed headers.
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <quick_backend/CVqQuickMenu.h>

#include <AbstractGui/CVqAccelerators.h>
#include <system/CVqStringW.h>

namespace {

bool command_runs()
{
    vq_uint32 fired = 0;
    CVqQuickMenu menu;
    menu.SetCmdHandler([&](vq_uint32 id) { fired = id; });
    menu.AppendPopup(1, 0, VQ_TEXT("&File"));
    menu.AppendMenuItem(2, 1, VQ_TEXT("&Open\aCtrl+O"), VQ_TEXT("FileOpen"), 0);
    return menu.trigger(2) && fired == 2;
}

bool key_parses()
{
    vq_uint32 flags = 0;
    vq_wchar key = 0;
    return CVqAccelerators::ParseAccel(CVqStringW(VQ_TEXT("Ctrl+O")), &flags, &key) && key == VQ_TEXT('O');
}

bool qml_loads()
{
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import K7.Arbor.QuickBackend\nMenuBar {}", QUrl());
    return !component.isError();
}

}

int main(int argc, char** argv)
{
    const QGuiApplication app(argc, argv);
    return command_runs() && key_parses() && qml_loads() ? 0 : 1;
}
