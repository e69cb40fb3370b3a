#include "gallery/Commands.h"

#include "gallery/ViewState.h"
#include "gallery/picture/Document.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class CommandsOnAPicture : public testing::Test
{
protected:
    bool run(const QString& command, bool checked = false) { return m_commands.Run(command, checked); }

    Gallery::Document m_document;
    Gallery::ViewState m_view;
    Gallery::Commands m_commands{m_document, m_view};
    const QImage m_before = m_document.Image();
};

class EveryPictureCommand : public CommandsOnAPicture, public testing::WithParamInterface<const char*>
{ };

}

TEST_P(EveryPictureCommand, ChangesThePictureInOneStep)
{
    EXPECT_TRUE(run(QString::fromLatin1(GetParam())));

    EXPECT_NE(m_document.Image(), m_before);
    EXPECT_TRUE(m_document.Undo());
    EXPECT_EQ(m_document.Image(), m_before);
}

INSTANTIATE_TEST_SUITE_P(Commands, EveryPictureCommand,
                         testing::Values("AdjustInvert", "AdjustGray", "AdjustSepia", "AdjustThreshold",
                                         "AdjustPosterize", "AdjustBrightness(10)", "AdjustContrast(-10)",
                                         "AdjustTemperature(10)", "AdjustSaturation(-15)", "AdjustAutoLevels",
                                         "FilterSolarize", "FilterBlur(2)", "FilterPixelate(8)",
                                         "FilterSharpen", "FilterEdges", "FilterEmboss", "FilterGrain",
                                         "FilterWave", "FilterVignette", "ImageRotate(90)",
                                         "ImageRotate(-90)", "ImageRotate(180)", "ImageFlip(horizontal)",
                                         "ImageFlip(vertical)", "EditFill(foreground)",
                                         "EditFill(background)", "EditClear", "EditCut", "LayerFlatten"));

using CommandsTest = CommandsOnAPicture;

TEST_F(CommandsTest, AnUnknownCommandDoesNothing)
{
    EXPECT_FALSE(run(u"FilePrint"_s));
    EXPECT_FALSE(run(u""_s));

    EXPECT_FALSE(m_document.CanUndo());
}

TEST_F(CommandsTest, RotatingByAQuarterSwapsTheSides)
{
    run(u"ImageRotate(90)"_s);

    EXPECT_EQ(m_document.Size(), m_before.size().transposed());
}

TEST_F(CommandsTest, FlippingTwiceGivesThePictureBack)
{
    run(u"ImageFlip(horizontal)"_s);
    run(u"ImageFlip(horizontal)"_s);

    EXPECT_EQ(m_document.Image(), m_before);
}

TEST_F(CommandsTest, FillingKeepsToTheSelection)
{
    m_document.SetSelection(QRect(10, 10, 5, 5));

    run(u"EditFill(foreground)"_s);

    EXPECT_EQ(m_document.Image().pixel(12, 12), m_view.foreground.rgb());
    EXPECT_EQ(m_document.Image().pixel(20, 20), m_before.pixel(20, 20));
}

TEST_F(CommandsTest, CroppingLeavesTheSelectedPixels)
{
    m_document.SetSelection(QRect(10, 10, 50, 40));

    run(u"ImageCrop"_s);

    EXPECT_EQ(m_document.Size(), QSize(50, 40));
    EXPECT_TRUE(m_document.Selection().isEmpty());
}

TEST_F(CommandsTest, PastePutsTheCopyIntoTheMiddle)
{
    m_document.SetSelection(QRect(0, 0, 100, 60));
    run(u"EditCopy"_s);

    run(u"EditPaste"_s);

    EXPECT_EQ(m_document.Selection().size(), QSize(100, 60));
    EXPECT_EQ(m_document.Image().pixel(m_document.Selection().topLeft()), m_before.pixel(0, 0));
}

TEST_F(CommandsTest, UndoAllGoesBackToTheStart)
{
    run(u"AdjustInvert"_s);
    run(u"AdjustSepia"_s);

    run(u"EditUndo(all)"_s);

    EXPECT_EQ(m_document.Image(), m_before);
    EXPECT_FALSE(m_document.CanUndo());
}

TEST_F(CommandsTest, RepeatRunsTheLastFilterAgain)
{
    run(u"FilterPixelate(8)"_s);
    run(u"EditUndo"_s);

    run(u"FilterRepeat"_s);

    EXPECT_NE(m_document.Image(), m_before);
}

TEST_F(CommandsTest, WhatHasNothingToDoIsIdle)
{
    EXPECT_TRUE(m_commands.IsIdle(u"EditUndo"_s));
    EXPECT_TRUE(m_commands.IsIdle(u"EditRedo"_s));
    EXPECT_TRUE(m_commands.IsIdle(u"FilterRepeat"_s));
    EXPECT_FALSE(m_commands.IsIdle(u"FileOpen"_s));

    run(u"FilterGrain"_s);

    EXPECT_FALSE(m_commands.IsIdle(u"EditUndo"_s));
    EXPECT_TRUE(m_commands.IsIdle(u"EditRedo"_s));
    EXPECT_FALSE(m_commands.IsIdle(u"FilterRepeat"_s));
}

TEST_F(CommandsTest, SelectionsGrowAndShrinkByTwentyPixels)
{
    m_document.SetSelection(QRect(100, 100, 50, 50));

    run(u"SelectGrow"_s);
    EXPECT_EQ(m_document.Selection(), QRect(80, 80, 90, 90));
    run(u"SelectShrink"_s);
    EXPECT_EQ(m_document.Selection(), QRect(100, 100, 50, 50));
    run(u"SelectAll"_s);
    EXPECT_EQ(m_document.Selection(), m_before.rect());
    run(u"SelectNone"_s);
    EXPECT_TRUE(m_document.Selection().isEmpty());
}

TEST_F(CommandsTest, LayerCommandsReachTheLayer)
{
    run(u"LayerVisible"_s, false);
    run(u"LayerBlend(multiply)"_s);
    run(u"LayerOpacity(20)"_s);

    EXPECT_FALSE(m_document.LayerVisible());
    EXPECT_EQ(m_document.LayerMode(), u"multiply"_s);
    EXPECT_EQ(m_document.LayerOpacity(), 20);
}

TEST_F(CommandsTest, SamplesAndNewPicturesAreOpened)
{
    run(u"FileSample(rings)"_s);
    EXPECT_EQ(m_document.Name(), u"rings"_s);
    run(u"AdjustInvert"_s);
    run(u"FileRevert"_s);
    EXPECT_FALSE(m_document.CanUndo());
    run(u"FileNew"_s);
    EXPECT_EQ(m_document.Image().pixel(5, 5), qRgb(255, 255, 255));
}

TEST_F(CommandsTest, QuitIsHandedOn)
{
    bool asked = false;
    QObject::connect(&m_commands, &Gallery::Commands::QuitRequested, [&asked] { asked = true; });

    run(u"FileQuit"_s);

    EXPECT_TRUE(asked);
}
