#include "arbor_qml_support.h"

#include "tests/support/CaptureMessages.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

using namespace Qt::Literals::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

// The list of registrators is never cleared, so each case takes its own out of action at its end, and a case
// with one that cannot be taken out of action runs in a process of its own.

namespace {

/// What the registrators of one case did. They do nothing more once it is gone.
class Calls
{
public:
    void Add(const std::string& name, const std::function<void()>& action = [] { })
    {
        Quick::Register::AddRegistrator([calls = std::weak_ptr(m_names), name, action] {
            if (const auto alive = calls.lock()) {
                alive->push_back(name);
                action();
            }
        });
    }

    const std::vector<std::string>& Names() const { return *m_names; }

private:
    std::shared_ptr<std::vector<std::string>> m_names = std::make_shared<std::vector<std::string>>();
};

int g_static_runs = 0;

const bool g_added_while_loading
    = (Quick::Register::AddRegistrator([] { ++g_static_runs; }), true); // NOLINT: may not throw

bool init_throws_bad_function_call()
{
    try {
        Quick::Register::Init();
    } catch (const std::bad_function_call&) {
        return true;
    }
    return false;
}

// Where an assertion of this process would not be heard.
void exit_with(bool is_right)
{
    std::_Exit(is_right ? 0 : 1);
}

class QuickRegister : public testing::Test
{
protected:
    QuickRegister() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }

    Calls m_calls;
};

}

TEST_F(QuickRegister, AddRegistratorCallsNothing)
{
    m_calls.Add("first");

    EXPECT_THAT(m_calls.Names(), IsEmpty());
}

TEST_F(QuickRegister, InitCallsAllInTheOrderOfAdding)
{
    m_calls.Add("first");
    m_calls.Add("second");
    m_calls.Add("third");

    Quick::Register::Init();

    EXPECT_THAT(m_calls.Names(), ElementsAre("first", "second", "third"));
}

TEST_F(QuickRegister, TwoCallsOfInitRunEachRegistratorTwice)
{
    m_calls.Add("first");
    m_calls.Add("second");

    Quick::Register::Init();
    Quick::Register::Init();

    EXPECT_THAT(m_calls.Names(), ElementsAre("first", "second", "first", "second"));
}

TEST_F(QuickRegister, SameFunctionAddedTwiceRunsTwice)
{
    int runs = 0;
    const auto counter = std::make_shared<int*>(&runs);
    const std::function<void()> same = [counter] {
        if (*counter)
            ++**counter;
    };

    Quick::Register::AddRegistrator(same);
    Quick::Register::AddRegistrator(same);
    Quick::Register::Init();
    *counter = nullptr;

    EXPECT_EQ(runs, 2);
}

TEST_F(QuickRegister, RegistratorOfAStaticInitialiserRuns)
{
    const int before = g_static_runs;

    Quick::Register::Init();

    EXPECT_TRUE(g_added_while_loading);
    EXPECT_EQ(g_static_runs, before + 1);
}

TEST_F(QuickRegister, SecondOfThreeThatThrowsKeepsTheThirdFromRunning)
{
    m_calls.Add("first");
    m_calls.Add("second", [] { throw std::out_of_range("of the second"); });
    m_calls.Add("third");

    EXPECT_THROW(Quick::Register::Init(), std::out_of_range);

    EXPECT_THAT(m_calls.Names(), ElementsAre("first", "second"));
}

TEST_F(QuickRegister, InitBehindAThrowStartsAgainFromTheHeadWithAllKept)
{
    bool is_armed = true;
    m_calls.Add("first");
    m_calls.Add("second", [&] {
        if (is_armed)
            throw std::out_of_range("of the second");
    });
    m_calls.Add("third");
    EXPECT_THROW(Quick::Register::Init(), std::out_of_range);

    is_armed = false;
    Quick::Register::Init();

    EXPECT_THAT(m_calls.Names(), ElementsAre("first", "second", "first", "second", "third"));
}

TEST_F(QuickRegister, RegistratorAddedDuringInitIsReachedByTheSameWalk)
{
    bool is_first_run = true;
    m_calls.Add("first", [&] {
        if (is_first_run)
            m_calls.Add("added");
        is_first_run = false;
    });
    m_calls.Add("second");

    Quick::Register::Init();

    EXPECT_THAT(m_calls.Names(), ElementsAre("first", "second", "added"));
}

TEST_F(QuickRegister, InitCallsACopyWhoseStateTheNextInitDoesNotSee)
{
    std::vector<int> seen;
    const auto alive = std::make_shared<std::vector<int>*>(&seen);
    Quick::Register::AddRegistrator([alive, count = 0]() mutable {
        ++count;
        if (*alive)
            (*alive)->push_back(count);
    });

    Quick::Register::Init();
    Quick::Register::Init();
    *alive = nullptr;

    EXPECT_THAT(seen, ElementsAre(1, 1));
}

TEST_F(QuickRegister, CopyIsGoneAfterTheCall)
{
    long during = 0;
    const auto held = std::make_shared<long*>(&during);
    Quick::Register::AddRegistrator([held] {
        if (*held)
            **held = held.use_count();
    });
    const long before = held.use_count();

    Quick::Register::Init();
    *held = nullptr;

    EXPECT_EQ(during, before + 1);
    EXPECT_EQ(held.use_count(), before);
}

TEST_F(QuickRegister, ListKeepsACopyOfItsOwn)
{
    int runs = 0;
    const auto counter = std::make_shared<int*>(&runs);
    std::function<void()> registrator = [counter] {
        if (*counter)
            ++**counter;
    };

    Quick::Register::AddRegistrator(registrator);
    registrator = nullptr;
    Quick::Register::Init();
    *counter = nullptr;

    EXPECT_EQ(runs, 1);
}

TEST_F(QuickRegister, EmptyFunctionIsNoErrorUntilInitReachesIt)
{
    const auto add_and_init = [this] {
        m_calls.Add("first");
        Quick::Register::AddRegistrator(std::function<void()>());
        m_calls.Add("behind");
        exit_with(m_calls.Names().empty() && init_throws_bad_function_call()
                  && m_calls.Names() == std::vector<std::string>{"first"});
    };

    EXPECT_EXIT(add_and_init(), testing::ExitedWithCode(0), "");
}

TEST_F(QuickRegister, EmptyFunctionStaysInTheList)
{
    const auto init_twice = [this] {
        m_calls.Add("first");
        Quick::Register::AddRegistrator(nullptr);
        exit_with(init_throws_bad_function_call() && init_throws_bad_function_call()
                  && m_calls.Names() == std::vector<std::string>{"first", "first"});
    };

    EXPECT_EXIT(init_twice(), testing::ExitedWithCode(0), "");
}

TEST_F(QuickRegister, TraceQmlRegistrationHasNoObservableEffect)
{
    const CaptureMessages debug(QtDebugMsg);
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();

    Quick::Register::detail::TraceQmlRegistration(0, 0, QString(), QString());
    Quick::Register::detail::TraceQmlRegistration(-1, 2, u"Shop"_s, u"GuiSupport"_s);

    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_TRUE(debug.Texts().isEmpty());
}
