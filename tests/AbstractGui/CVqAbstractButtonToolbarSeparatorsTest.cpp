#include "AbstractGui/VqControlCodes.h"
#include "AbstractGui/VqHiddenToolbarButtons.h"
#include "tests/support/TestButtonToolbar.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cctype>
#include <string>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr const vq_wchar* g_name = VQ_TEXT("SeparatorsBar");

/// A toolbar from letters, one a control: B and b a button that is shown and one that is not, h one that is
/// visible but stands in the store of hidden buttons, S and s a separator that is shown and one that is not,
/// t a hidden one that also stays at the end of the list.
class DrawnBar
{
public:
    explicit DrawnBar(const std::string& letters)
    {
        VQ_SetToolbarButtonAsHidden(g_name, VQ_TEXT("listed"), true, false);
        m_bar.Bar().CreateUI(0, EToolbarType::Main, g_name);
        for (const char letter : letters)
            Add(letter);
        m_letters = letters;
        m_bar.Settle();
    }

    TestButtonToolbar& Bar() { return m_bar; }

    /// The letters as the controls are now.
    std::string Letters()
    {
        std::string out;
        for (unsigned index = 0; index < m_letters.size(); ++index) {
            RecordingControl& control = m_bar.Control(m_bar.GetButtonID(index, false));
            const int letter = std::tolower(m_letters[index]);
            const bool is_upper = letter != 'h' && control.GetControlVisibility();
            out += static_cast<char>(is_upper ? std::toupper(letter) : letter);
        }
        return out;
    }

private:
    void Add(char letter)
    {
        const int kind = std::tolower(letter);
        const vq_uint64 id = kind == 'b' ? m_bar.AddButton(VQ_TEXT("button"))
            : kind == 'h'                ? m_bar.AddButton(VQ_TEXT("listed"))
                                         : m_bar.AppendSeparator(nullptr);
        RecordingControl& control = m_bar.Control(id);
        if (kind == 't')
            control.AnswerStaysLast(1);
        if (std::islower(letter) && letter != 'h')
            control.Hidden();
    }

    TestButtonToolbar m_bar;
    std::string m_letters;
};

struct Tidying
{
    const char* before;
    const char* after;
    const char* after_with_drag_and_drop;
};

std::ostream& operator<<(std::ostream& out, const Tidying& row)
{
    return out << row.before;
}

/// A separator that does not know code 33, or one that cannot be shown.
class OddSeparator final : public RecordingControl
{
public:
    OddSeparator(TestButtonToolbar& bar, bool can_be_shown)
        : RecordingControl("odd", bar.Bar().m_calls), m_can_be_shown(can_be_shown)
    {
        AnswerSeparator(1);
        Hidden();
    }

    int Get(unsigned code, vq_int64 index, void* data) override
    {
        if (code != vq_control_stays_last)
            return RecordingControl::Get(code, index, data);
        Record(".Get 33");
        return -9;
    }

    bool GetControlVisibility() override
    {
        return m_can_be_shown && RecordingControl::GetControlVisibility();
    }

private:
    bool m_can_be_shown;
};

class CVqAbstractButtonToolbarTidying : public testing::TestWithParam<Tidying>
{ };

}

TEST_P(CVqAbstractButtonToolbarTidying, ShowsSeparatorsBetweenGroups)
{
    DrawnBar bar(GetParam().before);

    EXPECT_EQ(bar.Bar().UpdateSeparators(false), 0);

    EXPECT_EQ(bar.Letters(), GetParam().after);
}

TEST_P(CVqAbstractButtonToolbarTidying, ShowsSeparatorsBetweenGroupsWithDragAndDrop)
{
    DrawnBar bar(GetParam().before);
    bar.Bar().EnableToolbarDragDrop(true);

    EXPECT_EQ(bar.Bar().UpdateSeparators(false), 0);

    EXPECT_EQ(bar.Letters(), GetParam().after_with_drag_and_drop);
}

