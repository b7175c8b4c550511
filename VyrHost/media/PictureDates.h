/// @file
/// The dates that pictures and their packets of XMP tell.
#pragma once

#include <VyrHost/media/MediaValues.h>
#include <VyrLibraryUtils/pictures/ByteSource.h>

#include <optional>
#include <string_view>

namespace VyrHost::Media {

/// A date-time as Exif ("2024:07:19 18:45:03") or XMP ("2024-07-19T18:45:03.25+02:00") writes it. A date alone is
/// midnight. Nothing where there is no such day or time, and for a date of zeros alone.
[[nodiscard]] std::optional<PictureDate> ParsePictureDate(std::string_view text);

/// Exif's DateTimeOriginal, with its fraction and how far its clock was ahead.
[[nodiscard]] std::optional<PictureDate> ReadTaken(VyrLibraryUtils::Pictures::ByteSource& picture);
/// Exif's DateTimeDigitized, likewise.
[[nodiscard]] std::optional<PictureDate> ReadDigitized(VyrLibraryUtils::Pictures::ByteSource& picture);
/// XMP's CreateDate, else photoshop's DateCreated.
[[nodiscard]] std::optional<PictureDate> ReadXmpDate(std::string_view packet);

} // namespace VyrHost::Media
