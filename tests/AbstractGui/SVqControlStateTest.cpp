#include "AbstractGui/SVqControlState.h"

#include "AbstractGui/SVqControlStateInfo.h"
#include "tests/AbstractGui/TestControl.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

TEST(SVqControlState, StartsWithoutImageAndTexts)
{
    const SVqControlState state;

    EXPECT_THAT(TestControl::ShownState(state),
                ElementsAre("bitmap=-1", "text=", "command=", "tooltip=", "frgcolor=4294967295",
                            "bkgcolor=4294967295", "additionalcolor=4294967295", "userValue=0"));
}

TEST(SVqControlState, CopiesFieldByField)
{
    const SVqControlState state{1, VQ_TEXT("text"), VQ_TEXT("command"), VQ_TEXT("tooltip"), 2, 3,
                                4, 1ull << 40};
    SVqControlState assigned;

    const SVqControlState copied(state);
    assigned = state;

    const auto fields
        = ElementsAre("bitmap=1", "text=text", "command=command", "tooltip=tooltip", "frgcolor=2",
                      "bkgcolor=3", "additionalcolor=4", "userValue=1099511627776");
    EXPECT_THAT(TestControl::ShownState(copied), fields);
    EXPECT_THAT(TestControl::ShownState(assigned), fields);
}

TEST(SVqControlState, CopiesHaveTextsOfTheirOwn)
{
    SVqControlState state;
    state.m_text = VQ_TEXT("one");

    const SVqControlState copied(state);
    state.m_text = VQ_TEXT("two");

    EXPECT_EQ(TestMenu::Plain(copied.m_text), "one");
}

TEST(SVqControlStateInfo, StartsWithoutImageAndTexts)
{
    const SVqControlStateInfo info;

    EXPECT_EQ(info.bitmap, -1);
    EXPECT_EQ(info.text, nullptr);
    EXPECT_EQ(info.command, nullptr);
    EXPECT_EQ(info.tooltip, nullptr);
}
