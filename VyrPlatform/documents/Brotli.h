/// @file
/// Unpacks Brotli data.
#pragma once

#include <VyrPlatform/Export.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace VyrPlatform::Brotli {

/// Whether this system can unpack: Linux can, Windows cannot.
[[nodiscard]] VYR_PLATFORM_API bool IsAvailable() noexcept;

/// The first `limit` bytes of what `packed` holds; as many as there are when it is damaged or cut short, none where no
/// unpacker is available.
[[nodiscard]] VYR_PLATFORM_API std::string Unpack(std::string_view packed, std::size_t limit);

} // namespace VyrPlatform::Brotli
