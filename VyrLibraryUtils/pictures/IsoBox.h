/// @file
/// The boxes of the ISO base media format, of which HEIC, AVIF, CR3 and JPEG XL files are made.
#pragma once

#include <VyrLibraryUtils/pictures/ByteView.h>

#include <cstdint>
#include <optional>

namespace VyrLibraryUtils::Pictures {

struct IsoBox
{
    std::uint32_t type; ///< as FourCc gives it
    ByteView content;
};

/// The box at the cursor, which it passes over; nothing at the end, and where a size is impossible. A size of 0 reaches
/// to the end, a size of 1 stands for the 64-bit one that follows. Source: ISO/IEC 14496-12, section 4.2.
[[nodiscard]] std::optional<IsoBox> NextBox(ByteCursor& cursor);

} // namespace VyrLibraryUtils::Pictures
