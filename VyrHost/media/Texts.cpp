#include <VyrHost/media/Texts.h>

#include <VyrPlatform/text/Encoding.h>

#include <algorithm>
#include <charconv>
#include <string>

namespace VyrHost::Media {

namespace {

constexpr std::size_t longestText = 4096;
/// More bytes need not be converted: each code unit of the result takes at most four.
constexpr std::size_t longestBytes = 4 * longestText;

bool IsBlank(char16_t unit)
{
    return unit <= u' ' || (unit >= 0x7F && unit <= 0xA0);
}

bool IsLead(char16_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

std::u16string FromLatin1(std::string_view bytes)
{
    std::u16string text(bytes.size(), u'\0');
    std::transform(bytes.begin(), bytes.end(), text.begin(),
                   [](char byte) { return static_cast<unsigned char>(byte); });
    return text;
}

/// Removes an incomplete character at the end.
std::string_view CutUtf8(std::string_view bytes)
{
    if (bytes.size() <= longestBytes)
        return bytes;
    std::size_t end = longestBytes;
    while (end > 0 && (static_cast<unsigned char>(bytes[end]) & 0xC0) == 0x80)
        --end;
    return bytes.substr(0, end);
}

bool IsBigEndian(std::string_view bytes)
{
    if (bytes.starts_with("\xFE\xFF") || bytes.starts_with("\xFF\xFE"))
        return bytes[0] == '\xFE';
    std::size_t lowFirst = 0;
    std::size_t highFirst = 0;
    for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
        highFirst += bytes[at] == '\0' && bytes[at + 1] != '\0' ? 1U : 0U;
        lowFirst += bytes[at] != '\0' && bytes[at + 1] == '\0' ? 1U : 0U;
    }
    return highFirst > lowFirst;
}

} // namespace

CString TextOf(std::string_view bytes)
{
    bytes = CutUtf8(bytes.substr(0, bytes.find('\0')));
    const CString text = VyrPlatform::Encoding::FromUtf8(bytes);
    // Bytes that are not UTF-8 do not survive the conversion.
    return VyrPlatform::Encoding::ToUtf8(text) == bytes ? CleanText(text) : CleanText(FromLatin1(bytes));
}

CString FromUtf16(std::string_view bytes)
{
    const bool isBig = IsBigEndian(bytes);
    std::u16string text;
    for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
        const auto first = static_cast<unsigned char>(bytes[at]);
        const auto second = static_cast<unsigned char>(bytes[at + 1]);
        text += static_cast<char16_t>(isBig ? first << 8 | second : second << 8 | first);
    }
    text.erase(0, text.starts_with(u'\xFEFF') ? 1 : 0);
    return CString(std::u16string_view(text));
}

CString WideTextOf(std::string_view bytes)
{
    return CleanText(FromUtf16(bytes.substr(0, longestBytes)));
}

CString CleanText(std::u16string_view text)
{
    std::u16string clean;
    for (const char16_t unit : text.substr(0, text.find(u'\0'))) {
        if (!IsBlank(unit))
            clean += unit;
        else if (!clean.empty() && clean.back() != u' ')
            clean += u' ';
        if (clean.size() > longestText)
            break;
    }
    if (clean.size() > longestText)
        clean.resize(IsLead(clean[longestText - 1]) ? longestText - 1 : longestText);
    if (clean.ends_with(u' '))
        clean.pop_back();
    return CString(std::u16string_view(clean));
}

unsigned NumberAtFront(std::string_view text)
{
    unsigned number = 0;
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

} // namespace VyrHost::Media
