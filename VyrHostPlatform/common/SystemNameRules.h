/// @file
/// What each system itself says about names.
#pragma once

#include <VyrHostPlatform/NameRules.h>

namespace VyrHostPlatform::SystemNameRules {

/// Whether the system takes no name with `fault` (one of those that Windows names have).
[[nodiscard]] bool IsError(NameFault fault) noexcept;
/// Whether `unit` may stand in no name on this system.
[[nodiscard]] bool IsForbidden(char16_t unit) noexcept;
/// Whether `name` takes more than the 255 that the system has for a name.
[[nodiscard]] bool IsTooLong(std::u16string_view name);

} // namespace VyrHostPlatform::SystemNameRules
