// Takes the journal's texts of changes apart.
#include <VyrHost/metadata/ChangeText.h>

#include <charconv>
#include <cstddef>
#include <system_error>

namespace VyrHost::Metadata {

namespace {

constexpr std::u16string_view hexDigits = u"0123456789abcdef";

} // namespace

std::u16string_view TakeUpTo(std::u16string_view& text, char16_t mark)
{
    const std::size_t at = text.find(mark);
    const std::u16string_view piece = text.substr(0, at);
    text.remove_prefix(at == std::u16string_view::npos ? text.size() : at + 1);
    return piece;
}

std::optional<std::int64_t> ReadWhole(std::u16string_view text, int base)
{
    std::string digits;
    for (const char16_t unit : text)
        digits += unit < 0x80 ? static_cast<char>(unit) : '?';
    std::int64_t number = 0;
    const char* const end = digits.data() + digits.size();
    const auto read = std::from_chars(digits.data(), end, number, base);
    return read.ec == std::errc() && read.ptr == end ? std::optional(number) : std::nullopt;
}

std::u16string ToHex(std::string_view bytes)
{
    std::u16string text;
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        text += hexDigits[value >> 4];
        text += hexDigits[value & 0xF];
    }
    return text;
}

std::optional<std::string> FromHex(std::u16string_view text)
{
    if (text.size() % 2 != 0)
        return std::nullopt;
    std::string bytes;
    for (std::size_t at = 0; at < text.size(); at += 2) {
        const std::size_t high = hexDigits.find(text[at]);
        const std::size_t low = hexDigits.find(text[at + 1]);
        if (high == std::u16string_view::npos || low == std::u16string_view::npos)
            return std::nullopt;
        bytes += static_cast<char>(high << 4 | low);
    }
    return bytes;
}

} // namespace VyrHost::Metadata
