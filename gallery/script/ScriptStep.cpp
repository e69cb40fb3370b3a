#include "gallery/script/ScriptStep.h"

#include <QStringList>

namespace Gallery {

namespace {

std::optional<ScriptStep> parse(const QString& text)
{
    if (const std::optional<KeyPress> press = ParseKeyPress(text))
        return *press;
    if (const std::optional<MouseStep> step = ParseMouseStep(text))
        return *step;
    return std::nullopt;
}

}

std::optional<QList<ScriptStep>> ParseScript(const QString& text, QString& bad)
{
    QList<ScriptStep> steps;
    for (const QString& part : text.split(u',')) {
        const std::optional<ScriptStep> step = parse(part.trimmed());
        if (!step) {
            bad = part.trimmed();
            return std::nullopt;
        }
        steps << *step;
    }
    return steps;
}

}
