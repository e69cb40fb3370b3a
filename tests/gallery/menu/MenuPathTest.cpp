#include "gallery/menu/MenuPath.h"

#include "gallery/menu/MenuBuilder.h"
#include "gallery/menu/MenuFile.h"
#include "quick_backend/CVqQuickMenu.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr char g_file[] = R"({ "format": 1,
  "menu": [ { "type": "popup", "id": 1, "text": "&F", "items": [
      { "type": "popup", "id": 2, "text": "&E", "items": [
        { "id": 3, "text": "&P && Q", "command": "Deep" } ] },
      { "id": 4, "text": "---", "command": "Unmarked" } ] } ],
  "context": [ { "type": "popup", "id": 50, "text": "Area", "items": [
    { "id": 51, "text": "A", "command": "OnlyHere" }, { "id": 52, "text": "P", "command": "Deep" },
    { "type": "popup", "id": 53, "text": "&C", "items": [
      { "type": "onecolor", "id": 54, "color": "#102030", "command": "Hue" } ] } ] } ] })";

class MenuPath : public testing::Test
{
protected:
    MenuPath()
    {
        Gallery::MenuFile file;
        EXPECT_TRUE(file.Parse(g_file, u"m.json"_s));
        Gallery::MenuBuilder(m_menu).Build(file.Document());
    }

    CVqQuickMenu m_menu;
};

}

TEST_F(MenuPath, MnemonicsLeadFromTheBarToTheEntry)
{
    EXPECT_EQ(Gallery::MnemonicKeys(m_menu, u"Deep"_s), (QStringList{u"Alt+F"_s, u"E"_s, u"P"_s}));
}

TEST_F(MenuPath, WhatIsNotOnTheBarHasNoWay)
{
    EXPECT_TRUE(Gallery::MnemonicKeys(m_menu, u"OnlyHere"_s).isEmpty());
    EXPECT_TRUE(Gallery::MnemonicKeys(m_menu, u"Nowhere"_s).isEmpty());
}

TEST_F(MenuPath, AnEntryWithoutAMnemonicHasNoWay)
{
    EXPECT_TRUE(Gallery::MnemonicKeys(m_menu, u"Unmarked"_s).isEmpty());
}

TEST_F(MenuPath, ThePopupOfAnEntryOpensWithoutTheEntrysMnemonic)
{
    EXPECT_EQ(Gallery::PopupKeys(m_menu, u"Deep"_s), (QStringList{u"Alt+F"_s, u"E"_s}));
    EXPECT_EQ(Gallery::PopupKeys(m_menu, u"Unmarked"_s), QStringList{u"Alt+F"_s});
    EXPECT_TRUE(Gallery::PopupKeys(m_menu, u"OnlyHere"_s).isEmpty());
    EXPECT_TRUE(Gallery::PopupKeys(m_menu, u"Nowhere"_s).isEmpty());
}

TEST_F(MenuPath, InAContextMenuLettersOpenThePopupOfTheEntry)
{
    EXPECT_EQ(Gallery::ContextKeys(m_menu, u"Hue"_s), QStringList{u"C"_s});
    EXPECT_TRUE(Gallery::ContextKeys(m_menu, u"OnlyHere"_s).isEmpty());
    EXPECT_TRUE(Gallery::ContextKeys(m_menu, u"Unmarked"_s).isEmpty());
    EXPECT_TRUE(Gallery::ContextKeys(m_menu, u"Nowhere"_s).isEmpty());
}

TEST_F(MenuPath, PlainLabelsHaveNoMarks)
{
    EXPECT_EQ(Gallery::PlainLabel(m_menu, 3), u"P & Q"_s);
    EXPECT_EQ(Gallery::PlainLabel(m_menu, 99), u""_s);
}
