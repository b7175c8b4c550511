/// @file
/// Reads films: MP4, MOV, M4V and similar files, Matroska and WebM, AVI.
#pragma once

#include <VyrLibraryUtils/pictures/ByteView.h>
#include <VyrPlatform/files/FileTimes.h>

#include <cstdint>
#include <optional>
#include <string>

namespace VyrHost::Media {

/// The metadata in a film's header. Missing values are absent, 0 or empty.
struct Movie
{
    std::optional<VyrPlatform::FileTicks> created;
    /// In milliseconds.
    std::optional<std::uint64_t> duration;
    /// The stored size of the first video track, in pixels.
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    /// UTF-8. The year and the track number are the numbers at the start of their texts.
    std::string title;
    std::string artist;
    std::string album;
    std::string genre;
    std::string year;
    std::string track;
    std::string disc;
    /// The time of recording that a camera or a telephone adds to the header: "2024-01-05T10:30:00+0200".
    std::string creationDate;
};

/// Whether `bytes` begin with a box of a film, of music in the same boxes, or of a HEIC or AVIF picture.
[[nodiscard]] bool IsIsoMedia(const VyrLibraryUtils::Pictures::ByteView& bytes);
[[nodiscard]] bool IsMatroska(const VyrLibraryUtils::Pictures::ByteView& bytes);
/// The type in the header of a file for which IsMatroska is true: "matroska", "webm".
[[nodiscard]] std::string MatroskaType(const VyrLibraryUtils::Pictures::ByteView& bytes);
[[nodiscard]] bool IsAvi(const VyrLibraryUtils::Pictures::ByteView& bytes);

/// A film in boxes. A date of 0 is no date; one before 1970 counts from 1970, since some writers use the wrong epoch. A
/// creation date with an offset in QuickTime's metadata takes precedence. If the header of a fragmented film lacks the
/// duration, and it is requested, the whole file is searched for it. The size of a HEIC or AVIF file is that of its
/// largest picture. Source: ISO/IEC 14496-12, sections 8.2.2, 8.3.2, 8.4.3, 8.5.2 and 8.8.2; ISO/IEC 23008-12, section
/// 6.5.3.
[[nodiscard]] Movie ReadIsoMovie(const VyrLibraryUtils::Pictures::ByteView& file, bool asksForDuration);

/// Matroska and WebM. Source: RFC 9559, sections 5.1.2 and 5.1.4; RFC 8794.
[[nodiscard]] Movie ReadMatroska(const VyrLibraryUtils::Pictures::ByteView& file);

/// AVI. Its date is the local one in the chunk IDIT, else a complete date in ICRD. Sources: the RIFF documents of
/// Microsoft and IBM, 1991; OpenDML AVI file format extensions 1.02.
[[nodiscard]] Movie ReadAvi(const VyrLibraryUtils::Pictures::ByteView& file);

} // namespace VyrHost::Media
