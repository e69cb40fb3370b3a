#pragma once

/// A width and a height, in the unit of whoever passes them (pixels in the abstract GUI). Copied by value.
template <typename T>
struct CVqSizeBase
{
    T m_iWidth{};
    T m_iHeight{};

    friend constexpr bool operator==(const CVqSizeBase&, const CVqSizeBase&) = default;
};
