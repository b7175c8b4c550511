#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/text/Locale.h>
#include <VyrPlatform/time/DateTimePattern.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <memory_resource>
#include <string>

namespace VyrPlatform::DateTimePattern {

namespace {

/// Builds a text on the stack; only a long one takes memory from the heap.
class Builder
{
public:
    void Append(char16_t unit) { m_text.push_back(unit); }
    void Append(std::u16string_view text) { m_text.append(text); }
    [[nodiscard]] CString Text() const { return std::u16string_view(m_text); }

private:
    static constexpr std::size_t room = 256;

    std::array<std::byte, (room + 1) * sizeof(char16_t)> m_memory;
    std::pmr::monotonic_buffer_resource m_resource{m_memory.data(), m_memory.size()};
    std::pmr::u16string m_text = Reserved(&m_resource);

    static std::pmr::u16string Reserved(std::pmr::memory_resource* resource)
    {
        std::pmr::u16string text(resource);
        text.reserve(room);
        return text;
    }
};

/// The conversions of one letter of a format by the length of its run, from 1 on; empty where the table lists no such
/// run.
struct Letter
{
    char16_t letter;
    std::array<std::u16string_view, 4> conversions;
};

constexpr std::array<Letter, 9> letters{{
    {u'y', {u"", u"%y", u"", u"%Y"}},
    {u'M', {u"%-m", u"%m", u"%b", u"%B"}},
    {u'd', {u"%-d", u"%d"}},
    {u'E', {u"", u"", u"%a", u"%A"}},
    {u'H', {u"%-H", u"%H"}},
    {u'h', {u"%-I", u"%I"}},
    {u'm', {u"%-M", u"%M"}},
    {u's', {u"%-S", u"%S"}},
    {u'a', {u"%p"}},
}};

/// Walks a format from its start to its end.
class FormatCompiler
{
public:
    explicit FormatCompiler(std::u16string_view format) : m_rest(format) {}

    CString Compile()
    {
        while (!m_rest.empty()) {
            if (m_rest.front() == u'\'')
                CompileQuoted();
            else if (m_rest.front() == u'<')
                CompileToken();
            else if (!CompileRun())
                AppendLiteral(1);
        }
        return m_pattern.Text();
    }

private:
    /// Appends the next `length` code units to the pattern as literal text.
    void AppendLiteral(std::size_t length)
    {
        for (const char16_t unit : m_rest.substr(0, length)) {
            if (unit == u'%')
                m_pattern.Append(unit);
            m_pattern.Append(unit);
        }
        m_rest.remove_prefix(length);
    }

    void CompileQuoted()
    {
        m_rest.remove_prefix(1);
        if (m_rest.starts_with(u'\'')) {
            AppendLiteral(1);
            return;
        }
        while (!m_rest.empty()) {
            AppendLiteral(std::min(m_rest.find(u'\''), m_rest.size()));
            if (!m_rest.starts_with(u"\'\'")) {
                m_rest.remove_prefix(std::min<std::size_t>(1, m_rest.size()));
                return;
            }
            m_rest.remove_prefix(1);
            AppendLiteral(1);
        }
    }

    void CompileToken()
    {
        const std::size_t end = m_isTokenLeft ? m_rest.find(u'>') : m_rest.npos;
        // No later `<` has an end either: searching for it each time would take quadratic time.
        m_isTokenLeft = end != m_rest.npos;
        AppendLiteral(m_isTokenLeft ? end + 1 : 1);
    }

    /// Compiles the longest listed run at this position; false when there is none.
    bool CompileRun()
    {
        const auto letter = std::find_if(letters.begin(), letters.end(),
                                         [this](const Letter& listed) { return listed.letter == m_rest.front(); });
        if (letter == letters.end())
            return false;
        const std::u16string_view longest = m_rest.substr(0, letter->conversions.size());
        std::size_t length = std::min(longest.find_first_not_of(letter->letter), longest.size());
        while (length > 0 && letter->conversions[length - 1].empty())
            --length;
        if (length == 0)
            return false;
        m_pattern.Append(letter->conversions[length - 1]);
        m_rest.remove_prefix(length);
        return true;
    }

