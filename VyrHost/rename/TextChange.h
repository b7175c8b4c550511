/// @file
/// What tokens of templates do to their values: `upper`, `replace A B` and so on.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <functional>
#include <string>
#include <string_view>

namespace VyrHost::Rename {

using TextChange = std::function<CString(const CString&)>;

/// The change that `text` asks for, a word and its arguments, separated by blanks. An argument in apostrophes may hold
/// blanks and be empty; two apostrophes in it are one.
/// @param fault  gets what is wrong, in words; empty for nothing.
[[nodiscard]] TextChange ParseChange(std::u16string_view text, std::string& fault);

} // namespace VyrHost::Rename
