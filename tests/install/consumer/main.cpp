// Uses something of each library through the installed headers.
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <qml/CVqGuiSupport.h>
#include <qml_module/VqQmlModule.h>
#include <quick_backend/CVqQuickMenu.h>

#include <AbstractGui/CVqAccelerators.h>
#include <arbor_qml_support.h>
#include <memory>
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

bool number_is_written_as_text()
{
    return CVqGuiSupport().makeHEX(0xff0a0b0c) == QLatin1String("#0a0b0c");
}

bool qml_loads()
{
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import K7.Arbor.QuickBackend\nMenuBar {}", QUrl());
    return !component.isError();
}

bool qml_calls_the_module()
{
    VQ_AddQmlModule();
    Quick::Register::Init();
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData(
        "import QtQml\nimport K7.Arbor\nQtObject { property real red: GuiSupport.RGBFromHSL(0, 1, 0.5)[0] }",
        QUrl());
    const std::unique_ptr<QObject> object(component.create());
    return object && object->property("red") == 255;
}

}

int main(int argc, char** argv)
{
    const QGuiApplication app(argc, argv);
    return command_runs() && key_parses() && number_is_written_as_text() && qml_loads()
            && qml_calls_the_module()
        ? 0
        : 1;
}
