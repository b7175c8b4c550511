/// @file
/// The changes of values in tokens: `upper`, `replace A B` and so on.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <functional>
#include <string>
#include <string_view>

namespace VyrHost::Rename {

using TextChange = std::function<CString(const CString&)>;

/// Parses a change: a word and its arguments, separated by blanks. An argument in apostrophes may contain blanks or be
/// empty; two apostrophes in it are one.
/// @param fault  gets the fault, in words; empty for none.
[[nodiscard]] TextChange ParseChange(std::u16string_view text, std::string& fault);

} // namespace VyrHost::Rename
