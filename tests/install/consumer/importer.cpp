// Imports the QML module as a program does that has nothing of it but its path.
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>

#include <cstdio>
#include <memory>

int main(int argc, char** argv)
{
    const QGuiApplication app(argc, argv);
    QQmlEngine engine;
    engine.addImportPath(QStringLiteral(QML_DIR));
    QQmlComponent component(&engine);
    component.setData(
        "import QtQml\nimport K7.Arbor\nQtObject { property string hex: GuiSupport.makeHEX(0xff0a0b0c) }",
        QUrl());
    const std::unique_ptr<QObject> object(component.create());
    std::fputs(qPrintable(component.errorString()), stderr);
    return object && object->property("hex") == QLatin1String("#0a0b0c") ? 0 : 1;
}
