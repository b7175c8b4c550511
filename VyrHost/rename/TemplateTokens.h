/// @file
/// Checks the texts of rules: tokens, letters of dates, characters of names.
#pragma once

#include <VyrLibraryFuncs/name/NameFuncs.h>

#include <string_view>
#include <vector>

namespace VyrHost::Rename {

namespace Token {

/// The name so far.
inline constexpr std::u16string_view name = u"<Name>";
/// The sequence number.
inline constexpr std::u16string_view number = u"<Number>";
/// A step down into a folder.
inline constexpr std::u16string_view folder = VyrLibraryFuncs::folderToken;
/// The camera's maker and model.
inline constexpr std::u16string_view make = VyrLibraryFuncs::makeToken;
inline constexpr std::u16string_view model = VyrLibraryFuncs::modelToken;

} // namespace Token

/// The message for a text that ends with Token::folder.
inline constexpr const char* noNameFollows = "no name follows <Folder>; add <Name> to keep the old one";

/// Refuses a date format (RefuseValue for "--date") with letters that are not parts of a date, a percent sign before a
/// letter, or an unknown token; all of these are allowed in apostrophes. Also refuses a token in apostrophes, which
/// would be literal text.
///
/// Example: "yyyy 'Trip' MM" passes; "YYYY", "%Y", "yyyy Trip" and "yyyy <Maker>" do not.
void RequireDateFormat(std::u16string_view format);

/// The same for a date format that is the option of a token (RefuseValue for `option` and `shown`); it has no tokens
/// itself.
void RequireDateOption(std::u16string_view format, const char* option, std::u16string_view shown);

/// Splits a date format at its milliseconds ("SSS" outside apostrophes). No token may contain "SSS".
[[nodiscard]] std::vector<std::u16string_view> CutAtMilliseconds(std::u16string_view format);

/// Refuses a sequence number's template with an unknown token ("<Nmae> ###"), also with what only --name understands
/// ("<Name:3>", "<Name|upper>"). Any other "<" is text.
void RequireNumberTokens(std::u16string_view text);

/// Throws UsageError when `text`, given with `option`, could not be a part of a name.
void RequireNameText(std::u16string_view text, const char* option);

} // namespace VyrHost::Rename
