#include "gallery/picture/Picture.h"

#include <QSet>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

class SamplePictures : public testing::TestWithParam<const char*>
{
protected:
    const QImage m_image = Gallery::DrawSample(QString::fromLatin1(GetParam()));
};

TEST_P(SamplePictures, HaveTheOneSizeAndAreOpaque)
{
    ASSERT_EQ(m_image.size(), Gallery::PictureSize);
    for (const QPoint corner : {QPoint(0, 0), QPoint(1199, 0), QPoint(0, 799), QPoint(1199, 799)})
        EXPECT_EQ(qAlpha(m_image.pixel(corner)), 255);
}

TEST_P(SamplePictures, ShowSomething)
{
    QSet<QRgb> colors;
    for (int y = 0; y < m_image.height(); y += 5)
        for (int x = 0; x < m_image.width(); x += 5)
            colors.insert(m_image.pixel(x, y));

    EXPECT_GT(colors.size(), 40);
}

TEST_P(SamplePictures, AreTheSameEachTime)
{
    EXPECT_EQ(Gallery::DrawSample(QString::fromLatin1(GetParam())), m_image);
}

INSTANTIATE_TEST_SUITE_P(Picture, SamplePictures, testing::Values("lake", "chart", "rings"),
                         [](const auto& row) { return std::string(row.param); });

TEST(Picture, AnUnknownSampleIsWhite)
{
    const QImage image = Gallery::DrawSample(u"nowhere"_s);

    EXPECT_EQ(image.size(), Gallery::PictureSize);
    EXPECT_EQ(image.pixel(600, 400), qRgb(255, 255, 255));
}

TEST(Picture, TheLakeIsBrightAtTheSunAndDarkAtTheShore)
{
    const QImage image = Gallery::DrawSample(u"lake"_s);

    EXPECT_GT(qGray(image.pixel(770, 362)), 200);
    EXPECT_LT(qGray(image.pixel(20, 790)), 60);
}

TEST(Picture, TheLightIsClearOnTheFarSide)
{
    const QImage light = Gallery::DrawLight();

    EXPECT_GT(qAlpha(light.pixel(936, 80)), 100);
    EXPECT_EQ(qAlpha(light.pixel(10, 790)), 0);
}
