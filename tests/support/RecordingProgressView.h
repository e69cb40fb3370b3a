#pragma once

#include "IVqProgressView.h"

#include <memory>
#include <string>
#include <vector>

/// A progress view that shows nothing and writes down each call as a line of text:
///
///     SetPos 3
///     SetLabel "Progress: 50%"
///     SetTitle "Copy (3/10)"
///     ProcessEvents
///     Delete
class RecordingProgressView : public IVqProgressView
{
public:
    using Lines = std::vector<std::string>;

    /// Writes into `calls`, which others may write to as well.
    explicit RecordingProgressView(std::shared_ptr<Lines> calls);
    RecordingProgressView(const RecordingProgressView&) = delete;
    RecordingProgressView& operator=(const RecordingProgressView&) = delete;
    ~RecordingProgressView() override;

    void SetPos(unsigned int position) override;
    void SetLabel(const CVqStringW& label) override;
    void SetTitle(const CVqStringW& title) override;
    void ProcessEvents() override;

private:
    const std::shared_ptr<Lines> m_calls;
};
