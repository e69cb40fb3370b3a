#include "quick_backend/images/VqRasterFormat.h"

#include "tests/quick_backend/images/ImageSamples.h"

#include <ostream>
#include <string>

class VqRasterFormatFiles : public testing::TestWithParam<const char*>
{ };

TEST_P(VqRasterFormatFiles, FormatIsToldByTheFirstBytes)
{
    const QByteArray bytes = Encoded(SampleImage(5, 3), GetParam());

    EXPECT_EQ(VqRasterFormat(bytes), GetParam());
}

TEST_P(VqRasterFormatFiles, OnlyTheWholeFileIsWhole)
{
    const QByteArray bytes = Encoded(SampleImage(5, 3), GetParam());
    const qsizetype head = 12;

    EXPECT_TRUE(VqIsWholeRaster(bytes, GetParam()));
    for (qsizetype size = head; size < bytes.size(); ++size)
        EXPECT_FALSE(VqIsWholeRaster(bytes.first(size), GetParam())) << size;
}

TEST_P(VqRasterFormatFiles, BytesBehindTheEndDoNotMatter)
{
    const QByteArray bytes = Encoded(SampleImage(5, 3), GetParam()) + "tail";

    EXPECT_TRUE(VqIsWholeRaster(bytes, GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Formats, VqRasterFormatFiles, testing::Values("png", "jpeg", "webp"),
                         [](const auto& row) { return std::string(row.param); });

TEST(VqRasterFormat, OtherBytesHaveNoFormat)
{
    EXPECT_EQ(VqRasterFormat(""), "");
    EXPECT_EQ(VqRasterFormat("GIF89a"), "");
    EXPECT_EQ(VqRasterFormat("RIFF\1\1\1\1WAVEfmt "), "");
    EXPECT_EQ(VqRasterFormat("<svg/>"), "");
}

TEST(VqRasterFormat, EndOfAPreviewIsNotTheEndOfTheImage)
{
    const QByteArray preview = QByteArray("\xFF\xE1\x00\x06\xFF\xD8\xFF\xD9", 8).first(8);
    const QByteArray bytes = Encoded(SampleImage(5, 3), "jpeg").insert(2, preview);

    EXPECT_TRUE(VqIsWholeRaster(bytes, "jpeg"));
    EXPECT_FALSE(VqIsWholeRaster(bytes.chopped(2), "jpeg"));
}
