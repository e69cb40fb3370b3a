#include "gallery/script/ScriptStep.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Gallery::KeyPress;
using Gallery::MouseStep;

TEST(ScriptStep, KeysAndMouseStandInOneList)
{
    QString bad;
    const auto steps = Gallery::ParseScript(u"Ctrl+S, @click main/FileSave,Ctrl+Comma"_s, bad);

    ASSERT_TRUE(steps);
    ASSERT_EQ(steps->size(), 3);
    EXPECT_EQ(std::get<KeyPress>(steps->at(0)).name, u"Ctrl+S"_s);
    EXPECT_EQ(std::get<MouseStep>(steps->at(1)).from, u"main/FileSave"_s);
    EXPECT_EQ(std::get<KeyPress>(steps->at(2)).key, Qt::Key_Comma);
    EXPECT_TRUE(bad.isEmpty());
}

TEST(ScriptStep, ABadStepIsToldAndNothingIsGiven)
{
    QString bad;

    EXPECT_FALSE(Gallery::ParseScript(u"Ctrl+S,Wobble,Alt+F"_s, bad));
    EXPECT_EQ(bad, u"Wobble"_s);
    EXPECT_FALSE(Gallery::ParseScript(u"Ctrl+S,@click"_s, bad));
    EXPECT_EQ(bad, u"@click"_s);
}

TEST(ScriptStep, NothingBetweenCommasIsNoStep)
{
    QString bad;

    EXPECT_FALSE(Gallery::ParseScript(u""_s, bad));
    EXPECT_FALSE(Gallery::ParseScript(u"Ctrl+S,,Alt+F"_s, bad));
    EXPECT_FALSE(Gallery::ParseScript(u"Ctrl+S,"_s, bad));
}
