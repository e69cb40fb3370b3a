#pragma once

namespace Gallery {

/// Adds what registers the gallery's QML types, and those of K7.Arbor, to Quick::Register. To be called once;
/// Quick::Register::Init() comes afterwards, and then the first engine.
void AddRegistrators();

}
