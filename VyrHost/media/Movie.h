/// @file
/// Films: MP4, MOV, M4V and what is made like them, Matroska and WebM, AVI.
#pragma once

#include <VyrLibraryUtils/pictures/ByteView.h>
#include <VyrPlatform/files/FileTimes.h>

#include <cstdint>
#include <optional>
#include <string>

namespace VyrHost::Media {

/// What the head of a film tells. What it does not tell is missing, 0 or empty.
struct Movie
{
    std::optional<VyrPlatform::FileTicks> created;
    /// In milliseconds.
    std::optional<std::uint64_t> duration;
    /// Of the first track with pictures, in points, as they are stored.
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    /// UTF-8. A year and a track are those that the text begins with.
    std::string title;
    std::string artist;
    std::string album;
    std::string genre;
    std::string year;
    std::string track;
    std::string disc;
    /// When it was taken, as a camera or a telephone adds it to the head: "2024-01-05T10:30:00+0200".
    std::string creationDate;
};

/// Whether `bytes` begin with a box of a film, of music in the same boxes, or of a HEIC or AVIF picture.
[[nodiscard]] bool IsIsoMedia(const VyrLibraryUtils::Pictures::ByteView& bytes);
[[nodiscard]] bool IsMatroska(const VyrLibraryUtils::Pictures::ByteView& bytes);
/// The type in the head of a file that IsMatroska: "matroska", "webm".
[[nodiscard]] std::string MatroskaType(const VyrLibraryUtils::Pictures::ByteView& bytes);
[[nodiscard]] bool IsAvi(const VyrLibraryUtils::Pictures::ByteView& bytes);

/// A film in boxes. A date of 0 is no date; one before 1970 counts from 1970, since some writers count from the wrong
/// year. A creation date with its offset in QuickTime's metadata comes before it. Where a film in fragments does not
/// tell its duration in front, the whole file is searched for it, if it is asked for. The size of a HEIC or AVIF file
/// is that of its largest picture. Source: ISO/IEC 14496-12, sections 8.2.2, 8.3.2, 8.4.3, 8.5.2 and 8.8.2; ISO/IEC
/// 23008-12, section 6.5.3.
[[nodiscard]] Movie ReadIsoMovie(const VyrLibraryUtils::Pictures::ByteView& file, bool asksForDuration);

/// Matroska and WebM. Source: RFC 9559, sections 5.1.2 and 5.1.4; RFC 8794.
[[nodiscard]] Movie ReadMatroska(const VyrLibraryUtils::Pictures::ByteView& file);

/// AVI. Its date is the local one of its chunk IDIT, else a whole date in ICRD. Sources: the RIFF
/// documents of Microsoft and IBM, 1991; OpenDML AVI file format extensions 1.02.
[[nodiscard]] Movie ReadAvi(const VyrLibraryUtils::Pictures::ByteView& file);

} // namespace VyrHost::Media
