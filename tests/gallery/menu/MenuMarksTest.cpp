#include "gallery/menu/MenuMarks.h"

#include "gallery/menu/MenuFile.h"
#include "quick_backend/CVqQuickMenu.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Two entries with the command Grid, a radio group of Low and High in both menus, and Open without a mark.
constexpr char g_file[] = R"({ "format": 1,
  "menu": [ { "type": "popup", "id": 1, "text": "View", "items": [
    { "id": 2, "text": "Grid", "command": "Grid", "checked": false },
    { "id": 3, "text": "Low", "command": "Low", "radio": "g", "checked": true },
    { "id": 4, "text": "High", "command": "High", "radio": "g" },
    { "id": 5, "text": "Open", "command": "Open" } ] } ],
  "context": [ { "type": "popup", "id": 50, "text": "Area", "items": [
    { "id": 52, "text": "Grid", "command": "Grid", "checked": false },
    { "id": 53, "text": "Low", "command": "Low", "radio": "g", "checked": true },
    { "id": 54, "text": "High", "command": "High", "radio": "g" } ] } ],
  "keys": [ { "id": 90, "command": "Grid", "key": "F2" } ] })";

class MenuMarksTest : public testing::Test
{
protected:
    MenuMarksTest()
    {
        Gallery::MenuFile file;
        EXPECT_TRUE(file.Parse(g_file, u"m.json"_s));
        m_builder.Build(file.Document());
        m_marks.emplace(m_menu, m_builder.Roles());
    }

    vq_uint32 status(vq_uint32 id)
    {
        vq_uint32 value = 0;
        m_menu.GetIdStatus(id, value);
        return value;
    }

    CVqQuickMenu m_menu;
    Gallery::MenuBuilder m_builder{m_menu};
    std::optional<Gallery::MenuMarks> m_marks;
};

}

TEST_F(MenuMarksTest, AToggleFlipsInEveryMenu)
{
    EXPECT_TRUE(m_marks->Choose(2));
    EXPECT_EQ(status(2), 3u);
    EXPECT_EQ(status(52), 3u);

    EXPECT_FALSE(m_marks->Choose(52));
    EXPECT_EQ(status(2), 1u);
    EXPECT_EQ(status(52), 1u);
}

TEST_F(MenuMarksTest, AMemberOfAGroupBecomesTheOneInEveryMenu)
{
    EXPECT_TRUE(m_marks->Choose(54));

    EXPECT_EQ(status(3), 1u);
    EXPECT_EQ(status(4), 3u);
    EXPECT_EQ(status(53), 1u);
    EXPECT_EQ(status(54), 3u);
}

TEST_F(MenuMarksTest, ChoosingTheMarkedMemberAgainKeepsTheMark)
{
    EXPECT_TRUE(m_marks->Choose(3));

    EXPECT_EQ(status(3), 3u);
}

TEST_F(MenuMarksTest, AKeyWithoutAnEntryFlipsTheEntriesOfItsCommand)
{
    EXPECT_TRUE(m_marks->Choose(90));
    EXPECT_EQ(status(2), 3u);

    EXPECT_FALSE(m_marks->Choose(90));
    EXPECT_EQ(status(2), 1u);
}

TEST_F(MenuMarksTest, AnEntryWithoutAMarkStaysWithout)
{
    EXPECT_FALSE(m_marks->Choose(5));

    EXPECT_EQ(status(5), 1u);
}

TEST_F(MenuMarksTest, AClearedGroupHasNoMark)
{
    m_marks->ClearGroup(u"High"_s);

    EXPECT_EQ(status(3), 1u);
    EXPECT_EQ(status(53), 1u);
}

TEST_F(MenuMarksTest, EnablingReachesEveryEntry)
{
    m_marks->Enable(u"Grid"_s, false);

    EXPECT_EQ(status(2), 4u);
    EXPECT_EQ(status(52), 4u);
}

TEST_F(MenuMarksTest, EntriesComeInTheOrderOfTheTree)
{
    EXPECT_EQ(m_marks->EntriesOf(u"Grid"_s), (QList<vq_uint32>{2, 52}));
    EXPECT_TRUE(m_marks->EntriesOf(u"Nothing"_s).isEmpty());
}
