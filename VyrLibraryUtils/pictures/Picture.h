/// @file
/// Reads one tag, or the thumbnail, from a picture of any known format.
#pragma once

#include <VyrLibraryUtils/Export.h>
#include <VyrLibraryUtils/pictures/ByteSource.h>
#include <VyrLibraryUtils/pictures/PictureTag.h>

#include <string>
#include <string_view>

namespace VyrLibraryUtils::Pictures {

/// The text of `tag` in the picture `source`, byte for byte; for PictureTag::Thumbnail a JPEG of at most 64 KiB. Empty
/// when the picture has no such tag or its format is unknown. The first bytes tell the format; the file's name does not
/// matter.
[[nodiscard]] VYR_UTILS_API std::string ReadPicture(ByteSource& source, PictureTag tag);

/// ReadPicture of a picture in memory.
[[nodiscard]] VYR_UTILS_API std::string ReadPictureBytes(std::string_view bytes, PictureTag tag);

} // namespace VyrLibraryUtils::Pictures
