/// @file
/// Values of the registry, with the library's checks.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/registry/Registry.h>

namespace VyrPlatform::Registry {

/// The size of the buffers for names and texts, in code units including the NUL. A longer text is not read.
inline constexpr std::uint32_t bufferCapacity = 260;

/// The text of the value `name` (empty: the default value) of `key`, up to its first NUL. In an expandable text the
/// variables are not replaced.
/// @return nothing when there is no such value, when it is neither a text nor an expandable text, when it does not fit
/// into the buffer (260 code units with its NUL), has an odd number of bytes, or does not end in a NUL. An empty value
/// is an empty text.
[[nodiscard]] VYR_PLATFORM_API std::optional<CString> ReadText(Handle key, const CString& name);

/// The number in the value `name` of `key`. Fewer than four bytes are extended with zeros.
/// @return nothing when there is no such value, or it is not a number or longer than four bytes.
[[nodiscard]] VYR_PLATFORM_API std::optional<std::uint32_t> ReadNumber(Handle key, const CString& name);

} // namespace VyrPlatform::Registry
