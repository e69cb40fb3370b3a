#pragma once

#include "gallery/render/RenderJob.h"

#include <QVariant>

#include <optional>

namespace Gallery {

/// `value.text` in the type of the property `value.name` of `object`: true or false, a number, a colour, the
/// name of an enumeration's key, an address or a text; for a property of any type, what the text looks like.
/// Nothing: there is no such property, it can only be read, or the text does not fit; `error` says so in one
/// sentence.
std::optional<QVariant> ReadPropertyText(QObject& object, const RenderValue& value, QString& error);

}
