#include "gallery/picture/Document.h"

#include "gallery/picture/Picture.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Gallery::Document;

namespace {

QImage red()
{
    QImage image(10, 10, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::red);
    return image;
}

}

TEST(Document, OpensWithTheLake)
{
    const Document document;

    EXPECT_EQ(document.Name(), u"lake"_s);
    EXPECT_EQ(document.Image(), Gallery::DrawSample(u"lake"_s));
    EXPECT_FALSE(document.CanUndo());
    EXPECT_FALSE(document.CanRedo());
}

TEST(Document, AChangeCanBeUndoneAndRedone)
{
    Document document;
    const QImage before = document.Image();

    document.Change(red());

    ASSERT_TRUE(document.CanUndo());
    EXPECT_TRUE(document.Undo());
    EXPECT_EQ(document.Image(), before);
    EXPECT_TRUE(document.Redo());
    EXPECT_EQ(document.Image(), red());
}

TEST(Document, TheSamePixelsAreNoStep)
{
    Document document;

    document.Change(QImage(document.Image()));

    EXPECT_FALSE(document.CanUndo());
}

TEST(Document, ANewChangeForgetsWhatWasUndone)
{
    Document document;
    document.Change(red());
    document.Undo();

    document.Change(red().scaled(5, 5));

    EXPECT_FALSE(document.CanRedo());
}

TEST(Document, UndoAndRedoWithoutAStepSayNo)
{
    Document document;

    EXPECT_FALSE(document.Undo());
    EXPECT_FALSE(document.Redo());
}

TEST(Document, OpeningForgetsStepsAndSelection)
{
    Document document;
    document.Change(red());
    document.SetSelection(QRect(1, 1, 3, 3));

    document.Open(u"chart"_s);

    EXPECT_FALSE(document.CanUndo());
    EXPECT_TRUE(document.Selection().isEmpty());
    EXPECT_EQ(document.Name(), u"chart"_s);
}

TEST(Document, TheSelectionIsCutToThePicture)
{
    Document document;
    document.Change(red());

    document.SetSelection(QRect(8, 8, 10, 10));

    EXPECT_EQ(document.Selection(), QRect(8, 8, 2, 2));
    EXPECT_EQ(document.Selected().size(), QSize(2, 2));
}

TEST(Document, WithoutASelectionAllIsSelected)
{
    const Document document;

    EXPECT_EQ(document.Selected(), document.Image());
}

TEST(Document, AHiddenLayerShowsThePixelsAlone)
{
    Document document;
    ASSERT_NE(document.Shown(), document.Image());

    document.SetLayerVisible(false);

    EXPECT_EQ(document.Shown(), document.Image());
}

TEST(Document, LayerModesChangeWhatShows)
{
    Document document;
    const QImage before = document.Shown();

    EXPECT_TRUE(document.SetLayerMode(u"multiply"_s));

    EXPECT_NE(document.Shown(), before);
    EXPECT_EQ(document.LayerMode(), u"multiply"_s);
}

TEST(Document, AnUnknownLayerModeChangesNothing)
{
    Document document;

    EXPECT_FALSE(document.SetLayerMode(u"dissolve"_s));

    EXPECT_EQ(document.LayerMode(), u"screen"_s);
}

TEST(Document, OpacityStaysWithinPercent)
{
    Document document;

    document.SetLayerOpacity(300);

    EXPECT_EQ(document.LayerOpacity(), 100);
    document.SetLayerOpacity(0);
    EXPECT_EQ(document.Shown(), document.Image());
}

TEST(Document, EachChangeIsTold)
{
    Document document;
    int told = 0;
    QObject::connect(&document, &Document::Changed, [&told] { ++told; });

    document.Change(red());
    document.SetSelection(QRect(0, 0, 2, 2));

    EXPECT_EQ(told, 2);
}
