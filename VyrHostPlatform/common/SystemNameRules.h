/// @file
/// Each system's own rules for names.
#pragma once

#include <VyrHostPlatform/NameRules.h>

namespace VyrHostPlatform::SystemNameRules {

/// Whether the system refuses names with `fault` (a fault of names on Windows).
[[nodiscard]] bool IsError(NameFault fault) noexcept;
/// Whether no name on this system can contain `unit`.
[[nodiscard]] bool IsForbidden(char16_t unit) noexcept;
/// Whether `name` is longer than the system's 255 bytes or code units.
[[nodiscard]] bool IsTooLong(std::u16string_view name);

} // namespace VyrHostPlatform::SystemNameRules
