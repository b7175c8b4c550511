/// @file
/// The dates in pictures and their XMP packets.
#pragma once

#include <VyrHost/media/MediaValues.h>
#include <VyrLibraryUtils/pictures/ByteSource.h>

#include <optional>
#include <string_view>

namespace VyrHost::Media {

/// Parses a date-time of Exif ("2024:07:19 18:45:03") or XMP ("2024-07-19T18:45:03.25+02:00"). A date alone means
/// midnight. Nothing for a day or time that does not exist, and for a date of zeros.
[[nodiscard]] std::optional<PictureDate> ParsePictureDate(std::string_view text);

/// Exif's DateTimeOriginal, with its fraction and its offset.
[[nodiscard]] std::optional<PictureDate> ReadTaken(VyrLibraryUtils::Pictures::ByteSource& picture);
/// Exif's DateTimeDigitized, in the same way.
[[nodiscard]] std::optional<PictureDate> ReadDigitized(VyrLibraryUtils::Pictures::ByteSource& picture);
/// XMP's CreateDate, else photoshop's DateCreated.
[[nodiscard]] std::optional<PictureDate> ReadXmpDate(std::string_view packet);

} // namespace VyrHost::Media
