/// @file
/// The tags that the picture readers find.
#pragma once

#include <cstdint>

namespace VyrLibraryUtils::Pictures {

/// A tag that holds a text. Source: Exif 2.32, sections 4.6.4 and 4.6.5.
enum class PictureTag : std::uint16_t
{
    Make = 0x010F,            ///< of the first directory
    Model = 0x0110,           ///< of the first directory
    DateTimeOriginal = 0x9003 ///< of the Exif directory, else of the first directory
};

} // namespace VyrLibraryUtils::Pictures
