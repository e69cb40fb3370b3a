#include "tests/support/MessageWatch.h"

#include <QGuiApplication>
#include <QLocale>
#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace {

void set_if_unset(const char* name, const QByteArray& value)
{
    if (!qEnvironmentVariableIsSet(name))
        qputenv(name, value);
}

// The same words, number forms, hours and looks on each machine. Qt reads the locale from the environment
// when the application object is made.
void fix_surroundings(const QString& runtime_dir)
{
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("TZ", "UTC");
    qunsetenv("LANGUAGE");
    set_if_unset("QT_QPA_PLATFORM", "offscreen");
    set_if_unset("QT_QUICK_BACKEND", "software");
    set_if_unset("XDG_RUNTIME_DIR", runtime_dir.toLocal8Bit());
    QLocale::setDefault(QLocale::c());
}

}

int main(int argc, char** argv)
{
    testing::InitGoogleMock(&argc, argv);
    // The build asks for the list of tests, where there may be neither a display nor a platform plugin.
    if (GTEST_FLAG_GET(list_tests))
        return RUN_ALL_TESTS();

    const QTemporaryDir runtime_dir;
    fix_surroundings(runtime_dir.path());
    MessageWatch::Install();
    // On the heap, so that a test may put an application object of its own in its place.
    new QGuiApplication(argc, argv);
    const int result = RUN_ALL_TESTS();
    // As an event loop does on its way out: what was to be deleted later is no leak.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    delete QCoreApplication::instance();
    return result;
}
