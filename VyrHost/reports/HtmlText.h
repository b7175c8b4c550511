/// @file
/// Texts from outside, as they may stand in a page.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace VyrHost::Reports {

/// Appends `text` to `html` (UTF-8) so that a browser shows it and takes nothing in it for markup, in an element or in
/// an attribute between double quotes. The one way of texts into a page. What HTML cannot hold (control characters but
/// tabs and line ends, lone surrogates, the units that are no characters) becomes U+FFFD.
void AppendEscaped(std::string& html, std::u16string_view text);

/// `text` as the address of a link: percent-encoded, and safe between double quotes.
/// @return nothing unless it is a whole address with `http:` or `https:`.
[[nodiscard]] std::optional<std::string> LinkTo(std::u16string_view text);

} // namespace VyrHost::Reports
