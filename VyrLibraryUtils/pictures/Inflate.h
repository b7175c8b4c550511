/// @file
/// Unpacks zlib data, the form of PNG's compressed texts.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace VyrLibraryUtils::Pictures {

/// The first `limit` bytes of the zlib stream `packed`, unpacked; fewer when it is damaged or truncated. The checksum
/// at its end is not checked. Source: RFC 1950 and RFC 1951.
[[nodiscard]] std::string Inflate(std::string_view packed, std::size_t limit);

} // namespace VyrLibraryUtils::Pictures
