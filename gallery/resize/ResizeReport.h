#pragma once

#include <QList>
#include <QString>

namespace Gallery {

/// An image that could not be resized.
struct ResizeFailure
{
    QString name;   ///< In the source folder.
    QString reason; ///< To be read behind the name.

    bool operator==(const ResizeFailure&) const = default;
};

/// What became of a plan.
struct ResizeReport
{
    qsizetype images = 0; ///< That the plan has.
    qsizetype done = 0;
    QList<ResizeFailure> failures; ///< In the order of the plan.
    bool canceled = false;         ///< Some images were not reached.
};

/// `report` in one line, such as "Images resized: 9 of 12. Failed: 3."
QString ResizeSummary(const ResizeReport& report);

}
