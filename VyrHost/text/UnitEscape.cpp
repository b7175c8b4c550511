// Writes and reads escapes.
#include <VyrHost/text/UnitEscape.h>

#include <charconv>

namespace VyrHost::Text {

namespace {

constexpr std::string_view start = "\\u";

} // namespace

void AppendUnitEscape(std::string& text, char16_t unit)
{
    constexpr const char* digits = "0123456789abcdef";
    text += start;
    for (int shift = 12; shift >= 0; shift -= 4)
        text += digits[unit >> shift & 0xF];
}

std::optional<char16_t> ReadUnitEscape(std::string_view text) noexcept
{
    if (text.size() < UnitEscapeLength || !text.starts_with(start))
        return {};
    unsigned unit = 0;
    const char* const end = text.data() + UnitEscapeLength;
    const auto [stop, error] = std::from_chars(text.data() + start.size(), end, unit, 16);
    if (error != std::errc() || stop != end)
        return {};
    return static_cast<char16_t>(unit);
}

} // namespace VyrHost::Text
