#include "quick_backend/toolbar_setup/CVqQuickToolbarDrag.h"

#include "quick_backend/toolbar/CVqQuickPicker.h"
#include "tests/quick_backend/toolbar_setup/SetupBars.h"

#include <QQuickWindow>

using testing::ElementsAre;
using testing::IsEmpty;
using namespace Qt::StringLiterals;

namespace {

/// The bars in a window: `first` at the top, `second` below it at the left.
class CVqQuickToolbarDragTest : public testing::Test, protected SetupBars
{
protected:
    CVqQuickToolbarDragTest()
    {
        first.Area()->setParentItem(window.contentItem());
        second.Area()->setParentItem(window.contentItem());
        second.Area()->setY(40);
        drag.SetSetup(setup.get());
        setup->begin();
        Settle();
    }

    ~CVqQuickToolbarDragTest() override
    {
        first.Area()->setParentItem(nullptr);
        second.Area()->setParentItem(nullptr);
    }

    /// A place of the window: a part of the way from the beginning of a control to its end.
    static QPointF On(CVqQuickControl* control, qreal part)
    {
        const QQuickItem& item = *control->Item();
        return item.mapToScene({item.width() * part, item.height() * part});
    }

    QQuickWindow window;
    CVqQuickToolbarDrag drag;
    const QPointF beside{300, 300};
};

}

TEST_F(CVqQuickToolbarDragTest, TheAreasAreThoseOfTheBarsAndOfTheirPickersInASession)
{
    EXPECT_THAT(drag.Areas(),
                ElementsAre(first.Area(), first.Toolbar().Picker()->Area(), second.Area(),
                            second.Toolbar().Picker()->Area()));
    EXPECT_EQ(drag.toolbarOf(second.Toolbar().Picker()->Area()), &second);
    EXPECT_EQ(drag.toolbarOf(nullptr), nullptr);

    setup->cancel();

    EXPECT_THAT(drag.Areas(), IsEmpty());
}

TEST_F(CVqQuickToolbarDragTest, NothingChangesBeforeTheControlIsLetGo)
{
    const std::string before = Everything();

    EXPECT_TRUE(drag.lift(Named(first, "open"), On(Named(first, "open"), 0.5)));
    drag.moveTo(On(Named(first, "undo"), 0.9));

    EXPECT_TRUE(drag.IsLifted());
    EXPECT_EQ(drag.Control(), Named(first, "open"));
    EXPECT_FALSE(drag.Mark().isEmpty());
    EXPECT_EQ(Everything(), before);
}

TEST_F(CVqQuickToolbarDragTest, WithinABarItMoves)
{
    drag.lift(Named(first, "open"), On(Named(first, "open"), 0.5));
    drag.moveTo(On(Named(first, "undo"), 0.9));

    EXPECT_TRUE(drag.drop());

    EXPECT_EQ(Order(first), "save - zoom undo open");
    EXPECT_FALSE(drag.IsLifted());
    EXPECT_TRUE(drag.Mark().isEmpty());
}

TEST_F(CVqQuickToolbarDragTest, BetweenBarsItMovesToo)
{
    drag.lift(Named(first, "open"), On(Named(first, "open"), 0.5));
    drag.moveTo(On(Named(second, "copy"), 0.1));

    EXPECT_TRUE(drag.drop());

    EXPECT_EQ(Order(second), "cut open copy");
}

TEST_F(CVqQuickToolbarDragTest, LetGoWhereItWasNothingChanges)
{
    drag.lift(Named(first, "save"), On(Named(first, "save"), 0.5));
    drag.moveTo(On(Named(first, "save"), 0.6));

    EXPECT_FALSE(drag.drop());
}

TEST_F(CVqQuickToolbarDragTest, BesideAllBarsItIsTakenOffUntilTheSessionIsCancelled)
{
    drag.lift(Named(first, "open"), On(Named(first, "open"), 0.5));
    EXPECT_FALSE(drag.Removes());
    drag.moveTo(beside);
    EXPECT_TRUE(drag.Removes());

    EXPECT_TRUE(drag.drop());
    EXPECT_EQ(Order(first), "save - zoom undo");
    setup->cancel();

    EXPECT_EQ(Order(first), "open save - zoom undo");
}