// One at the front keeps its visibility without drag and drop.
INSTANTIATE_TEST_SUITE_P(Front, CVqAbstractButtonToolbarTidying,
                         testing::Values(Tidying{"", "", ""}, Tidying{"B", "B", "B"},
                                         Tidying{"SB", "SB", "sB"}, Tidying{"sB", "sB", "sB"},
                                         Tidying{"SSB", "SsB", "ssB"}, Tidying{"sSB", "sSB", "ssB"},
                                         Tidying{"ssB", "ssB", "ssB"}, Tidying{"SS", "Ss", "ss"},
                                         Tidying{"sSsSB", "sSssB", "ssssB"}));

INSTANTIATE_TEST_SUITE_P(Between, CVqAbstractButtonToolbarTidying,
                         testing::Values(Tidying{"BSB", "BSB", "BSB"}, Tidying{"BsB", "BSB", "BSB"},
                                         Tidying{"BSSB", "BSsB", "BSsB"}, Tidying{"BssB", "BSsB", "BSsB"},
                                         Tidying{"BsSB", "BSsB", "BSsB"}, Tidying{"BtB", "BTB", "BTB"},
                                         Tidying{"BsBsB", "BSBSB", "BSBSB"}));

// One that was visible before stays at the end.
INSTANTIATE_TEST_SUITE_P(End, CVqAbstractButtonToolbarTidying,
                         testing::Values(Tidying{"BS", "BS", "BS"}, Tidying{"Bs", "Bs", "Bs"},
                                         Tidying{"Bss", "Bss", "Bss"}, Tidying{"BsS", "Bss", "Bss"},
                                         Tidying{"BSs", "BSs", "BSs"}, Tidying{"BSS", "BSs", "BSs"},
                                         Tidying{"Bt", "BT", "BT"}, Tidying{"BsBs", "BSBs", "BSBs"},
                                         Tidying{"BsBS", "BSBS", "BSBS"}));

// A hidden button divides nothing, but it is more than the front of the toolbar.
INSTANTIATE_TEST_SUITE_P(HiddenButtons, CVqAbstractButtonToolbarTidying,
                         testing::Values(Tidying{"bSB", "bsB", "bsB"}, Tidying{"bsB", "bsB", "bsB"},
                                         Tidying{"bSb", "bsb", "bsb"}, Tidying{"SbB", "SbB", "sbB"},
                                         Tidying{"SbSB", "SbsB", "sbsB"}, Tidying{"BbsB", "BbSB", "BbSB"},
                                         Tidying{"BsbSB", "BSbsB", "BSbsB"}, Tidying{"Bsb", "Bsb", "Bsb"},
                                         Tidying{"BSb", "BSb", "BSb"}, Tidying{"BsbB", "BSbB", "BSbB"}));

INSTANTIATE_TEST_SUITE_P(ListedButtons, CVqAbstractButtonToolbarTidying,
                         testing::Values(Tidying{"hSB", "hsB", "hsB"}, Tidying{"BShSB", "BShsB", "BShsB"},
                                         Tidying{"BhsB", "BhSB", "BhSB"}, Tidying{"Bsh", "Bsh", "Bsh"},
                                         Tidying{"hSh", "hsh", "hsh"}));

TEST(CVqAbstractButtonToolbarSeparators, DeferredOnlyMakesThemDirty)
{
    DrawnBar bar("BsB");

    EXPECT_EQ(bar.Bar().UpdateSeparators(true), 0);

    EXPECT_TRUE(bar.Bar().m_bSeparatorsDirty);
    EXPECT_EQ(bar.Letters(), "BsB");
    EXPECT_THAT(bar.Bar().TakeCalls(), IsEmpty());
}

TEST(CVqAbstractButtonToolbarSeparators, TidyingDoesNotClearTheNote)
{
    DrawnBar bar("BsB");
    bar.Bar().UpdateSeparators(true);

    bar.Bar().UpdateSeparators(false);

    EXPECT_TRUE(bar.Bar().m_bSeparatorsDirty);
}

TEST(CVqAbstractButtonToolbarSeparators, TidyingDoesNotMakeThemDirty)
{
    DrawnBar bar("BsB");

    bar.Bar().UpdateSeparators(false);

    EXPECT_FALSE(bar.Bar().m_bSeparatorsDirty);
}

