#include "qml/CVqGuiSupport.h"
#include "tests/qml/ScopedSystemLocale.h"

#include <QRegularExpression>

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using testing::IsEmpty;

// The patterns for number fields, run as a field runs them: the whole text has to match.

namespace {

using Pattern = QString (CVqGuiSupport::*)() const;

struct FieldRow
{
    const char* name;
    Pattern pattern;
    QString decimal_point;
    QStringList accepted;
    QStringList refused;
};

void PrintTo(const FieldRow& row, std::ostream* out)
{
    *out << row.name;
}

const FieldRow field_rows[] = {
    {"FloatWithAFullStop",
     &CVqGuiSupport::regexStr_float,
     u"."_s,
     u"0 7 10 120 +1 -1 0.5 -0.25 +3.14159 1.0 1.000 -0 +0.0"_s.split(u' '),
     {u""_s,    u"+"_s,   u"-"_s,   u"."_s,   u"1."_s,  u".5"_s, u"01"_s, u"00"_s,  u"-01.5"_s, u"1.5.2"_s,
      u"1,5"_s, u"1x5"_s, u"1e5"_s, u"--1"_s, u"+-1"_s, u" 1"_s, u"1 "_s, u"1\n"_s, u"0x1"_s,   u"\u0663"_s}},
    {"FloatWithAComma",
     &CVqGuiSupport::regexStr_float,
     u","_s,
     u"0 10 -1 +0,5 3,14159"_s.split(u' '),
     {u"1.5"_s, u"1,"_s, u",5"_s, u"1,5,2"_s, u"1x5"_s, u"01,5"_s}},
    {"FloatWithAPointOfAnotherScript",
     &CVqGuiSupport::regexStr_float,
     u"\u066B"_s,
     {u"1"_s, u"-1\u066B5"_s},
     {u"1.5"_s, u"1,5"_s}},
    {"FloatWithAPointOfTwoUnits",
     &CVqGuiSupport::regexStr_float,
     u"\U00010101"_s,
     {u"1"_s, u"1\U000101015"_s},
     {u"1.5"_s,
      u"1\xD800"
      u"5"_s}},
    {"FloatWithAPointThatHoldsAFullStop",
     &CVqGuiSupport::regexStr_float,
     u"'.'"_s,
     {u"1"_s, u"1'.'5"_s},
     {u"1'x'5"_s, u"1.5"_s, u"1'5"_s}},
    {"FloatWithoutSign",
     &CVqGuiSupport::regexStr_floatPos,
     u"."_s,
     u"0 7 10 0.5 120.250"_s.split(u' '),
     {u""_s, u"+1"_s, u"-1"_s, u"1."_s, u".5"_s, u"01"_s, u"1,5"_s, u"1x5"_s}},
    {"FloatWithoutSignWithAComma",
     &CVqGuiSupport::regexStr_floatPos,
     u","_s,
     u"0 10 0,5 120,250"_s.split(u' '),
     {u"+1"_s, u"-0,5"_s, u"1.5"_s, u"1,"_s}},
    {"WholeNumber",
     &CVqGuiSupport::regexStr_int,
     u","_s,
     u"0 7 007 +1 -1 -000 99999999999999999999"_s.split(u' '),
     {u""_s, u"+"_s, u"1.5"_s, u"1,5"_s, u"--1"_s, u"1-"_s, u" 1"_s, u"a"_s, u"\u0663"_s}},
    {"WholeNumberWithoutSign",
     &CVqGuiSupport::regexStr_intPos,
     u","_s,
     u"0 7 007 42"_s.split(u' '),
     {u""_s, u"+1"_s, u"-1"_s, u"1.5"_s, u"1 2"_s, u"a"_s}},
};

class CVqGuiSupportFields : public testing::TestWithParam<FieldRow>
{
protected:
    /// Those of `texts` for which the pattern of the row says no, or yes if `inverted`.
    static std::vector<std::string> Misjudged(const QStringList& texts, bool inverted)
    {
        const ScopedSystemLocale locale(GetParam().decimal_point);
        const QRegularExpression field(
            QRegularExpression::anchoredPattern((CVqGuiSupport().*GetParam().pattern)()));
        std::vector<std::string> misjudged;
        for (const QString& text : texts) {
            if (field.match(text).hasMatch() == inverted)
                misjudged.push_back('"' + text.toStdString() + '"');
        }
        return misjudged;
    }
};

struct PointRow
{
    const char* name;
    QString decimal_point;
    QString in_pattern;
};

void PrintTo(const PointRow& row, std::ostream* out)
{
    *out << row.name;
}

const PointRow point_rows[] = {
    {"FullStopIsEscaped", u"."_s, u"\\."_s},
    {"CommaIsBare", u","_s, u","_s},
    {"EachFullStopIsEscaped", u".,."_s, u"\\.,\\."_s},
    {"NothingElseIsEscaped", u"*"_s, u"*"_s},
    {"TextThatLooksLikeAPlaceHolder", u"%1"_s, u"%1"_s},
    {"TwoUnits", u"\U00010101"_s, u"\U00010101"_s},
};

class CVqGuiSupportPoints : public testing::TestWithParam<PointRow>
{ };

struct EnvironmentRow
{
    const char* name;
    const char* locale;
    QString in_pattern;
};

void PrintTo(const EnvironmentRow& row, std::ostream* out)
{
    *out << row.name;
}

const EnvironmentRow environment_rows[] = {
    {"TheCLocale", "C.UTF-8", u"\\."_s},
    {"American", "en_US.UTF-8", u"\\."_s},
    {"German", "de_DE.UTF-8", u","_s},
    {"Egyptian", "ar_EG.UTF-8", u"\u066B"_s},
};

class CVqGuiSupportEnvironment : public testing::TestWithParam<EnvironmentRow>
{ };

QString float_pattern(const QString& point)
{
    return u"[+-]?(?:[1-9]\\d*|0)(?:"_s + point + u"\\d+)?"_s;
}

}

