/// @file
/// The TIFF structure, in which every picture format keeps its Exif tags.
#pragma once

#include <VyrLibraryUtils/pictures/ByteView.h>
#include <VyrLibraryUtils/pictures/PictureTag.h>

#include <cstddef>
#include <string>

namespace VyrLibraryUtils::Pictures {

/// The kind of a TIFF structure's first directory.
enum class FirstDirectory : std::uint8_t
{
    Image, ///< the picture's own tags, and a link to its Exif directory
    Linked ///< the tags of a directory that others link to (boxes of CR3)
};

/// Whether `bytes` begin as a TIFF structure does: TIFF itself, and raw formats that have another number in the place
/// of its 42 (ORF, RW2).
[[nodiscard]] bool IsTiff(const ByteView& bytes);

/// The maximum size of a thumbnail in bytes: larger data does not fit into Exif, so it is something else.
constexpr std::size_t largestThumbnail = 65536;

/// The text of `tag` in the TIFF structure that begins at the first byte of `tiff`, without trailing blanks and NULs.
/// Empty when the tag is missing or blank, and when DateTimeOriginal has no digit but 0. A tag of the Exif directory
/// comes from there, or from the first directory when the Exif directory has none. At most two directories are read.
/// PictureTag::Thumbnail gives the bytes of the thumbnail as they are; nothing unless they lie within the structure,
/// begin as a JPEG and are at most `largestThumbnail`. Source: TIFF 6.0, section 2; Exif 2.32, section 4.5.
[[nodiscard]] std::string ReadTiff(const ByteView& tiff, PictureTag tag, FirstDirectory first = FirstDirectory::Image);

} // namespace VyrLibraryUtils::Pictures
