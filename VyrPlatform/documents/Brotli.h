/// @file
/// Unpacks Brotli data.
#pragma once

#include <VyrPlatform/Export.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace VyrPlatform::Brotli {

/// Whether this system can unpack: yes on Linux, no on Windows.
[[nodiscard]] VYR_PLATFORM_API bool IsAvailable() noexcept;

/// The first `limit` bytes of `packed`, unpacked; fewer when it is damaged or truncated, none where the system cannot
/// unpack.
[[nodiscard]] VYR_PLATFORM_API std::string Unpack(std::string_view packed, std::size_t limit);

} // namespace VyrPlatform::Brotli