TEST_P(CVqGuiSupportFields, AcceptNumbers)
{
    EXPECT_THAT(Misjudged(GetParam().accepted, false), IsEmpty());
}

TEST_P(CVqGuiSupportFields, RefuseTheRest)
{
    EXPECT_THAT(Misjudged(GetParam().refused, true), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Fields, CVqGuiSupportFields, testing::ValuesIn(field_rows),
                         [](const auto& row) { return row.param.name; });

TEST_P(CVqGuiSupportPoints, StandInTheFloatPattern)
{
    const ScopedSystemLocale locale(GetParam().decimal_point);

    EXPECT_EQ(CVqGuiSupport().regexStr_float(), float_pattern(GetParam().in_pattern));
}

TEST_P(CVqGuiSupportPoints, StandInThePatternWithoutSign)
{
    const ScopedSystemLocale locale(GetParam().decimal_point);

    EXPECT_EQ(CVqGuiSupport().regexStr_floatPos(),
              u"(?:[1-9]\\d*|0)(?:"_s + GetParam().in_pattern + u"\\d+)?"_s);
}

INSTANTIATE_TEST_SUITE_P(Points, CVqGuiSupportPoints, testing::ValuesIn(point_rows),
                         [](const auto& row) { return row.param.name; });

TEST_P(CVqGuiSupportEnvironment, GivesTheDecimalPoint)
{
    const ScopedLocaleVariable locale("LC_ALL", GetParam().locale);

    EXPECT_EQ(CVqGuiSupport().regexStr_float(), float_pattern(GetParam().in_pattern));
}

INSTANTIATE_TEST_SUITE_P(Locales, CVqGuiSupportEnvironment, testing::ValuesIn(environment_rows),
                         [](const auto& row) { return row.param.name; });

TEST(CVqGuiSupportPatterns, NumbersOfTheEnvironmentDecideNotItsLanguage)
{
    const ScopedLocaleVariable all("LC_ALL", {});
    const ScopedLocaleVariable language("LANG", "en_US.UTF-8");
    const ScopedLocaleVariable numbers("LC_NUMERIC", "de_DE.UTF-8");

    EXPECT_EQ(CVqGuiSupport().regexStr_float(), float_pattern(u","_s));
}

TEST(CVqGuiSupportPatterns, DefaultLocaleOfTheApplicationDoesNotCount)
{
    const QLocale former;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));

    const QString pattern = CVqGuiSupport().regexStr_float();

    QLocale::setDefault(former);
    EXPECT_EQ(pattern, float_pattern(u"\\."_s));
}

TEST(CVqGuiSupportPatterns, LocaleIsAskedOnEachCall)
{
    const CVqGuiSupport support;
    const QString before = support.regexStr_float();

    const ScopedSystemLocale locale(u","_s);
    const QString after = support.regexStr_float();

    EXPECT_EQ(before, float_pattern(u"\\."_s));
    EXPECT_EQ(after, float_pattern(u","_s));
}

TEST(CVqGuiSupportPatterns, WholeNumbersHaveAConstantPattern)
{
    const ScopedSystemLocale locale(u","_s);

    EXPECT_EQ(CVqGuiSupport().regexStr_int(), u"[+-]?[\\d]+"_s);
    EXPECT_EQ(CVqGuiSupport().regexStr_intPos(), u"[\\d]+"_s);
}
