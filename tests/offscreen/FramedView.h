#pragma once

#include "offscreen/OffscreenQuickView.h"
#include "tests/offscreen/Framed.h"

using FramedView = Framed<OffscreenQuickView>;