TEST(CVqAbstractButtonToolbarSeparators, LayoutDoesNotBecomeDirty)
{
    DrawnBar bar("BsB");
    bar.Bar().Bar().m_bLayoutDirty = false;

    bar.Bar().UpdateSeparators(false);

    EXPECT_FALSE(bar.Bar().Bar().m_bLayoutDirty);
}

TEST(CVqAbstractButtonToolbarSeparators, PickerIsNeitherButtonNorSeparator)
{
    DrawnBar bar("Bs");
    bar.Bar().Bar().ThePicker().AnswerSeparator(1);

    bar.Bar().UpdateSeparators(false);

    EXPECT_EQ(bar.Letters(), "Bs");
    EXPECT_TRUE(bar.Bar().Bar().ThePicker().GetControlVisibility());
}

TEST(CVqAbstractButtonToolbarSeparators, SeparatorWhoseAnswerFailsIsOneAllTheSame)
{
    DrawnBar bar("BsB");
    bar.Bar().Control(bar.Bar().GetButtonID(1, false)).AnswerSeparator(1, -9);

    bar.Bar().UpdateSeparators(false);

    EXPECT_EQ(bar.Letters(), "BSB");
}

TEST(CVqAbstractButtonToolbarSeparators, EachIsToldWhatItShallBeWhetherThatIsNewOrNot)
{
    DrawnBar bar("BSsSBs");

    bar.Bar().UpdateSeparators(false);

    EXPECT_EQ(bar.Letters(), "BSssBs");
    EXPECT_THAT(bar.Bar().TakeCalls(),
                ElementsAre("separator.SetControlVisibility 1", "separator.SetControlVisibility 0",
                            "separator.SetControlVisibility 0", "separator.SetControlVisibility 1",
                            "separator.SetControlVisibility 0"));
}

TEST(CVqAbstractButtonToolbarSeparators, OneThatDoesNotAnswerIsHiddenAtTheEndAndIsAskedOnlyWhenItWasHidden)
{
    TestButtonToolbar bar;
    bar.AddButton(VQ_TEXT("a"));
    bar.AddGeneralControl(new OddSeparator(bar, true), VQ_TEXT("odd"));
    bar.Settle();

    bar.UpdateSeparators(false);
    EXPECT_THAT(bar.TakeCalls(),
                ElementsAre("odd.Get 33", "odd.SetControlVisibility 1", "odd.SetControlVisibility 0"));

    bar.SetButtonVisibility(bar.FindButton(VQ_TEXT("odd")), true);
    bar.Settle();
    bar.UpdateSeparators(false);
    EXPECT_THAT(bar.TakeCalls(), ElementsAre("odd.SetControlVisibility 1"));
}

TEST(CVqAbstractButtonToolbarSeparators, OneThatCannotBeShownLeavesItsPlaceToTheNext)
{
    TestButtonToolbar bar;
    bar.AddButton(VQ_TEXT("a"));
    bar.AddGeneralControl(new OddSeparator(bar, false), VQ_TEXT("odd"));
    const vq_uint64 next = bar.AppendSeparator(nullptr);
    bar.AddButton(VQ_TEXT("b"));
    bar.Control(next).Hidden();

    bar.UpdateSeparators(false);

    EXPECT_TRUE(bar.GetButtonVisibility(next));
}

TEST(CVqAbstractButtonToolbarSeparators, NodesWithoutAControlAreSkipped)
{
    DrawnBar bar("BsB");
    CVqList& list = *bar.Bar().Bar().m_pControls;
    list.Insert(list.GetFirst()->GetNext(), nullptr);

    bar.Bar().UpdateSeparators(false);

    EXPECT_EQ(bar.Letters(), "BSB");
}

TEST(CVqAbstractButtonToolbarSeparators, MissingToolbarIsTolerated)
{
    NoButtonToolbar bar;

    EXPECT_EQ(bar.UpdateSeparators(false), 0);
    EXPECT_FALSE(bar.m_bSeparatorsDirty);
    EXPECT_EQ(bar.UpdateSeparators(true), 0);
    EXPECT_TRUE(bar.m_bSeparatorsDirty);
}
