/// @file
/// Builds pictures in memory, with chosen Exif tags, so that the tests need no picture of anybody's.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace VyrTests {

/// The bytes of a file or of a part of one.
using Bytes = std::string;

enum class Endian : std::uint8_t
{
    Little,
    Big
};

/// The `width` (1 to 8) lowest bytes of `value` in the given order.
[[nodiscard]] Bytes Number(std::uint64_t value, std::size_t width, Endian endian);

/// What a built picture says about itself. A tag whose text is empty is left out.
struct PictureFacts
{
    std::string dateTimeOriginal = "2024:07:19 18:45:03";
    std::string make = "Testmaker";
    std::string model = "Model 1";
    Endian endian = Endian::Little;
};

/// One entry of a TIFF directory. `value` is the value itself, in the byte order of the structure, however long it is.
struct TiffEntry
{
    std::uint16_t tag;
    std::uint16_t type;
    std::uint32_t count;
    Bytes value;
};

/// An entry that holds `text` and its NUL.
[[nodiscard]] TiffEntry AsciiEntry(std::uint16_t tag, std::string_view text);

/// A TIFF structure of two directories, the first linking to the second, the Exif directory. A structure without Exif
/// entries has no link.
struct TiffParts
{
    Endian endian = Endian::Little;
    /// The four bytes that begin the structure; when empty, those of TIFF in the byte order.
    Bytes signature;
    /// What stands between the header and the first directory.
    Bytes afterHeader;
    std::vector<TiffEntry> image;
    std::vector<TiffEntry> exif;
};

[[nodiscard]] Bytes BuildTiff(const TiffParts& parts);
/// The parts of a TIFF structure that says `facts`, with a few other tags around them as cameras write them.
[[nodiscard]] TiffParts TiffPartsOf(const PictureFacts& facts);
/// BuildTiff of those parts.
[[nodiscard]] Bytes BuildTiff(const PictureFacts& facts);

/// A JPEG segment: marker 0xFF `marker`, the length, the payload (at most 65533 bytes).
[[nodiscard]] Bytes JpegSegment(std::uint8_t marker, std::string_view payload);
/// The APP1 segment that carries a TIFF structure.
[[nodiscard]] Bytes ExifSegment(std::string_view tiff);
/// A JPEG that every decoder takes: the start marker, `segments`, and a black picture whose data is about `dataSize`
/// bytes.
[[nodiscard]] Bytes BuildJpeg(std::string_view segments, std::size_t dataSize = 0);
/// A JPEG as a camera writes it, with one Exif segment that says `facts`.
[[nodiscard]] Bytes BuildJpeg(const PictureFacts& facts, std::size_t dataSize = 0);

} // namespace VyrTests
