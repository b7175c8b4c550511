/// @file
/// WebP: the Exif chunk of a RIFF file.
#pragma once

#include <VyrLibraryUtils/pictures/ByteView.h>
#include <VyrLibraryUtils/pictures/PictureTag.h>

#include <string>

namespace VyrLibraryUtils::Pictures {

/// Whether `bytes` begin as a WebP picture does; other RIFF files are sounds and films.
[[nodiscard]] bool IsWebP(const ByteView& bytes);

/// The text of `tag` in the first EXIF chunk of `webp` that has one. The size in the file's header is ignored; the
/// real size is the bound. Source: RFC 9649, section 2.
[[nodiscard]] std::string ReadWebP(const ByteView& webp, PictureTag tag);

} // namespace VyrLibraryUtils::Pictures
