/// @file
/// The tags that the picture readers find.
#pragma once

#include <cstdint>

namespace VyrLibraryUtils::Pictures {

/// A requested tag: its number, and in the bits above it the directory. Source: Exif 2.32, sections 4.6.4 to 4.6.6 and
/// 4.5.7; Adobe, XMP storage in files, section 3.
enum class PictureTag : std::uint32_t
{
    Make = 0x010F,              ///< of the first directory
    Model = 0x0110,             ///< of the first directory
    Orientation = 0x0112,       ///< of the first directory: a digit, 1 to 8
    Thumbnail = 0x0201,         ///< the small JPEG that the directory behind the first one refers to; no text
    DateTimeOriginal = 0x19003, ///< of the Exif directory, else of the first directory
    Xmp = 0x402BC               ///< the packet of XMP, in whatever way the format keeps it; at most 64 KiB, as it is
};

/// The tag `number` of the first directory.
[[nodiscard]] constexpr PictureTag ImageTag(std::uint16_t number)
{
    return static_cast<PictureTag>(number);
}

/// The tag `number` of the Exif directory, else of the first directory: some programs write it there.
[[nodiscard]] constexpr PictureTag ExifTag(std::uint16_t number)
{
    return static_cast<PictureTag>(0x10000U | number);
}

/// The tag `number` of the GPS directory.
[[nodiscard]] constexpr PictureTag PlaceTag(std::uint16_t number)
{
    return static_cast<PictureTag>(0x20000U | number);
}

/// `tag` as unchanged bytes, including NULs, whatever its type.
[[nodiscard]] constexpr PictureTag AsBytes(PictureTag tag)
{
    return static_cast<PictureTag>(0x40000U | static_cast<std::uint32_t>(tag));
}

/// `tag` as numbers, at most 16, with blanks between them; a fraction is "1/250". Without this a tag is a text.
[[nodiscard]] constexpr PictureTag AsNumbers(PictureTag tag)
{
    return static_cast<PictureTag>(0x80000U | static_cast<std::uint32_t>(tag));
}

[[nodiscard]] constexpr std::uint16_t NumberOf(PictureTag tag)
{
    return static_cast<std::uint16_t>(static_cast<std::uint32_t>(tag) & 0xFFFF);
}
[[nodiscard]] constexpr bool IsInExif(PictureTag tag)
{
    return (static_cast<std::uint32_t>(tag) & 0x10000U) != 0;
}
[[nodiscard]] constexpr bool IsOfPlace(PictureTag tag)
{
    return (static_cast<std::uint32_t>(tag) & 0x20000U) != 0;
}
[[nodiscard]] constexpr bool IsAsBytes(PictureTag tag)
{
    return (static_cast<std::uint32_t>(tag) & 0x40000U) != 0;
}
[[nodiscard]] constexpr bool IsAsNumbers(PictureTag tag)
{
    return (static_cast<std::uint32_t>(tag) & 0x80000U) != 0;
}

} // namespace VyrLibraryUtils::Pictures
