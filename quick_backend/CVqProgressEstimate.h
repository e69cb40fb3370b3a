#pragma once

/// How long work still takes, judged by how fast it went lately.
///
/// Lately is a quarter of a minute, fading: a pause or a fast start lets the estimate move slowly. Times are
/// in milliseconds of any clock. Everything is counted in 53 bits, so long work does not wrap.
class CVqProgressEstimate
{
public:
    /// Forgets all samples; the work is at its beginning.
    void Start(double now);

    /// `done` steps are done. A number that goes back counts as no progress.
    void Add(double now, unsigned int done);

    /// What to show for work of `range` steps: seconds, rounded up to 5 seconds, to minutes, and from an hour
    /// on to 5 minutes. Keeps its last answer while the estimate moves by less than a part of that step. -1
    /// in the first second, before the second step, and when it would be more than 1000 hours.
    int SecondsLeft(unsigned int range);

private:
    double m_begin = 0;
    double m_last = 0;       // when the last sample came
    double m_time = 0;       // ms that samples cover, faded
    double m_steps = 0;      // steps in that time, faded
    unsigned int m_done = 0; // the highest so far
    int m_shown = -1;
};
