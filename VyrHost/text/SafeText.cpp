#include <VyrHost/text/SafeText.h>

#include <VyrPlatform/text/Encoding.h>
#include <VyrPlatform/text/Surrogates.h>

#include <algorithm>
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
    if (text.size() < unitEscapeLength || !text.starts_with(start))
        return {};
    unsigned unit = 0;
    const char* const end = text.data() + unitEscapeLength;
    const auto [stop, error] = std::from_chars(text.data() + start.size(), end, unit, 16);
    if (error != std::errc() || stop != end)
        return {};
    return static_cast<char16_t>(unit);
}

namespace {

/// Whether `text` is printable ASCII.
bool IsAllPlain(std::u16string_view text)
{
    unsigned others = 0;
    for (const char16_t unit : text)
        others |= static_cast<unsigned>(unit < u' ' || unit >= 0x7F);
    return others == 0;
}

/// Whether a terminal would do something other than draw `character`.
bool ActsOnTerminal(char32_t character)
{
    const bool isControl = character < 0x20 || (character >= 0x7F && character < 0xA0);
    const bool turnsDirection = character == 0x061C || character == 0x200E || character == 0x200F ||
                                (character >= 0x2028 && character <= 0x202E) ||
                                (character >= 0x2066 && character <= 0x2069);
    const bool isHalf = character < 0x10000 && VyrPlatform::IsSurrogate(static_cast<char16_t>(character));
    return isControl || turnsDirection || isHalf || character == 0xFEFF;
}

std::string Escape(char32_t character)
{
    switch (character) {
    case U'\n':
        return "\\n";
    case U'\r':
        return "\\r";
    case U'\t':
        return "\\t";
    default:
        break;
    }
    std::string escape;
    AppendUnitEscape(escape, static_cast<char16_t>(character));
    return character < 0x100 ? "\\x" + escape.substr(unitEscapeLength - 2) : escape;
}

/// A character as it is shown.
struct Glyph
{
    std::u16string_view units;
    char32_t character;
    int width;
};

Glyph TakeGlyph(std::u16string_view& text)
{
    const std::u16string_view before = text;
    const char32_t character = VyrPlatform::TakeCharacter(text);
    const int width =
        ActsOnTerminal(character) ? static_cast<int>(Escape(character).size()) : CharacterWidth(character);
    return {before.substr(0, before.size() - text.size()), character, width};
}

void Append(std::string& shown, const Glyph& glyph)
{
    if (ActsOnTerminal(glyph.character))
        shown += Escape(glyph.character);
    else
        VyrPlatform::Encoding::AppendUtf8(shown, glyph.units);
}

} // namespace

void AppendSafeText(std::string& line, std::u16string_view text)
{
    if (IsAllPlain(text)) {
        const std::size_t before = line.size();
        line.resize(before + text.size());
        std::transform(text.begin(), text.end(), line.begin() + static_cast<std::ptrdiff_t>(before),
                       [](char16_t unit) { return static_cast<char>(unit); });
        return;
    }
    while (!text.empty())
        Append(line, TakeGlyph(text));
}

std::string SafeText(std::u16string_view text)
{
    std::string shown;
    AppendSafeText(shown, text);
    return shown;
}

int SafeWidth(std::u16string_view text)
{
    if (IsAllPlain(text))
        return static_cast<int>(text.size());
    int width = 0;
    while (!text.empty())
        width += TakeGlyph(text).width;
    return width;
}

} // namespace VyrHost::Text
