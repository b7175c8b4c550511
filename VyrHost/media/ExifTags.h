/// @file
/// The tags of pictures that names may have, by the names that exiftool gives them.
#pragma once

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

} // namespace VyrHost::Media
