#pragma once

#include "IVqProgressView.h"
#include "gallery/resize/ProgressLine.h"

#include <functional>

namespace Gallery {

/// A progress in one line of a terminal, which it draws anew on each change and clears at its end.
class ProgressBarView : public IVqProgressView
{
public:
    /// `write` writes to the terminal, `columns` gives its width now, `elapsed` the milliseconds since the
    /// work of `range` steps began.
    ProgressBarView(std::function<void(const QString&)> write, std::function<int()> columns,
                    std::function<double()> elapsed, unsigned int range);
    ~ProgressBarView() override;

    void SetPos(unsigned int position) override;
    void SetLabel(const CVqStringW& label) override;

    /// There is no title: the count stands in the line.
    void SetTitle(const CVqStringW&) override { }

    /// Brings the estimate up to date.
    void ProcessEvents() override { draw(); }

private:
    void draw();

    const std::function<void(const QString&)> m_write;
    const std::function<int()> m_columns;
    const std::function<double()> m_elapsed;
    ProgressState m_state;
    QString m_line; // that shows
};

}
