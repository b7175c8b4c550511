/// @file
/// Templates: texts with tokens in angle brackets, cut into their parts.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace VyrHost::Text {

/// A token as it is written: `<Word:option?otherwise|change|change>`.
struct Token
{
    /// All of it, with its brackets.
    CString whole;
    /// ASCII letters, digits and `_`; or a run of `#`.
    CString word;
    /// What is after the colon; nothing without one.
    std::optional<CString> option = {};
    /// What stands for a value that is missing; nothing without a question mark.
    std::optional<CString> otherwise = {};
    std::vector<CString> changes = {};

    /// Whether it is ASCII letters in brackets, and nothing else.
    [[nodiscard]] bool IsBareWord() const;
};

/// Plain text, or a token.
using TemplatePart = std::variant<CString, Token>;

/// The parts of `text`, in order. A "<" that does not begin a token is plain text, such as that of "a < b" and of "<a
/// b>". Two plain texts never follow each other, and none is empty.
[[nodiscard]] std::vector<TemplatePart> CutTemplate(std::u16string_view text);

/// "; did you mean <Name>?" for the one of `words` that `token` probably means; empty if none is near.
[[nodiscard]] std::string TokenHint(const Token& token, const std::vector<std::string>& words);

} // namespace VyrHost::Text
