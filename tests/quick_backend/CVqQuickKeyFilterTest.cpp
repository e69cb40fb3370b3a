#include "quick_backend/CVqQuickKeyFilter.h"

#include "tests/quick_backend/MenuWindow.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class CVqQuickKeyFilterTest : public testing::Test
{
protected:
    void SetUp() override { FillMenu(window.Menu()); }

    QQuickItem& Field() { return *window.Find(QStringLiteral("field")); }
    QString FieldText() { return Field().property("text").toString(); }

    CVqQuickKeyFilter& Filter()
    {
        return *window.Find(QStringLiteral("menuBar"))->property("keys").value<CVqQuickKeyFilter*>();
    }

    /// Whether the window's ShortcutOverride is accepted, as the platform would ask.
    bool Claims(int key, Qt::KeyboardModifiers modifiers)
    {
        QKeyEvent event(QEvent::ShortcutOverride, key, modifiers);
        event.ignore();
        QCoreApplication::sendEvent(&window.Window(), &event);
        return event.isAccepted();
    }

    MenuWindow window;
};

}

TEST_F(CVqQuickKeyFilterTest, AKeyOfTheTableFiresOnce)
{
    window.Press(Qt::Key_O, Qt::ControlModifier);

    EXPECT_THAT(window.Fired(), ElementsAre(2u));
}

TEST_F(CVqQuickKeyFilterTest, ASentEventFiresToo)
{
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Z, Qt::ControlModifier);

    QCoreApplication::sendEvent(&window.Window(), &press);

    EXPECT_THAT(window.Fired(), ElementsAre(11u));
}

TEST_F(CVqQuickKeyFilterTest, TellsTheKeyAndTheTime)
{
    QSignalSpy fired(&Filter(), &CVqQuickKeyFilter::fired);

    window.Press(Qt::Key_O, Qt::ControlModifier);

    ASSERT_EQ(fired.size(), 1);
    EXPECT_EQ(fired[0][0].toUInt(), 2u);
    EXPECT_EQ(fired[0][1], QStringLiteral("Ctrl+O"));
    EXPECT_GE(fired[0][2].toLongLong(), 0);
}

TEST_F(CVqQuickKeyFilterTest, AnItemThatDoesNotFireEatsItsKeySilently)
{
    window.Menu().EnableId(2, false);
    QSignalSpy fired(&Filter(), &CVqQuickKeyFilter::fired);
    Field().forceActiveFocus();

    window.Press(Qt::Key_O, Qt::ControlModifier);

    EXPECT_THAT(window.Fired(), IsEmpty());
    EXPECT_EQ(fired.size(), 0);
}

TEST_F(CVqQuickKeyFilterTest, AnUnknownKeyGoesOnToTheFocus)
{
    Field().forceActiveFocus();

    window.Type('q');

    EXPECT_EQ(FieldText(), QStringLiteral("q"));
}

TEST_F(CVqQuickKeyFilterTest, ATextFieldKeepsPlainCharactersThatAreKeysElsewhere)
{
    window.Menu().AppendLonelyAccel(90, 16, VQ_TEXT('B'), VQ_TEXT("Brush"));
    Field().forceActiveFocus();

    window.Type('b');
    window.Type('B');
    EXPECT_EQ(FieldText(), QStringLiteral("bB"));
    EXPECT_THAT(window.Fired(), IsEmpty());

    Field().setFocus(false);
    window.Type('b');
    EXPECT_THAT(window.Fired(), ElementsAre(90u));
}

TEST_F(CVqQuickKeyFilterTest, ATextFieldKeepsItsEditingKeys)
{
    window.Menu().AppendLonelyAccel(90, 16, 8, VQ_TEXT("Back"));
    Field().setProperty("text", QStringLiteral("abc"));
    Field().forceActiveFocus();

    window.Press(Qt::Key_End);
    window.Press(Qt::Key_Backspace);

    EXPECT_EQ(FieldText(), QStringLiteral("ab"));
    EXPECT_THAT(window.Fired(), IsEmpty());
}

TEST_F(CVqQuickKeyFilterTest, ATextFieldLeavesTheKeysThatItDoesNotEditWith)
{
    Field().forceActiveFocus();

    window.Press(Qt::Key_O, Qt::ControlModifier);

    EXPECT_THAT(window.Fired(), ElementsAre(2u));
    EXPECT_EQ(FieldText(), QString());
}

