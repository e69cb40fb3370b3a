#include "quick_backend/toolbar_setup/VqMenuCommands.h"

#include "tests/quick_backend/toolbar_setup/SetupBars.h"

using testing::ElementsAre;
using testing::SizeIs;
using namespace Qt::StringLiterals;

namespace {

class VqMenuCommandsTest : public testing::Test, protected SetupBars
{
protected:
    std::vector<std::string> Paths(CVqAbstractButtonToolbar::setup_callback_type ask = nullptr)
    {
        std::vector<std::string> paths;
        for (const SVqMenuCommand& command : VqMenuCommands(menu, ask))
            paths.push_back(command.m_path.toStdString());
        return paths;
    }

    CVqMenuItem* Item(vq_uint32 id) { return menu.Manipulators().find_item(id, menu.getRootMenuItem()); }
};

bool only_edit(unsigned id, __vq_hwnd* window, CVqStringW& text)
{
    EXPECT_EQ(window, nullptr);
    if (id == 11)
        text = VQ_TEXT("Take back");
    return id > 10 && id < 13;
}

}

TEST_F(VqMenuCommandsTest, ComeInTheOrderOfTheMenuWithTheirPaths)
{
    EXPECT_THAT(Paths(),
                ElementsAre("File > Open", "File > Save", "File > Recent > one", "Edit > Undo", "Edit > Cut",
                            "Edit > Copy", "Edit > Paste & Go", "Edit > Divide"));
}

TEST_F(VqMenuCommandsTest, CarryLabelKeyImageAndCommand)
{
    const SVqMenuCommand open = VqMenuCommands(menu, nullptr).front();

    EXPECT_EQ(open.m_label, u"Open"_s);
    EXPECT_EQ(open.m_key, u"Ctrl+O"_s);
    EXPECT_EQ(open.m_image, 5);
    EXPECT_EQ(open.m_command, u"FileOpen"_s);
}

TEST_F(VqMenuCommandsTest, WhatIsHiddenAsACommandIsLeftOutWithAllBelow)
{
    Item(3)->setDeleted(true);
    Item(10)->setDeleted(true);

    EXPECT_THAT(Paths(), ElementsAre("File > Open", "File > Recent > one"));
}

TEST_F(VqMenuCommandsTest, APopupThatIsKeptOffTheBarCountsButARemovedCommandDoesNot)
{
    Item(10)->setRemoved(true);
    Item(11)->setRemoved(true);

    EXPECT_THAT(Paths(), testing::Not(testing::Contains("Edit > Undo")));
    EXPECT_THAT(Paths(), testing::Contains("Edit > Cut"));
}

TEST_F(VqMenuCommandsTest, ACommandThatComesTwiceIsOfferedOnce)
{
    menu.AppendMenuItem(30, 10, VQ_TEXT("Open again"), VQ_TEXT("FileOpen"), 0);

    EXPECT_THAT(Paths(), SizeIs(8));
}

TEST_F(VqMenuCommandsTest, WithoutACommandOrALabelThereIsNothingToOffer)
{
    menu.AppendMenuItem(30, 10, VQ_TEXT("Nothing"), VQ_TEXT(""), 0);
    menu.AppendMenuItem(31, 10, VQ_TEXT(""), VQ_TEXT("Silent"), 0);

    EXPECT_THAT(Paths(), SizeIs(8));
}

TEST_F(VqMenuCommandsTest, TheApplicationIsAskedForTheTextAndMayRefuse)
{
    EXPECT_THAT(Paths(only_edit), ElementsAre("Edit > Take back", "Edit > Cut"));
}

TEST_F(VqMenuCommandsTest, TheListsOfTheMenuAreThatOfTheBarAndOnePerPopup)
{
    EXPECT_THAT(VqMenuLists(menu), SizeIs(4));
    EXPECT_EQ(VqMenuLists(menu).front(), menu.Rows());
}
