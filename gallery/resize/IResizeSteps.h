#pragma once

#include <QString>

namespace Gallery {

/// Whoever is told how far work is, and says whether it should end. Called on the thread that works.
class IResizeSteps
{
public:
    /// `position` steps are done.
    virtual void SetPos(unsigned int position) = 0;

    /// The step that begins now.
    virtual void SetLabel(const QString& label) = 0;

    /// Whether the work should end. Asked between steps, so that each is done whole or not at all.
    virtual bool CheckCanceled() = 0;

    virtual ~IResizeSteps() = default;
};

}
