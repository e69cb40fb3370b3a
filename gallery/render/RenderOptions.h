#pragma once

#include "gallery/render/RenderJob.h"

#include <optional>

QT_BEGIN_NAMESPACE
class QCommandLineParser;
QT_END_NAMESPACE

namespace Gallery {

/// Tells `parser` about --render, --size, --out and --set.
void DescribeRenderOptions(QCommandLineParser& parser);

/// What these options ask for; without --render a job without a file. Nothing: `error` says in one sentence
/// what is wrong.
std::optional<RenderJob> ReadRenderJob(const QCommandLineParser& parser, QString& error);

}
