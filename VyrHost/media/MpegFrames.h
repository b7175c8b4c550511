/// @file
/// MPEG's sounds and streams, which have no mark of their own but repeat a pattern.
#pragma once

#include <VyrLibraryUtils/pictures/ByteView.h>

#include <string_view>

namespace VyrHost::Media {

/// "mp3" for a tag of ID3 or two frames of layer III, "aac" for two frames of ADTS, "ts" and "mts" for packets of a
/// transport stream; nothing for other files. Sources: ISO/IEC 11172-3, section 2.4.1; ISO/IEC 13818-1, section 2.4.3;
/// ISO/IEC 13818-7, section 6.2.
[[nodiscard]] std::u16string_view KindOfMpeg(const VyrLibraryUtils::Pictures::ByteView& file);

} // namespace VyrHost::Media
