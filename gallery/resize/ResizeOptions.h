#pragma once

#include "gallery/resize/ResizeJob.h"

#include <optional>

QT_BEGIN_NAMESPACE
class QCommandLineParser;
QT_END_NAMESPACE

namespace Gallery {

/// Tells `parser` about --resize and --width.
void DescribeResizeOptions(QCommandLineParser& parser);

/// What these options and the arguments without an option ask for; without --resize a job without folders.
/// Nothing: `error` says in one sentence what is wrong.
std::optional<ResizeJob> ReadResizeJob(const QCommandLineParser& parser, QString& error);

}
