#include "quick_backend/toolbar/CVqQuickSeparator.h"

#include "AbstractGui/VqControlCodes.h"
#include "quick_backend/toolbar/CVqQuickButton.h"

CVqQuickSeparator::CVqQuickSeparator() : CVqQuickControl(Separator) { }

int CVqQuickSeparator::Get(unsigned code, vq_int64 index, void* data)
{
    if (code != vq_control_separator && code != vq_control_stays_last)
        return CVqQuickControl::Get(code, index, data);
    if (!data)
        return -9;
    *static_cast<vq_int32*>(data) = code == vq_control_separator ? 1 : 0;
    return 0;
}

CVqSizeBase<int> CVqQuickSeparator::NaturalSize() const
{
    const int length = Zoomed(Length);
    const int breadth = Zoomed(CVqQuickButton::ImageSide);
    return IsVertical() ? CVqSizeBase<int>{breadth, length} : CVqSizeBase<int>{length, breadth};
}
