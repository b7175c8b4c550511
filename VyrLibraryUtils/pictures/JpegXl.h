/// @file
/// JPEG XL: the Exif box of its container.
#pragma once

#include <VyrLibraryUtils/pictures/ByteView.h>
#include <VyrLibraryUtils/pictures/PictureTag.h>

#include <string>

namespace VyrLibraryUtils::Pictures {

/// The text of `tag` in the first Exif box of `jpegXl` that has one. A box that is packed with Brotli is read on
/// Linux and skipped on Windows, which has no unpacker. A bare codestream has no boxes and so no tags.
/// Source: ISO/IEC 18181-2, section 9.
[[nodiscard]] std::string ReadJpegXl(const ByteView& jpegXl, PictureTag tag);

} // namespace VyrLibraryUtils::Pictures
