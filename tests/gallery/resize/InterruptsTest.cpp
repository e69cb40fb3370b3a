#include "gallery/resize/Interrupts.h"

#include <gtest/gtest.h>

#include <csignal>

using Gallery::Interrupts;

namespace {

int g_elsewhere = 0;

void note_elsewhere(int number)
{
    g_elsewhere = number;
}

}

TEST(Interrupts, TheSignalThatCameIsKept)
{
    const Interrupts interrupts;
    EXPECT_EQ(Interrupts::Caught(), 0);

    std::raise(SIGINT);
    EXPECT_EQ(Interrupts::Caught(), SIGINT);
    std::raise(SIGTERM);
    EXPECT_EQ(Interrupts::Caught(), SIGTERM);
}

TEST(Interrupts, ANewObjectForgetsWhatCameBefore)
{
    {
        const Interrupts interrupts;
        std::raise(SIGINT);
    }
    const Interrupts interrupts;

    EXPECT_EQ(Interrupts::Caught(), 0);
}

TEST(Interrupts, AfterItsEndSignalsGoWhereTheyWent)
{
    const auto before = std::signal(SIGINT, note_elsewhere);
    {
        const Interrupts interrupts;
    }
    std::raise(SIGINT);
    std::signal(SIGINT, before);

    EXPECT_EQ(g_elsewhere, SIGINT);
}

TEST(Interrupts, AnIgnoredSignalStaysIgnored)
{
    const auto before = std::signal(SIGINT, SIG_IGN);
    {
        const Interrupts interrupts;
        std::raise(SIGINT);

        EXPECT_EQ(Interrupts::Caught(), 0);
    }
    std::signal(SIGINT, before);
}
