#include "DelayedProgressWndBase.h"

#include "tests/RecordedProgressWnd.h"

#include <QMetaMethod>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <utility>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// Tells when it is deleted whether a progress was visible then.
class LastLook : public RecordingProgressView
{
public:
    LastLook(std::shared_ptr<Lines> calls, bool* visible)
        : RecordingProgressView(std::move(calls)), m_visible(visible)
    { }
    LastLook(const LastLook&) = delete;
    LastLook& operator=(const LastLook&) = delete;
    ~LastLook() override { *m_visible = RecordedProgressWnd::m_bProgressVisible; }

private:
    bool* const m_visible;
};

}

TEST(CVqDelayedProgressWndBase, ConstructorStoresItsArguments)
{
    const RecordedProgressWnd window(VQ_TEXT("Copy"), 4294967295, 500, true, 0);

    EXPECT_EQ(window.m_strTitle, VQ_TEXT("Copy"));
    EXPECT_EQ(window.m_uiRange, 4294967295u);
    EXPECT_EQ(window.m_uiDelay, 500u);
    EXPECT_TRUE(window.m_bSuppressOtherWnds);
}

TEST(CVqDelayedProgressWndBase, NewWindowHasNoViewAndNothingDone)
{
    const RecordedProgressWnd window(0);

    EXPECT_EQ(window.m_pView, nullptr);
    EXPECT_EQ(window.m_uiPos, 0u);
    EXPECT_FALSE(window.m_bCanceled);
    EXPECT_THAT(*window.Calls(), IsEmpty());
}

TEST(CVqDelayedProgressWndBase, TitleIsACopy)
{
    vq_wchar text[] = VQ_TEXT("Copy");
    const RecordedProgressWnd window(text, 10, 0, false, 0);

    text[0] = VQ_TEXT('X');

    EXPECT_EQ(window.m_strTitle, VQ_TEXT("Copy"));
}

TEST(CVqDelayedProgressWndBase, NullTitleIsTheEmptyText)
{
    RecordedProgressWnd window(nullptr, 10, 0, false, 0);
    EXPECT_TRUE(window.m_strTitle.IsEmpty());

    window.setTitle(VQ_TEXT("Move"));
    window.setTitle(nullptr);

    EXPECT_TRUE(window.m_strTitle.IsEmpty());
}

TEST(CVqDelayedProgressWndBase, SettersStoreAndTellTheViewNothing)
{
    RecordedProgressWnd window(7);
    window.MakeView();

    window.setTitle(VQ_TEXT("Move"));
    window.setRange(20);
    window.setDelay(700);
    window.setSuppressOtherWnds(false);
    window.setFlags(0);

    EXPECT_EQ(window.m_strTitle, VQ_TEXT("Move"));
    EXPECT_EQ(window.m_uiRange, 20u);
    EXPECT_EQ(window.m_uiDelay, 700u);
    EXPECT_FALSE(window.m_bSuppressOtherWnds);
    EXPECT_THAT(*window.Calls(), IsEmpty());
}

TEST(CVqDelayedProgressWndBase, HasNoNativeWindow)
{
    RecordedProgressWnd window(0);

    EXPECT_EQ(window.GetHandle(), nullptr);
}

TEST(CVqDelayedProgressWndBase, PositionIsTakenAddedToAndCounted)
{
    RecordedProgressWnd window(0);
    window.MakeView();

    window.SetPos(3);
    window.SetPosRelative(4);
    window.IncrementPos();

    EXPECT_THAT(*window.Calls(),
                ElementsAre("positionChanged 3", "SetPos 3", "positionChanged 7", "SetPos 7",
                            "positionChanged 8", "SetPos 8"));
}

TEST(CVqDelayedProgressWndBase, PositionMayStayAndGoBack)
{
    RecordedProgressWnd window(0);
    window.MakeView();

    window.SetPos(3);
    window.SetPos(3);
    window.SetPos(1);

    EXPECT_THAT(*window.Calls(),
                ElementsAre("positionChanged 3", "SetPos 3", "positionChanged 3", "SetPos 3",
                            "positionChanged 1", "SetPos 1"));
}

TEST(CVqDelayedProgressWndBase, RelativePositionPassesTheRange)
{
    RecordedProgressWnd window(0);
    window.MakeView();
    window.SetPos(8);

    window.SetPosRelative(5);

    EXPECT_EQ(window.Last("SetPos "), "13");
}

TEST(CVqDelayedProgressWndBase, PositionWrapsAt32Bits)
{
    RecordedProgressWnd window(0);
    window.MakeView();

    window.SetPos(4294967295);
    window.IncrementPos();
    EXPECT_EQ(window.Last("SetPos "), "0");

    window.SetPos(7);
    window.SetPosRelative(4294967294);
    EXPECT_EQ(window.Last("SetPos "), "5");
}

TEST(CVqDelayedProgressWndBase, ViewIsToldLabelTitleAndPositionAfterTheChange)
{
    RecordedProgressWnd window(6);
    window.MakeView();

    window.SetPos(5);

    EXPECT_THAT(*window.Calls(),
                ElementsAre("positionChanged 5", "SetLabel \"Progress: 50%\"", "SetTitle \"Copy (5/10)\"",
                            "SetPos 5"));
}

TEST(CVqDelayedProgressWndBase, AViewMadeOnTheChangeIsToldOfIt)
{
    RecordedProgressWnd window(4);
    window.MakeViewOnChange();

    window.SetPos(5);

    EXPECT_THAT(*window.Calls(), ElementsAre("positionChanged 5", "SetLabel \"Progress: 50%\"", "SetPos 5"));
}

