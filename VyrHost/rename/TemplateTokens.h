/// @file
/// What the texts of rules may hold: the words in angle brackets, the letters of dates, the characters of names.
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

/// Why a text that ends with Token::folder is refused.
inline constexpr const char* noNameFollows = "no name follows <Folder>; add <Name> to keep the old one";

/// Refuses a date format (RefuseValue for "--date") with letters that stand for no part of a date outside apostrophes,
/// with a percent sign before a letter, with a word in angle brackets that is no token, or with a token in
/// apostrophes, which would make text of it. Nothing of that kind is refused within apostrophes.
///
/// Example: "yyyy 'Trip' MM" passes; "YYYY", "%Y", "yyyy Trip" and "yyyy <Maker>" do not.
void RequireDateFormat(std::u16string_view format);

/// Refuses a date format that is the option of a token (RefuseValue for `option` and `shown`) likewise; it has no
/// tokens itself.
void RequireDateOption(std::u16string_view format, const char* option, std::u16string_view shown);

/// The pieces of a date format between which its milliseconds stand ("SSS" outside apostrophes): one more than there
/// are. No token may hold "SSS".
[[nodiscard]] std::vector<std::u16string_view> CutAtMilliseconds(std::u16string_view format);

/// Refuses a sequence number's template with a word in angle brackets that is no token ("<Nmae> ###"), also with what
/// only --name understands behind it ("<Name:3>", "<Name|upper>"). Any other "<" is text.
void RequireNumberTokens(std::u16string_view text);

/// Throws UsageError when `text`, given with `option`, could not be a part of a name.
void RequireNameText(std::u16string_view text, const char* option);

} // namespace VyrHost::Rename
