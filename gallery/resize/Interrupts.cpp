#include "gallery/resize/Interrupts.h"

#include <csignal>
#include <iterator>

namespace Gallery {

namespace {

#ifdef SIGHUP
constexpr int g_signals[] = {SIGINT, SIGTERM, SIGHUP};
#else
constexpr int g_signals[] = {SIGINT, SIGTERM};
#endif

volatile std::sig_atomic_t g_caught = 0;
void (*g_before[std::size(g_signals)])(int) = {};

void note(int number)
{
    g_caught = number;
}

}

Interrupts::Interrupts()
{
    g_caught = 0;
    for (std::size_t i = 0; i < std::size(g_signals); ++i) {
        g_before[i] = std::signal(g_signals[i], note);
        if (g_before[i] == SIG_IGN)
            std::signal(g_signals[i], SIG_IGN);
    }
}

Interrupts::~Interrupts()
{
    for (std::size_t i = 0; i < std::size(g_signals); ++i)
        std::signal(g_signals[i], g_before[i]);
}

int Interrupts::Caught()
{
    return g_caught;
}

}