    std::u16string_view m_rest;
    bool m_isTokenLeft = true;
    Builder m_pattern;
};

class Writer
{
public:
    explicit Writer(const SYSTEMTIME& fields) : m_fields(fields) {}

    CString Write(std::u16string_view pattern)
    {
        while (!pattern.empty()) {
            const std::size_t literal = std::min(pattern.find(u'%'), pattern.size());
            m_text.Append(pattern.substr(0, literal));
            pattern.remove_prefix(literal);
            const bool isPadded = !pattern.starts_with(u"%-");
            const std::size_t length = std::min<std::size_t>(isPadded ? 2 : 3, pattern.size());
            if (length > 0 && !AppendConversion(pattern[length - 1], isPadded))
                m_text.Append(pattern.substr(0, length));
            pattern.remove_prefix(length);
        }
        return m_text.Text();
    }

private:
    [[nodiscard]] bool AppendConversion(char16_t letter, bool isPadded)
    {
        if (const WORD SYSTEMTIME::*const field = NumberOf(letter)) {
            AppendNumber(letter == u'I' ? TwelveHour() : m_fields.*field, isPadded);
            return true;
        }
        if (!isPadded)
            return false;
        switch (letter) {
        case u'Y':
            AppendNumber(m_fields.wYear / 100, true);
            [[fallthrough]];
        case u'y':
            AppendNumber(m_fields.wYear % 100, true);
            return true;
        case u'%':
            m_text.Append(letter);
            return true;
        default:
            return AppendName(letter);
        }
    }

    static WORD SYSTEMTIME::*NumberOf(char16_t letter) noexcept
    {
        switch (letter) {
        case u'm':
            return &SYSTEMTIME::wMonth;
        case u'd':
            return &SYSTEMTIME::wDay;
        case u'H':
        case u'I':
            return &SYSTEMTIME::wHour;
        case u'M':
            return &SYSTEMTIME::wMinute;
        case u'S':
            return &SYSTEMTIME::wSecond;
        default:
            return nullptr;
        }
    }

    [[nodiscard]] int TwelveHour() const noexcept { return (m_fields.wHour + 11) % 12 + 1; }

    /// Appends a number below 100.
    void AppendNumber(int number, bool isPadded)
    {
        if (isPadded || number >= 10)
            m_text.Append(static_cast<char16_t>(u'0' + number / 10));
        m_text.Append(static_cast<char16_t>(u'0' + number % 10));
    }

    [[nodiscard]] bool AppendName(char16_t letter)
    {
        const Locale::DateTexts& texts = Locale::GetDateTexts();
        switch (letter) {
        case u'B':
            m_text.Append(texts.months[m_fields.wMonth - 1U]);
            return true;
        case u'b':
            m_text.Append(texts.shortMonths[m_fields.wMonth - 1U]);
            return true;
        case u'A':
            m_text.Append(texts.days[m_fields.wDayOfWeek]);
            return true;
        case u'a':
            m_text.Append(texts.shortDays[m_fields.wDayOfWeek]);
            return true;
        case u'p':
            m_text.Append(m_fields.wHour < 12 ? texts.am : texts.pm);
            return true;
        default:
            return false;
        }
    }

    const SYSTEMTIME& m_fields;
    Builder m_text;
};

} // namespace

CString FromFormat(std::u16string_view format)
{
    return FormatCompiler(format).Compile();
}

CString ShortDate()
{
    return FromFormat(Locale::GetDateTexts().shortDatePattern);
}

CString TimeOfDay()
{
    return FromFormat(Locale::GetDateTexts().timePattern);
}

CString Write(const COleDateTime& dateTime, std::u16string_view pattern)
{
    SYSTEMTIME fields;
    return dateTime.GetAsSystemTime(fields) ? Writer(fields).Write(pattern) : CString();
}

} // namespace VyrPlatform::DateTimePattern
