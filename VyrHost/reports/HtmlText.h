/// @file
/// Escapes texts of users and files for a page.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace VyrHost::Reports {

/// Appends `text` to `html` (UTF-8) so that a browser shows it and interprets nothing in it as markup, in an element or
/// in an attribute in double quotes. All texts in a page go through this function. Characters that HTML forbids
/// (control characters except tabs and line ends, lone surrogates, noncharacters) become U+FFFD.
void AppendEscaped(std::string& html, std::u16string_view text);

/// `text` as the address of a link: percent-encoded, and safe in double quotes.
/// @return nothing unless it is a complete address with `http:` or `https:`.
[[nodiscard]] std::optional<std::string> LinkTo(std::u16string_view text);

/// `bytes` as a part of an address: what is neither a letter or a digit of ASCII nor one of `-._~` is percent-encoded
/// (RFC 3986, section 2.3).
[[nodiscard]] std::string PercentEncoded(std::string_view bytes);

} // namespace VyrHost::Reports
