/// @file
/// The tags that the picture readers find.
#pragma once

#include <cstdint>

namespace VyrLibraryUtils::Pictures {

/// What is asked of a picture. Source: Exif 2.32, sections 4.6.4, 4.6.5 and 4.5.7.
enum class PictureTag : std::uint16_t
{
    Make = 0x010F,            ///< of the first directory
    Model = 0x0110,           ///< of the first directory
    Orientation = 0x0112,     ///< of the first directory: a digit, 1 to 8
    Thumbnail = 0x0201,       ///< the small JPEG that the directory behind the first one refers to; no text
    DateTimeOriginal = 0x9003 ///< of the Exif directory, else of the first directory
};

} // namespace VyrLibraryUtils::Pictures
