/// @file
/// RAF raw pictures, which keep their tags in a JPEG that they embed.
#pragma once

#include <VyrLibraryUtils/pictures/ByteView.h>
#include <VyrLibraryUtils/pictures/PictureTag.h>

#include <string>

namespace VyrLibraryUtils::Pictures {

/// The text of `tag` in the JPEG that `raf` embeds. Source: the file's header, whose numbers are big-endian, names that
/// JPEG's offset at byte 84 and its length at byte 88.
[[nodiscard]] std::string ReadRaf(const ByteView& raf, PictureTag tag);

} // namespace VyrLibraryUtils::Pictures
