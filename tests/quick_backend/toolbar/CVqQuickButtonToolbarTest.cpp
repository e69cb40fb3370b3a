#include "quick_backend/toolbar/CVqQuickButtonToolbar.h"

#include "quick_backend/CVqQuickMenu.h"
#include "quick_backend/toolbar/CVqQuickPicker.h"
#include "quick_backend/toolbar/CVqQuickSeparator.h"
#include "quick_backend/toolbar/CVqQuickTextButton.h"
#include "tests/quick_backend/toolbar/QuickBarFixture.h"

namespace {

class CVqQuickButtonToolbarTest : public QuickBarFixture
{
protected:
    /// What the event loop is to hand on, such as contentChanged().
    static void Catch() { QCoreApplication::sendPostedEvents(); }
};

bool give_text(unsigned, __vq_hwnd*, CVqStringW&)
{
    return true;
}

}

// Life -------------------------------------------------------------------------------------------------

TEST_F(CVqQuickButtonToolbarTest, IsShownAndHasItsAreaFromTheStart)
{
    EXPECT_TRUE(bar.GetVisibility());
    EXPECT_TRUE(bar.Area()->isVisible());
    EXPECT_EQ(bar.GetToolbarHandle(), reinterpret_cast<vq_uint64>(bar.Area()));
    EXPECT_EQ(bar.Name(), QStringLiteral("bar"));
    EXPECT_EQ(bar.GetToolbarType(), EToolbarType::Main);
    EXPECT_NE(bar.Toolbar().Picker(), nullptr);
}

TEST_F(CVqQuickButtonToolbarTest, ANullNameIsEmpty)
{
    const CVqQuickButtonToolbar nameless(nullptr);

    EXPECT_EQ(nameless.Name(), QString());
}

TEST_F(CVqQuickButtonToolbarTest, AnUprightBarTurnsItsControls)
{
    CVqQuickButtonToolbar tools(VQ_TEXT("tools"), EToolbarType::Main, EOrientation::Vertical);
    const vq_uint64 id = tools.AddButton(VQ_TEXT("pan"));

    EXPECT_TRUE(tools.Area()->IsVertical());
    EXPECT_TRUE(static_cast<CVqQuickControl*>(tools.ControlFromId(id))->IsVertical());
    EXPECT_TRUE(tools.Toolbar().Picker()->IsVertical());
}

TEST_F(CVqQuickButtonToolbarTest, AHostedBarHasNoPicker)
{
    CVqQuickButtonToolbar hosted(VQ_TEXT("texts"), EToolbarType::Hosted);

    hosted.AddButton(VQ_TEXT("bold"));

    EXPECT_EQ(hosted.GetToolbarType(), EToolbarType::Hosted);
    EXPECT_EQ(hosted.Toolbar().Picker(), nullptr);
    EXPECT_EQ(hosted.GetButtonsCount(), 1);
}

TEST_F(CVqQuickButtonToolbarTest, EndsWithItsControls)
{
    auto ending = std::make_unique<CVqQuickButtonToolbar>(VQ_TEXT("ending"));
    const QPointer<QObject> button(
        static_cast<CVqQuickControl*>(ending->ControlFromId(ending->AddButton(VQ_TEXT("open")))));
    const QPointer<QObject> area(ending->Area());

    ending.reset();

    EXPECT_TRUE(button.isNull());
    EXPECT_TRUE(area.isNull());
}

// Factories --------------------------------------------------------------------------------------------

TEST_F(CVqQuickButtonToolbarTest, FactoriesMakeControlsOfTheirKind)
{
    const std::unique_ptr<IVqUIcontrol> button(bar.CreateControlButton(true));
    const std::unique_ptr<IVqUIcontrol> text(bar.CreateTextButton());
    const std::unique_ptr<IVqUIcontrol> separator(bar.CreateSeparator());
    const std::unique_ptr<CVqAbstractToolbar> toolbar(bar.CreateToolbar());

    EXPECT_NE(dynamic_cast<CVqQuickButton*>(button.get()), nullptr);
    EXPECT_EQ(dynamic_cast<CVqQuickTextButton*>(button.get()), nullptr);
    EXPECT_NE(dynamic_cast<CVqQuickTextButton*>(text.get()), nullptr);
    EXPECT_NE(dynamic_cast<CVqQuickSeparator*>(separator.get()), nullptr);
    EXPECT_NE(dynamic_cast<CVqQuickToolbar*>(toolbar.get()), nullptr);
}

TEST_F(CVqQuickButtonToolbarTest, AddersUseTheirFactories)
{
    EXPECT_EQ(Control(bar.AddButton(VQ_TEXT("a"))).GetKind(), CVqQuickControl::Button);
    EXPECT_EQ(Control(bar.AddTextButton(VQ_TEXT("b"))).GetKind(), CVqQuickControl::TextButton);
    EXPECT_EQ(Control(bar.AppendSeparator(nullptr)).GetKind(), CVqQuickControl::Separator);
}

// Sizes and enabling -----------------------------------------------------------------------------------

TEST_F(CVqQuickButtonToolbarTest, ResetSizesAreTheirOwnAgain)
{
    CVqQuickButtonToolbar tools(VQ_TEXT("tools"), EToolbarType::Main, EOrientation::Vertical);
    const vq_uint64 id = tools.AddButton(VQ_TEXT("pan"));
    CVqSizeBase<int> own;
    CVqSizeBase<int> size;
    tools.GetButtonSize(id, own, -1);
    tools.SetButtonSize(id, 70, 60);

    tools.ResetAllControlSizesOnToolbar();
    tools.GetButtonSize(id, size, -1);

    EXPECT_EQ(size, own);
}

