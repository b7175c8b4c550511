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

/// A TIFF structure of two directories, the first referring to the second, the Exif directory. A structure without Exif
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
    /// When not empty, a directory behind the first one refers to it as the thumbnail.
    Bytes thumbnail;
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

/// A PNG chunk with its checksum.
[[nodiscard]] Bytes PngChunk(std::string_view type, std::string_view data);
/// A PNG of one black point, with `before` and `after` around its data.
[[nodiscard]] Bytes BuildPng(std::string_view before, std::string_view after = {});
/// `data` as a zlib stream that stores it unpacked.
[[nodiscard]] Bytes ZlibStored(std::string_view data);
/// A TIFF structure in the hexadecimal form in which a PNG text chunk carries it.
[[nodiscard]] Bytes RawProfile(std::string_view tiff);

/// A RIFF chunk, filled up to an even size.
[[nodiscard]] Bytes RiffChunk(std::string_view name, std::string_view data);
/// A WebP file of `chunks`, after a header chunk and one of picture data.
[[nodiscard]] Bytes BuildWebP(std::string_view chunks);

/// A box of the ISO base media format.
[[nodiscard]] Bytes Box(std::string_view type, std::string_view content);
/// The same with its size in 64 bits.
[[nodiscard]] Bytes LongBox(std::string_view type, std::string_view content);
/// A box whose size is 0: it reaches to the end of what it stands in.
[[nodiscard]] Bytes OpenBox(std::string_view type, std::string_view content);

/// How a HEIF file keeps its Exif item.
struct HeifParts
{
    std::string_view brand = "heic";
    /// The whole item: the distance to its TIFF structure, then what the distance counts from.
    Bytes item;
    /// In how many pieces it stands in the file.
    std::size_t pieces = 1;
    /// 0 in the file, 1 in the meta box's own data.
    std::uint8_t constructionMethod = 0;
    /// Versions of the boxes iloc (0 to 2) and infe (2 or 3).
    std::uint8_t locationVersion = 1;
    std::uint8_t entryVersion = 2;
    std::uint32_t itemId = 2;
    /// Bytes of an offset, a length and a base offset in iloc: 0, 4 or 8. With 0 for the base, offsets count from the
    /// start.
    std::size_t offsetWidth = 4;
    std::size_t lengthWidth = 4;
    std::size_t baseWidth = 0;
    /// Bytes of an extent's index (0, 4 or 8; none in version 0).
    std::size_t indexWidth = 0;
};

/// An Exif item whose TIFF structure follows JPEG's identifier, as cameras write it.
[[nodiscard]] Bytes ExifItem(std::string_view tiff);
[[nodiscard]] Bytes BuildHeif(const HeifParts& parts);

/// A CR3: the first directory and the Exif directory of `facts` as two structures in Canon's box.
[[nodiscard]] Bytes BuildCr3(const PictureFacts& facts);

/// A JPEG XL container of `boxes`, before the box of picture data.
[[nodiscard]] Bytes BuildJpegXl(std::string_view boxes);
/// The box that holds the box `type` with `content`, Brotli-packed (stored, at most 65536 bytes).
[[nodiscard]] Bytes BrotliBox(std::string_view type, std::string_view content);

/// A RAF that embeds `jpeg`.
[[nodiscard]] Bytes BuildRaf(std::string_view jpeg);

/// A picture of one format, in the form in which its makers write it.
struct FormatSample
{
    std::string_view fileName;
    Bytes bytes;
};

/// One picture of each format that the library reads without a system's help, all saying `facts`; raw formats that are
/// defined in one byte order keep to it.
[[nodiscard]] std::vector<FormatSample> BuildEveryFormat(const PictureFacts& facts);

} // namespace VyrTests
