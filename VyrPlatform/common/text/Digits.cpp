#include <VyrPlatform/text/Digits.h>

#include <charconv>
#include <system_error>

namespace VyrPlatform {

namespace {

constexpr std::string_view digits = "0123456789abcdef";

} // namespace

std::string ToHex(std::string_view bytes)
{
    std::string text;
    text.reserve(2 * bytes.size());
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        text += digits[value >> 4];
        text += digits[value & 0xF];
    }
    return text;
}

std::optional<std::string> FromHex(std::string_view text)
{
    if (text.size() % 2 != 0)
        return std::nullopt;
    std::string bytes;
    bytes.reserve(text.size() / 2);
    for (std::size_t at = 0; at < text.size(); at += 2) {
        const std::size_t high = digits.find(text[at]);
        const std::size_t low = digits.find(text[at + 1]);
        if (high == std::string_view::npos || low == std::string_view::npos)
            return std::nullopt;
        bytes += static_cast<char>(high << 4 | low);
    }
    return bytes;
}

std::optional<std::int64_t> ReadWhole(std::string_view text, int base)
{
    std::int64_t number = 0;
    const char* const end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, number, base);
    return read.ec == std::errc() && read.ptr == end ? std::optional(number) : std::nullopt;
}

} // namespace VyrPlatform
