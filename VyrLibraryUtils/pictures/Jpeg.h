/// @file
/// JPEG: the segments before the picture's data.
#pragma once

#include <VyrLibraryUtils/pictures/ByteView.h>
#include <VyrLibraryUtils/pictures/PictureSize.h>
#include <VyrLibraryUtils/pictures/PictureTag.h>

#include <string>

namespace VyrLibraryUtils::Pictures {

/// Whether `bytes` begin as a JPEG does.
[[nodiscard]] bool IsJpeg(const ByteView& bytes);

/// The text of `tag` in the first Exif segment of `jpeg` that has one. Segments are skipped by their lengths, up to
/// the picture's data. Source: ITU-T T.81, annex B; Exif 2.32, section 4.7.
[[nodiscard]] std::string ReadJpeg(const ByteView& jpeg, PictureTag tag);

/// The size in the frame header; zeros if there is none.
[[nodiscard]] PictureSize ReadJpegSize(const ByteView& jpeg);

} // namespace VyrLibraryUtils::Pictures
