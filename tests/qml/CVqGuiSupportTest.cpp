#include "qml/CVqGuiSupport.h"

#include "tests/qml/MetaObjectTexts.h"

#include <QMetaType>

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

using testing::ElementsAre;

namespace {

constexpr double g_infinity = std::numeric_limits<double>::infinity();
constexpr double g_nan = std::numeric_limits<double>::quiet_NaN();

struct NumberRow
{
    const char* name;
    double number;
    int expected; // the RGB number of the colour reference
};

void PrintTo(const NumberRow& row, std::ostream* out)
{
    *out << row.name;
}

const NumberRow number_rows[] = {
    {"Zero", 0, 0},
    {"EachByteInItsPlace", 0x112233, 0x332211},
    {"HighByteIsDropped", 0x7F112233, 0x332211},
    {"LargestOf31Bits", 0x7FFFFFFF, 0xFFFFFF},
    {"From2To31On", 0xFF112233, 0x332211},
    {"LargestOf32Bits", 0xFFFFFFFF, 0xFFFFFF},
    {"Beyond32BitsTheLowOnesCount", 0x5500112233, 0x332211},
    {"Below32BitsTheLowOnesCount", -double(0x100000000) - 1, 0xFFFFFF},
    {"PositiveFractionIsCutOff", 254.99, 0xFE0000},
    {"NegativeFractionIsCutOff", -1.99, 0xFFFFFF},
    {"FractionBetweenMinusOneAndZeroIsZero", -0.99, 0},
    {"MinusOneIsAllBits", -1, 0xFFFFFF},
    {"SmallestOf32Bits", -double(0x80000000), 0},
    {"SoLargeThatTheLowBitsAreZero", 1e300, 0},
    {"Infinity", g_infinity, 0},
    {"MinusInfinity", -g_infinity, 0},
    {"NotANumber", g_nan, 0},
};

class CVqGuiSupportNumbers : public testing::TestWithParam<NumberRow>
{ };

struct MiddleRow
{
    const char* name;
    double middle;
    double expected;
};

void PrintTo(const MiddleRow& row, std::ostream* out)
{
    *out << row.name;
}

// The logarithms to base 2, negated, from a table of them.
const MiddleRow middle_rows[] = {
    {"HalfIsALinearScale", 0.5, 1},
    {"Quarter", 0.25, 2},
    {"Eighth", 0.125, 3},
    {"LowerEndIsKept", 0.05, 4.321928094887363},
    {"BelowTheLowerEnd", 0.0499, 4.321928094887363},
    {"Zero", 0, 4.321928094887363},
    {"Negative", -1, 4.321928094887363},
    {"UpperEndIsKept", 0.95, 0.07400058144377693},
    {"AboveTheUpperEnd", 0.9501, 0.07400058144377693},
    {"One", 1, 0.07400058144377693},
    {"Infinity", g_infinity, 0.07400058144377693},
};

class CVqGuiSupportMiddles : public testing::TestWithParam<MiddleRow>
{ };

QByteArray first_that_is_not_const(const QMetaObject& meta)
{
    int index = meta.methodOffset();
    while (index < meta.methodCount() && meta.method(index).isConst())
        ++index;
    return meta.method(index).name();
}

QByteArray last_that_is_const(const QMetaObject& meta)
{
    int index = meta.methodCount() - 1;
    while (index >= meta.methodOffset() && !meta.method(index).isConst())
        --index;
    return meta.method(index).name();
}

}

// The meta-object --------------------------------------------------------------------------------------

