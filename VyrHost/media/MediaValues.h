/// @file
/// What the content of a picture, a film or a piece of music tells about it.
#pragma once

#include <VyrHost/media/ExifTags.h>
#include <VyrPlatform/files/FileTimes.h>
#include <VyrPlatform/text/CString.h>
#include <VyrPlatform/time/COleDateTime.h>

#include <array>
#include <cstdint>
#include <optional>

namespace VyrHost::Media {

/// A date-time as a picture tells it: what the clock of the camera showed.
struct PictureDate
{
    COleDateTime dateTime;
    /// The digits of the fraction of a second as the picture has them: "05" is 50 ms; empty where it has none.
    CString fraction;
    /// How far that clock was ahead of UTC, in minutes; nothing where the picture does not tell.
    std::optional<int> minutesAhead;

    /// The instant to the second, where the picture tells how far its clock was ahead.
    [[nodiscard]] std::optional<VyrPlatform::FileTicks> Instant() const;
};

/// What is asked of a file. Only what is asked for is read.
struct MediaQuestion
{
    /// `width` and `height`.
    bool size = false;
    bool duration = false;
    /// `title` to `genre`, of music and films.
    bool tags = false;
    bool videoCreated = false;
    /// `taken` and `digitized`.
    bool exifDates = false;
    bool xmpDate = false;
    ExifTagSet exif = {};
};

/// What the file tells of what was asked. A text that is missing is empty, a number that is missing 0.
struct MediaValues
{
    /// The system's code where the file cannot be read (no permission, a bad sector at its beginning); else 0. 0 for
    /// folders, pipes and devices too, which tell nothing.
    std::uint32_t error = 0;

    /// In points, as a picture or film is stored: not turned by its orientation.
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    /// Of a film or a piece of music, in milliseconds; nothing where it does not tell.
    std::optional<std::uint64_t> duration;

    /// Texts have no control characters, no blanks around them, and at most 4096 code units.
    CString title;
    CString artist;
    CString album;
    unsigned track = 0;
    unsigned disc = 0;
    unsigned year = 0;
    CString genre;

    /// When a film was made, by its head (UTC).
    std::optional<VyrPlatform::FileTicks> videoCreated;

    /// Exif's DateTimeOriginal, and nothing else.
    std::optional<PictureDate> taken;
    /// Exif's DateTimeDigitized.
    std::optional<PictureDate> digitized;
    /// XMP's CreateDate, else its DateCreated: of the packet in the picture, else of the sidecar beside it, `X.xmp` or
    /// `X.JPG.xmp` for `X.JPG`.
    std::optional<PictureDate> xmpCreated;

    /// By ExifTag; see ExifTags.h.
    std::array<CString, exifTagCount> exif;

    [[nodiscard]] const CString& Exif(ExifTag tag) const { return exif[static_cast<std::size_t>(tag)]; }
};

/// Reads what `question` asks of the file at `path`. The content tells the format; the name does not matter. A file of
/// another kind, or a damaged one, leaves empty what it does not tell; time and memory are bounded for any file.
[[nodiscard]] MediaValues ReadMedia(const CString& path, const MediaQuestion& question);

} // namespace VyrHost::Media
