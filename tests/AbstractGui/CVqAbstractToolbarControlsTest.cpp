#include "tests/support/TestToolbar.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using OwnedControl = std::unique_ptr<RecordingControl>;

}

// AddControl ---------------------------------------------------------------------------------------------

TEST(CVqAbstractToolbarAdd, ControlIsToldTheToolbarsSettings)
{
    TestToolbar bar(EToolbarType::Fixed);
    bar.SetOrientation(EOrientation::Vertical);
    bar.SetFlatStyle(true);
    bar.SetAdditionalToolbarGuiZoom(1.5);
    vq_uint64 id = 0;

    EXPECT_EQ(bar.AddControl(*bar.Make("open"), id), 0);

    EXPECT_THAT(
        bar.TakeCalls(),
        ElementsAre("open.Set 160 1", "open.Set 162 1.5", "open.SetOrientation 1", "open.SetFlatStyle 1"));
}

TEST(CVqAbstractToolbarAdd, EnlargeThatIsOffIsToldAsZero)
{
    TestToolbar bar(EToolbarType::Fixed);
    bar.EnableEnlargeToolbar(false);
    vq_uint64 id = 0;

    bar.AddControl(*bar.Make("open"), id);

    EXPECT_EQ(bar.TakeCalls().front(), "open.Set 160 0");
}

TEST(CVqAbstractToolbarAdd, ControlIsCreatedInTheWindowAfterZoomAndBeforeOrientation)
{
    TestToolbar bar(EToolbarType::Fixed);
    bar.m_hWindow = 9;
    vq_uint64 id = 0;

    EXPECT_EQ(bar.AddControl(*bar.Make("open"), id), 0);

    EXPECT_THAT(bar.TakeCalls(),
                ElementsAre("open.Set 160 1", "open.Set 162 1", "open.CreateUI 9 = 1",
                            "open.SetOrientation 0", "open.SetFlatStyle 0"));
}

TEST(CVqAbstractToolbarAdd, ControlThatIsNotCreatedStaysWithTheCallerAndKeepsWhatItWasTold)
{
    TestToolbar bar(EToolbarType::Fixed);
    bar.m_hWindow = 9;
    const OwnedControl control(bar.Make("open"));
    control->AnswerHandle(0);
    vq_uint64 id = 42;

    EXPECT_EQ(bar.AddControl(*control, id), -9);

    EXPECT_THAT(bar.TakeCalls(), ElementsAre("open.Set 160 1", "open.Set 162 1", "open.CreateUI 9 = 0"));
    EXPECT_EQ(bar.Order(), "");
    EXPECT_EQ(bar.GetIdCount(), 0);
    EXPECT_EQ(id, 42u);
    EXPECT_FALSE(bar.m_bLayoutDirty);
}

TEST(CVqAbstractToolbarAdd, MainToolbarAddsInFrontOfThePicker)
{
    TestToolbar bar(EToolbarType::Main);

    bar.Add("a");
    bar.Add("b");

    EXPECT_EQ(bar.Order(), "a b |picker");
}

TEST(CVqAbstractToolbarAdd, OtherTypesAddAtTheEnd)
{
    for (const EToolbarType type : {EToolbarType::Hosted, EToolbarType::Fixed, EToolbarType(1)}) {
        TestToolbar bar(type);

        bar.Add("a");
        bar.Add("b");

        EXPECT_EQ(bar.Order(), "a b");
    }
}

TEST(CVqAbstractToolbarAdd, InAPickerToolbarItAddsBehindThePicker)
{
    TestToolbar main(EToolbarType::Main);
    TestToolbar bar = TestToolbar::InPickerOf(main);

    bar.Add("a");

    EXPECT_EQ(main.Order(), "|picker a");
}

TEST(CVqAbstractToolbarAdd, PickerIsNotToldEvenWhenTheBoundaryLiesBefore)
{
    TestToolbar bar(EToolbarType::Main);
    bar.SetBoundary(bar.Add("a"));
    vq_uint64 id = 0;

    bar.AddControl(*bar.Make("b"), id);

    EXPECT_EQ(bar.Order(), "|a b picker");
    EXPECT_THAT(bar.TakeCalls(),
                ElementsAre("b.Set 160 1", "b.Set 162 1", "b.SetOrientation 0", "b.SetFlatStyle 0"));
}

