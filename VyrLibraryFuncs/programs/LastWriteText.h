// The last write of a key as text for the function classes.
#pragma once

#include <VyrPlatform/registry/Registry.h>
#include <VyrPlatform/text/CString.h>

#include <optional>

namespace VyrLibraryFuncs {

/// The last write as display text in local time; empty when it is no date-time, nothing when it is unknown.
[[nodiscard]] std::optional<CString> GetLastWriteText(VyrPlatform::Registry::Handle key);

} // namespace VyrLibraryFuncs
