// Parses and writes private-profile files as Windows does.
#include "ProfileText.h"

#include <VyrPlatform/text/CodePage.h>

#include <algorithm>
#include <unicode/uchar.h>
#include <utility>

namespace VyrPlatform {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view utf8Mark = "\xEF\xBB\xBF"sv;
constexpr std::string_view utf16LittleEndianMark = "\xFF\xFE"sv;
constexpr std::string_view utf16BigEndianMark = "\xFE\xFF"sv;
/// The blanks around names and values; the last is the end-of-file mark of old programs.
constexpr std::u16string_view blanks = u" \t\v\f\x1A";

std::u16string_view TrimLeft(std::u16string_view text) noexcept
{
    text.remove_prefix(std::min(text.size(), text.find_first_not_of(blanks)));
    return text;
}

std::u16string_view Trim(std::u16string_view text) noexcept
{
    text = TrimLeft(text);
    return text.substr(0, text.find_last_not_of(blanks) + 1);
}

bool StartsWithMark(std::string_view bytes) noexcept
{
    return bytes.starts_with(utf8Mark) || bytes.starts_with(utf16LittleEndianMark) ||
           bytes.starts_with(utf16BigEndianMark);
}

char16_t Fold(char16_t unit) noexcept
{
    const UChar32 folded = u_foldCase(unit, U_FOLD_CASE_DEFAULT);
    return folded <= 0xFFFF ? static_cast<char16_t>(folded) : unit;
}

std::u16string_view WithoutQuotes(std::u16string_view value) noexcept
{
    const bool isQuoted =
        value.size() >= 2 && (value.front() == u'"' || value.front() == u'\'') && value.back() == value.front();
    return isQuoted ? value.substr(1, value.size() - 2) : value;
}

} // namespace

ProfileText::ProfileText(std::string_view bytes)
{
    TakeForm(bytes);
    const Raw content = ToRaw(bytes);
    std::u16string_view rest = content;
    while (!rest.empty()) {
        const std::u16string_view line = rest.substr(0, rest.find_first_of(u"\r\n"));
        AddLine(Trim(line.substr(0, line.find(u'\0'))));
        rest.remove_prefix(std::min(rest.size(), line.size() + 1));
    }
}

void ProfileText::TakeForm(std::string_view& bytes)
{
    for (const auto& [mark, form] :
         {std::pair(utf8Mark, Form::Utf8), std::pair(utf16LittleEndianMark, Form::Utf16LittleEndian),
          std::pair(utf16BigEndianMark, Form::Utf16BigEndian)})
        if (bytes.starts_with(mark)) {
            m_form = form;
            bytes.remove_prefix(mark.size());
            return;
        }
}

void ProfileText::AddLine(std::u16string_view line)
{
    if (line.empty())
        return;
    const std::size_t bracket = line.rfind(u']');
    if (line.front() == u'[' && bracket != std::u16string_view::npos) {
        m_sections.push_back({Raw(Trim(line.substr(1, bracket - 1))), {}});
        return;
    }
    const std::size_t sign = line.find(u'=');
    Entry entry{Raw(Trim(line.substr(0, sign))), {}};
    if (sign != std::u16string_view::npos)
        entry.value = Raw(Trim(line.substr(sign + 1)));
    m_sections.back().entries.push_back(std::move(entry));
}

/// The first of `all` with the name.
template <class All>
auto ProfileText::FindNamed(All& all, std::u16string_view name) const
{
    return std::find_if(all.begin(), all.end(), [&](const auto& one) { return IsNamed(one.name, name); });
}

std::optional<CString> ProfileText::Find(std::u16string_view section, std::u16string_view key) const
{
    const auto found = FindNamed(m_sections, section);
    if (found == m_sections.end())
        return std::nullopt;
    const auto entry = FindNamed(found->entries, key);
    if (entry == found->entries.end() || !entry->value)
        return std::nullopt;
    return CString(WithoutQuotes(ToText(*entry->value)));
}

