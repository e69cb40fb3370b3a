#include "tests/quick_backend/toolbar_qml/ToolbarPickerFixture.h"

#include <gmock/gmock.h>

#include <cmath>

using testing::ElementsAre;

namespace {

using ToolbarPicker = ToolbarPickerFixture;

class MirroredToolbarPicker : public ToolbarPicker
{
protected:
    MirroredToolbarPicker() : ToolbarPicker("width: 130; LayoutMirroring.enabled: true") { }
};

class VerticalToolbarPicker : public ToolbarPicker
{
protected:
    VerticalToolbarPicker() : ToolbarPicker("height: 130", EOrientation::Vertical) { }
};

class LowToolbarPicker : public ToolbarPicker
{
protected:
    LowToolbarPicker() : ToolbarPicker("width: 130; y: 262; x: 260") { }
};

}

TEST_F(ToolbarPicker, IsThereOnlyWhenSomethingDoesNotFit)
{
    EXPECT_TRUE(Look());

    window.SetBar("width", 390);

    EXPECT_FALSE(Look());
}

TEST_F(ToolbarPicker, AClickOpensAndASecondOneCloses)
{
    Open();
    EXPECT_TRUE(Panel());
    EXPECT_TRUE(window.Picker().IsOpened());

    window.Click(Look());
    EXPECT_FALSE(Panel());
    EXPECT_FALSE(window.Picker().IsOpened());
}

TEST_F(ToolbarPicker, ShowsTheControlsThatDidNotFit)
{
    ASSERT_TRUE(Last().IsInPicker());
    QQuickItem* look = Last().Item()->childItems().constFirst();

    Open();

    EXPECT_TRUE(Panel()->isAncestorOf(look));
    EXPECT_TRUE(look->isVisible());
}

TEST_F(ToolbarPicker, AControlKeepsItsLookOnTheWayBack)
{
    const QQuickItem* look = Last().Item()->childItems().constFirst();

    window.SetBar("width", 390);

    EXPECT_EQ(window.Look(Last()), look);
}

TEST_F(ToolbarPicker, HangsBelowWithItsEndAtThePickers)
{
    Open();
    const QRectF panel = ToolbarWindow::Place(Panel());
    const QRectF picker = ToolbarWindow::Place(Look());

    EXPECT_GT(panel.top(), picker.bottom());
    EXPECT_LT(panel.top(), picker.bottom() + 8);
    EXPECT_GE(panel.left(), 4);
}

TEST_F(MirroredToolbarPicker, StandsAtTheLeftAndOpensToTheRight)
{
    window.SetBar("x", 200);
    Open();

    EXPECT_EQ(ToolbarWindow::Place(Look()).left(), 202);
    EXPECT_LE(std::abs(ToolbarWindow::Place(Panel()).left() - 204), 2);
}

TEST_F(VerticalToolbarPicker, OpensBesideTheToolbar)
{
    Open();

    EXPECT_GT(ToolbarWindow::Place(Panel()).left(), ToolbarWindow::Place(window.Bar()).right());
}

TEST_F(LowToolbarPicker, OpensAboveAndWithinTheWindow)
{
    Open();
    const QRectF panel = ToolbarWindow::Place(Panel());

    EXPECT_LT(panel.bottom(), ToolbarWindow::Place(Look()).top());
    EXPECT_LE(panel.right(), 396);
}

TEST_F(ToolbarPicker, APressElsewhereClosesItAndDoesNothingElse)
{
    Open();

    window.Click(window.Look(*buttons.front()));

    EXPECT_FALSE(Panel());
    EXPECT_TRUE(window.Events().empty());
}

TEST_F(ToolbarPicker, AButtonInItClosesItAndTriggers)
{
    Open();

    window.Click(window.Look(Last()));

    EXPECT_FALSE(Panel());
    EXPECT_THAT(window.Events(), ElementsAre("h triggered"));
}

TEST_F(ToolbarPicker, TheRightButtonInItOpensAContextMenu)
{
    Open();
    const QPoint place = ToolbarWindow::Centre(window.Look(Last()));

    window.ClickAt(place, Qt::RightButton);

    EXPECT_THAT(
        window.Events(),
        ElementsAre("h context menu at " + std::to_string(place.x()) + "," + std::to_string(place.y())));
}

TEST_F(ToolbarPicker, ClosesWhenNothingIsLeftInIt)
{
    Open();

    window.SetBar("width", 390);

    EXPECT_FALSE(Panel());
    EXPECT_FALSE(window.Picker().IsOpened());
}

TEST_F(ToolbarPicker, FollowsWhatComesIntoItWhileItIsOpen)
{
    Open();
    const qreal width = Panel()->width();

    window.SetBar("width", 95);

    EXPECT_GT(Panel()->width(), width);
}

TEST_F(ToolbarPicker, OpensAndClosesWithItsControl)
{
    window.Picker().SetOpened(true);
    EXPECT_TRUE(Panel());

    window.Picker().SetOpened(false);
    EXPECT_FALSE(Panel());
}

TEST_F(ToolbarPicker, AButtonInItThatDeletesItselfLeavesNothing)
{
    static CVqQuickButtonToolbar* toolbar = nullptr;
    toolbar = &window.Toolbar();
    Last().SetHandler([](IVqUIcontrol* control, SVqUiEvent&) {
        toolbar->RemoveButton(control->GetControlID());
        return true;
    });
    Open();

    window.Click(window.Look(Last()));

    EXPECT_EQ(window.Find("look:h"), nullptr);
}

TEST_F(ToolbarPicker, EndsWithItsToolbarWhileItIsOpen)
{
    Open();

    window.EndToolbar();
    window.Settle();

    EXPECT_EQ(window.Bar()->implicitWidth(), 0);
}

TEST_F(ToolbarPicker, WhileCustomisedItOpensAndItsButtonsAreNotPressed)
{
    window.Toolbar().EnableToolbarDragDrop(true);
    Open();

    window.Click(window.Look(Last()));

    EXPECT_TRUE(Panel());
    EXPECT_TRUE(window.Events().empty());
}
