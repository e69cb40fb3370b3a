#include "gallery/keys/KeyCapture.h"

#include "gallery/Translations.h"

#include <QKeyEvent>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Gallery::KeyCapture;

namespace {

/// The item in a window, with the focus, and a neighbour that Tab leads to.
class KeyCaptureTest : public testing::Test
{
protected:
    KeyCaptureTest()
    {
        m_neighbour.setActiveFocusOnTab(true);
        m_window.show();
        m_window.requestActivate();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
        m_capture.forceActiveFocus();
    }

    void Send(QEvent::Type type, int key, Qt::KeyboardModifiers modifiers = {}, bool repeated = false)
    {
        QKeyEvent event(type, key, modifiers, QString(), repeated);
        QCoreApplication::sendEvent(&m_window, &event);
    }

    QQuickWindow m_window;
    KeyCapture m_capture{m_window.contentItem()};
    QQuickItem m_neighbour{m_window.contentItem()};
    QSignalSpy m_pressed{&m_capture, &KeyCapture::pressed};
    QSignalSpy m_canceled{&m_capture, &KeyCapture::canceled};
    QSignalSpy m_unknown{&m_capture, &KeyCapture::unknownPressed};
};

struct KeyRow
{
    const char* name;
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    uint flags;
    uint value;
};

}

class CapturedKeys : public KeyCaptureTest, public testing::WithParamInterface<KeyRow>
{ };

TEST_P(CapturedKeys, AreToldAsMenusKnowThem)
{
    Send(QEvent::KeyPress, GetParam().key, GetParam().modifiers);

    ASSERT_EQ(m_pressed.size(), 1);
    EXPECT_EQ(m_pressed[0][0].toUInt(), GetParam().flags);
    EXPECT_EQ(m_pressed[0][1].toUInt(), GetParam().value);
    EXPECT_EQ(m_canceled.size(), 0);
}

INSTANTIATE_TEST_SUITE_P(KeyCaptureTest, CapturedKeys,
                         testing::Values(KeyRow{"CtrlK", Qt::Key_K, Qt::ControlModifier, 2, 'K'},
                                         KeyRow{"Plain", Qt::Key_K, Qt::NoModifier, 0, 'K'},
                                         KeyRow{"AltShiftF4", Qt::Key_F4, Qt::AltModifier | Qt::ShiftModifier,
                                                5, 115},
                                         KeyRow{"Enter", Qt::Key_Return, Qt::NoModifier, 0, 13},
                                         KeyRow{"Space", Qt::Key_Space, Qt::NoModifier, 0, 32},
                                         KeyRow{"CtrlTab", Qt::Key_Tab, Qt::ControlModifier, 2, 9},
                                         KeyRow{"CtrlEscape", Qt::Key_Escape, Qt::ControlModifier, 2, 27},
                                         KeyRow{"Comma", Qt::Key_Comma, Qt::ControlModifier, 2, 188}),
                         [](const auto& row) { return row.param.name; });

TEST_F(KeyCaptureTest, EscapeCancels)
{
    Send(QEvent::KeyPress, Qt::Key_Escape);

    EXPECT_EQ(m_canceled.size(), 1);
    EXPECT_EQ(m_pressed.size(), 0);
}

TEST_F(KeyCaptureTest, TabLeadsOn)
{
    Send(QEvent::KeyPress, Qt::Key_Tab);

    EXPECT_TRUE(m_neighbour.hasActiveFocus());
    EXPECT_EQ(m_pressed.size(), 0);
    EXPECT_EQ(m_canceled.size(), 1);
}

TEST_F(KeyCaptureTest, ModifiersAloneAreShownAndWaitedWith)
{
    QSignalSpy held(&m_capture, &KeyCapture::HeldChanged);

    Send(QEvent::KeyPress, Qt::Key_Control);
    EXPECT_EQ(m_capture.Held(), u"Ctrl+"_s);
    Send(QEvent::KeyPress, Qt::Key_Shift, Qt::ControlModifier);
    EXPECT_EQ(m_capture.Held(), u"Ctrl+Shift+"_s);
    Send(QEvent::KeyRelease, Qt::Key_Control, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(m_capture.Held(), u"Shift+"_s);
    Send(QEvent::KeyRelease, Qt::Key_Shift, Qt::ShiftModifier);

    EXPECT_EQ(m_capture.Held(), QString());
    EXPECT_EQ(held.size(), 4);
    EXPECT_EQ(m_pressed.size(), 0);
    EXPECT_EQ(m_unknown.size(), 0);
}

TEST_F(KeyCaptureTest, ModifiersAreShownInTheLanguageOfTheUser)
{
    const Gallery::Translations german(u"de"_s);

    Send(QEvent::KeyPress, Qt::Key_Control);

    EXPECT_EQ(m_capture.Held(), u"Strg+"_s);
}

TEST_F(KeyCaptureTest, AKeyThatMenusDoNotKnowIsTold)
{
    Send(QEvent::KeyPress, Qt::Key_VolumeUp);

    EXPECT_EQ(m_unknown.size(), 1);
    EXPECT_EQ(m_pressed.size(), 0);
}

TEST_F(KeyCaptureTest, AKeyThatIsHeldIsTakenOnce)
{
    Send(QEvent::KeyPress, Qt::Key_K, Qt::ControlModifier, true);

    EXPECT_EQ(m_pressed.size(), 0);
    EXPECT_EQ(m_canceled.size(), 0);
}

TEST_F(KeyCaptureTest, ClaimsEveryKeyBeforeMenusAndShortcuts)
{
    QKeyEvent question(QEvent::ShortcutOverride, Qt::Key_S, Qt::ControlModifier);
    question.ignore();

    QCoreApplication::sendEvent(&m_capture, &question);

    EXPECT_TRUE(question.isAccepted());
}

TEST_F(KeyCaptureTest, LosingTheFocusCancels)
{
    Send(QEvent::KeyPress, Qt::Key_Control);

    m_neighbour.forceActiveFocus();

    EXPECT_EQ(m_canceled.size(), 1);
    EXPECT_EQ(m_capture.Held(), QString());
}
