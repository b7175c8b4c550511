#include <VyrHost/ui/Output.h>

#include <VyrHost/text/SafeText.h>
#include <VyrHostPlatform/Console.h>
#include <VyrPlatform/text/Encoding.h>
#include <VyrPlatform/text/Surrogates.h>

#include <algorithm>
#include <array>

namespace VyrHost::Ui {

void OutputBuffer::Flush()
{
    if (!m_text.empty() && m_error == 0)
        m_error = VyrHostPlatform::Console::Write(VyrHostPlatform::Console::Stream::Output, m_text);
    m_text.clear();
}

namespace {

/// The characters below U+0100 that are literal in a JSON text.
constexpr auto isPlainLatin = [] {
    std::array<bool, 0x100> isPlain{};
    std::fill(isPlain.begin() + u' ', isPlain.begin() + 0x7F, true);
    std::fill(isPlain.begin() + 0xA0, isPlain.end(), true);
    isPlain[u'"'] = isPlain[u'\\'] = false;
    return isPlain;
}();

/// The number of code units at the start of `text` that are literal in a JSON text in any context.
std::size_t CountPlain(std::u16string_view text)
{
    const auto special = std::find_if_not(text.begin(), text.end(), [](char16_t unit) {
        return unit < isPlainLatin.size() ? isPlainLatin[unit] : !VyrPlatform::IsSurrogate(unit);
    });
    return static_cast<std::size_t>(special - text.begin());
}

void AppendEscape(std::string& line, char16_t unit)
{
    if (unit == u'"' || unit == u'\\') {
        line += '\\';
        line += static_cast<char>(unit);
    } else {
        Text::AppendUnitEscape(line, unit);
    }
}

/// Appends `text` inside the quotes of a JSON text.
void AppendInside(std::string& line, std::u16string_view text)
{
    while (!text.empty()) {
        std::size_t length = CountPlain(text);
        if (length == 0 && VyrPlatform::BeginsWithPair(text))
            length = 2;
        if (length > 0) {
            VyrPlatform::Encoding::AppendUtf8(line, text.substr(0, length));
        } else {
            AppendEscape(line, text.front());
            length = 1;
        }
        text.remove_prefix(length);
    }
}

void AppendKey(std::string& line, std::string_view key)
{
    line += line.empty() ? "{\"" : ",\"";
    line.append(key).append("\":");
}

} // namespace

void AppendJsonText(std::string& line, std::u16string_view text)
{
    line += '"';
    AppendInside(line, text);
    line += '"';
}

void AppendJsonField(std::string& line, std::string_view key, std::u16string_view text, std::u16string_view more)
{
    AppendKey(line, key);
    line += '"';
    AppendInside(line, text);
    AppendInside(line, more);
    line += '"';
}

void AppendJsonNumber(std::string& line, std::string_view key, std::int64_t number)
{
    AppendKey(line, key);
    line += std::to_string(number);
}

void AppendJsonFlag(std::string& line, std::string_view key, bool flag)
{
    AppendKey(line, key);
    line += flag ? "true" : "false";
}

void AppendJsonNull(std::string& line, std::string_view key)
{
    AppendKey(line, key);
    line += "null";
}

} // namespace VyrHost::Ui
