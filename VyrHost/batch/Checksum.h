/// @file
/// The check on what the journal holds.
#pragma once

#include <cstdint>
#include <string_view>

namespace VyrHost::Batch {

/// The CRC-32 of what gave `before`, with `bytes` behind it (the polynomial of IEEE 802.3, as in zlib and PNG). Start
/// with 0.
[[nodiscard]] std::uint32_t Checksum(std::uint32_t before, std::string_view bytes) noexcept;

} // namespace VyrHost::Batch
