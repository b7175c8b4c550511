// Finds properties without building a tree: packets are often cut off, and those in pictures need not be well-formed.
#include <VyrHost/media/Xmp.h>

#include <algorithm>
#include <charconv>
#include <cstdint>

namespace VyrHost::Media {

namespace {

constexpr std::string_view blanks = " \t\r\n";
/// Bound the work on a hostile packet, which may repeat an unfinished part thousands of times.
constexpr std::size_t longestDeclaration = 256;
constexpr int mostElements = 8;
constexpr int mostItems = 200;
constexpr std::size_t longestItem = 16384;

/// The text between `from` and `to`; without them it is empty.
std::string_view Between(std::string_view text, std::string_view from, std::string_view to)
{
    const std::size_t begin = text.find(from);
    if (begin == std::string_view::npos)
        return {};
    text.remove_prefix(begin + from.size());
    return text.substr(0, text.find(to));
}

/// The prefix that stands for `space`; "xmp" in `xmlns:xmp="…"`.
std::string_view PrefixOf(std::string_view packet, std::string_view space)
{
    constexpr std::string_view declaration = "xmlns:";
    for (std::size_t at = packet.find(declaration); at != std::string_view::npos; at = packet.find(declaration, at)) {
        at += declaration.size();
        const std::string_view rest = packet.substr(at, longestDeclaration);
        const std::size_t end = rest.find_first_of("= \t\r\n");
        const std::size_t quote = rest.find_first_of("\"'");
        if (end == std::string_view::npos || quote == std::string_view::npos)
            continue;
        if (rest.substr(quote + 1).starts_with(space) && rest.substr(quote + 1 + space.size()).starts_with(rest[quote]))
            return rest.substr(0, end);
    }
    return {};
}

void AppendUtf8(std::string& text, std::uint32_t character)
{
    if (character == 0 || character > 0x10FFFF || (character >= 0xD800 && character <= 0xDFFF))
        return;
    if (character < 0x80) {
        text += static_cast<char>(character);
        return;
    }
    const int following = character < 0x800 ? 1 : character < 0x10000 ? 2 : 3;
    constexpr unsigned leads[] = {0, 0xC0, 0xE0, 0xF0};
    text += static_cast<char>(leads[following] | character >> 6 * following);
    for (int left = following - 1; left >= 0; --left)
        text += static_cast<char>(0x80 | (character >> 6 * left & 0x3F));
}

/// Appends the character that `name` stands for, as in "&amp;"; nothing for an unknown one.
void AppendReference(std::string& text, std::string_view name)
{
    if (name.starts_with('#')) {
        const bool isHex = name.starts_with("#x");
        name.remove_prefix(isHex ? 2 : 1);
        std::uint32_t character = 0;
        std::from_chars(name.data(), name.data() + name.size(), character, isHex ? 16 : 10);
        AppendUtf8(text, character);
        return;
    }
    constexpr struct
    {
        std::string_view name;
        char character;
    } known[] = {{"amp", '&'}, {"lt", '<'}, {"gt", '>'}, {"quot", '"'}, {"apos", '\''}};
    for (const auto& reference : known)
        if (reference.name == name)
            text += reference.character;
}

/// `markup` without tags, its references replaced.
std::string Plain(std::string_view markup)
{
    std::string text;
    while (!markup.empty()) {
        const std::size_t end = std::min(markup.find_first_of("<&"), markup.size());
        text += markup.substr(0, end);
        markup.remove_prefix(end);
        if (markup.empty())
            break;
        const char first = markup.front();
        const std::size_t close = markup.find(first == '<' ? '>' : ';');
        if (first == '&')
            AppendReference(text, Between(markup, "&", ";"));
        markup.remove_prefix(close == std::string_view::npos ? markup.size() : close + 1);
    }
    const std::size_t begin = std::min(text.find_first_not_of(blanks), text.size());
    return text.substr(begin, text.find_last_not_of(blanks) + 1 - begin);
}

/// The items of a list, or the plain text.
std::string TextOfContent(std::string_view content)
{
    constexpr std::string_view item = "<rdf:li";
    if (content.find(item) == std::string_view::npos)
        return Plain(content);
    const bool isAlternatives = content.find("<rdf:Alt") != std::string_view::npos;
    std::string text;
    std::size_t at = content.find(item);
    for (int left = mostItems; left > 0 && at != std::string_view::npos; --left, at = content.find(item, at + 1)) {
        const std::string one = Plain(Between(content.substr(at, longestItem), ">", "</rdf:li"));
        if (!one.empty())
            text += (text.empty() ? "" : ", ") + one;
        if (isAlternatives)
            break;
    }
    return text;
}

/// The name as an attribute, after a blank and before its "=".
std::string AttributeOf(std::string_view packet, std::string_view name)
{
    for (std::size_t at = packet.find(name); at != std::string_view::npos; at = packet.find(name, at + 1)) {
        std::string_view rest = packet.substr(at + name.size());
        rest.remove_prefix(std::min(rest.find_first_not_of(blanks), rest.size()));
        if (at == 0 || blanks.find(packet[at - 1]) == std::string_view::npos || !rest.starts_with('='))
            continue;
        rest.remove_prefix(1);
        rest.remove_prefix(std::min(rest.find_first_not_of(blanks), rest.size()));
        if (rest.starts_with('"') || rest.starts_with('\''))
            return Plain(rest.substr(1, rest.find(rest.front(), 1) - 1));
    }
    return {};
}

std::string ElementOf(std::string_view packet, const std::string& name)
{
    const std::string begin = "<" + name;
    std::size_t at = packet.find(begin);
    for (int left = mostElements; left > 0 && at != std::string_view::npos; --left, at = packet.find(begin, at + 1)) {
        const std::string_view rest = packet.substr(at + begin.size());
        if (rest.empty() || (blanks.find(rest.front()) == std::string_view::npos && rest.front() != '>'))
            continue;
        const std::size_t open = rest.find('>');
        if (open == std::string_view::npos || (open > 0 && rest[open - 1] == '/'))
            continue;
        std::string text = TextOfContent(Between(rest, ">", "</" + name));
        if (!text.empty())
            return text;
    }
    return {};
}

} // namespace

std::string XmpProperty(std::string_view packet, std::string_view space, std::string_view name)
{
    const std::string_view prefix = PrefixOf(packet, space);
    if (prefix.empty())
        return {};
    const std::string full = std::string(prefix).append(":").append(name);
    std::string text = AttributeOf(packet, full);
    return text.empty() ? ElementOf(packet, full) : text;
}

} // namespace VyrHost::Media
