/// @file
/// The Exif block, as the formats wrap it around its TIFF structure.
#pragma once

#include <VyrLibraryUtils/pictures/ByteView.h>
#include <VyrLibraryUtils/pictures/PictureTag.h>

#include <cstddef>
#include <string>

namespace VyrLibraryUtils::Pictures {

/// The largest Exif block, in bytes, that is copied or unpacked where it cannot be read in place. Cameras write less
/// than 64 KiB; converters from other formats write more.
constexpr std::size_t longestExif = 1 << 20;

/// The longest packet of XMP that is copied, in bytes: what goes into one segment of a JPEG.
constexpr std::size_t longestXmp = 65536;

/// The text of `tag` in `block`: a TIFF structure, with or without JPEG's identifier "Exif" and two NULs before it.
[[nodiscard]] std::string ReadExif(const ByteView& block, PictureTag tag);

/// The text of `tag` in `item`: a 32-bit big-endian distance, then the block at that distance. Items of writers that
/// leave out the distance are read too. Source: ISO/IEC 23008-12, annex A.2.1; ISO/IEC 18181-2, section 9.4.
[[nodiscard]] std::string ReadExifItem(const ByteView& item, PictureTag tag);

} // namespace VyrLibraryUtils::Pictures
