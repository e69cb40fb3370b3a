#pragma once

#include <QSize>

#include <cstddef>
#include <vector>

/// Images and drawings are refused beyond this many pixels a side.
constexpr int g_max_image_side = 16384;

/// What an image is drawn in that was asked for as `width` x `height`: a side of 0 or less follows from the
/// other one, and both give the natural size. Empty beyond g_max_image_side.
QSize VqRequestedSize(QSize natural, int width, int height);

/// The largest size of the same ratio that fits into `box`; no side is below 1.
QSize VqFittedSize(QSize natural, QSize box);

/// Which of `sizes`, that are not empty, has to be scaled least to become `target`; of two alike the larger
/// one.
std::size_t VqLeastScaled(const std::vector<QSize>& sizes, QSize target);
