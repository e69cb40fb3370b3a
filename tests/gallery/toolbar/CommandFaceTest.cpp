#include "gallery/toolbar/CommandFace.h"

#include "gallery/Translations.h"
#include "tests/gallery/toolbar/ToolbarSet.h"

using namespace Qt::StringLiterals;
using Gallery::CommandFace;
using Gallery::FaceOf;

namespace {

class CommandFaceTest : public ToolbarSet
{ };

struct TipRow
{
    const char* name;
    const char* command;
    const char* text;
    const char* tip;
};

class CommandTips : public ToolbarSet, public testing::WithParamInterface<TipRow>
{ };

}

TEST_F(CommandFaceTest, AnUnknownCommandHasNone)
{
    EXPECT_FALSE(FaceOf(m_menu, u"Wobble"_s).found);
    EXPECT_FALSE(FaceOf(m_menu, QString()).found);
}

TEST_F(CommandFaceTest, TheImageIsThatOfTheEntry)
{
    vq_int32 index = -1;
    m_menu.GetIdBitmap(1105, index);

    EXPECT_GE(index, 0);
    EXPECT_EQ(FaceOf(m_menu, u"EditCopy"_s).image, index);
    EXPECT_EQ(FaceOf(m_menu, u"ViewRulers"_s).image, -1);
}

TEST_F(CommandFaceTest, TextAndTipAreInTheLanguageOfTheMenu)
{
    const Gallery::Translations german(u"de"_s);
    CVqQuickMenu menu;
    Gallery::MenuBuilder(menu).Build(RealMenu());

    EXPECT_EQ(FaceOf(menu, u"EditCopy"_s).text, u"Kopieren"_s);
}

TEST_P(CommandTips, ReadAwayFromTheirPopup)
{
    const CommandFace face = FaceOf(m_menu, QString::fromLatin1(GetParam().command));

    EXPECT_TRUE(face.found);
    EXPECT_EQ(face.text, QString::fromUtf8(GetParam().text));
    EXPECT_EQ(face.tip, QString::fromUtf8(GetParam().tip));
}

INSTANTIATE_TEST_SUITE_P(CommandFace, CommandTips,
                         testing::Values(TipRow{"OfAPopupOfTheBar", "FileSave", "Save", "Save"},
                                         TipRow{"WithDots", "FileOpen", "Open...", "Open"},
                                         TipRow{"OfAPopupBelow", "ViewZoom(100)", "100 %", "Zoom: 100 %"},
                                         TipRow{"ThatSaysItItself", "ViewZoomIn", "Zoom In", "Zoom In"},
                                         TipRow{"ThreePopupsDeep", "ImageFlip(horizontal)", "Horizontally",
                                                "Flip: Horizontally"},
                                         TipRow{"WithoutALabel", "ColorForeground(#c8473c)",
                                                "Foreground Colour: #c8473c", "Foreground Colour: #c8473c"}),
                         [](const auto& row) { return row.param.name; });
