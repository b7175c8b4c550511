// Parses replacements, and fills in the groups of a match.
#include <VyrHost/rename/Pattern.h>

#include <VyrHost/rename/TemplateTokens.h>
#include <VyrHost/text/Errors.h>
#include <VyrHost/text/SafeText.h>
#include <VyrPlatform/text/Digits.h>
#include <VyrPlatform/text/Locale.h>
#include <VyrPlatform/text/Surrogates.h>

#include <algorithm>
#include <utility>

namespace VyrHost::Rename {

using VyrPlatform::IsDigit;

void RefusePattern(std::u16string_view text, std::size_t place, const std::string& reason)
{
    constexpr std::size_t indent = 4;
    const auto width = static_cast<std::size_t>(Text::SafeWidth(text.substr(0, place)));
    throw Text::UsageError("--regex: " + reason + "\n" + std::string(indent, ' ') + Text::SafeText(text) + "\n" +
                           std::string(indent + width, ' ') + "^");
}

namespace {

bool IsWordUnit(char16_t unit)
{
    return IsDigit(unit) || (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z') || unit == u'_';
}

} // namespace

/// Parses the text of a replacement.
class ReplacementReader
{
public:
    using Part = Replacement::Part;
    using LetterCase = Replacement::LetterCase;

    ReplacementReader(std::u16string_view text, const Pattern& pattern) : m_text(text), m_pattern(pattern) {}

    std::vector<Part> Run()
    {
        while (m_place < m_text.size()) {
            const char16_t unit = m_text[m_place++];
            if (unit == u'$')
                ReadDollar();
            else if (unit == u'\\')
                ReadBackslash();
            else
                AddText(unit);
        }
        return std::move(m_parts);
    }

private:
    void AddText(char16_t unit)
    {
        if (m_parts.empty() || m_parts.back().kind != Part::Kind::Text)
            m_parts.emplace_back();
        m_parts.back().text += unit;
    }

    [[nodiscard]] char16_t Next() const { return m_place < m_text.size() ? m_text[m_place] : u'\0'; }

    /// Takes the following units for which `belongs` is true.
    std::u16string_view Take(bool (*belongs)(char16_t))
    {
        const std::size_t begin = m_place;
        while (m_place < m_text.size() && belongs(m_text[m_place]))
            ++m_place;
        return m_text.substr(begin, m_place - begin);
    }

    void ReadDollar()
    {
        const std::size_t begin = m_place;
        if (IsDigit(Next())) {
            AddNumber(Take(IsDigit), begin);
        } else if (Next() == u'&') {
            ++m_place;
            AddNumber(u"0", begin);
        } else if (Next() == u'$') {
            ++m_place;
            AddText(u'$');
        } else if (Next() == u'{') {
            ReadBraces(begin + 1);
        } else if (IsWordUnit(Next())) {
            RefusePattern(m_text, begin, "the name of a group stands in braces: ${name}; $$ is a dollar sign");
        } else {
            AddText(u'$');
        }
    }

    void ReadBraces(std::size_t begin)
    {
        m_place = begin;
        const std::u16string_view name = Take(IsWordUnit);
        if (name.empty() || Next() != u'}')
            RefusePattern(m_text, m_place, "braces hold the number or the name of a group: ${1}, ${name}");
        ++m_place;
        if (std::all_of(name.begin(), name.end(), IsDigit)) {
            AddNumber(name, begin);
            return;
        }
        const std::vector<GroupName>& known = m_pattern.GroupNames();
        if (std::none_of(known.begin(), known.end(), [name](const GroupName& group) { return group.name == name; }))
            RefusePattern(m_text, begin, "the pattern has no group " + Text::SafeText(name));
        m_parts.push_back({.kind = Part::Kind::NamedGroup, .text = std::u16string(name)});
    }

    void AddNumber(std::u16string_view digits, std::size_t begin)
    {
        const std::size_t most = m_pattern.GroupCount();
        std::size_t number = 0;
        for (const char16_t digit : digits)
            number = std::min(number * 10 + (digit - u'0'), most + 1);
        if (number > most)
            RefusePattern(m_text, begin,
                          "the pattern has no group " + Text::SafeText(digits) +
                              (most == 0   ? ", since it has none in brackets"
                               : most == 1 ? ", only one"
                                           : ", only " + std::to_string(most)));
        m_parts.push_back({.kind = Part::Kind::NumberedGroup, .number = number});
    }

    void ReadBackslash()
    {
        const std::size_t begin = m_place - 1;
        if (IsDigit(Next())) {
            AddNumber(Take(IsDigit), begin + 1);
            return;
        }
        const char16_t unit = Next();
        ++m_place;
        switch (unit) {
        case u'U':
            return AddCase(Part::Kind::CaseOfRest, LetterCase::Upper);
        case u'L':
            return AddCase(Part::Kind::CaseOfRest, LetterCase::Lower);
        case u'E':
            return AddCase(Part::Kind::CaseOfRest, LetterCase::AsIs);
        case u'u':
            return AddCase(Part::Kind::CaseOfNext, LetterCase::Upper);
        case u'l':
            return AddCase(Part::Kind::CaseOfNext, LetterCase::Lower);
        default:
            if (begin + 1 >= m_text.size() || IsWordUnit(unit))
                RefusePattern(m_text, begin, "a backslash here begins \\U, \\L, \\E, \\u, \\l or a sign such as \\$");
            AddText(unit);
        }
    }

    void AddCase(Part::Kind kind, LetterCase letterCase)
    {
        m_parts.push_back({.kind = kind, .letterCase = letterCase});
    }

    const std::u16string_view m_text;
    const Pattern& m_pattern;
    std::size_t m_place = 0;
    std::vector<Part> m_parts;
};

Replacement::Replacement(const CString& text, const Pattern& pattern)
{
    m_parts = ReplacementReader(text, pattern).Run();
    for (const Part& part : m_parts)
        if (part.kind == Part::Kind::Text)
            RequireNameText(part.text, "--regex");
}

void Replacement::Convert(char16_t* text, std::size_t length, LetterCase letterCase)
{
    if (letterCase == LetterCase::Upper)
        VyrPlatform::Locale::ToUpper(text, length);
    else if (letterCase == LetterCase::Lower)
        VyrPlatform::Locale::ToLower(text, length);
}

void Replacement::AppendTo(std::u16string& result, const PatternGroups& groups) const
{
    LetterCase ofRest = LetterCase::AsIs;
    LetterCase ofNext = LetterCase::AsIs;
    for (const Part& part : m_parts) {
        if (part.kind == Part::Kind::CaseOfRest) {
            ofRest = part.letterCase;
            continue;
        }
        if (part.kind == Part::Kind::CaseOfNext) {
            ofNext = part.letterCase;
            continue;
        }
        const std::size_t begin = result.size();
        if (part.kind == Part::Kind::Text)
            result += part.text;
        else
            result += (part.kind == Part::Kind::NumberedGroup ? groups.Find(part.number)
                                                              : groups.Find(std::u16string_view(part.text)))
                          .value_or(std::u16string_view());
        if (result.size() == begin)
            continue;
        Convert(result.data() + begin, result.size() - begin, ofRest);
        Convert(result.data() + begin, 1, ofNext);
        ofNext = LetterCase::AsIs;
    }
}

} // namespace VyrHost::Rename
