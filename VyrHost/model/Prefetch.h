/// @file
/// Has memory come into the processor's cache before it is needed.
#pragma once

#include <cstddef>

namespace VyrHost::Model {

/// How many turns before its use a loop asks for what does not stand behind what it used last.
inline constexpr std::size_t prefetchDistance = 8;

inline void Prefetch(const void* place) noexcept
{
    __builtin_prefetch(place);
}

} // namespace VyrHost::Model
