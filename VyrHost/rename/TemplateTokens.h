/// @file
/// Finds what a template says that nobody would understand.
#pragma once

#include <span>
#include <string_view>

namespace VyrHost::Rename {

/// Refuses a date format (RefuseValue for "--date") with letters that stand for no part of a date outside apostrophes,
/// with a percent sign before a letter, with a word in angle brackets that is no token, or with a token in
/// apostrophes, which would make text of it. Nothing of that kind is refused within apostrophes.
///
/// Example: "yyyy 'Trip' MM" passes; "YYYY", "%Y", "yyyy Trip" and "yyyy <Maker>" do not.
void RequireDateFormat(std::u16string_view format);

/// Refuses a sequence number's template with a word in angle brackets that is no token: "<Nmae> ###". "<", and "<" with
/// anything but ASCII letters up to the ">", is text.
void RequireNumberTokens(std::u16string_view text);

} // namespace VyrHost::Rename
