/// @file
/// The rectangle of the platform class library.
#pragma once

#include <cstdint>

/// A rectangle in pixels; its right and bottom edges are not part of it. Same layout as the system's own.
struct CRect
{
    CRect() noexcept = default;
    CRect(std::int32_t leftEdge, std::int32_t topEdge, std::int32_t rightEdge, std::int32_t bottomEdge) noexcept
        : left(leftEdge), top(topEdge), right(rightEdge), bottom(bottomEdge)
    {}

    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;
};
