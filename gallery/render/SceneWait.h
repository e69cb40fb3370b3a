#pragma once

#include <chrono>

class OffscreenQuickWindow;

namespace Gallery {

/// Waits until the scene of `window` is complete: two frames in a row have been drawn and no image, font,
/// shape or loader in it was still on its way. Animations are not waited for. Runs the event loop meanwhile.
/// False: `longest` went by first.
bool WaitForScene(OffscreenQuickWindow& window, std::chrono::milliseconds longest);

}
