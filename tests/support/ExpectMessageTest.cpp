#include "tests/support/ExpectMessage.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

TEST(ExpectMessage, TakesTheAnnouncedWarning)
{
    const ExpectMessage warning(QtWarningMsg, u"row 3 is out of range"_s);

    qWarning("row %d is out of range", 3);

    EXPECT_TRUE(warning.HasCome());
}

TEST(ExpectMessage, TakesAPartOfTheTextWhenAsked)
{
    const ExpectMessage warning(QtWarningMsg, u"out of range"_s, ExpectMessage::Match::Contains);

    qWarning("row %d is out of range", 3);

    EXPECT_TRUE(warning.HasCome());
}

TEST(ExpectMessage, TakesCriticalAndDebugMessages)
{
    const ExpectMessage critical(QtCriticalMsg, u"disk full"_s);
    const ExpectMessage debug(QtDebugMsg, u"written"_s);

    qCritical("disk full");
    qDebug("written");

    EXPECT_TRUE(critical.HasCome());
    EXPECT_TRUE(debug.HasCome());
}

TEST(ExpectMessage, FailsWhenTheMessageDidNotCome)
{
    EXPECT_NONFATAL_FAILURE(
        { const ExpectMessage warning(QtWarningMsg, u"never"_s); }, "this message did not come: never");
}

TEST(ExpectMessage, LeavesAMessageOfAnotherTypeAlone)
{
    EXPECT_NONFATAL_FAILURE(
        {
            const ExpectMessage debug(QtDebugMsg, u"same words"_s);
            qDebug("same words");
            qWarning("same words");
        },
        "nobody announced this message: same words");
}

TEST(ExpectMessage, LeavesALongerTextAloneWhenExact)
{
    const ExpectMessage longer(QtWarningMsg, u"row 31"_s);
    const ExpectMessage exact(QtWarningMsg, u"row 3"_s);

    qWarning("row 31");

    EXPECT_TRUE(longer.HasCome());
    EXPECT_FALSE(exact.HasCome());
    qWarning("row 3");
}

TEST(ExpectMessage, TakesOneMessageOnly)
{
    EXPECT_NONFATAL_FAILURE(
        {
            const ExpectMessage warning(QtWarningMsg, u"twice"_s);
            qWarning("twice");
            qWarning("twice");
        },
        "nobody announced this message: twice");
}

TEST(ExpectMessage, TwoAnnouncementsTakeTwoMessages)
{
    const ExpectMessage first(QtWarningMsg, u"twice"_s);
    const ExpectMessage second(QtWarningMsg, u"twice"_s);

    qWarning("twice");
    qWarning("twice");

    EXPECT_TRUE(first.HasCome());
    EXPECT_TRUE(second.HasCome());
}
