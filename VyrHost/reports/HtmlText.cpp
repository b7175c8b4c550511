#include <VyrHost/reports/HtmlText.h>

#include <VyrPlatform/text/CString.h>
#include <VyrPlatform/text/Encoding.h>

#include <algorithm>

namespace VyrHost::Reports {

namespace {

/// Whether a page may contain the code unit (also as half of a pair).
bool IsHeld(char16_t unit)
{
    const bool isControl =
        (unit < 0x20 && unit != u'\t' && unit != u'\n' && unit != u'\r') || (unit >= 0x7F && unit < 0xA0);
    const bool isNoCharacter = (unit >= 0xFDD0 && unit <= 0xFDEF) || unit >= 0xFFFE;
    return !isControl && !isNoCharacter;
}

/// The escape of the code unit; empty where it needs none.
std::string_view EscapeOf(char16_t unit)
{
    switch (unit) {
    case u'&':
        return "&amp;";
    case u'<':
        return "&lt;";
    case u'>':
        return "&gt;";
    case u'"':
        return "&quot;";
    case u'\'':
        return "&#39;";
    case u'\r':
        return "&#13;"; // A browser would take it for a line feed.
    case u'\n':
        return "&#10;"; // It would drop one at the start of some elements.
    default:
        return IsHeld(unit) ? std::string_view() : "\xEF\xBF\xBD";
    }
}

/// RFC 3986, section 2.3.
bool IsUnreserved(char byte)
{
    constexpr std::string_view others = "-._~";
    return (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z') ||
           others.find(byte) != std::string_view::npos;
}

/// Whether the byte is literal in an address: RFC 3986, section 2.2 and 2.3, and the percent sign of encoded bytes.
bool MayStandInAddress(char byte)
{
    constexpr std::string_view others = ":/?#[]@!$&()*+,;=%";
    return IsUnreserved(byte) || others.find(byte) != std::string_view::npos;
}

void AppendPercentEncoded(std::string& address, char byte)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    const auto number = static_cast<unsigned char>(byte);
    address.append({'%', digits[number / 16], digits[number % 16]});
}

bool HasScheme(std::u16string_view address, std::u16string_view scheme)
{
    return address.size() > scheme.size() && CString(address.substr(0, scheme.size())).CompareNoCase(scheme) == 0;
}

} // namespace

void AppendEscaped(std::string& html, std::u16string_view text)
{
    std::size_t start = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const std::string_view escape = EscapeOf(text[at]);
        if (escape.empty())
            continue;
        VyrPlatform::Encoding::AppendUtf8(html, text.substr(start, at - start));
        html += escape;
        start = at + 1;
    }
    VyrPlatform::Encoding::AppendUtf8(html, text.substr(start));
}

std::optional<std::string> LinkTo(std::u16string_view text)
{
    const bool isAddress = HasScheme(text, u"http://") || HasScheme(text, u"https://");
    if (!isAddress || std::any_of(text.begin(), text.end(), [](char16_t unit) { return unit <= u' '; }))
        return std::nullopt;
    std::string link;
    for (const char byte : VyrPlatform::Encoding::ToUtf8(text)) {
        if (byte == '&')
            link += "&amp;";
        else if (MayStandInAddress(byte))
            link += byte;
        else
            AppendPercentEncoded(link, byte);
    }
    return link;
}

std::string PercentEncoded(std::string_view bytes)
{
    std::string encoded;
    for (const char byte : bytes) {
        if (IsUnreserved(byte))
            encoded += byte;
        else
            AppendPercentEncoded(encoded, byte);
    }
    return encoded;
}

} // namespace VyrHost::Reports
