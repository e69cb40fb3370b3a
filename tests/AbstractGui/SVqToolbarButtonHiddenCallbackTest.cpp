#include "AbstractGui/SVqToolbarButtonHiddenCallback.h"

#include "tests/support/VirtualSlot.h"

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

namespace {

class Observer : public SVqToolbarButtonHiddenCallback
{
public:
    int ButtonHiddenChanged(const vq_wchar*, const vq_wchar*, bool, bool) override { return ++m_calls; }

    int m_calls = 0;
};

class DyingObserver : public Observer
{
public:
    explicit DyingObserver(int* deaths) : m_deaths(deaths) { }
    DyingObserver(const DyingObserver&) = delete;
    DyingObserver& operator=(const DyingObserver&) = delete;
    ~DyingObserver() override { ++*m_deaths; }

private:
    int* const m_deaths;
};

static_assert(std::is_abstract_v<SVqToolbarButtonHiddenCallback>);

}

TEST(SVqToolbarButtonHiddenCallback, ButtonHiddenChangedIsTheFirstVirtualOperation)
{
    EXPECT_EQ(VirtualSlot(&SVqToolbarButtonHiddenCallback::ButtonHiddenChanged), 0u);
}

TEST(SVqToolbarButtonHiddenCallback, CallThroughTheInterfaceReachesTheObserver)
{
    Observer observer;
    SVqToolbarButtonHiddenCallback& interface = observer;

    interface.ButtonHiddenChanged(VQ_TEXT("bar"), nullptr, true, false);

    EXPECT_EQ(observer.m_calls, 1);
}

TEST(SVqToolbarButtonHiddenCallback, ObserverDiesWholeWhenDeletedThroughTheInterface)
{
    int deaths = 0;
    std::unique_ptr<SVqToolbarButtonHiddenCallback> observer = std::make_unique<DyingObserver>(&deaths);

    observer.reset();

    EXPECT_EQ(deaths, 1);
}

TEST(SVqToolbarButtonHiddenCallback, ObserversAreCopiedAndAssigned)
{
    Observer observer;
    observer.m_calls = 3;
    Observer assigned;

    const Observer copy(observer);
    assigned = observer;

    EXPECT_EQ(copy.m_calls, 3);
    EXPECT_EQ(assigned.m_calls, 3);
}