TEST_F(CVqQuickToolbarDragTest, ACancelledDragLeavesEverythingAsItWas)
{
    const std::string before = Everything();
    const QSignalSpy lifts(&drag, &CVqQuickToolbarDrag::liftedChanged);

    drag.lift(Named(first, "open"), On(Named(first, "open"), 0.5));
    drag.moveTo(beside);
    drag.cancel();
    drag.cancel();

    EXPECT_FALSE(drag.drop());
    EXPECT_EQ(lifts.size(), 2);
    EXPECT_EQ(Everything(), before);
}

TEST_F(CVqQuickToolbarDragTest, TheEndOfTheSessionCancelsTheDrag)
{
    drag.lift(Named(first, "open"), On(Named(first, "open"), 0.5));

    setup->cancel();

    EXPECT_FALSE(drag.IsLifted());
}

TEST_F(CVqQuickToolbarDragTest, ACommandIsAddedWhereItIsLetGo)
{
    EXPECT_TRUE(drag.liftCommand(u"Paste"_s, beside));
    EXPECT_FALSE(drag.Removes());
    drag.moveTo(On(Named(first, "save"), 0.2));

    EXPECT_TRUE(drag.drop());

    EXPECT_EQ(Order(first), "open Paste save - zoom undo");
}

TEST_F(CVqQuickToolbarDragTest, ACommandBesideAllBarsIsLeftAlone)
{
    const std::string before = Everything();

    drag.liftCommand(u"Paste"_s, beside);

    EXPECT_FALSE(drag.drop());
    EXPECT_EQ(Everything(), before);
}

TEST_F(CVqQuickToolbarDragTest, WhatNoBarHoldsAndOutsideOfASessionNothingIsLifted)
{
    CVqQuickButtonToolbar stranger(VQ_TEXT("stranger"));

    EXPECT_FALSE(drag.lift(nullptr, {}));
    EXPECT_FALSE(drag.lift(Add(stranger, "one", ""), {}));
    EXPECT_FALSE(drag.liftCommand({}, {}));
    setup->cancel();
    EXPECT_FALSE(drag.lift(Named(first, "open"), {}));
    EXPECT_FALSE(drag.liftCommand(u"Paste"_s, {}));
}

TEST_F(CVqQuickToolbarDragTest, AtTheEndOfTheBarItComesInFrontOfWhatLiesInThePicker)
{
    first.Area()->setWidth(90);
    first.Toolbar().Layout();
    CVqQuickControl* first_in_picker = nullptr;
    for (unsigned i = 0; !first_in_picker && At(first, i); ++i)
        if (At(first, i)->IsInPicker())
            first_in_picker = At(first, i);
    ASSERT_TRUE(first_in_picker);

    drag.lift(Named(second, "cut"), On(Named(second, "cut"), 0.5));
    drag.moveTo({89, 20});
    drag.drop();

    unsigned place = 0;
    while (At(first, place) != Named(first, "cut"))
        ++place;
    EXPECT_EQ(At(first, place + 1), first_in_picker);
}

TEST_F(CVqQuickToolbarDragTest, OutOfAnOpenPickerAndIntoIt)
{
    first.Area()->setWidth(60);
    first.Toolbar().Layout();
    CVqQuickPicker& picker = *first.Toolbar().Picker();
    picker.Area()->setParentItem(window.contentItem());
    picker.Area()->setPosition({200, 100});
    picker.Area()->setSize({280, 40});
    picker.Popup().Layout();

    drag.lift(Named(first, "undo"), On(Named(first, "undo"), 0.5));
    drag.moveTo(On(Named(second, "cut"), 0.1));
    drag.drop();
    EXPECT_EQ(Order(second), "undo cut copy");
    first.Toolbar().Layout();
    picker.Popup().Layout();
    drag.lift(Named(second, "copy"), On(Named(second, "copy"), 0.5));
    drag.moveTo(On(Named(first, "zoom"), 0.9));
    drag.drop();

    EXPECT_EQ(Order(first), "open save - zoom copy");
    picker.Area()->setParentItem(nullptr);
}
