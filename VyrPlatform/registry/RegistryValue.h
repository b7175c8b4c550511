/// @file
/// Values of the registry with the checks that the library makes on each: the one place where they stand.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/registry/Registry.h>

namespace VyrPlatform::Registry {

/// The buffers into which names and texts are read, in code units; a NUL is among them. A longer text is not read.
inline constexpr std::uint32_t bufferCapacity = 260;

/// The text of the value `name` (empty: the default value) of `key`, up to its first NUL. An expandable text comes as
/// it stands.
/// @return nothing when there is no such value, when it is neither a text nor an expandable text, when it does not fit
///     into the buffer (260 units with its NUL), has an odd count of bytes, or does not end in a NUL. A value of no
///     bytes is an empty text.
[[nodiscard]] VYR_PLATFORM_API std::optional<CString> ReadText(Handle key, const CString& name);

/// The number of the value `name` of `key`. One of fewer than four bytes counts as if zeros stood above it.
/// @return nothing when there is no such value, when it is no number or has more than four bytes.
[[nodiscard]] VYR_PLATFORM_API std::optional<std::uint32_t> ReadNumber(Handle key, const CString& name);

} // namespace VyrPlatform::Registry
