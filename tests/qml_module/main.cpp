// Runs tests written in QML: main -input FILE.qml [SUITE::CASE]

#include "arbor_qml_support.h"
#include "qml_module/VqQmlModule.h"

#include <QGuiApplication>
#include <QtQuickTest>

int main(int argc, char** argv)
{
    qputenv("QT_QUICK_BACKEND", "software");
    const QGuiApplication application(argc, argv);
    VQ_AddQmlModule();
    Quick::Register::Init();
    return quick_test_main(argc, argv, "qml_module", nullptr);
}
