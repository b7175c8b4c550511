/// @file
/// What a system's error code means, for people.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <cstdint>

namespace VyrHost::Text {

/// The system's message for `code`, or the bare number where it has none; for 0, which no call gives, that a folder is
/// not where it was.
[[nodiscard]] CString ErrorText(std::uint32_t code);

} // namespace VyrHost::Text
