#include "tests/support/CaptureMessages.h"

#include "tests/support/ExpectMessage.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

TEST(CaptureMessages, KeepsTextsInTheirOrder)
{
    const CaptureMessages debug(QtDebugMsg);

    qDebug("first");
    qDebug("second");

    EXPECT_EQ(debug.Texts(), (QStringList{u"first"_s, u"second"_s}));
}

TEST(CaptureMessages, KeepsWarningsFromFailingTheTest)
{
    const CaptureMessages warnings(QtWarningMsg);

    qWarning("captured");

    EXPECT_EQ(warnings.Texts(), QStringList{u"captured"_s});
}

TEST(CaptureMessages, LeavesOtherTypesAlone)
{
    const ExpectMessage warning(QtWarningMsg, u"a warning"_s);
    const CaptureMessages debug(QtDebugMsg);

    qWarning("a warning");

    EXPECT_TRUE(debug.Texts().isEmpty());
}

TEST(CaptureMessages, EndsWithItsScope)
{
    const CaptureMessages outer(QtDebugMsg);

    {
        const CaptureMessages inner(QtDebugMsg);
        qDebug("inside");
    }
    qDebug("after");

    EXPECT_EQ(outer.Texts(), QStringList{u"after"_s});
}
