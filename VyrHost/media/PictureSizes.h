/// @file
/// The sizes of pictures, also of those that browsers do not show.
#pragma once

#include <VyrLibraryUtils/pictures/PictureSize.h>

#include <optional>

namespace VyrHost::Media {

/// The size of a picture that ReadPictureSize reads, or of a TIFF, a raw picture in that format, RAF, PSD or JPEG XL:
/// the size of the whole picture, not of a preview; for RAF, of the JPEG in it. Sources: TIFF 6.0, section 8; ISO/IEC
/// 18181-1, annex D.2; Adobe, Photoshop file formats, "File header section".
[[nodiscard]] std::optional<VyrLibraryUtils::Pictures::PictureSize>
ReadSizeOfPicture(VyrLibraryUtils::Pictures::ByteSource& source);

} // namespace VyrHost::Media
