#include "gallery/resize/ResizeImage.h"
#include "tests/gallery/FileSizeLimit.h"
#include "tests/gallery/resize/ImageFolder.h"

#ifdef Q_OS_UNIX

using namespace Qt::StringLiterals;

namespace {

class ResizeFullDisk : public testing::Test
{
protected:
    ResizeFullDisk() { m_folder.MakeOut(); }

    ImageFolder m_folder;
};

}

TEST_F(ResizeFullDisk, AnImageThatDoesNotFitLeavesNothing)
{
    const QString from = m_folder.Image(u"a.bmp"_s, {100, 100});
    QString error;
    {
        const FileSizeLimit limit(1000);
        error = Gallery::ResizeImage(from, m_folder.Out(u"a.bmp"_s), "bmp", 50);
    }

    EXPECT_TRUE(error.startsWith(u"it cannot be written: "_s)) << error.toStdString();
    EXPECT_EQ(m_folder.OutNames(), QStringList());
}

TEST_F(ResizeFullDisk, ACopyThatDoesNotFitLeavesWhatWasThere)
{
    const QString from = m_folder.Image(u"a.bmp"_s, {100, 100});
    ASSERT_TRUE(RedAndBlue({5, 5}).save(m_folder.Out(u"a.bmp"_s)));
    QString error;
    {
        const FileSizeLimit limit(1000);
        error = Gallery::ResizeImage(from, m_folder.Out(u"a.bmp"_s), "bmp", 100);
    }

    EXPECT_TRUE(error.startsWith(u"it cannot be written: "_s)) << error.toStdString();
    EXPECT_EQ(m_folder.OutNames(), QStringList{u"a.bmp"_s});
    EXPECT_TRUE(m_folder.OutIsWhole(5));
}

#endif
