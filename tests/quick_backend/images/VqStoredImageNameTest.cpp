#include "quick_backend/images/VqStoredImageName.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

using namespace Qt::StringLiterals;

namespace {

struct NameRow
{
    const char* name;
    QString text;
    QString expected;
    QString folder = u"/app"_s;
};

void PrintTo(const NameRow& row, std::ostream* out)
{
    *out << row.name;
}

const auto g_name_of = [](const auto& row) { return std::string(row.param.name); };

}

class VqStoredImageNameBare : public testing::TestWithParam<NameRow>
{ };

TEST_P(VqStoredImageNameBare, IsTakenOffTheFolder)
{
    EXPECT_EQ(VqBareImageName(GetParam().text, GetParam().folder), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, VqStoredImageNameBare,
                         testing::Values(NameRow{"DirectlyBehind", u"/appa.png"_s, u"a.png"_s},
                                         NameRow{"BareName", u"a.png"_s, u"a.png"_s},
                                         NameRow{"WithSeparator", u"/app/a.png"_s, QString()},
                                         NameRow{"Elsewhere", u"/other/a.png"_s, QString()},
                                         NameRow{"OtherFolder", u"/appimg/a.png"_s, QString()},
                                         NameRow{"Backslash", u"img\\a.png"_s, QString()},
                                         NameRow{"Folder", u"/app"_s, QString()},
                                         NameRow{"NoFolder", u"a.png"_s, u"a.png"_s, QString()}),
                         g_name_of);

class VqStoredImageNameWay : public testing::TestWithParam<NameRow>
{ };

TEST_P(VqStoredImageNameWay, IsTakenOffTheFile)
{
    EXPECT_EQ(VqImageWithoutWay(GetParam().text, GetParam().folder), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, VqStoredImageNameWay,
    testing::Values(NameRow{"Below", u"/app/img/a.pngimga.png"_s, u"/app/img/a.png"_s},
                    NameRow{"TwoBelow", u"/app/i/j/a.pngi/ja.png"_s, u"/app/i/j/a.png"_s},
                    NameRow{"InTheFolder", u"/app/a.png.a.png"_s, u"/app/a.png"_s},
                    NameRow{"InTheRoot", u"/a.png.a.png"_s, u"/a.png"_s, u"/"_s},
                    NameRow{"BelowTheRoot", u"/img/a.pngimga.png"_s, u"/img/a.png"_s, u"/"_s},
                    NameRow{"PlainFile", u"/app/a.png"_s, QString()},
                    NameRow{"PlainFileBelow", u"/app/img/a.png"_s, QString()},
                    NameRow{"OtherWay", u"/app/img/a.pngima.png"_s, QString()},
                    NameRow{"OtherName", u"/app/img/a.pngimgb.png"_s, QString()},
                    NameRow{"Elsewhere", u"/other/img/a.pngimga.png"_s, QString()},
                    NameRow{"Folder", u"/app/"_s, QString()}, NameRow{"Dot", u"/app/."_s, QString()},
                    NameRow{"Slash", u"/app//a.a"_s, QString()}, NameRow{"Nothing", QString(), QString()},
                    NameRow{"NoFolder", u"a.pnga.png"_s, QString(), QString()}),
    g_name_of);
