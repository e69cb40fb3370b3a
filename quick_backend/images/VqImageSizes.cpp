#include "quick_backend/images/VqImageSizes.h"

#include <algorithm>
#include <cmath>

namespace {

// The side that keeps the ratio, at least 1.
int other_side(int side, int natural_side, int natural_other)
{
    const double other = double(side) * natural_other / natural_side;
    return int(std::clamp(std::round(other), 1.0, g_max_image_side + 1.0));
}

double scaling(QSize from, QSize to)
{
    return std::abs(std::log(double(to.width()) / from.width()))
        + std::abs(std::log(double(to.height()) / from.height()));
}

}

QSize VqRequestedSize(QSize natural, int width, int height)
{
    QSize size(width, height);
    if (width <= 0 && height <= 0)
        size = natural;
    else if (width <= 0)
        size.setWidth(other_side(height, natural.height(), natural.width()));
    else if (height <= 0)
        size.setHeight(other_side(width, natural.width(), natural.height()));
    return std::max(size.width(), size.height()) <= g_max_image_side ? size : QSize();
}

QSize VqFittedSize(QSize natural, QSize box)
{
    const QSize narrow(box.width(), other_side(box.width(), natural.width(), natural.height()));
    if (narrow.height() <= box.height())
        return narrow;
    return {std::min(box.width(), other_side(box.height(), natural.height(), natural.width())), box.height()};
}

std::size_t VqLeastScaled(const std::vector<QSize>& sizes, QSize target)
{
    constexpr double alike = 1e-9;
    std::size_t best = 0;
    for (std::size_t at = 1; at < sizes.size(); ++at) {
        const double gain = scaling(sizes[best], target) - scaling(sizes[at], target);
        if (gain > alike || (gain >= -alike && sizes[at].width() > sizes[best].width()))
            best = at;
    }
    return best;
}
