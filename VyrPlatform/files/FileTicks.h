/// @file
/// The system's file times as numbers.
#pragma once

#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/files/FileTimes.h>

#include <cstdint>

namespace VyrPlatform {

/// The number that the two halves of `time` make.
[[nodiscard]] constexpr FileTicks ToTicks(const FILETIME& time) noexcept
{
    return static_cast<FileTicks>(std::uint64_t{time.dwHighDateTime} << 32 | time.dwLowDateTime);
}

/// The inverse of ToTicks.
[[nodiscard]] constexpr FILETIME ToFileTime(FileTicks ticks) noexcept
{
    const auto bits = static_cast<std::uint64_t>(ticks);
    return {static_cast<DWORD>(bits & 0xFFFF'FFFF), static_cast<DWORD>(bits >> 32)};
}

} // namespace VyrPlatform
