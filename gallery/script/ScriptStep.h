#pragma once

#include "gallery/script/KeyPress.h"
#include "gallery/script/MouseStep.h"

#include <QList>

#include <variant>

namespace Gallery {

/// One step of a script.
using ScriptStep = std::variant<KeyPress, MouseStep>;

/// Reads keys and mouse steps separated by commas. None when one is neither; `bad` is then that one.
std::optional<QList<ScriptStep>> ParseScript(const QString& text, QString& bad);

}
