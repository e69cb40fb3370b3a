#include "quick_backend/toolbar/CVqQuickWatchedToolbar.h"

#include "AbstractGui/VqControlCodes.h"
#include "quick_backend/toolbar/CVqQuickButton.h"
#include "tests/support/RecordingControl.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class CVqQuickWatchedToolbarTest : public testing::Test
{
protected:
    CVqQuickWatchedToolbarTest()
    {
        toolbar.CreateUI(0, EToolbarType::Main, VQ_TEXT("bar"));
        toolbar.SetControlFunctions([this](CVqQuickControl& control) { Note("+", control); },
                                    [this](CVqQuickControl& control) { Note("-", control); });
    }

    CVqQuickButton& Make(const vq_wchar* name)
    {
        CVqStringW text(name);
        auto* button = new CVqQuickButton;
        button->Set(vq_control_name, 0, &text);
        return *button;
    }

    CVqQuickButton& Add(const vq_wchar* name)
    {
        CVqQuickButton& button = Make(name);
        toolbar.AddControl(button, id);
        return button;
    }

    void Note(const char* sign, const CVqQuickControl& control)
    {
        told.push_back(sign + control.Name().toStdString());
    }

    CVqQuickWatchedToolbar toolbar;
    std::vector<std::string> told;
    vq_uint64 id = 0;
};

}

TEST_F(CVqQuickWatchedToolbarTest, TellsOfEachControlThatComes)
{
    const CVqQuickButton& a = Add(VQ_TEXT("a"));
    toolbar.InsertControlBefore(a, Make(VQ_TEXT("b")), id);
    toolbar.InsertControlAfter(a, Make(VQ_TEXT("c")), id);

    EXPECT_THAT(told, ElementsAre("+a", "+b", "+c"));
}

TEST_F(CVqQuickWatchedToolbarTest, TellsOfAControlThatGoes)
{
    CVqQuickButton& a = Add(VQ_TEXT("a"));
    told.clear();

    toolbar.RemoveControl(a);

    EXPECT_THAT(told, ElementsAre("-a"));
    delete &a;
}

TEST_F(CVqQuickWatchedToolbarTest, TellsOfAllWhenItIsEmptied)
{
    Add(VQ_TEXT("a"));
    Add(VQ_TEXT("b"));
    told.clear();

    toolbar.RemoveAllControls();

    EXPECT_THAT(told, ElementsAre("-a", "-b"));
}

TEST_F(CVqQuickWatchedToolbarTest, TellsOfAllWhenItsWidgetEnds)
{
    Add(VQ_TEXT("a"));
    told.clear();

    toolbar.DestroyUI();

    EXPECT_THAT(told, ElementsAre("-a"));
}

TEST_F(CVqQuickWatchedToolbarTest, TellsOfAllWhenItIsCreatedAnew)
{
    Add(VQ_TEXT("a"));
    told.clear();

    toolbar.CreateUI(0, EToolbarType::Main, nullptr);

    EXPECT_THAT(told, ElementsAre("-a"));
}

TEST_F(CVqQuickWatchedToolbarTest, ARefusedControlIsNotTold)
{
    CVqQuickButton& a = Add(VQ_TEXT("a"));
    CVqQuickButton absent;
    told.clear();

    toolbar.AddControl(a, id);
    toolbar.InsertControlBefore(absent, a, id);
    toolbar.RemoveControl(absent);

    EXPECT_THAT(told, IsEmpty());
}

TEST_F(CVqQuickWatchedToolbarTest, AControlOfAnotherKindIsNotTold)
{
    toolbar.AddControl(*new RecordingControl("plain"), id);
    toolbar.RemoveAllControls();

    EXPECT_THAT(told, IsEmpty());
}

TEST_F(CVqQuickWatchedToolbarTest, NobodyHasToListen)
{
    toolbar.SetControlFunctions({}, {});

    Add(VQ_TEXT("a"));
    toolbar.RemoveAllControls();

    EXPECT_THAT(told, IsEmpty());
}
