#include "tests/support/ExpectMessage.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QWindow>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

int first_menu(int argc, char** argv);

namespace {

// Runs when the program's event loop does.
void press_later(QObject& sender, Qt::Key key)
{
    const auto press = [key] {
        QWindow* const window = QGuiApplication::topLevelWindows().first();
        QKeyEvent event(QEvent::KeyPress, key, Qt::ControlModifier);
        QCoreApplication::sendEvent(window, &event);
    };
    QMetaObject::invokeMethod(&sender, press, Qt::QueuedConnection);
}

}

TEST(firstMenu, RunsACommandByItsKeyAndQuits)
{
    delete QCoreApplication::instance();
    QObject sender;
    char name[] = "first_menu";
    char* argv[] = {name, nullptr};
    const ExpectMessage open(QtInfoMsg, u"command 2"_s);

    press_later(sender, Qt::Key_O);
    press_later(sender, Qt::Key_Q);
    const int result = first_menu(1, argv);

    EXPECT_EQ(result, 0);
}
