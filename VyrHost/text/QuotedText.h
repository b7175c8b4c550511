/// @file
/// Texts in quotes, in options, kept rules and tables.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace VyrHost::Text {

/// Removes the quoted text at the start of `rest`, and returns its content; two quotes in it are one. Nothing if it is
/// not closed. Example: 'it''s' is it's.
/// @param rest  Begins with the quote, a double one or an apostrophe.
template <class Unit>
[[nodiscard]] std::optional<std::basic_string<Unit>> TakeQuoted(std::basic_string_view<Unit>& rest)
{
    const Unit quote = rest.front();
    std::basic_string<Unit> text;
    do {
        rest.remove_prefix(1);
        const std::size_t end = rest.find(quote);
        if (end == rest.npos)
            return std::nullopt;
        text += rest.substr(0, end);
        rest.remove_prefix(end + 1);
        if (rest.starts_with(quote))
            text += quote;
    } while (rest.starts_with(quote));
    return text;
}

} // namespace VyrHost::Text
