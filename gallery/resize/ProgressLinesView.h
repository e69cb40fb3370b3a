#pragma once

#include "IVqProgressView.h"

#include <QString>

#include <functional>

namespace Gallery {

/// A progress for files and pipes: a line for each step as it begins, such as "3/12 harbour.png".
class ProgressLinesView : public IVqProgressView
{
public:
    /// `write` takes whole lines.
    ProgressLinesView(std::function<void(const QString&)> write, unsigned int range);

    void SetPos(unsigned int position) override { m_position = position; }
    void SetLabel(const CVqStringW& label) override;
    void SetTitle(const CVqStringW&) override { }
    void ProcessEvents() override { }

private:
    const std::function<void(const QString&)> m_write;
    const unsigned int m_range;
    unsigned int m_position = 0;
};

}
