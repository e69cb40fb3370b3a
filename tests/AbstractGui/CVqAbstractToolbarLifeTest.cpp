#include "tests/support/TestToolbar.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr vq_uint64 g_parent = 7;

/// A toolbar whose picker is the abstract class's own.
class PlainToolbar : public CVqAbstractToolbar
{
public:
    ~PlainToolbar() override { DestroyUI(); }

    using CVqAbstractToolbar::m_pBoundary;
    using CVqAbstractToolbar::m_pControls;
};

}

// CreateUI -----------------------------------------------------------------------------------------------

TEST(CVqAbstractToolbar, CreateUiOfAMainToolbarMakesThePicker)
{
    TestToolbar bar;
    bar.SetOrientation(EOrientation::Vertical);
    bar.SetFlatStyle(true);

    EXPECT_EQ(bar.CreateUI(g_parent, EToolbarType::Main, VQ_TEXT("main")), 0u);

    EXPECT_EQ(bar.m_picker_name, "main");
    EXPECT_THAT(bar.TakeCalls(),
                ElementsAre("picker.CreateUI 0 = 1", "picker.Set 2309", "picker.Set 2310",
                            "picker.SetOrientation 1", "picker.SetFlatStyle 1"));
    EXPECT_EQ(bar.Order(), "|picker");
    EXPECT_EQ(bar.ThePicker().m_list, bar.m_pControls);
    EXPECT_EQ(bar.ThePicker().m_map, bar.m_pControlIds);
    EXPECT_EQ(bar.GetIdCount(), 0);
}

TEST(CVqAbstractToolbar, CreateUiOfAMainToolbarLeavesHostAndBorders)
{
    TestToolbar bar;
    bar.m_hHost = 6;
    bar.Enable3dBorders(9);

    bar.CreateUI(g_parent, EToolbarType::Main, VQ_TEXT("main"));

    EXPECT_EQ(bar.m_hHost, 6u);
    EXPECT_EQ(bar.m_ui3dBorders, 9u);
    EXPECT_EQ(bar.TakeCalls().front(), "picker.CreateUI 0 = 1");
}

TEST(CVqAbstractToolbar, PickerThatIsNotCreatedIsLeftOutAndDeleted)
{
    TestToolbar bar;
    bar.m_wanted_picker = TestToolbar::Picker::Fails;

    bar.CreateUI(g_parent, EToolbarType::Main, VQ_TEXT("main"));

    EXPECT_THAT(bar.TakeCalls(), ElementsAre("picker.CreateUI 0 = 0", "picker.Delete"));
    EXPECT_EQ(bar.Order(), "");
    EXPECT_EQ(bar.m_pBoundary, nullptr);
}

TEST(CVqAbstractToolbar, NoPickerIsTolerated)
{
    TestToolbar bar(EToolbarType::Main, TestToolbar::Picker::None);

    EXPECT_NE(bar.m_pControls, nullptr);
    EXPECT_EQ(bar.Order(), "");
}

TEST(CVqAbstractToolbar, PickerOfTheAbstractClassIsAPlainControlOfTypeThreeThatDoesNotCreateItself)
{
    PlainToolbar bar;
    const std::unique_ptr<IVqUIcontrol> picker(bar.CreateToolbarPicker(VQ_TEXT("any")));

    bar.CreateUI(g_parent, EToolbarType::Main, VQ_TEXT("main"));

    ASSERT_NE(dynamic_cast<CVqAbstractControl*>(picker.get()), nullptr);
    EXPECT_EQ(dynamic_cast<CVqAbstractControl*>(picker.get())->type(), 3);
    EXPECT_EQ(picker->CreateUI(g_parent), 0u);
    EXPECT_EQ(bar.m_pControls->GetFirst(), nullptr);
    EXPECT_EQ(bar.m_pBoundary, nullptr);
}

TEST(CVqAbstractToolbar, CreateUiOfAHostedToolbarStoresHostAndBordersAndMakesNoPicker)
{
    TestToolbar bar;

    bar.CreateUI(g_parent, EToolbarType::Hosted, VQ_TEXT("tools"));

    EXPECT_EQ(bar.m_eType, EToolbarType::Hosted);
    EXPECT_EQ(bar.m_hHost, g_parent);
    EXPECT_EQ(bar.m_ui3dBorders, 15u);
    EXPECT_NE(bar.m_pControls, nullptr);
    EXPECT_NE(bar.m_pControlIds, nullptr);
    EXPECT_EQ(bar.Order(), "");
    EXPECT_THAT(bar.TakeCalls(), IsEmpty());
}

TEST(CVqAbstractToolbar, CreateUiOfAToolbarInAPickerStoresHostAndBordersAndMakesNoList)
{
    TestToolbar bar;

    bar.CreateUI(g_parent, EToolbarType::InPicker, VQ_TEXT("picked"));

    EXPECT_EQ(bar.m_hHost, g_parent);
    EXPECT_EQ(bar.m_ui3dBorders, 15u);
    EXPECT_EQ(bar.m_pControls, nullptr);
    EXPECT_EQ(bar.m_pControlIds, nullptr);
}

TEST(CVqAbstractToolbar, CreateUiOfAToolbarInAPickerKeepsTheListThatItWasGivenBefore)
{
    TestToolbar main(EToolbarType::Main);
    main.SetBoundary(main.Add("open"));
    TestToolbar bar(main);

    bar.CreateUI(g_parent, EToolbarType::InPicker, VQ_TEXT("picked"));

    EXPECT_THAT(main.TakeCalls(), IsEmpty());
    EXPECT_EQ(main.Order(), "|open picker");
    EXPECT_EQ(bar.m_pControls, main.m_pControls);
    EXPECT_EQ(bar.m_pControlIds, main.m_pControlIds);
    EXPECT_EQ(bar.Walk(), "open");
}

