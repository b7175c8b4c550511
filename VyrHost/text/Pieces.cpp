#include <VyrHost/text/Pieces.h>

#include <VyrPlatform/text/Digits.h>

namespace VyrHost::Text {

namespace {

/// Other characters are not digits.
std::string AsciiOf(std::u16string_view text)
{
    std::string bytes;
    bytes.reserve(text.size());
    for (const char16_t unit : text)
        bytes += unit < 0x80 ? static_cast<char>(unit) : '?';
    return bytes;
}

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
    return VyrPlatform::ReadWhole(AsciiOf(text), base);
}

std::u16string ToHex(std::string_view bytes)
{
    const std::string digits = VyrPlatform::ToHex(bytes);
    return {digits.begin(), digits.end()};
}

std::optional<std::string> FromHex(std::u16string_view text)
{
    return VyrPlatform::FromHex(AsciiOf(text));
}

} // namespace VyrHost::Text