TEST(CVqDelayedProgressWndBase, WithoutAViewOnlyThePositionChanges)
{
    RecordedProgressWnd window(7);

    window.SetPos(5);
    window.UpdateLabel(5);

    EXPECT_EQ(window.m_uiPos, 5u);
    EXPECT_THAT(*window.Calls(), ElementsAre("positionChanged 5"));
}

TEST(CVqDelayedProgressWndBase, FlagsThatShowNothingLeaveTheLabelAlone)
{
    RecordedProgressWnd window(8 + 16 + 32);
    window.MakeView();

    window.SetPos(5);

    EXPECT_THAT(*window.Calls(), ElementsAre("positionChanged 5", "SetPos 5"));
}

TEST(CVqDelayedProgressWndBase, OwnLabelIsShownAfterTheChange)
{
    RecordedProgressWnd window(0);
    window.MakeView();

    window.SetLabel(CVqStringW(VQ_TEXT("Reading headers")));

    EXPECT_THAT(*window.Calls(), ElementsAre("positionChanged 0", "SetLabel \"Reading headers\""));
}

TEST(CVqDelayedProgressWndBase, OwnLabelMayBeEmpty)
{
    RecordedProgressWnd window(0);
    window.MakeView();

    window.SetLabel(CVqStringW());

    EXPECT_EQ(window.Label(), "\"\"");
}

TEST(CVqDelayedProgressWndBase, OwnLabelWithoutAViewIsOnlyNoted)
{
    RecordedProgressWnd window(0);

    window.SetLabel(CVqStringW(VQ_TEXT("Reading headers")));

    EXPECT_TRUE(window.m_bLabelSet);
    EXPECT_THAT(*window.Calls(), ElementsAre("positionChanged 0"));
}

TEST(CVqDelayedProgressWndBase, NextPositionReplacesAnOwnLabelWhereFlagsShowOne)
{
    RecordedProgressWnd window(4);
    window.MakeView();
    window.SetLabel(CVqStringW(VQ_TEXT("Reading headers")));

    window.SetPos(5);

    EXPECT_EQ(window.Label(), "\"Progress: 50%\"");
}

TEST(CVqDelayedProgressWndBase, DestructorDeletesTheViewOnceWhileStillVisible)
{
    bool visible = false;
    auto window = std::make_unique<RecordedProgressWnd>(0);
    const auto calls = window->Calls();
    window->m_pView = new LastLook(calls, &visible);

    window.reset();

    EXPECT_THAT(*calls, ElementsAre("Delete"));
    EXPECT_TRUE(visible);
}

TEST(CVqDelayedProgressWndBase, VisibleIsTrueFromConstructionWhateverTheDelay)
{
    for (const unsigned int delay : {0u, 4294967295u}) {
        EXPECT_FALSE(RecordedProgressWnd::m_bProgressVisible);
        const RecordedProgressWnd window(VQ_TEXT("Copy"), 10, delay, false, 0);
        EXPECT_TRUE(RecordedProgressWnd::m_bProgressVisible);
    }
    EXPECT_FALSE(RecordedProgressWnd::m_bProgressVisible);
}

TEST(CVqDelayedProgressWndBase, VisibleIsFalseAfterTheFirstOfTwoWindowsHasGone)
{
    const RecordedProgressWnd outer(0);

    std::make_unique<RecordedProgressWnd>(0).reset();

    EXPECT_FALSE(RecordedProgressWnd::m_bProgressVisible);
}

TEST(CVqDelayedProgressWndBase, AnyProgressIsSaidToBeVisibleAlways)
{
    EXPECT_TRUE(RecordedProgressWnd::IsAnyProgressVisible());
    {
        const RecordedProgressWnd window(0);
        EXPECT_TRUE(RecordedProgressWnd::IsAnyProgressVisible());
    }
    EXPECT_TRUE(RecordedProgressWnd::IsAnyProgressVisible());
}

TEST(CVqDelayedProgressWndBase, MetaObjectHasOneSignalOfItsOwnAndNothingElse)
{
    const QMetaObject& meta = QmlSupport::CVqDelayedProgressWndBase::staticMetaObject;

    EXPECT_STREQ(meta.className(), "QmlSupport::CVqDelayedProgressWndBase");
    EXPECT_EQ(meta.superClass(), &QObject::staticMetaObject);
    ASSERT_EQ(meta.methodCount() - meta.methodOffset(), 1);
    const QMetaMethod method = meta.method(meta.methodOffset());
    EXPECT_EQ(method.methodSignature(), "delayElapsed()");
    EXPECT_EQ(method.methodType(), QMetaMethod::Signal);
    EXPECT_EQ(meta.propertyCount(), meta.propertyOffset());
}

TEST(CVqDelayedProgressWndBase, DelayElapsedReachesReceiversAndIsSentByNothingHere)
{
    RecordedProgressWnd window(7);
    window.MakeView();
    int elapsed = 0;
    QObject::connect(&window, &RecordedProgressWnd::delayElapsed, [&elapsed] { ++elapsed; });

    window.Clock().Step(10000);
    window.SetPos(5);
    window.SetLabel(CVqStringW(VQ_TEXT("Reading headers")));
    window.CheckCanceled();
    EXPECT_EQ(elapsed, 0);

    Q_EMIT window.delayElapsed();
    EXPECT_EQ(elapsed, 1);
}
