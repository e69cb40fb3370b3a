#include "gallery/resize/ResizeConsole.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(ResizeConsole, TextsGoToTheirStreams)
{
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    const Gallery::ResizeConsole console = Gallery::StandardConsole();

    console.out(u"Grün\n"_s);
    console.err(u"a.png: it is cut off\n"_s);

    EXPECT_EQ(testing::internal::GetCapturedStdout(), "Gr\u00fcn\n");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "a.png: it is cut off\n");
}

TEST(ResizeConsole, AFileIsNoTerminal)
{
    testing::internal::CaptureStdout();
    const Gallery::ResizeConsole console = Gallery::StandardConsole();
    testing::internal::GetCapturedStdout();

    EXPECT_FALSE(console.columns);
}

TEST(ResizeConsole, TimeBeginsWithTheConsole)
{
    const Gallery::ResizeConsole console = Gallery::StandardConsole();

    EXPECT_GE(console.elapsed(), 0);
}
