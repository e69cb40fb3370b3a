#include "tests/quick_backend/toolbar_setup/SetupPanel.h"

namespace {

/// Lists that are too low for their rows.
class ToolbarSetupList : public SetupPanel
{
protected:
    explicit ToolbarSetupList(const QByteArray& panel_properties = "width: 740")
        : SetupPanel(panel_properties)
    {
        Find("toolbarSetupPanel")->setHeight(300);
        Draw();
    }

    QRectF BarOf(const char* list) { return Place(Part(Find(list), "setupScrollBar")); }
    static QRectF Place(const QQuickItem* item)
    {
        return {item->mapToScene({}), QSizeF(item->width(), item->height())};
    }
};

class MirroredToolbarSetupList : public ToolbarSetupList
{
protected:
    MirroredToolbarSetupList() : ToolbarSetupList("width: 740; LayoutMirroring.enabled: true") { }
};

}

TEST_F(ToolbarSetupList, TheScrollBarStandsAtTheRightOfTheRows)
{
    EXPECT_GE(BarOf("setupButtons").left(), Place(Row(0)).right());
    EXPECT_GE(BarOf("setupCommands").left(), Place(Command(0)).right());
}

TEST_F(ToolbarSetupList, WithoutAScrollBarTheRowsTakeItsRoom)
{
    const qreal narrow = Row(0)->width();

    Find("toolbarSetupPanel")->setHeight(450);
    Draw();

    EXPECT_FALSE(Part(Find("setupButtons"), "setupScrollBar"));
    EXPECT_GT(Row(0)->width(), narrow);
}

TEST_F(MirroredToolbarSetupList, TheScrollBarStandsAtTheLeftOfTheRows)
{
    EXPECT_LE(BarOf("setupButtons").right(), Place(Row(0)).left());
    EXPECT_LE(BarOf("setupCommands").right(), Place(Command(0)).left());
}

TEST_F(MirroredToolbarSetupList, TheScrollBarStaysInItsList)
{
    EXPECT_GE(BarOf("setupButtons").left(), Place(Find("setupButtons")).left());
    EXPECT_GE(BarOf("setupCommands").left(), Place(Find("setupCommands")).left());
}
