/// @file
/// The tags of pictures that names may contain, under exiftool's names.
#pragma once

#include <VyrLibraryUtils/pictures/ByteSource.h>
#include <VyrPlatform/text/CString.h>

#include <bitset>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace VyrHost::Media {

/// A tag: its place in the table.
enum class ExifTag : std::uint8_t
{
};

inline constexpr std::size_t exifTagCount = 65;

using ExifTagSet = std::bitset<exifTagCount>;

/// The names of all tags, in the order of the table: "Make", "LensModel", "ISO", ….
[[nodiscard]] std::span<const std::u16string_view> ExifTagNames();

/// The tag with that name, ignoring case.
[[nodiscard]] std::optional<ExifTag> FindExifTag(std::u16string_view name);

/// Reads tags of a picture.
class ExifTagReader
{
public:
    /// `packet` is the picture's XMP packet, if a requested tag needs it. Both must outlive the reader.
    ExifTagReader(VyrLibraryUtils::Pictures::ByteSource& source, std::string_view packet)
        : m_source(source), m_packet(packet)
    {}

    /// Whether one of `tags` is an XMP tag.
    [[nodiscard]] static bool AsksForXmp(const ExifTagSet& tags);
    /// The text of `tag`; empty if the picture lacks it.
    [[nodiscard]] CString Read(ExifTag tag);

private:
    VyrLibraryUtils::Pictures::ByteSource& m_source;
    std::string_view m_packet;
};

} // namespace VyrHost::Media
