#pragma once

#include "offscreen/OffscreenQuickView.h"

#include <functional>

// The functions that docs/offscreen.md shows.

void load_at_size(OffscreenQuickView& view, const QUrl& url, const QSize& size);
void show_each_frame(OffscreenQuickView& view, const std::function<void(const QImage&)>& show);
QImage grab_beside(OffscreenQuickView& view);
