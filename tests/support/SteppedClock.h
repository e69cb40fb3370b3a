#pragma once

/// A clock in milliseconds that stands still until a test moves it.
class SteppedClock
{
public:
    double Now()
    {
        ++m_asked;
        return m_now;
    }

    void Set(double milliseconds) { m_now = milliseconds; }
    void Step(double milliseconds) { m_now += milliseconds; }

    /// How often the time was asked for.
    int TimesAsked() const { return m_asked; }

private:
    double m_now = 0;
    int m_asked = 0;
};