TEST(CVqAbstractToolbar, CreateUiOfAnyOtherTypeMakesAnEmptyListAlone)
{
    for (const EToolbarType type : {EToolbarType::Fixed, EToolbarType(1), EToolbarType(4), EToolbarType(9)}) {
        TestToolbar bar;

        bar.CreateUI(g_parent, type, VQ_TEXT("any"));

        EXPECT_EQ(bar.m_eType, type);
        EXPECT_NE(bar.m_pControls, nullptr);
        EXPECT_EQ(bar.m_hHost, 0u);
        EXPECT_EQ(bar.m_ui3dBorders, 0u);
    }
}

TEST(CVqAbstractToolbar, CreateUiStoresTheNameAndNullKeepsTheEarlierOne)
{
    TestToolbar bar;

    bar.CreateUI(0, EToolbarType::Main, VQ_TEXT("main"));
    bar.CreateUI(0, EToolbarType::Main, nullptr);

    EXPECT_EQ(bar.GetName(), VQ_TEXT("main"));
    EXPECT_EQ(bar.m_picker_name, "null");
}

TEST(CVqAbstractToolbar, CreateUiClearsTheWindowHandle)
{
    TestToolbar bar;
    bar.m_hWindow = 5;

    EXPECT_EQ(bar.CreateUI(g_parent, EToolbarType::Main, nullptr), 0u);

    EXPECT_EQ(bar.m_hWindow, 0u);
}

TEST(CVqAbstractToolbar, CreatedAgainItLosesNothingOfTheFirstLife)
{
    TestToolbar bar(EToolbarType::Main);
    bar.Add("open");

    bar.CreateUI(g_parent, EToolbarType::Hosted, VQ_TEXT("tools"));

    EXPECT_THAT(bar.TakeCalls(),
                ElementsAre("open.DestroyUI", "open.Delete", "picker.DestroyUI", "picker.Delete"));
    EXPECT_EQ(bar.Order(), "");
    EXPECT_EQ(bar.m_hHost, g_parent);
}

// DestroyUI ----------------------------------------------------------------------------------------------

TEST(CVqAbstractToolbar, DestroyUiDestroysAndDeletesAllControlsInOrder)
{
    TestToolbar bar(EToolbarType::Main);
    bar.Add("open");
    bar.Add("save");
    bar.m_hWindow = 5;
    bar.m_hHost = 6;

    bar.DestroyUI();

    EXPECT_THAT(bar.TakeCalls(),
                ElementsAre("open.DestroyUI", "open.Delete", "save.DestroyUI", "save.Delete",
                            "picker.DestroyUI", "picker.Delete"));
    EXPECT_EQ(bar.m_pControls, nullptr);
    EXPECT_EQ(bar.m_pControlIds, nullptr);
    EXPECT_EQ(bar.m_pBoundary, nullptr);
    EXPECT_EQ(bar.m_hWindow, 0u);
    EXPECT_EQ(bar.m_hHost, 0u);
}

TEST(CVqAbstractToolbar, DestroyUiTwiceIsHarmless)
{
    TestToolbar bar(EToolbarType::Main);

    bar.DestroyUI();
    bar.DestroyUI();

    EXPECT_EQ(bar.m_pControls, nullptr);
}

TEST(CVqAbstractToolbar, DestroyUiSkipsNodesWithoutAControl)
{
    TestToolbar bar(EToolbarType::Fixed);
    bar.Add("open");
    bar.m_pControls->Append(nullptr);

    bar.DestroyUI();

    EXPECT_THAT(bar.TakeCalls(), ElementsAre("open.DestroyUI", "open.Delete"));
}

TEST(CVqAbstractToolbar, DestroyUiInAPickerClearsTheHandlesOnly)
{
    TestToolbar main(EToolbarType::Main);
    main.Add("open");
    TestToolbar bar = TestToolbar::InPickerOf(main);
    bar.m_hWindow = 5;
    bar.m_hHost = 6;

    bar.DestroyUI();

    EXPECT_THAT(main.TakeCalls(), IsEmpty());
    EXPECT_EQ(bar.m_pControls, main.m_pControls);
    EXPECT_EQ(bar.m_pControlIds, main.m_pControlIds);
    EXPECT_EQ(bar.m_pBoundary, main.m_pBoundary);
    EXPECT_EQ(bar.m_hWindow, 0u);
    EXPECT_EQ(bar.m_hHost, 0u);
}

// Life of controls ---------------------------------------------------------------------------------------

TEST(CVqAbstractToolbar, ControlDeletedByItsOwnerIsToldInDebugBuilds)
{
#ifdef QT_NO_DEBUG
    GTEST_SKIP() << "assertions are off";
#else
    TestToolbar bar(EToolbarType::Fixed);
    RecordingControl* control = bar.Make("open");
    vq_uint64 id = 0;
    bar.AddControl(*control, id);
    delete control;

    EXPECT_DEATH(bar.Walk(), "");
    EXPECT_DEATH(bar.GetControl(id), "");
    EXPECT_DEATH(bar.DestroyUI(), "");

    bar.m_pControls->DeleteNode(bar.m_pControls->GetFirst()); // what the owner should have seen to
#endif
}
