#pragma once

/// Four values of a rectangle or of four borders: left, top, right, bottom. Nothing here reckons with them;
/// they are copied as they are.
template <typename T>
struct CVqRectBase
{
    T m_iLeft{};
    T m_iTop{};
    T m_iRight{};
    T m_iBottom{};

    friend constexpr bool operator==(const CVqRectBase&, const CVqRectBase&) = default;
};
