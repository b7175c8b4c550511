// When a key was last written to, as the function classes tell it.
#pragma once

#include <VyrPlatform/registry/Registry.h>
#include <VyrPlatform/text/CString.h>

#include <optional>

namespace VyrLibraryFuncs {

/// The moment as display text in local time; empty when it is no date-time, nothing when the key does not tell it.
[[nodiscard]] std::optional<CString> GetLastWriteText(VyrPlatform::Registry::Handle key);

} // namespace VyrLibraryFuncs
