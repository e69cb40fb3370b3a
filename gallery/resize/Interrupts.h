#pragma once

namespace Gallery {

/// Takes the signals that ask a program to end (Ctrl+C, SIGTERM, a closed terminal) while it lives, so that
/// the work in hand can end well. A signal that was ignored before stays so. One at a time.
class Interrupts
{
public:
    Interrupts();
    ~Interrupts();

    Interrupts(const Interrupts&) = delete;
    Interrupts& operator=(const Interrupts&) = delete;

    /// The number of the signal that came last since the object was made; 0 for none.
    static int Caught();
};

}
