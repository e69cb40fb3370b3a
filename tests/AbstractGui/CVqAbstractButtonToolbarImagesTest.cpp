#include "tests/AbstractGui/TestBitmapPool.h"
#include "tests/support/TestButtonToolbar.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// A button of two states.
struct Button
{
    TestButtonToolbar bar;
    vq_uint64 id = bar.AddButton(VQ_TEXT("a"));

    Button()
    {
        bar.SetStatesCountOnButton(id, 2);
        bar.Settle();
    }
};

std::string plain(const vq_wchar* text)
{
    return text ? CVqStringW(text).ToQString().toStdString() : "null";
}

/// A hook that gives `g_answer`, and what it was asked.
int g_answer = -1;
CVqAbstractButtonToolbar* g_asking = nullptr;
std::string g_asked;

int answer_bitmap(CVqAbstractButtonToolbar* toolbar, const vq_wchar* file, const vq_wchar* module)
{
    g_asking = toolbar;
    g_asked = plain(file) + ", " + plain(module);
    return g_answer;
}

/// Sets the hook for the time of its life.
class Hook
{
public:
    explicit Hook(int answer)
    {
        g_answer = answer;
        g_asking = nullptr;
        g_asked.clear();
        VQ_SetAskForBitmapCallback(answer_bitmap);
    }
    Hook(const Hook&) = delete;
    Hook& operator=(const Hook&) = delete;
    ~Hook() { VQ_SetAskForBitmapCallback(nullptr); }
};

}

TEST(CVqAbstractButtonToolbarImages, IndexIsSetAndReadByState)
{
    Button button;

    EXPECT_EQ(button.bar.SetBitmapOnButton(button.id, 1, 7u), 0);

    EXPECT_THAT(button.bar.TakeCalls(), ElementsAre("a.Set 260 state 1 7"));
    EXPECT_EQ(button.bar.GetBitmap(button.id, 1), 7);
    EXPECT_EQ(button.bar.GetBitmap(button.id, 0), -1);
}

TEST(CVqAbstractButtonToolbarImages, FileAloneGoesToThePoolWithoutAskingTheHook)
{
    Button button;
    const Hook hook(5);
    TestBitmapPool& pool = TestBitmapPool::Fresh();

    EXPECT_EQ(button.bar.SetBitmapOnButton(button.id, 0, VQ_TEXT("open.svg")), 0);

    EXPECT_THAT(pool.TakeCalls(), ElementsAre("AddImage open.svg, null, null = 100"));
    EXPECT_EQ(g_asked, "");
    EXPECT_EQ(button.bar.GetBitmap(button.id, 0), 100);
}

TEST(CVqAbstractButtonToolbarImages, FileAndModuleGoToThePoolWithoutAHook)
{
    Button button;
    TestBitmapPool& pool = TestBitmapPool::Fresh();

    EXPECT_EQ(button.bar.SetBitmapOnButton(button.id, 0, VQ_TEXT("OPEN"), VQ_TEXT("app.so")), 0);

    EXPECT_THAT(pool.TakeCalls(), ElementsAre("AddImage OPEN, app.so, null = 100"));
    EXPECT_EQ(button.bar.GetBitmap(button.id, 0), 100);
}

TEST(CVqAbstractButtonToolbarImages, HookIsAskedFirstAndZeroIsAnIndex)
{
    Button button;
    const Hook hook(0);
    TestBitmapPool& pool = TestBitmapPool::Fresh();

    EXPECT_EQ(button.bar.SetBitmapOnButton(button.id, 0, VQ_TEXT("OPEN"), VQ_TEXT("app.so")), 0);

    EXPECT_EQ(g_asking, &button.bar);
    EXPECT_EQ(g_asked, "OPEN, app.so");
    EXPECT_THAT(pool.TakeCalls(), IsEmpty());
    EXPECT_EQ(button.bar.GetBitmap(button.id, 0), 0);
}

TEST(CVqAbstractButtonToolbarImages, HookThatGivesMinusOneLeavesItToThePool)
{
    Button button;
    const Hook hook(-1);
    TestBitmapPool& pool = TestBitmapPool::Fresh();

    EXPECT_EQ(button.bar.GetBitmapIndex(VQ_TEXT("OPEN"), nullptr), 100);

    EXPECT_EQ(g_asked, "OPEN, null");
    EXPECT_THAT(pool.TakeCalls(), ElementsAre("AddImage OPEN, null, null = 100"));
}

TEST(CVqAbstractButtonToolbarImages, CodeOfThePoolBecomesTheIndex)
{
    Button button;
    TestBitmapPool::Fresh().SetNextIndex(-13);

    EXPECT_EQ(button.bar.SetBitmapOnButton(button.id, 0, VQ_TEXT("none.svg")), 0);

    EXPECT_EQ(button.bar.GetBitmap(button.id, 0), -13);
}

TEST(CVqAbstractButtonToolbarImages, UnknownButtonHasNoImageAndSettingOneIsNoError)
{
    Button button;
    TestBitmapPool::Fresh();

    EXPECT_EQ(button.bar.SetBitmapOnButton(4711, 0, 7u), 0);
    EXPECT_EQ(button.bar.SetBitmapOnButton(button.id, 9, 7u), 0);

    EXPECT_EQ(button.bar.GetBitmap(4711, 0), -1);
    EXPECT_EQ(button.bar.GetBitmap(button.id, 9), -1);
}

TEST(CVqAbstractButtonToolbarImages, MissingToolbarIsNoErrorAndThePoolGetsTheImageAllTheSame)
{
    NoButtonToolbar bar;
    TestBitmapPool& pool = TestBitmapPool::Fresh();

    EXPECT_EQ(bar.SetBitmapOnButton(1, 0, 7u), 0);
    EXPECT_EQ(bar.SetBitmapOnButton(1, 0, VQ_TEXT("open.svg")), 0);
    EXPECT_EQ(bar.SetBitmapOnButton(1, 0, VQ_TEXT("OPEN"), VQ_TEXT("app.so")), 0);

    EXPECT_EQ(bar.GetBitmap(1, 0), -1);
    EXPECT_EQ(pool.TakeCalls().size(), 2u);
}

TEST(CVqAbstractButtonToolbarHook, IsOneForTheProcessAndNullTakesItAway)
{
    EXPECT_EQ(VQ_GetAskForBitmapCallback(), nullptr);
    {
        const Hook hook(5);
        EXPECT_EQ(VQ_GetAskForBitmapCallback(), answer_bitmap);
    }
    EXPECT_EQ(VQ_GetAskForBitmapCallback(), nullptr);
}

TEST(CVqAbstractButtonToolbarHook, ReplacesTheEarlierOne)
{
    const Hook hook(5);
    const VqAskForBitmapCallback other
        = [](CVqAbstractButtonToolbar*, const vq_wchar*, const vq_wchar*) { return 9; };
    TestButtonToolbar bar;

    VQ_SetAskForBitmapCallback(other);

    EXPECT_EQ(VQ_GetAskForBitmapCallback(), other);
    EXPECT_EQ(bar.GetBitmapIndex(VQ_TEXT("OPEN"), nullptr), 9);
}
