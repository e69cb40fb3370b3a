#include "tests/quick_backend/MenuWindow.h"
#include "tests/quick_backend/OtherWindow.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class ContextMenu : public testing::Test
{
protected:
    void SetUp() override { FillMenu(window.Menu()); }

    int Track(vq_uint32 id)
    {
        const QPoint place = window.Window().mapToGlobal(QPoint(120, 90));
        return window.Menu().TrackContextMenu(id, place.x(), place.y(), nullptr, nullptr, false, false);
    }

    MenuWindow window;
};

}

TEST_F(ContextMenu, OpensAtItsPlaceAndReturnsAtOnce)
{
    EXPECT_EQ(Track(10), 0);

    ASSERT_TRUE(window.Row(0));
    const QPointF place = window.OpenLists().back()->mapToScene({});
    EXPECT_NEAR(place.x(), 120, 6);
    EXPECT_NEAR(place.y(), 90, 6);
    EXPECT_TRUE(window.Menu().IsTracking());
}

TEST_F(ContextMenu, StoresNoPickedIdentifierSinceItReturnsAtOnce)
{
    vq_uint32 picked = 77;

    window.Menu().TrackContextMenu(10, 0, 0, nullptr, &picked, false, false);

    EXPECT_EQ(picked, 0u);
}

TEST_F(ContextMenu, AClickFiresOnce)
{
    Track(10);

    window.Click(window.Row(1));

    EXPECT_THAT(window.Fired(), ElementsAre(12u));
    EXPECT_THAT(window.OpenLists(), IsEmpty());
}

TEST_F(ContextMenu, KeysWalkAndFire)
{
    Track(1);
    window.Press(Qt::Key_Up);
    window.Press(Qt::Key_Right);
    window.Press(Qt::Key_Return);

    EXPECT_THAT(window.Fired(), ElementsAre(6u));
    EXPECT_THAT(window.OpenLists(), IsEmpty());
}

TEST_F(ContextMenu, EscapeGivesTheFocusBack)
{
    QQuickItem* field = window.Find(QStringLiteral("field"));
    field->forceActiveFocus();
    Track(10);

    window.Press(Qt::Key_Escape);

    EXPECT_THAT(window.OpenLists(), IsEmpty());
    EXPECT_TRUE(field->hasActiveFocus());
    EXPECT_FALSE(window.Menu().IsTracking());
}

TEST_F(ContextMenu, APressElsewhereClosesIt)
{
    Track(10);

    window.ClickAt({390, 290});

    EXPECT_THAT(window.OpenLists(), IsEmpty());
}

TEST_F(ContextMenu, GoesWhenTheWindowIsLeft)
{
    Track(10);

    const OtherWindow other;

    EXPECT_THAT(window.OpenLists(), IsEmpty());
    EXPECT_FALSE(window.Menu().IsTracking());
}

TEST_F(ContextMenu, APopupThatIsRemovedFromTheBarOpensAndFires)
{
    window.Menu().Manipulators().find_item(10u, window.Menu().getRootMenuItem())->setRemoved(true);

    EXPECT_EQ(Track(10), 0);
    window.Click(window.Row(2));

    EXPECT_THAT(window.Fired(), ElementsAre(13u));
}

TEST_F(ContextMenu, UnknownIdentifiersCommandsAndDeletedPopupsGiveMinusFour)
{
    window.Menu().Manipulators().find_item(10u, window.Menu().getRootMenuItem())->setDeleted(true);

    EXPECT_EQ(Track(999), -4);
    EXPECT_EQ(Track(2), -4);
    EXPECT_EQ(Track(10), -4);
}

TEST(ContextMenuWithoutAView, GivesMinusTwelve)
{
    CVqQuickMenu menu;
    FillMenu(menu);

    EXPECT_EQ(menu.TrackContextMenu(10, 0, 0, nullptr, nullptr, false, false), -12);
}