TEST(CVqGuiSupport, ListsItsMethodsInTheirOrder)
{
    EXPECT_THAT(
        MetaObjectTexts::Methods(CVqGuiSupport::staticMetaObject),
        ElementsAre(
            "method int colorRef_fromColor(QColor color)", "method QColor colorRef_toColor(double colorRef)",
            "method int colorRef_toRgb(double colorRef)", "method int colorRef_fromRgb(double rgb)",
            "method int colorRef_complement(double colorRef)",
            "method double exponentialSlider_valueToPos(double normValue, double exp)",
            "method double exponentialSlider_posToValue(double normPos, double exp)",
            "method double exponentialSlider_calculateBaseFromMiddle(double normMiddleValue)",
            "method QString regexStr_float()", "method QString regexStr_floatPos()",
            "method QString regexStr_int()", "method QString regexStr_intPos()",
            "method QString makeHEX(vq_uint32 argb)",
            "method std::tuple<float,float,float> HSVFromRGB(vq_uint8 red, vq_uint8 green, vq_uint8 blue)",
            "method std::tuple<float,float,float> HSLFromRGB(vq_uint8 red, vq_uint8 green, vq_uint8 blue)",
            "method std::tuple<vq_uint8,vq_uint8,vq_uint8> RGBFromHSV(float hue, float saturation, float "
            "value)",
            "method std::tuple<vq_uint8,vq_uint8,vq_uint8> RGBFromHSL(float hue, float saturation, float "
            "lightness)",
            "method vq_uint32 pastelARGB(vq_uint32 argb)", "method vq_uint8 redFromABGR(vq_uint32 abgr)",
            "method vq_uint8 greenFromABGR(vq_uint32 abgr)", "method vq_uint8 blueFromABGR(vq_uint32 abgr)",
            "method vq_uint8 alphaFromABGR(vq_uint32 abgr)", "method vq_uint8 redFromARGB(vq_uint32 argb)",
            "method vq_uint8 greenFromARGB(vq_uint32 argb)", "method vq_uint8 blueFromARGB(vq_uint32 argb)",
            "method vq_uint8 alphaFromARGB(vq_uint32 argb)",
            "method vq_uint32 makeABGR(vq_uint8 a, vq_uint8 b, vq_uint8 g, vq_uint8 r)",
            "method vq_uint32 makeARGB(vq_uint8 a, vq_uint8 r, vq_uint8 g, vq_uint8 b)",
            "method vq_uint32 makeARGB(QString hex)"));
}

TEST(CVqGuiSupport, HasConstMethodsUpToThePatterns)
{
    EXPECT_EQ(first_that_is_not_const(CVqGuiSupport::staticMetaObject), "makeHEX");
    EXPECT_EQ(last_that_is_const(CVqGuiSupport::staticMetaObject), "regexStr_intPos");
}

TEST(CVqGuiSupport, HoldsNoData)
{
    EXPECT_EQ(sizeof(CVqGuiSupport), sizeof(QObject));
}

TEST(CVqGuiSupport, HasNoPropertiesAndNoEnumerations)
{
    const QMetaObject& meta = CVqGuiSupport::staticMetaObject;

    EXPECT_EQ(meta.propertyCount(), meta.propertyOffset());
    EXPECT_EQ(meta.enumeratorCount(), meta.enumeratorOffset());
}

TEST(CVqGuiSupport, MakesTheTupleOfFloatsKnownByName)
{
    const CVqGuiSupport support;

    const QMetaType type = QMetaType::fromName("std::tuple<float,float,float>");

    EXPECT_EQ(type, (QMetaType::fromType<std::tuple<float, float, float>>()));
}

TEST(CVqGuiSupport, MakesTheTupleOfBytesKnownByName)
{
    const CVqGuiSupport support;

    const QMetaType type = QMetaType::fromName("std::tuple<uchar,uchar,uchar>");

    EXPECT_EQ(type, (QMetaType::fromType<std::tuple<unsigned char, unsigned char, unsigned char>>()));
}

TEST(CVqGuiSupport, ResultOfACallThroughTheMetaObjectIsTheTuple)
{
    CVqGuiSupport support;
    std::tuple<vq_uint8, vq_uint8, vq_uint8> bytes;

    const bool called = QMetaObject::invokeMethod(&support, "RGBFromHSV", Qt::DirectConnection,
                                                  qReturnArg(bytes), 0.F, 1.F, 1.F);

    ASSERT_TRUE(called);
    EXPECT_EQ(bytes, std::make_tuple(255, 0, 0));
}

// Bytes ------------------------------------------------------------------------------------------------

TEST(CVqGuiSupport, TakesTheBytesOfAbgr)
{
    CVqGuiSupport support;

    EXPECT_EQ(support.alphaFromABGR(0x81A2C3E4), 0x81);
    EXPECT_EQ(support.blueFromABGR(0x81A2C3E4), 0xA2);
    EXPECT_EQ(support.greenFromABGR(0x81A2C3E4), 0xC3);
    EXPECT_EQ(support.redFromABGR(0x81A2C3E4), 0xE4);
}

TEST(CVqGuiSupport, TakesTheBytesOfArgb)
{
    CVqGuiSupport support;

    EXPECT_EQ(support.alphaFromARGB(0x81A2C3E4), 0x81);
    EXPECT_EQ(support.redFromARGB(0x81A2C3E4), 0xA2);
    EXPECT_EQ(support.greenFromARGB(0x81A2C3E4), 0xC3);
    EXPECT_EQ(support.blueFromARGB(0x81A2C3E4), 0xE4);
}

