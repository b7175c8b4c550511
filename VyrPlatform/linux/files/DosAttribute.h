// The extended attribute "user.DOSATTRIB", in which Samba keeps a file's DOS attributes and creation time.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/files/FileTimes.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace VyrPlatform {

struct DosAttribute
{
    /// The FILE_ATTRIBUTE_... bits; nothing when the value does not have them.
    std::optional<std::uint32_t> attributes;
    /// Nothing when the value does not have it, or has zero.
    std::optional<FileTicks> created;
};

/// Reads the value of the extended attribute: versions 1 to 5, or a hexadecimal number as ASCII text. Other bytes give
/// nothing. (Samba, librpc/idl/xattr.idl; exported only for its tests.)
[[nodiscard]] VYR_PLATFORM_API DosAttribute ParseDosAttribute(std::span<const std::byte> value);

/// `value` with the creation time `created` and all other content unchanged. An empty value, and a text, become version
/// 5.
/// @return empty when ParseDosAttribute cannot read `value`.
[[nodiscard]] VYR_PLATFORM_API std::vector<std::byte> WithCreated(std::span<const std::byte> value, FileTicks created);
/// `value` with these attributes and all other content unchanged. An empty value becomes version 5; a text stays a
/// text.
/// @return empty when ParseDosAttribute cannot read `value`.
[[nodiscard]] VYR_PLATFORM_API std::vector<std::byte> WithAttributes(std::span<const std::byte> value,
                                                                     std::uint32_t attributes);

/// `value` with the creation time of `kept`, or without one where that has none, and all other content unchanged.
/// Reverts WithCreated exactly: its result for `kept` becomes `kept` again, to the byte. An empty value means that
/// there is none.
/// @return nothing when ParseDosAttribute cannot read `value`.
[[nodiscard]] VYR_PLATFORM_API std::optional<std::vector<std::byte>> WithCreatedOf(std::span<const std::byte> value,
                                                                                   std::span<const std::byte> kept);
/// The same for the attributes.
[[nodiscard]] VYR_PLATFORM_API std::optional<std::vector<std::byte>> WithAttributesOf(std::span<const std::byte> value,
                                                                                      std::span<const std::byte> kept);

} // namespace VyrPlatform
