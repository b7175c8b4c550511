// The parts of ExactState's texts: numbers, and bytes in hexadecimal, separated by blanks.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <string>
#include <string_view>

namespace VyrPlatform {

/// Removes and returns the text before the next blank.
[[nodiscard]] std::string_view TakeWord(std::string_view& text) noexcept;

/// The bytes of a state; empty for one that is not ASCII.
[[nodiscard]] std::string StateBytes(const CString& state);

} // namespace VyrPlatform
