/// @file
/// HEIC, HEIF and AVIF pictures, and CR3 raw pictures.
#pragma once

#include <VyrLibraryUtils/pictures/ByteView.h>
#include <VyrLibraryUtils/pictures/PictureTag.h>

#include <string>

namespace VyrLibraryUtils::Pictures {

/// The text of `tag` in the first Exif item of `media`'s meta box, or in the boxes CMT1 and CMT2 that CR3 keeps in its
/// movie box. An item may be in the file or in the meta box's own data, in any number of pieces. Source: ISO/IEC
/// 14496-12, sections 8.11.3 and 8.11.6; ISO/IEC 23008-12, annex A.
[[nodiscard]] std::string ReadIsoMedia(const ByteView& media, PictureTag tag);

} // namespace VyrLibraryUtils::Pictures
