/// @file
/// One fact of a picture of any known format.
#pragma once

#include <VyrLibraryUtils/Export.h>
#include <VyrLibraryUtils/pictures/ByteSource.h>
#include <VyrLibraryUtils/pictures/PictureTag.h>

#include <string>
#include <string_view>

namespace VyrLibraryUtils::Pictures {

/// The text of `tag` in the picture that `source` holds, in the bytes in which it stands there; empty when it has no
/// such tag or is of no known format. The format is told by the first bytes, never by a file's name.
[[nodiscard]] VYR_UTILS_API std::string ReadPicture(ByteSource& source, PictureTag tag);

/// ReadPicture of a picture in memory.
[[nodiscard]] VYR_UTILS_API std::string ReadPictureBytes(std::string_view bytes, PictureTag tag);

} // namespace VyrLibraryUtils::Pictures
