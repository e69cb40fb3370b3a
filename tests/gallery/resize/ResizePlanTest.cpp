#include "gallery/resize/ResizePlan.h"

#include "tests/gallery/resize/ImageFolder.h"

using namespace Qt::StringLiterals;
using Gallery::PlanResize;
using Gallery::ResizeItem;
using Gallery::ResizePlan;

namespace {

class ResizePlanTest : public testing::Test
{
protected:
    QList<ResizeItem> Items()
    {
        const std::optional<ResizePlan> plan = PlanResize({m_folder.In(), m_folder.Out(), 10}, m_error);
        EXPECT_TRUE(plan) << m_error.toStdString();
        return plan ? plan->items : QList<ResizeItem>();
    }

    QString Error(const QString& in, const QString& out, int width = 10)
    {
        EXPECT_FALSE(PlanResize({in, out, width}, m_error));
        return m_error;
    }

    ImageFolder m_folder;
    QString m_error;
};

}

TEST_F(ResizePlanTest, ImagesComeByNameWithTheirFormats)
{
    m_folder.Image(u"b.png"_s, {4, 4});
    m_folder.Image(u"a.JPG"_s, {4, 4});

    EXPECT_EQ(Items(), (QList<ResizeItem>{{u"a.JPG"_s, u"a.JPG"_s, "jpg"}, {u"b.png"_s, u"b.png"_s, "png"}}));
}

TEST_F(ResizePlanTest, WhatIsNoImageIsLeftOut)
{
    m_folder.Image(u"a.png"_s, {4, 4});
    m_folder.Image(u".hidden.png"_s, {4, 4});
    m_folder.Write(u"notes.txt"_s, "text");
    ASSERT_TRUE(QDir(m_folder.In()).mkdir(u"folder.png"_s));

    EXPECT_EQ(Items().size(), 1);
}

TEST_F(ResizePlanTest, TheNameOfAnImageIsEnough)
{
    m_folder.Write(u"text.png"_s, "text");

    EXPECT_EQ(Items(), (QList<ResizeItem>{{u"text.png"_s, u"text.png"_s, "png"}}));
}

TEST_F(ResizePlanTest, TheContentOfAnImageIsEnough)
{
    m_folder.Write(u"DSC001"_s, ImageBytes(RedAndBlue({4, 4}), "jpeg"));

    EXPECT_EQ(Items(), (QList<ResizeItem>{{u"DSC001"_s, u"DSC001"_s, "jpeg"}}));
}

TEST_F(ResizePlanTest, AFormatThatQtOnlyReadsBecomesPng)
{
    m_folder.Write(u"moving.gif"_s, "GIF89a");

    EXPECT_EQ(Items(), (QList<ResizeItem>{{u"moving.gif"_s, u"moving.png"_s, "png"}}));
}

TEST_F(ResizePlanTest, NoTwoImagesGetTheSameName)
{
    m_folder.Write(u"a.gif"_s, "GIF89a");
    m_folder.Write(u"a.gif.png"_s, {});
    m_folder.Write(u"A.png"_s, {});
    m_folder.Write(u"b.gif"_s, "GIF89a");
    m_folder.Write(u"B.GIF"_s, "GIF89a");

    QHash<QString, QString> names;
    for (const ResizeItem& item : Items())
        names[item.from] = item.to;

    const QHash<QString, QString> expected = {{u"a.gif"_s, u"a.gif-2.png"_s},
                                              {u"a.gif.png"_s, u"a.gif.png"_s},
                                              {u"A.png"_s, u"A.png"_s},
                                              {u"B.GIF"_s, u"B.png"_s},
                                              {u"b.gif"_s, u"b.gif.png"_s}};
    EXPECT_EQ(names, expected);
}

TEST_F(ResizePlanTest, TheTargetFolderIsMadeWithThoseAboveIt)
{
    m_folder.Image(u"a.png"_s, {4, 4});
    const QString out = m_folder.Path(u"x/y"_s);

    EXPECT_TRUE(PlanResize({m_folder.In(), out, 10}, m_error));
    EXPECT_TRUE(QFileInfo(out).isDir());
    EXPECT_EQ(QDir(out).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot), QStringList());
}

TEST_F(ResizePlanTest, WithoutImagesNothingIsMade)
{
    EXPECT_TRUE(Items().isEmpty());
    EXPECT_FALSE(QFileInfo::exists(m_folder.Out()));
}

TEST_F(ResizePlanTest, AMissingFolderIsTold)
{
    const QString in = m_folder.Path(u"nowhere"_s);

    EXPECT_EQ(Error(in, m_folder.Out()), u"There is no folder %1."_s.arg(in));
    EXPECT_FALSE(QFileInfo::exists(m_folder.Out()));
}

TEST_F(ResizePlanTest, AFileInPlaceOfAFolderIsTold)
{
    const QString file = m_folder.Image(u"a.png"_s, {4, 4});

    EXPECT_EQ(Error(file, m_folder.Out()), u"%1 is no folder."_s.arg(file));
    EXPECT_EQ(Error(m_folder.In(), file), u"%1 is no folder."_s.arg(file));
}

TEST_F(ResizePlanTest, FoldersThatAreNotGivenAreTold)
{
    EXPECT_EQ(Error({}, m_folder.Out()), u"There is no folder to take images from."_s);
    EXPECT_EQ(Error(m_folder.In(), {}), u"There is no folder to put images into."_s);
}

TEST_F(ResizePlanTest, TheSameFolderTwiceIsTold)
{
    const QString same = u"The images would replace themselves: both folders are the same."_s;
    const QString link = m_folder.Path(u"link"_s);
    ASSERT_TRUE(QFile::link(m_folder.In(), link));

    EXPECT_EQ(Error(m_folder.In(), m_folder.In() + u"/../in/"_s), same);
    EXPECT_EQ(Error(m_folder.In(), link), same);
}

TEST_F(ResizePlanTest, AFolderThatCannotBeMadeIsTold)
{
    const QString out = m_folder.Image(u"a.png"_s, {4, 4}) + u"/below"_s;

    EXPECT_EQ(Error(m_folder.In(), out), u"The folder %1 cannot be made."_s.arg(out));
}

TEST_F(ResizePlanTest, AFolderThatTakesNoFilesIsTold)
{
    if (!QFileInfo(u"/proc"_s).isDir())
        GTEST_SKIP() << "There is no folder that takes no files from anybody.";
    m_folder.Image(u"a.png"_s, {4, 4});

    EXPECT_EQ(Error(m_folder.In(), u"/proc"_s), u"Nothing can be written into the folder /proc."_s);
}

TEST_F(ResizePlanTest, ABadWidthIsTold)
{
    EXPECT_EQ(Error(m_folder.In(), m_folder.Out(), 0),
              u"A width of 0 pixels leaves nothing: 1 is the smallest."_s);
}
