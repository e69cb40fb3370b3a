#include "quick_backend/CVqProgressEstimate.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double g_lately = 15'000;     // ms
constexpr double g_first = 1'000;       // ms
constexpr double g_longest = 3'600'000; // s

/// What an estimate of so many seconds is rounded to.
int step_of(double seconds)
{
    if (seconds < 60)
        return 5;
    return seconds < 3'600 ? 60 : 300;
}

/// Whether `shown` still stands for `seconds`; it lets go later when the time grows than when it shrinks.
bool still_holds(int shown, double seconds)
{
    const int step = step_of(shown);
    return shown > 0 && seconds > shown - step && seconds <= shown + step / 2.0;
}

}

void CVqProgressEstimate::Start(double now)
{
    *this = {};
    m_begin = now;
    m_last = now;
}

void CVqProgressEstimate::Add(double now, unsigned int done)
{
    const double passed = std::max(now - m_last, 0.0);
    const double faded = std::exp(-passed / g_lately);
    const unsigned int highest = std::max(done, m_done);
    m_time = m_time * faded + passed;
    m_steps = m_steps * faded + (highest - m_done);
    m_done = highest;
    m_last = now;
}

int CVqProgressEstimate::SecondsLeft(unsigned int range)
{
    if (m_last - m_begin < g_first || m_done < 2 || m_steps <= 0)
        return m_shown = -1;
    const double left = m_done < range ? double(range - m_done) : 0;
    const double seconds = left * m_time / m_steps / 1'000;
    if (!(seconds <= g_longest))
        return m_shown = -1;
    if (!still_holds(m_shown, seconds)) {
        const int step = step_of(seconds);
        m_shown = int(std::ceil(seconds / step)) * step;
    }
    return m_shown;
}
