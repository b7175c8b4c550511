/// @file
/// The metadata in a picture, a film or a piece of music.
#pragma once

#include <VyrHost/media/ExifTags.h>
#include <VyrPlatform/files/FileTimes.h>
#include <VyrPlatform/text/CString.h>
#include <VyrPlatform/time/COleDateTime.h>

#include <array>
#include <cstdint>
#include <optional>

namespace VyrHost::Media {

/// A date-time in a picture: what the camera's clock showed.
struct PictureDate
{
    COleDateTime dateTime;
    /// The digits of the fraction of a second: "05" is 50 ms; empty if there are none.
    CString fraction;
    /// The clock's offset from UTC in minutes; nothing if the picture does not say it.
    std::optional<int> minutesAhead;

    /// The instant to the second, if the offset is known.
    [[nodiscard]] std::optional<VyrPlatform::FileTicks> Instant() const;
};

/// Selects the values to read from a file.
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

/// The requested values. A missing text is empty, a missing number 0.
struct MediaValues
{
    /// The system's error code if the file cannot be read (no permission, a bad sector at its beginning); else 0. Also
    /// 0 for folders, pipes and devices.
    std::uint32_t error = 0;

    /// In pixels, as the picture or film is stored, not rotated by its orientation.
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    /// The duration of a film or a piece of music, in milliseconds, if it is known.
    std::optional<std::uint64_t> duration;

    /// Texts have no control characters, no blanks around them, and at most 4096 code units.
    CString title;
    CString artist;
    CString album;
    unsigned track = 0;
    unsigned disc = 0;
    unsigned year = 0;
    CString genre;

    /// The creation time in a film's header (UTC).
    std::optional<VyrPlatform::FileTicks> videoCreated;

    /// Exif's DateTimeOriginal, and nothing else.
    std::optional<PictureDate> taken;
    /// Exif's DateTimeDigitized.
    std::optional<PictureDate> digitized;
    /// XMP's CreateDate, else its DateCreated: from the packet in the picture, else from the sidecar beside it, `X.xmp`
    /// or `X.JPG.xmp` for `X.JPG`.
    std::optional<PictureDate> xmpCreated;

    /// By ExifTag; see ExifTags.h.
    std::array<CString, exifTagCount> exif;

    [[nodiscard]] const CString& Exif(ExifTag tag) const { return exif[static_cast<std::size_t>(tag)]; }
};

/// Reads the values that `question` selects from the file at `path`. The content determines the format, not the name.
/// Values that an unknown or damaged file lacks stay empty. Time and memory are bounded for any file.
[[nodiscard]] MediaValues ReadMedia(const CString& path, const MediaQuestion& question);

} // namespace VyrHost::Media
