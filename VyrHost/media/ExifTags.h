/// @file
/// The tags of pictures that names may have, by the names that exiftool gives them.
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

/// The tag of that name, whose letters may be capital or small.
[[nodiscard]] std::optional<ExifTag> FindExifTag(std::u16string_view name);

/// Reads tags of a picture.
class ExifTagReader
{
public:
    /// `packet` is the picture's packet of XMP, where a tag that is asked for needs it. Both must outlive the reader.
    ExifTagReader(VyrLibraryUtils::Pictures::ByteSource& source, std::string_view packet)
        : m_source(source), m_packet(packet)
    {}

    /// Whether one of `tags` stands in the packet of XMP.
    [[nodiscard]] static bool AsksForXmp(const ExifTagSet& tags);
    /// The text of `tag`; empty where the picture lacks it.
    [[nodiscard]] CString Read(ExifTag tag);

private:
    VyrLibraryUtils::Pictures::ByteSource& m_source;
    std::string_view m_packet;
};

} // namespace VyrHost::Media
