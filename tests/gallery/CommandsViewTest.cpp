#include "gallery/Commands.h"
#include "gallery/ViewState.h"
#include "gallery/picture/Document.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Gallery::ViewState;

namespace {

class CommandsView : public testing::Test
{
protected:
    bool run(const QString& command, bool checked = false) { return m_commands.Run(command, checked); }

    Gallery::Document m_document;
    ViewState m_view;
    Gallery::Commands m_commands{m_document, m_view};
};

struct SwitchRow
{
    const char* command;
    bool ViewState::* member;
};

class ViewSwitches : public CommandsView, public testing::WithParamInterface<SwitchRow>
{ };

}

TEST_P(ViewSwitches, FollowTheMarkOfTheirEntry)
{
    const QString command = QString::fromLatin1(GetParam().command);

    EXPECT_TRUE(run(command, true));
    EXPECT_TRUE(m_view.*GetParam().member);
    run(command, false);
    EXPECT_FALSE(m_view.*GetParam().member);
}

INSTANTIATE_TEST_SUITE_P(CommandsView, ViewSwitches,
                         testing::Values(SwitchRow{"ViewGrid", &ViewState::grid},
                                         SwitchRow{"ViewGuides", &ViewState::guides},
                                         SwitchRow{"ViewRulers", &ViewState::rulers},
                                         SwitchRow{"SelectEdges", &ViewState::edges},
                                         SwitchRow{"ViewToolStrip", &ViewState::tool_strip},
                                         SwitchRow{"ViewToolbar(main)", &ViewState::main_bar},
                                         SwitchRow{"ViewToolbar(text)", &ViewState::text_bar},
                                         SwitchRow{"ViewSidePanel", &ViewState::side_panel},
                                         SwitchRow{"ViewStatusLine", &ViewState::status_line},
                                         SwitchRow{"ViewFullScreen", &ViewState::full_screen},
                                         SwitchRow{"ImageHistogram", &ViewState::histogram},
                                         SwitchRow{"WindowPanel(layers)", &ViewState::layer_panel},
                                         SwitchRow{"WindowPanel(colors)", &ViewState::color_panel}),
                         [](const auto& row) { return "Row" + std::to_string(row.index); });

TEST_F(CommandsView, ZoomStepsGoFromTheScaleThatShows)
{
    m_view.scale = 40;

    run(u"ViewZoomIn"_s);
    EXPECT_DOUBLE_EQ(m_view.zoom, 50);
    run(u"ViewZoomOut"_s);
    EXPECT_DOUBLE_EQ(m_view.zoom, 32);
}

TEST_F(CommandsView, ZoomsAreKeptWithinBounds)
{
    run(u"ViewZoom(100000)"_s);
    EXPECT_DOUBLE_EQ(m_view.zoom, 3200);
    run(u"ViewZoom(1)"_s);
    EXPECT_DOUBLE_EQ(m_view.zoom, 2);
}

TEST_F(CommandsView, FittingAndCentringUndoThePanning)
{
    run(u"ViewPan(1,-1)"_s);
    EXPECT_EQ(m_view.pan, QPointF(-40, 40));

    run(u"ViewCenter"_s);
    EXPECT_EQ(m_view.pan, QPointF());
    run(u"ViewZoom(200)"_s);
    run(u"ViewZoomFit"_s);
    EXPECT_DOUBLE_EQ(m_view.zoom, 0);
}

TEST_F(CommandsView, PaletteGridSizeAndToolAreSet)
{
    run(u"ViewPalette(dark)"_s);
    run(u"ViewGridSize(25)"_s);
    run(u"Tool(lasso)"_s);

    EXPECT_TRUE(m_view.dark);
    EXPECT_EQ(m_view.grid_size, 25);
    EXPECT_EQ(m_view.tool, u"lasso"_s);
    run(u"ViewPalette(light)"_s);
    EXPECT_FALSE(m_view.dark);
}

TEST_F(CommandsView, ColoursAreTakenSwappedAndReset)
{
    run(u"ColorPair(#12355b, #f2c14e)"_s);
    EXPECT_EQ(m_view.foreground, QColor(0x12, 0x35, 0x5b));
    EXPECT_EQ(m_view.background, QColor(0xf2, 0xc1, 0x4e));

    run(u"ColorSwap"_s);
    EXPECT_EQ(m_view.foreground, QColor(0xf2, 0xc1, 0x4e));
    run(u"ColorForeground(#c8473c)"_s);
    EXPECT_EQ(m_view.foreground, QColor(0xc8, 0x47, 0x3c));
    run(u"ColorDefault"_s);
    EXPECT_EQ(m_view.background, QColor(Qt::white));
}

TEST_F(CommandsView, TheBrushStaysBetweenOneAndTwoHundredPixels)
{
    run(u"BrushWidth(1)"_s);
    run(u"BrushSmaller"_s);
    EXPECT_EQ(m_view.brush_width, 1);
    run(u"BrushWidth(200)"_s);
    run(u"BrushLarger"_s);
    EXPECT_EQ(m_view.brush_width, 200);
}

TEST_F(CommandsView, CustomisingIsAskedFor)
{
    int asked = 0;
    QObject::connect(&m_commands, &Gallery::Commands::CustomiseRequested, [&asked] { ++asked; });

    run(u"ViewCustomiseToolbars"_s);

    EXPECT_EQ(asked, 1);
}

TEST_F(CommandsView, BeforeAndAfterTakeTurns)
{
    run(u"ViewBeforeAfter"_s);
    EXPECT_TRUE(m_view.original);
    run(u"ViewBeforeAfter"_s);
    EXPECT_FALSE(m_view.original);
}

TEST_F(CommandsView, EachCommandIsTold)
{
    int told = 0;
    QObject::connect(&m_view, &ViewState::Changed, [&told] { ++told; });

    run(u"ViewGrid"_s, true);

    EXPECT_EQ(told, 1);
}
