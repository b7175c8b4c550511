/// @file
/// Reads the sizes of pictures.
#pragma once

#include <VyrLibraryUtils/Export.h>
#include <VyrLibraryUtils/pictures/ByteSource.h>

#include <cstdint>
#include <optional>
#include <string_view>

namespace VyrLibraryUtils::Pictures {

/// In pixels; neither is 0.
struct PictureSize
{
    std::uint32_t width = 0;
    std::uint32_t height = 0;

    friend bool operator==(const PictureSize&, const PictureSize&) = default;
};

/// The size in the header of a JPEG, PNG, GIF, WebP or BMP picture, the formats that browsers show. The picture is not
/// decoded and may be damaged. The first bytes determine the format.
/// @return nothing for other formats, and for a header that is truncated or has a width or a height of 0. Sources:
///     ITU-T T.81, annex B.2.2; PNG (third edition), section 11.2.2; GIF 89a, section 18; RFC 9649, sections 2.5 to
///     2.7.
[[nodiscard]] VYR_UTILS_API std::optional<PictureSize> ReadPictureSize(ByteSource& source);

/// ReadPictureSize of a picture in memory.
[[nodiscard]] VYR_UTILS_API std::optional<PictureSize> ReadPictureSizeOf(std::string_view bytes);

} // namespace VyrLibraryUtils::Pictures
