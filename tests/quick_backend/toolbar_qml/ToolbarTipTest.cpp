#include "tests/quick_backend/OtherWindow.h"
#include "tests/quick_backend/toolbar_qml/ToolbarWindow.h"

using namespace Qt::StringLiterals;

namespace {

/// open, with a tooltip and a key, save, with a text alone, and help, which is disabled.
class ToolbarTip : public testing::Test
{
protected:
    explicit ToolbarTip(const QByteArray& properties = {},
                        EOrientation orientation = EOrientation::Horizontal)
        : window(properties, orientation)
    {
        open = &window.AddButton("open");
        ToolbarWindow::SetTooltip(*open, "Open a picture");
        open->SetKeyText(u"Ctrl+O"_s);
        save = &window.AddButton("save");
        help = &window.AddButton("help");
        ToolbarWindow::SetTooltip(*help, "About this program");
        help->Enable(false);
    }

    /// "text|key" of the tip, or the empty text without one.
    std::string Tip()
    {
        const QQuickItem* text = window.Find("tipText");
        const QQuickItem* key = window.Find("tipKey");
        if (!text)
            return "";
        return (text->property("text").toString() + u'|'
                + (key ? key->property("text").toString() : QString()))
            .toStdString();
    }

    QRectF Panel() { return ToolbarWindow::Place(window.Find("tipText")->parentItem()->parentItem()); }

    ToolbarWindow window;
    CVqQuickButton* open = nullptr;
    CVqQuickButton* save = nullptr;
    CVqQuickButton* help = nullptr;
};

class VerticalToolbarTip : public ToolbarTip
{
protected:
    VerticalToolbarTip() : ToolbarTip({}, EOrientation::Vertical) { }
};

class ToolbarTipAtTheEdge : public ToolbarTip
{
protected:
    ToolbarTipAtTheEdge() : ToolbarTip("x: 400 - width; y: 300 - height") { }
};

class SlowToolbarTip : public ToolbarTip
{
protected:
    SlowToolbarTip() { window.SetBar("tipDelay", 1000000); }
};

}

TEST_F(ToolbarTip, ShowsTooltipAndKeyOfWhatThePointerIsOver)
{
    window.Hover(window.Look(*open));

    EXPECT_EQ(Tip(), "Open a picture|Ctrl+O");
}

TEST_F(ToolbarTip, GoesWithThePointer)
{
    window.Hover(window.Look(*open));

    window.ParkPointer();

    EXPECT_EQ(Tip(), "");
}

TEST_F(ToolbarTip, ShowsForADisabledButton)
{
    window.Hover(window.Look(*help));

    EXPECT_EQ(Tip(), "About this program|");
}

TEST_F(ToolbarTip, DoesNotRepeatWhatCanBeReadOnTheButton)
{
    window.Hover(window.Look(*save));

    EXPECT_EQ(Tip(), "");
}

TEST_F(ToolbarTip, ShowsTheTextOfAButtonThatHasAKey)
{
    save->SetKeyText(u"Ctrl+S"_s);

    window.Hover(window.Look(*save));

    EXPECT_EQ(Tip(), "Save|Ctrl+S");
}

TEST_F(ToolbarTip, ShowsTheTextThatAnImageStandsFor)
{
    vq_int32 image = 1;
    save->Set(vq_control_bitmap, 0, &image);

    window.Hover(window.Look(*save));

    EXPECT_EQ(Tip(), "Save|");
}

TEST_F(ToolbarTip, ShowsForTheKeyboard)
{
    window.FocusField("before");

    window.Press(Qt::Key_Tab);
    EXPECT_EQ(Tip(), "Open a picture|Ctrl+O");

    window.Press(Qt::Key_Tab);
    EXPECT_EQ(Tip(), "");
}

TEST_F(ToolbarTip, APressHidesItUntilThePointerComesToAnother)
{
    ToolbarWindow::SetTooltip(*save, "Save the picture");
    window.Hover(window.Look(*open));

    window.Click(window.Look(*open));
    EXPECT_EQ(Tip(), "");

    window.Hover(window.Look(*open));
    EXPECT_EQ(Tip(), "");

    window.Hover(window.Look(*save));
    EXPECT_EQ(Tip(), "Save the picture|");
}

TEST_F(ToolbarTip, GoesWhenTheWindowIsLeftAndStaysAway)
{
    window.Hover(window.Look(*open));
    ASSERT_NE(Tip(), "");

    const OtherWindow other;
    EXPECT_EQ(Tip(), "");

    window.Window().requestActivate();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window.Window()));
    EXPECT_EQ(Tip(), "");
}

TEST_F(SlowToolbarTip, ComesAfterItsDelay)
{
    window.Hover(window.Look(*open));

    EXPECT_EQ(Tip(), "");
}

TEST_F(SlowToolbarTip, ComesAtOnceForTheNextControl)
{
    window.SetBar("tipDelay", 0);
    window.Hover(window.Look(*open));
    ASSERT_EQ(Tip(), "Open a picture|Ctrl+O");
    window.SetBar("tipDelay", 1000000);

    window.Hover(window.Look(*help));

    EXPECT_EQ(Tip(), "About this program|");
}

TEST_F(ToolbarTip, FollowsATextThatChangesWhileItShows)
{
    window.Hover(window.Look(*open));

    ToolbarWindow::SetTooltip(*open, "Open another one");

    EXPECT_EQ(Tip(), "Open another one|Ctrl+O");
}

TEST_F(ToolbarTip, GoesWithItsControl)
{
    window.Hover(window.Look(*open));

    window.Toolbar().RemoveButton(open->GetControlID());

    EXPECT_EQ(Tip(), "");
}

TEST_F(ToolbarTip, HangsBelowItsControl)
{
    window.Hover(window.Look(*open));

    EXPECT_GT(Panel().top(), ToolbarWindow::Place(window.Look(*open)).bottom());
    EXPECT_GE(Panel().left(), 4);
}

TEST_F(VerticalToolbarTip, StandsBesideItsControl)
{
    window.Hover(window.Look(*open));

    EXPECT_GT(Panel().left(), ToolbarWindow::Place(window.Look(*open)).right());
}

TEST_F(ToolbarTipAtTheEdge, StaysInTheWindow)
{
    window.Hover(window.Look(*help));

    EXPECT_LE(Panel().right(), 396);
    EXPECT_LT(Panel().bottom(), ToolbarWindow::Place(window.Look(*help)).top());
}

TEST_F(ToolbarTip, IsSilentWhileCustomised)
{
    window.Toolbar().EnableToolbarDragDrop(true);

    window.Hover(window.Look(*open));

    EXPECT_EQ(Tip(), "");
}
