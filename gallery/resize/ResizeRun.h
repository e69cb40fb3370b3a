#pragma once

#include "gallery/resize/ResizePlan.h"
#include "gallery/resize/ResizeReport.h"

namespace Gallery {

class IResizeSteps;

/// Resizes the images of `plan` one after the other, each whole or not at all; what fails is left out. One
/// step is one image. Any thread; `steps` is called on it.
ResizeReport RunResize(const ResizePlan& plan, IResizeSteps& steps);

}