TEST_F(CVqQuickKeyFilterTest, ClaimsOnlyKeysThatTranslate)
{
    EXPECT_TRUE(Claims(Qt::Key_O, Qt::ControlModifier));
    EXPECT_TRUE(Claims(Qt::Key_F, Qt::AltModifier));
    EXPECT_FALSE(Claims(Qt::Key_Q, Qt::ControlModifier));
    EXPECT_FALSE(Claims(Qt::Key_X, Qt::AltModifier));
    EXPECT_FALSE(Claims(Qt::Key_F5, Qt::NoModifier));
}

TEST_F(CVqQuickKeyFilterTest, AKeyGoesBeforeAMnemonic)
{
    window.Menu().AppendLonelyAccel(90, 17, VQ_TEXT('F'), VQ_TEXT("Fill"));

    window.Type('f', Qt::AltModifier);

    EXPECT_THAT(window.Fired(), ElementsAre(90u));
    EXPECT_EQ(window.Path(), "");
}

TEST_F(CVqQuickKeyFilterTest, AKeyTypedWithAltGrOfWindowsStaysText)
{
    window.Menu().AppendLonelyAccel(90, 19, VQ_TEXT('Q'), VQ_TEXT("Quit"));
    Field().forceActiveFocus();
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Q, Qt::ControlModifier | Qt::AltModifier, QStringLiteral("@"));

    QCoreApplication::sendEvent(&window.Window(), &press);

    EXPECT_THAT(window.Fired(), IsEmpty());
}

TEST_F(CVqQuickKeyFilterTest, WithoutABarMnemonicsAndF10AreLeftAlone)
{
    CVqQuickMenu menu;
    FillMenu(menu);
    CVqQuickKeyFilter filter(&menu, nullptr);
    QQuickWindow other;
    filter.SetWindow(&other);
    QSignalSpy mnemonic(&filter, &CVqQuickKeyFilter::mnemonicPressed);
    QSignalSpy bar(&filter, &CVqQuickKeyFilter::barRequested);

    for (const int key : {int(Qt::Key_F10), int(Qt::Key_F)}) {
        QKeyEvent press(QEvent::KeyPress, key, key == Qt::Key_F ? Qt::AltModifier : Qt::NoModifier);
        QCoreApplication::sendEvent(&other, &press);
    }

    EXPECT_EQ(mnemonic.size() + bar.size(), 0);
}

TEST_F(CVqQuickKeyFilterTest, AMenuOrWindowThatDiesFirstIsForgotten)
{
    auto menu = std::make_unique<CVqQuickMenu>();
    auto other = std::make_unique<QQuickWindow>();
    CVqQuickKeyFilter filter(menu.get(), other.get());

    menu.reset();
    QKeyEvent press(QEvent::KeyPress, Qt::Key_O, Qt::ControlModifier);
    QCoreApplication::sendEvent(other.get(), &press);
    other.reset();

    EXPECT_EQ(filter.Menu(), nullptr);
    EXPECT_EQ(filter.Window(), nullptr);
}

TEST_F(CVqQuickKeyFilterTest, PropertiesTellOfChangesOnly)
{
    CVqQuickKeyFilter filter;
    QSignalSpy menu_changed(&filter, &CVqQuickKeyFilter::menuChanged);
    QSignalSpy window_changed(&filter, &CVqQuickKeyFilter::windowChanged);
    QSignalSpy bar_changed(&filter, &CVqQuickKeyFilter::opensBarChanged);

    for (int i = 0; i < 2; ++i) {
        filter.SetMenu(&window.Menu());
        filter.SetWindow(&window.Window());
        filter.SetOpensBar(true);
    }

    EXPECT_EQ(menu_changed.size(), 1);
    EXPECT_EQ(window_changed.size(), 1);
    EXPECT_EQ(bar_changed.size(), 1);
}

TEST_F(CVqQuickKeyFilterTest, AHandlerMayPutTheWindowAway)
{
    window.Menu().SetCmdHandler([this](vq_uint32) { window.Window().close(); });

    window.Press(Qt::Key_O, Qt::ControlModifier);

    EXPECT_FALSE(window.Window().isVisible());
}
