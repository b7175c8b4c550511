/// @file
/// Builds films and music in memory, with chosen dates, sizes and tags. None of them can be played.
#pragma once

#include <tests/support/PictureBuilder.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace VyrTests {

/// What a built film says about itself.
struct FilmFacts
{
    /// In seconds as the format counts them: from 1904 in boxes, from 2001 in Matroska.
    std::uint64_t created = 0;
    std::uint32_t unitsPerSecond = 600;
    std::uint64_t duration = 1500;
    std::uint32_t width = 320;
    std::uint32_t height = 240;
};

/// The box mvhd, whose numbers are 64 bits wide in version 1.
[[nodiscard]] Bytes MovieHeader(const FilmFacts& facts, std::uint8_t version = 0);
/// A track of pictures, of that size in its sample descriptions.
[[nodiscard]] Bytes PictureTrack(std::uint32_t width, std::uint32_t height);
/// An MP4 of `brand`, whose movie box stands in front of its data or behind it.
[[nodiscard]] Bytes BuildMp4(const FilmFacts& facts, std::string_view brand = "isom", bool isMovieLast = false);

/// An element of EBML with the bytes of its id, and with its size in eight bytes.
[[nodiscard]] Bytes EbmlElement(std::string_view id, std::string_view content);
/// The head of a file of `type`: "matroska", "webm".
[[nodiscard]] Bytes EbmlHead(std::string_view type);
/// Segment information: milliseconds, and a date where it is not 0.
[[nodiscard]] Bytes MatroskaInfo(const FilmFacts& facts, std::string_view title);
[[nodiscard]] Bytes MatroskaTracks(const FilmFacts& facts);
[[nodiscard]] Bytes BuildMatroska(const FilmFacts& facts, std::string_view type, std::string_view title = {});

/// A list of RIFF.
[[nodiscard]] Bytes RiffList(std::string_view form, std::string_view content);
/// An AVI of 25 pictures a second, `headers` and `information` being chunks to stand in its lists.
[[nodiscard]] Bytes BuildAvi(std::uint32_t pictures, std::uint32_t width, std::uint32_t height,
                             std::string_view headers = {}, std::string_view information = {});

/// Names of frames or fields, and their values in UTF-8.
using MusicTags = std::vector<std::pair<std::string, std::string>>;

/// A tag of ID3v2.4 with a text frame for each of `tags`.
[[nodiscard]] Bytes Id3Tag(const MusicTags& tags);
/// An MP3 of `frames` frames of 26 ms, behind the tag.
[[nodiscard]] Bytes BuildMp3(std::string_view tag, std::size_t frames = 50);
/// A FLAC of that many samples at 44,100 a second, with a Vorbis comment.
[[nodiscard]] Bytes BuildFlac(const MusicTags& tags, std::uint64_t samples);
/// A WAV of one second of silence, `information` being chunks to stand in its list INFO.
[[nodiscard]] Bytes BuildWav(std::string_view information = {});

} // namespace VyrTests
