#include "quick_backend/images/CVqPoolImages.h"

#include "quick_backend/images/CVqSvgImage.h"
#include "tests/quick_backend/images/ImageSamples.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

using Kind = CVqPoolImages::Kind;

VqPoolImagePtr an_image()
{
    return std::make_shared<CVqSvgImage>(StencilSvg());
}

}

TEST(CVqPoolImages, IndicesCountFromOne)
{
    CVqPoolImages images;

    EXPECT_EQ(images.Add(Kind::Name, u"a"_s, {}, an_image()), 1);
    EXPECT_EQ(images.Add(Kind::File, u"b"_s, {}, an_image()), 2);
}

TEST(CVqPoolImages, NamesAndFilesAreKeptApart)
{
    CVqPoolImages images;
    images.Add(Kind::Name, u"a"_s, {}, an_image());
    images.Add(Kind::File, u"a"_s, {}, an_image());

    EXPECT_EQ(images.IndexOf(Kind::Name, u"a"_s), 1);
    EXPECT_EQ(images.IndexOf(Kind::File, u"a"_s), 2);
    EXPECT_EQ(images.IndexOf(Kind::File, u"A"_s), -1);
}

TEST(CVqPoolImages, SourceAndImageComeBack)
{
    CVqPoolImages images;
    const VqPoolImagePtr image = an_image();
    images.Add(Kind::File, u"a"_s, {u"file"_s, u"resource"_s}, image);

    EXPECT_EQ(images.Source(1)->file, u"file"_s);
    EXPECT_EQ(images.Source(1)->resource, u"resource"_s);
    EXPECT_EQ(images.Entry(1)->image, image);
    EXPECT_EQ(images.Find(1), image);
}

TEST(CVqPoolImages, UnknownIndicesHaveNothing)
{
    CVqPoolImages images;
    images.Add(Kind::Name, u"a"_s, {}, an_image());

    for (const quint32 index : {0u, 2u, 0xFFFFFFFFu}) {
        EXPECT_EQ(images.Entry(index), nullptr);
        EXPECT_EQ(images.Source(index), nullptr);
        EXPECT_EQ(images.Find(index), nullptr);
    }
}

TEST(CVqPoolImages, ReplacedImageHasItsIndexAndAnotherSerial)
{
    CVqPoolImages images;
    images.Add(Kind::Name, u"a"_s, {}, an_image());
    const quint32 serial = images.Entry(1)->serial;
    const VqPoolImagePtr other = an_image();

    images.Replace(1, other);

    EXPECT_EQ(images.Find(1), other);
    EXPECT_NE(images.Entry(1)->serial, serial);
    EXPECT_EQ(images.IndexOf(Kind::Name, u"a"_s), 1);
}
