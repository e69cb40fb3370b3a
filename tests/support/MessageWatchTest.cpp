#include "tests/support/MessageWatch.h"

#include <gmock/gmock.h>
#include <gtest/gtest-spi.h>

#include <thread>

using namespace Qt::Literals::StringLiterals;

namespace {

class MockListener : public IMessageListener
{
public:
    MockListener() { MessageWatch::Add(this); }
    ~MockListener() override { MessageWatch::Remove(this); }

    MOCK_METHOD(bool, Take, (QtMsgType, const QString&), (override));
};

using testing::_;
using testing::Return;

}

TEST(MessageWatch, WarningThatNobodyAnnouncedFailsTheTest)
{
    EXPECT_NONFATAL_FAILURE(qWarning("stray"), "nobody announced this message: stray");
}

TEST(MessageWatch, CriticalMessageThatNobodyAnnouncedFailsTheTest)
{
    EXPECT_NONFATAL_FAILURE(qCritical("stray"), "nobody announced this message: stray");
}

TEST(MessageWatch, WarningOfAnotherThreadFailsTheTest)
{
    EXPECT_NONFATAL_FAILURE_ON_ALL_THREADS(std::thread([] { qWarning("stray"); }).join(),
                                           "nobody announced this message: stray");
}

TEST(MessageWatch, DebugAndInfoThatNobodyTakesArePrinted)
{
    testing::internal::CaptureStderr();

    qDebug("a detail");
    qInfo("a fact");

    EXPECT_EQ(testing::internal::GetCapturedStderr(), "a detail\na fact\n");
}

TEST(MessageWatch, ListenerAddedLastIsAskedFirst)
{
    MockListener first;
    MockListener last;
    EXPECT_CALL(last, Take(QtWarningMsg, u"mine"_s)).WillOnce(Return(true));
    EXPECT_CALL(first, Take(_, _)).Times(0);

    qWarning("mine");
}

TEST(MessageWatch, NextListenerIsAskedWhenTheFirstDeclines)
{
    MockListener first;
    MockListener last;
    EXPECT_CALL(last, Take(QtWarningMsg, u"yours"_s)).WillOnce(Return(false));
    EXPECT_CALL(first, Take(QtWarningMsg, u"yours"_s)).WillOnce(Return(true));

    qWarning("yours");
}

TEST(MessageWatch, RemovedListenerIsNotAsked)
{
    MockListener listener;
    EXPECT_CALL(listener, Take(_, _)).Times(0);
    MessageWatch::Remove(&listener);

    EXPECT_NONFATAL_FAILURE(qWarning("stray"), "stray");
}
