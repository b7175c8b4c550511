/// @file
/// The TIFF structure, in which every picture format keeps its Exif tags.
#pragma once

#include <VyrLibraryUtils/pictures/ByteView.h>
#include <VyrLibraryUtils/pictures/PictureTag.h>

#include <string>

namespace VyrLibraryUtils::Pictures {

/// What the first directory of a TIFF structure holds.
enum class FirstDirectory : std::uint8_t
{
    Image, ///< the picture's own tags, and a link to its Exif directory
    Exif   ///< the Exif tags themselves (a box of CR3)
};

/// Whether `bytes` begin as a TIFF structure does: TIFF itself, and the raw formats that only change its number
/// 42 (ORF, RW2).
[[nodiscard]] bool IsTiff(const ByteView& bytes);

/// The text of `tag` in the TIFF structure that `tiff` holds from its first byte on: without trailing blanks and NULs,
/// empty when it is missing or blank, or, for a date, without a digit other than 0. The date is that of the Exif
/// directory; where that has no such tag, that of the first directory. At most two directories are read. Source:
/// TIFF 6.0, section 2; Exif 2.32, section 4.5.
[[nodiscard]] std::string ReadTiff(const ByteView& tiff, PictureTag tag, FirstDirectory first = FirstDirectory::Image);

} // namespace VyrLibraryUtils::Pictures
