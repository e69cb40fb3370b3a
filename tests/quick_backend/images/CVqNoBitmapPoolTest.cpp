#include "quick_backend/images/CVqNoBitmapPool.h"

#include "system/CVqStringA.h"
#include "system/CVqStringW.h"

#include <gtest/gtest.h>

using Pool = CVqAbstractBitmapPool;

namespace {

struct CVqNoBitmapPoolTest : testing::Test
{
    CVqNoBitmapPoolTest() { CVqNoBitmapPool::Register(); }
};

}

TEST_F(CVqNoBitmapPoolTest, AddingAnswersAsWithoutAPool)
{
    QPixmap pixmap(1, 1);

    EXPECT_EQ(Pool::AddImage(&pixmap, VQ_TEXT("a")), -12);
    EXPECT_EQ(Pool::AddImage(VQ_TEXT("a")), -12);
    EXPECT_EQ(Pool::AddImage(VQ_TEXT("a"), nullptr, nullptr), -12);
    EXPECT_EQ(Pool::AddImageSVG(VQ_TEXT("a"), "<svg/>"), -1);
    EXPECT_EQ(Pool::ReplaceImageSVG(VQ_TEXT("a"), "<svg/>"), -1);
}

TEST_F(CVqNoBitmapPoolTest, AskingAnswersAsWithoutAPool)
{
    CVqStringA text;
    CVqStringW name;
    vq_wchar buffer[2] = {};
    vq_uint32 width = 5;
    vq_uint32 height = 6;

    Pool::GetImageSize(1, width, height);

    EXPECT_EQ(width + height, 11u);
    EXPECT_EQ(Pool::GetImage(VQ_TEXT("a")), -1);
    EXPECT_EQ(Pool::LoadSVG(text, VQ_TEXT("a")), -12);
    EXPECT_EQ(Pool::GetImageSource(1, name, name), -12);
    EXPECT_EQ(Pool::GetDefaultModuleFileName(buffer, 2), -12);
    EXPECT_EQ(Pool::ReplaceDebug(name), -12);
}

TEST_F(CVqNoBitmapPoolTest, DrawingAnswersAsWithoutAPool)
{
    EXPECT_EQ(Pool::CreateBitmapFromSVG("<svg/>", 1, 1, false, 0), 0u);
    EXPECT_TRUE(Pool::GetIcon(1).isNull());
    EXPECT_TRUE(Pool::GetPixmap(1, 1, 1).isNull());
    EXPECT_TRUE(Pool::GetPixmapFromSVG("<svg/>", 1, 1).isNull());
}