bool ProfileText::Set(std::u16string_view section, std::u16string_view key, std::u16string_view value)
{
    value = TrimLeft(value);
    auto found = FindNamed(m_sections, section);
    if (found == m_sections.end())
        found = m_sections.insert(found, Section{ToRaw(Trim(section)), {}});
    auto entry = FindNamed(found->entries, key);
    if (entry == found->entries.end())
        entry = found->entries.insert(entry, Entry{ToRaw(TrimLeft(key)), {}});
    else if (entry->value && ToText(*entry->value) == value)
        return false;
    entry->value = ToRaw(value);
    return true;
}

std::string ProfileText::ToBytes() const
{
    Raw content;
    for (const Section& section : m_sections) {
        if (&section != &m_sections.front())
            content.append(u"[").append(section.name).append(u"]\r\n");
        for (const Entry& entry : section.entries) {
            content += entry.name;
            if (entry.value)
                content.append(u"=").append(*entry.value);
            content += u"\r\n";
        }
    }
    std::string bytes(m_form == Form::Utf8                ? utf8Mark
                      : m_form == Form::Utf16LittleEndian ? utf16LittleEndianMark
                      : m_form == Form::Utf16BigEndian    ? utf16BigEndianMark
                                                          : std::string_view());
    for (const char16_t unit : content) {
        const auto low = static_cast<char>(unit & 0xFF);
        const auto high = static_cast<char>(unit >> 8);
        if (m_form == Form::Utf16BigEndian)
            bytes += high;
        bytes += low;
        if (m_form == Form::Utf16LittleEndian)
            bytes += high;
    }
    // A first line of bytes that look like a mark would be read as one.
    if (m_form == Form::Ansi && StartsWithMark(bytes))
        bytes.insert(0, "\r\n");
    return bytes;
}

std::uint32_t ProfileText::PageNumber() const noexcept
{
    constexpr std::uint32_t ansi = 0;
    return m_form == Form::Utf8 ? CodePage::utf8 : ansi;
}

bool ProfileText::IsUtf16() const noexcept
{
    return m_form == Form::Utf16LittleEndian || m_form == Form::Utf16BigEndian;
}

ProfileText::Raw ProfileText::ToRaw(std::string_view bytes) const
{
    const auto unitAt = [&](std::size_t at) {
        return static_cast<char16_t>(static_cast<unsigned char>(bytes[at]));
    };
    Raw raw;
    if (!IsUtf16()) {
        for (std::size_t at = 0; at < bytes.size(); ++at)
            raw += unitAt(at);
        return raw;
    }
    const std::size_t low = m_form == Form::Utf16LittleEndian ? 0 : 1;
    for (std::size_t at = 0; at + 1 < bytes.size(); at += 2)
        raw += static_cast<char16_t>(unitAt(at + low) | unitAt(at + 1 - low) << 8);
    return raw;
}

ProfileText::Raw ProfileText::ToRaw(std::u16string_view text) const
{
    if (IsUtf16())
        return Raw(text);
    const CString ended(text);
    std::string bytes(CodePage::ToBytes(PageNumber(), ended.GetString(), '?', {}), '\0');
    static_cast<void>(CodePage::ToBytes(PageNumber(), ended.GetString(), '?', bytes));
    return ToRaw(std::string_view(bytes.c_str()));
}

CString ProfileText::ToText(const Raw& raw) const
{
    if (IsUtf16())
        return std::u16string_view(raw);
    std::string bytes;
    for (const char16_t unit : raw)
        bytes += static_cast<char>(unit);
    std::u16string text(CodePage::ToText(PageNumber(), bytes.c_str(), {}), u'\0');
    static_cast<void>(CodePage::ToText(PageNumber(), bytes.c_str(), text));
    return text.c_str();
}

bool ProfileText::IsNamed(const Raw& name, std::u16string_view wanted) const
{
    wanted = Trim(wanted);
    const CString text = ToText(name);
    return std::equal(text.View().begin(), text.View().end(), wanted.begin(), wanted.end(),
                      [](char16_t left, char16_t right) { return Fold(left) == Fold(right); });
}

} // namespace VyrPlatform