TEST(CVqGuiSupport, PacksFourBytesFromTheHighOneDown)
{
    CVqGuiSupport support;

    EXPECT_EQ(support.makeABGR(0x81, 0xA2, 0xC3, 0xE4), 0x81A2C3E4);
    EXPECT_EQ(support.makeARGB(0x81, 0xA2, 0xC3, 0xE4), 0x81A2C3E4);
}

// Colour references ------------------------------------------------------------------------------------

TEST(CVqGuiSupport, ColourReferenceOfAColourHasBlueOnTopAndNoAlpha)
{
    EXPECT_EQ(CVqGuiSupport().colorRef_fromColor(QColor(0x12, 0x34, 0xF6, 0x78)), 0xF63412);
}

TEST(CVqGuiSupport, ColourReferenceOfAColourOfAnotherModelIsThatOfItsRgb)
{
    EXPECT_EQ(CVqGuiSupport().colorRef_fromColor(QColor::fromHsv(240, 255, 255)), 0xFF0000);
}

TEST(CVqGuiSupport, ColourOfAColourReferenceIsOpaque)
{
    EXPECT_EQ(CVqGuiSupport().colorRef_toColor(0xF63412), QColor(0x12, 0x34, 0xF6, 255));
}

TEST(CVqGuiSupport, ColourOfANegativeNumberHasItsLowBits)
{
    EXPECT_EQ(CVqGuiSupport().colorRef_toColor(-2), QColor(254, 255, 255));
}

TEST(CVqGuiSupport, ComplementOfBlackIsWhite)
{
    EXPECT_EQ(CVqGuiSupport().colorRef_complement(0), 0xFFFFFF);
}

TEST(CVqGuiSupport, ComplementTurnsOver24BitsAndDropsTheRest)
{
    EXPECT_EQ(CVqGuiSupport().colorRef_complement(0xAA0F3355), 0xF0CCAA);
}

TEST_P(CVqGuiSupportNumbers, ConvertsToTheRgbNumber)
{
    EXPECT_EQ(CVqGuiSupport().colorRef_toRgb(GetParam().number), GetParam().expected);
}

TEST_P(CVqGuiSupportNumbers, ConvertsBackByTheSameSwap)
{
    EXPECT_EQ(CVqGuiSupport().colorRef_fromRgb(GetParam().number), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Numbers, CVqGuiSupportNumbers, testing::ValuesIn(number_rows),
                         [](const auto& row) { return row.param.name; });

// Sliders ----------------------------------------------------------------------------------------------

TEST(CVqGuiSupport, ValueIsThePositionToThePower)
{
    EXPECT_DOUBLE_EQ(CVqGuiSupport().exponentialSlider_posToValue(0.5, 3), 0.125);
}

TEST(CVqGuiSupport, PositionIsTheRootOfTheValue)
{
    EXPECT_DOUBLE_EQ(CVqGuiSupport().exponentialSlider_valueToPos(0.125, 3), 0.5);
}

TEST(CVqGuiSupport, EndsOfASliderStayWhereTheyAre)
{
    const CVqGuiSupport support;

    EXPECT_EQ(support.exponentialSlider_posToValue(0, 2.5), 0);
    EXPECT_EQ(support.exponentialSlider_posToValue(1, 2.5), 1);
    EXPECT_EQ(support.exponentialSlider_valueToPos(0, 2.5), 0);
    EXPECT_EQ(support.exponentialSlider_valueToPos(1, 2.5), 1);
}

TEST_P(CVqGuiSupportMiddles, GiveTheExponent)
{
    EXPECT_DOUBLE_EQ(CVqGuiSupport().exponentialSlider_calculateBaseFromMiddle(GetParam().middle),
                     GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Middles, CVqGuiSupportMiddles, testing::ValuesIn(middle_rows),
                         [](const auto& row) { return row.param.name; });

TEST(CVqGuiSupport, ExponentOfAMiddleValuePutsItInTheMiddle)
{
    const CVqGuiSupport support;

    const double exponent = support.exponentialSlider_calculateBaseFromMiddle(0.2);

    EXPECT_DOUBLE_EQ(support.exponentialSlider_posToValue(0.5, exponent), 0.2);
}
