#pragma once

#include "gallery/resize/ResizeJob.h"

#include <QByteArray>
#include <QList>

#include <optional>

namespace Gallery {

/// One image of a plan.
struct ResizeItem
{
    QString from;      ///< Its name in the source folder.
    QString to;        ///< Its name in the target folder; no two images have the same.
    QByteArray format; ///< What it is written as, such as "jpeg".

    bool operator==(const ResizeItem&) const = default;
};

/// A job that can be done, with the images that it is about, by name.
struct ResizePlan
{
    ResizeJob job;
    QList<ResizeItem> items;
};

/// Looks for the images of `job` and makes the target folder, if there are any images.
///
/// An image is a file whose extension or content is that of a format that Qt reads; hidden files and the
/// folders in the source folder are left alone. An image keeps its format, and its name with it, where Qt
/// writes that format, and becomes a PNG otherwise. Nothing: `error` says in one sentence what is wrong.
std::optional<ResizePlan> PlanResize(const ResizeJob& job, QString& error);

}
