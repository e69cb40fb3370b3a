#pragma once

#include <QImage>

#include <gtest/gtest.h>

/// Whether two pictures have the same size and the same pixels.
///
///     EXPECT_TRUE(EqualPictures(view.grab(), expected));
///
/// The storage does not count: pixels are compared as premultiplied colours of 8 bits a channel. A failure
/// tells the sizes, or the first pixel that differs with both colours (#aarrggbb, premultiplied) and how many
/// do. Both pictures are kept as PNG files in a folder of the running test under testing::TempDir(); the
/// failure names them.
testing::AssertionResult EqualPictures(const QImage& picture, const QImage& expected);
