#include "tests/gallery/PageFixture.h"

#include <QColor>
#include <QQmlComponent>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

class ColoursPage : public PageFixture
{
protected:
    ColoursPage() : PageFixture(u"ColoursPage"_s) { }

    QString Hex() { return Text(u"colourCard"_s, "hex"); }
    double Number(const QString& row) { return Property(row, "number").toDouble(); }
    double Value(const QString& slider) { return Property(slider, "value").toDouble(); }
    QColor Color(const QString& card) { return Property(card, "color").value<QColor>(); }
};

}

TEST_F(ColoursPage, TheKeyboardBeginsInTheFieldForText)
{
    Focus(u"pageHolder"_s);

    EXPECT_TRUE(HasFocus(u"hexField"_s));
}

TEST_F(ColoursPage, ATypedColourShowsEverywhere)
{
    Type(u"hexField"_s, u"#ff8000"_s);

    EXPECT_EQ(Color(u"colourCard"_s), QColor(255, 128, 0));
    EXPECT_EQ(Number(u"argbRow"_s), 0xffff8000);
    EXPECT_EQ(Number(u"abgrRow"_s), 0xff0080ff);
    EXPECT_EQ(Number(u"referenceRow"_s), 0x000080ff);
    EXPECT_EQ(Number(u"rgbRow"_s), 0x00ff8000);
    EXPECT_NEAR(Value(u"hsl0"_s), 30 / 360.0, 0.001);
    EXPECT_NEAR(Value(u"hsl2"_s), 0.5, 0.001);
    EXPECT_NEAR(Value(u"hsv2"_s), 1, 0.001);
}

TEST_F(ColoursPage, ATypedColourMayHaveAnOpacity)
{
    Type(u"hexField"_s, u"ff800080"_s);

    EXPECT_EQ(Number(u"argbRow"_s), 0x80ff8000);
    EXPECT_NEAR(Value(u"alpha"_s), 128 / 255.0, 0.001);
}

TEST_F(ColoursPage, TypedTextStaysAsItIsUntilItIsLeft)
{
    Type(u"hexField"_s, u"FF8000"_s);
    EXPECT_EQ(Text(u"hexField"_s), u"FF8000"_s);

    Press(Qt::Key_Tab);

    EXPECT_EQ(Text(u"hexField"_s), u"#ff8000"_s);
}

TEST_F(ColoursPage, AnUnfinishedTextChangesNothing)
{
    const QString before = Hex();

    Type(u"hexField"_s, u"#ff80"_s);

    EXPECT_EQ(Hex(), before);
    EXPECT_FALSE(Property(u"hexField"_s, "acceptable").toBool());
}

TEST_F(ColoursPage, LeavingTheFieldBringsTheTextBack)
{
    const QString before = Hex();
    Type(u"hexField"_s, u"#ff80"_s);

    Press(Qt::Key_Tab);

    EXPECT_EQ(Text(u"hexField"_s), before);
    EXPECT_TRUE(Property(u"hexField"_s, "acceptable").toBool());
}

TEST_F(ColoursPage, ArrowsMoveASlider)
{
    Type(u"hexField"_s, u"#000000"_s);
    Focus(u"hsl2"_s);

    Press(Qt::Key_Right);
    Press(Qt::Key_Up);
    EXPECT_NEAR(Value(u"hsl2"_s), 0.02, 1e-6);
    Press(Qt::Key_Left);
    EXPECT_NEAR(Value(u"hsl2"_s), 0.01, 1e-6);
    EXPECT_EQ(Hex(), u"#030303"_s);
}

TEST_F(ColoursPage, PageAndEndKeysMoveASliderFurther)
{
    Focus(u"hsv2"_s);

    Press(Qt::Key_Home);
    EXPECT_EQ(Hex(), u"#000000"_s);
    Press(Qt::Key_PageUp);
    EXPECT_NEAR(Value(u"hsv2"_s), 0.1, 1e-6);
    Press(Qt::Key_End);
    EXPECT_EQ(Value(u"hsv2"_s), 1);
}

