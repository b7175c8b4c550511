// Values of the system's structures as the file services need them.
#pragma once

#include <VyrPlatform/files/FileTicks.h>

#include <windows.h>

namespace VyrPlatform {

/// Two halves as one number.
[[nodiscard]] inline std::int64_t Combine(DWORD high, DWORD low) noexcept
{
    return static_cast<std::int64_t>(static_cast<std::uint64_t>(high) << 32 | low);
}

/// Whether a found entry leads to another path (a symbolic link, a junction), in contrast to other reparse points
/// (files that are compressed or kept online).
[[nodiscard]] inline bool IsLink(const WIN32_FIND_DATAW& found) noexcept
{
    return (found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) && IsReparseTagNameSurrogate(found.dwReserved0);
}

} // namespace VyrPlatform
