/// @file
/// The boxes of the ISO base media format, of which HEIC, AVIF, CR3 and JPEG XL files are made.
#pragma once

#include <VyrLibraryUtils/Export.h>
#include <VyrLibraryUtils/pictures/ByteView.h>

#include <cstdint>
#include <optional>

namespace VyrLibraryUtils::Pictures {

struct IsoBox
{
    std::uint32_t type; ///< as FourCc gives it
    ByteView content;
};

/// Reads the box at the cursor and skips it. Nothing at the end of the view, and where the size is impossible. A size
/// of 0 means "to the end"; a size of 1 means that the 64-bit size follows. Source: ISO/IEC 14496-12, section 4.2.
[[nodiscard]] VYR_UTILS_API std::optional<IsoBox> NextBox(ByteCursor& cursor);

} // namespace VyrLibraryUtils::Pictures