TEST_F(ColoursPage, ASliderStaysWhereItWasPutThoughTheColourIsGrey)
{
    Focus(u"hsl0"_s);
    Press(Qt::Key_Home);
    Press(Qt::Key_PageUp);
    Focus(u"hsl1"_s);

    Press(Qt::Key_Home);

    EXPECT_NEAR(Value(u"hsl0"_s), 10 / 360.0, 1e-6);
    EXPECT_EQ(Value(u"hsv1"_s), 0);
}

TEST_F(ColoursPage, AHueSliderEndsBeforeTheFullTurn)
{
    Type(u"hexField"_s, u"#ff0000"_s);
    Focus(u"hsl0"_s);

    Press(Qt::Key_End);

    EXPECT_NEAR(Value(u"hsl0"_s), 359 / 360.0, 1e-6);
    EXPECT_EQ(Hex(), u"#ff00ff"_s);
}

TEST_F(ColoursPage, BlackHasAPlaceOnEachSlider)
{
    Type(u"hexField"_s, u"#000000"_s);

    EXPECT_EQ(Value(u"hsv1"_s), 0);
    EXPECT_EQ(Text(u"hsv1"_s, "readout"), u"0 %"_s);
}

TEST_F(ColoursPage, TheMouseDragsASlider)
{
    Drag(u"alpha"_s, 0.5, 0.2);

    EXPECT_NEAR(Value(u"alpha"_s),
                (0.2 * Item(u"alpha"_s)->width() - 96 - 10) / (Item(u"alpha"_s)->width() - 96 - 56 - 20),
                0.01);
    EXPECT_TRUE(HasFocus(u"alpha"_s));
}

TEST_F(ColoursPage, AClickTakesThePastelTint)
{
    Type(u"hexField"_s, u"#808080"_s);

    Click(u"pastelCard"_s);

    EXPECT_EQ(Hex(), u"#bfbfbf"_s);
    EXPECT_EQ(Text(u"hexField"_s), u"#bfbfbf"_s);
}

TEST_F(ColoursPage, EnterTakesTheComplement)
{
    Type(u"hexField"_s, u"#ff800080"_s);
    Focus(u"complementCard"_s);

    Press(Qt::Key_Return);

    EXPECT_EQ(Hex(), u"#007fff80"_s);
}

TEST_F(ColoursPage, TabGoesFromCardsToTheTextAndThroughTheSliders)
{
    Focus(u"pastelCard"_s);

    for (const QString& next : {u"complementCard"_s, u"hexField"_s, u"hsl0"_s, u"hsl1"_s, u"hsl2"_s,
                                u"hsv0"_s, u"hsv1"_s, u"hsv2"_s, u"alpha"_s}) {
        Press(Qt::Key_Tab);
        EXPECT_TRUE(HasFocus(next)) << next.toStdString();
    }
}

TEST_F(ColoursPage, SlidersHaveNamesAndValuesForScreenReaders)
{
    QAccessibleInterface* slider = Accessible(u"alpha"_s);

    ASSERT_TRUE(slider);
    EXPECT_EQ(slider->role(), QAccessible::Slider);
    EXPECT_EQ(slider->text(QAccessible::Name), u"Opacity"_s);
    ASSERT_TRUE(slider->valueInterface());
    EXPECT_EQ(slider->valueInterface()->currentValue(), 1);
    EXPECT_EQ(slider->valueInterface()->maximumValue(), 1);
}

TEST_F(ColoursPage, CardsAreButtonsForScreenReaders)
{
    QAccessibleInterface* card = Accessible(u"pastelCard"_s);

    ASSERT_TRUE(card);
    EXPECT_EQ(card->role(), QAccessible::Button);
    EXPECT_TRUE(card->text(QAccessible::Name).startsWith(u"Pastel"_s));
}

// Not loaded by a thread, which a page that closes at once would leave in the middle of its work.
TEST(ColourCard, SquaresBehindAColourAreThereWithTheCard)
{
    RegisterQmlTypes();
    const Gallery::Session session{RealMenu()};
    QQmlEngine engine;
    QQmlComponent component(&engine, Gallery::GalleryUrl(u"ColourCard.qml"_s));

    const std::unique_ptr<QObject> card(component.create());

    ASSERT_TRUE(card) << component.errorString().toStdString();
    EXPECT_EQ(card->findChild<QObject*>(u"squares"_s)->property("sourceSize").toSize(), QSize(16, 16));
}
