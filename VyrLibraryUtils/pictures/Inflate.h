/// @file
/// Unpacking of zlib data, in which PNG keeps its compressed texts.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace VyrLibraryUtils::Pictures {

/// The first `limit` bytes of what the zlib stream `packed` holds; as many as there are when it is damaged or cut
/// short. A wrong checksum at its end does not matter. Source: RFC 1950 and RFC 1951.
[[nodiscard]] std::string Inflate(std::string_view packed, std::size_t limit);

} // namespace VyrLibraryUtils::Pictures
