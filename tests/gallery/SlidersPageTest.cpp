#include "tests/gallery/PageFixture.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

class SlidersPage : public PageFixture
{
protected:
    SlidersPage() : PageFixture(u"SlidersPage"_s) { }

    double Value(const QString& slider) { return Property(slider, "value").toDouble(); }
};

/// A text of fields as the machine writes decimals.
QString decimals(double number)
{
    return QLocale().toString(number, 'f', 2);
}

}

TEST_F(SlidersPage, TheMiddleOfTheSliderShowsTheChosenValue)
{
    EXPECT_NEAR(Value(u"exponentialSlider"_s), 0.5, 1e-9);
    EXPECT_EQ(Text(u"exponentialSlider"_s, "readout"), u"50 px"_s);
    EXPECT_EQ(Text(u"exponentFact"_s, "value"), decimals(std::log(0.1) / std::log(0.5)));
}

TEST_F(SlidersPage, BothSlidersShowTheSameValue)
{
    Focus(u"evenSlider"_s);

    Press(Qt::Key_End);

    EXPECT_EQ(Value(u"exponentialSlider"_s), 1);
    EXPECT_EQ(Text(u"exponentialSlider"_s, "readout"), u"500 px"_s);
    EXPECT_EQ(Text(u"sizeField"_s), u"500"_s);
}

TEST_F(SlidersPage, ArrowsMoveTheExponentialSliderByPosition)
{
    Focus(u"exponentialSlider"_s);

    Press(Qt::Key_Right);

    EXPECT_NEAR(Value(u"exponentialSlider"_s), 0.51, 1e-9);
    EXPECT_NEAR(Value(u"evenSlider"_s), std::pow(0.51, std::log(0.1) / std::log(0.5)), 1e-9);
}

TEST_F(SlidersPage, AnotherMiddleKeepsTheValueAndMovesTheHandle)
{
    Focus(u"choice0"_s);

    Press(Qt::Key_Space);

    EXPECT_EQ(Text(u"exponentialSlider"_s, "readout"), u"50 px"_s);
    EXPECT_NEAR(Value(u"exponentialSlider"_s), 0.1, 1e-9);
    EXPECT_EQ(Text(u"exponentFact"_s, "value"), decimals(1));
    EXPECT_EQ(Text(u"middleField"_s), decimals(0.5));
}

TEST_F(SlidersPage, ATypedMiddleIsTaken)
{
    Type(u"middleField"_s, decimals(0.25));

    EXPECT_EQ(Text(u"exponentFact"_s, "value"), decimals(2));
    EXPECT_EQ(Property(u"middleChoice"_s, "current"), 1);
}

TEST_F(SlidersPage, ATypedMiddleStaysWithinItsLimits)
{
    Type(u"middleField"_s, u"7"_s);
    Press(Qt::Key_Tab);

    EXPECT_EQ(Text(u"middleField"_s), decimals(0.95));
}

TEST_F(SlidersPage, ATypedWidthMovesTheSliders)
{
    Type(u"sizeField"_s, u"125"_s);

    EXPECT_NEAR(Value(u"evenSlider"_s), 0.25, 1e-9);
    EXPECT_EQ(Text(u"evenSlider"_s, "readout"), u"125 px"_s);
}

TEST_F(SlidersPage, AWidthBeyondTheScaleIsItsEnd)
{
    Type(u"sizeField"_s, u"9000"_s);
    Press(Qt::Key_Tab);

    EXPECT_EQ(Value(u"evenSlider"_s), 1);
    EXPECT_EQ(Text(u"sizeField"_s), u"500"_s);
}

TEST_F(SlidersPage, FieldsTakeWhatTheirPatternsAllow)
{
    Type(u"intFieldLine"_s, u"-1.5a2"_s);
    Type(u"intPosFieldLine"_s, u"-3"_s);
    Type(u"floatPosFieldLine"_s, u"-0"_s);

    EXPECT_EQ(Text(u"intFieldLine"_s), u"-152"_s);
    EXPECT_EQ(Text(u"intPosFieldLine"_s), u"3"_s);
    EXPECT_EQ(Text(u"floatPosFieldLine"_s), u"0"_s);
}

TEST_F(SlidersPage, AnUnfinishedNumberIsMarked)
{
    Type(u"floatFieldLine"_s, u"-"_s);

    EXPECT_FALSE(Property(u"floatFieldLine"_s, "acceptable").toBool());
}

TEST_F(SlidersPage, TheMouseMovesASlider)
{
    Click(u"exponentialSlider"_s, 1 - 60 / Item(u"exponentialSlider"_s)->width());

    EXPECT_EQ(Text(u"evenSlider"_s, "readout"), u"500 px"_s);
}

TEST_F(SlidersPage, TheSliderHasANameForScreenReaders)
{
    QAccessibleInterface* slider = Accessible(u"exponentialSlider"_s);

    ASSERT_TRUE(slider);
    EXPECT_EQ(slider->role(), QAccessible::Slider);
    EXPECT_EQ(slider->text(QAccessible::Name), u"Exponential"_s);
}
