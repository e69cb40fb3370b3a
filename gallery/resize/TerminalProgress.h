#pragma once

#include "DelayedProgressWndBase.h"

#include <functional>

namespace Gallery {

/// A progress that shows in a terminal once its delay is over. There is no event loop: it shows when a
/// position or a label is set.
class TerminalProgress : public QmlSupport::CVqDelayedProgressWndBase
{
    Q_OBJECT

public:
    /// The milliseconds since the work began.
    using Clock = std::function<double()>;
    using MakeView = std::function<IVqProgressView*()>;

    /// Work of `range` steps begins now. `make_view` is called once, after `delay` milliseconds of `elapsed`.
    TerminalProgress(unsigned int range, unsigned int delay, MakeView make_view, Clock elapsed);

protected:
    double currentTimeMs() override { return m_elapsed(); }
    void positionChanged() override;

private:
    const MakeView m_make_view;
    const Clock m_elapsed;
};

}