// Set up -----------------------------------------------------------------------------------------------

TEST_F(CVqQuickButtonToolbarTest, SetupIsRequestedWithWhatItWasCalledWith)
{
    const vq_uint64 id = Add(VQ_TEXT("open"));
    QQuickItem parent;
    CVqVariant factory;
    factory.SetName(VQ_TEXT("factory"));
    SVqToolbarSetupRequest request;
    int count = 0;
    QObject::connect(&bar, &CVqQuickButtonToolbar::setupRequested, &bar,
                     [&](const SVqToolbarSetupRequest& told) {
                         request = told;
                         ++count;
                     });

    bar.ShowToolbarSetup(reinterpret_cast<vq_uint64>(&parent), factory, id, true, give_text);

    EXPECT_EQ(count, 1);
    EXPECT_EQ(request.m_parent, &parent);
    EXPECT_EQ(request.m_factory.GetName(), VQ_TEXT("factory"));
    EXPECT_EQ(request.m_first, &Control(id));
    EXPECT_TRUE(request.m_commands);
    EXPECT_EQ(request.m_callback, give_text);
}

TEST_F(CVqQuickButtonToolbarTest, SetupWithoutParentAndButtonHasNone)
{
    CVqVariant factory;
    SVqToolbarSetupRequest request{bar.Area(), {}, nullptr, true, give_text};
    QObject::connect(&bar, &CVqQuickButtonToolbar::setupRequested, &bar,
                     [&request](const SVqToolbarSetupRequest& told) { request = told; });

    bar.ShowToolbarSetup(0, factory, 0, false, nullptr);

    EXPECT_EQ(request.m_parent, nullptr);
    EXPECT_EQ(request.m_first, nullptr);
    EXPECT_FALSE(request.m_commands);
    EXPECT_EQ(request.m_callback, nullptr);
}

TEST_F(CVqQuickButtonToolbarTest, CustomizingFollowsDragAndDrop)
{
    const QSignalSpy changed(&bar, &CVqQuickButtonToolbar::customizingChanged);

    bar.EnableToolbarDragDrop(true);
    bar.EnableToolbarDragDrop(true);
    EXPECT_TRUE(bar.IsCustomizing());
    EXPECT_EQ(changed.size(), 1);

    bar.ChangeToolbarType(EToolbarType::Fixed, false);
    EXPECT_FALSE(bar.IsCustomizing());
    EXPECT_EQ(changed.size(), 2);
}

// Content ----------------------------------------------------------------------------------------------

TEST_F(CVqQuickButtonToolbarTest, ManyChangesOfTheContentAreToldOnce)
{
    const QSignalSpy told(&bar, &CVqQuickButtonToolbar::contentChanged);

    Add(VQ_TEXT("open"));
    Add(VQ_TEXT("save"));
    EXPECT_EQ(told.size(), 0);

    Catch();
    EXPECT_EQ(told.size(), 1);
}

namespace {

struct SContentChange
{
    std::string m_name;
    std::function<void(CVqQuickButtonToolbar&, vq_uint64)> m_change;
    bool m_told = true;
};

class CVqQuickButtonToolbarContentTest : public QuickBarFixture,
                                         public testing::WithParamInterface<SContentChange>
{ };

void set_tooltip(CVqQuickButtonToolbar& bar, vq_uint64 id)
{
    bar.SetTooltipOnButton(id, 0, VQ_TEXT("tip"));
}

void set_text(CVqQuickButtonToolbar& bar, vq_uint64 id)
{
    CVqStringW text(VQ_TEXT("text"));
    bar.Set(id, vq_control_text, 0, &text);
}

// Out of the bar and in again, as when it is dragged.
void move(CVqQuickButtonToolbar& bar, vq_uint64 id)
{
    IVqUIcontrol& control = *bar.ControlFromId(id);
    vq_uint64 again = 0;
    bar.Toolbar().RemoveControl(control);
    bar.Toolbar().AddControl(control, again);
}

}

TEST_P(CVqQuickButtonToolbarContentTest, IsToldWhenPeopleSeeIt)
{
    const vq_uint64 id = Add(VQ_TEXT("open"));
    QCoreApplication::sendPostedEvents();
    const QSignalSpy told(&bar, &CVqQuickButtonToolbar::contentChanged);

    GetParam().m_change(bar, id);
    QCoreApplication::sendPostedEvents();

    EXPECT_EQ(told.size(), GetParam().m_told ? 1 : 0);
}

INSTANTIATE_TEST_SUITE_P(
    Changes, CVqQuickButtonToolbarContentTest,
    testing::Values(SContentChange{"ANewButton", [](auto& bar, vq_uint64) { bar.AddButton(VQ_TEXT("x")); }},
                    SContentChange{"ARemovedButton", [](auto& bar, vq_uint64 id) { bar.RemoveButton(id); }},
                    SContentChange{"AnEmptiedBar", [](auto& bar, vq_uint64) { bar.RemoveAllControls(); }},
                    SContentChange{"AMovedButton", move}, SContentChange{"AText", set_text},
                    SContentChange{"ATooltip", set_tooltip},
                    SContentChange{"AName",
                                   [](auto& bar, vq_uint64 id) { bar.SetButtonName(id, VQ_TEXT("new")); }},
                    SContentChange{"ACheck", [](auto& bar, vq_uint64 id) { bar.SetCheck(id, true); }, false}),
    [](const auto& row) { return row.param.m_name; });