TEST(CVqAbstractToolbarAdd, IdentifierIsTheAddressOfTheNameAndIsEnteredInTheMap)
{
    TestToolbar bar(EToolbarType::Main);
    RecordingControl* control = bar.Make("open");
    vq_uint64 id = 0;

    bar.AddControl(*control, id);

    EXPECT_EQ(id, control->GetControlID());
    EXPECT_TRUE(VqEquals(reinterpret_cast<const vq_wchar*>(id), VQ_TEXT("open")));
    EXPECT_EQ(bar.GetControl(id), control);
    EXPECT_EQ(bar.GetIdCount(), 1);
}

TEST(CVqAbstractToolbarAdd, LayoutBecomesDirty)
{
    TestToolbar bar(EToolbarType::Main);

    bar.Add("open");

    EXPECT_TRUE(bar.m_bLayoutDirty);
}

TEST(CVqAbstractToolbarAdd, ControlThatIsPresentIsRefusedAndNothingChanges)
{
    TestToolbar bar(EToolbarType::Main);
    RecordingControl& control = bar.Add("open");
    bar.m_bLayoutDirty = false;
    vq_uint64 id = 42;

    EXPECT_EQ(bar.AddControl(control, id), -9);

    EXPECT_THAT(bar.TakeCalls(), IsEmpty());
    EXPECT_EQ(bar.Order(), "open |picker");
    EXPECT_EQ(id, 42u);
    EXPECT_FALSE(bar.m_bLayoutDirty);
}

TEST(CVqAbstractToolbarAdd, MissingMapIsNoError)
{
    TestToolbar bar(EToolbarType::Fixed);
    const std::unique_ptr<CVqAbstractToolbar::id_map_type> map(bar.m_pControlIds);
    bar.m_pControlIds = nullptr;
    RecordingControl* control = bar.Make("open");
    vq_uint64 id = 0;

    EXPECT_EQ(bar.AddControl(*control, id), 0);

    EXPECT_EQ(id, control->GetControlID());
    EXPECT_EQ(bar.GetControl(id), nullptr);
    EXPECT_EQ(bar.RemoveControl(*control), 0);
    EXPECT_EQ(bar.RemoveAllControls(), 0);
    delete control;
}

TEST(CVqAbstractToolbarAdd, MainToolbarWithoutPickerTakesItsLastControlForIt)
{
    TestToolbar bar(EToolbarType::Main, TestToolbar::Picker::None);

    bar.Add("a");
    bar.Add("b");

    EXPECT_EQ(bar.Order(), "b a");
    EXPECT_EQ(bar.Walk(), "b");
    EXPECT_EQ(bar.GetIdCount(), 2);
}

// AddControlNoCreate -------------------------------------------------------------------------------------

TEST(CVqAbstractToolbarAddNoCreate, ControlOfTheSharedListGetsEnlargeAndZoomOnly)
{
    TestToolbar main(EToolbarType::Main);
    RecordingControl& control = main.Add("open");
    TestToolbar bar = TestToolbar::InPickerOf(main);
    bar.SetAdditionalToolbarGuiZoom(2.0);
    bar.m_hWindow = 9;
    int value = 42;

    EXPECT_EQ(bar.AddControlNoCreate(control, value), 0);

    EXPECT_THAT(main.TakeCalls(), ElementsAre("open.Set 160 1", "open.Set 162 2"));
    EXPECT_EQ(value, 42);
    EXPECT_EQ(main.Order(), "open |picker");
}

TEST(CVqAbstractToolbarAddNoCreate, ForeignControlIsRefused)
{
    TestToolbar main(EToolbarType::Main);
    TestToolbar bar = TestToolbar::InPickerOf(main);
    const OwnedControl control(main.Make("open"));
    int value = 42;

    EXPECT_EQ(bar.AddControlNoCreate(*control, value), -9);

    EXPECT_THAT(main.TakeCalls(), IsEmpty());
}

TEST(CVqAbstractToolbarAddNoCreate, OtherTypesRefuse)
{
    TestToolbar bar(EToolbarType::Main);
    RecordingControl& control = bar.Add("open");
    int value = 42;

    EXPECT_EQ(bar.AddControlNoCreate(control, value), -9);

    EXPECT_THAT(bar.TakeCalls(), IsEmpty());
}
