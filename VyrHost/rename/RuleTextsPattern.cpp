// Makes the rule that replaces matches of a pattern.
#include <VyrHost/rename/RuleTexts.h>

#include <VyrHost/rename/Pattern.h>
#include <VyrHost/text/Errors.h>

#include <limits>
#include <optional>
#include <string>
#include <utility>

namespace VyrHost::Rename {

namespace {

class PatternRule final : public Rule
{
public:
    PatternRule(const CString& find, const CString& replacement, const PatternRuleSettings& settings)
        : m_pattern(find, settings.ignoresCase), m_replacement(replacement, m_pattern), m_settings(settings)
    {}

    Reason Apply(Subject& subject) override
    {
        subject.groups.Clear();
        const CString text = TextOf(subject);
        if (subject.isFolder && m_settings.part == NamePart::Extension)
            return Reason::None;
        m_chosen = m_settings.nth;
        if (m_chosen && *m_chosen < 0) {
            if (CountMatches(text) == Pattern::Result::GaveUp)
                return GiveUp(subject);
            *m_chosen += m_count + 1;
        }
        return Replace(subject, text);
    }

    [[nodiscard]] bool MayNumber() const override { return true; }
    [[nodiscard]] std::optional<PatternShape> ShapeOfPattern() const override
    {
        return PatternShape{m_pattern.GroupCount(), m_pattern.GroupNames()};
    }

private:
    [[nodiscard]] CString TextOf(const Subject& subject) const
    {
        switch (m_settings.part) {
        case NamePart::Extension:
            return subject.extension.Mid(1);
        case NamePart::All:
            return subject.name + subject.extension;
        case NamePart::Name:
            break;
        }
        return subject.name;
    }

    void PutBack(Subject& subject, const CString& text) const
    {
        switch (m_settings.part) {
        case NamePart::Extension:
            subject.extension = text.IsEmpty() ? CString() : u"." + text;
            break;
        case NamePart::All:
            SetWholeName(subject, text);
            break;
        case NamePart::Name:
            subject.name = text;
        }
    }

    Reason GiveUp(Subject& subject) const
    {
        subject.cause = m_pattern.Problem();
        return Reason::PatternGaveUp;
    }

    /// Finds the next match in `text`. After an empty one, the next must be longer.
    Pattern::Result FindNext(std::u16string_view text, std::size_t& start, bool& mayBeEmpty)
    {
        const Pattern::Result result = m_pattern.Find(text, start, mayBeEmpty);
        if (result == Pattern::Result::Found) {
            const PatternGroups::Range& whole = m_pattern.Groups().front();
            start = whole.begin + whole.length;
            mayBeEmpty = whole.length > 0;
        }
        return result;
    }

    /// @return the reason why no more were found.
    Pattern::Result CountMatches(std::u16string_view text)
    {
        m_count = 0;
        std::size_t start = 0;
        bool mayBeEmpty = true;
        Pattern::Result result = FindNext(text, start, mayBeEmpty);
        for (; result == Pattern::Result::Found; result = FindNext(text, start, mayBeEmpty))
            ++m_count;
        return result;
    }

    Reason Replace(Subject& subject, const CString& text)
    {
        const std::u16string_view units = text;
        m_made.clear();
        std::size_t copied = 0;
        std::size_t start = 0;
        bool mayBeEmpty = true;
        Pattern::Result result = Pattern::Result::Found;
        for (int match = 1; !m_chosen || match <= *m_chosen; ++match) {
            result = FindNext(units, start, mayBeEmpty);
            if (result != Pattern::Result::Found)
                break;
            if (m_chosen && match != *m_chosen)
                continue;
            subject.groups.Set(text, m_pattern.Groups(), m_pattern.GroupNames());
            m_made += units.substr(copied, m_pattern.Groups().front().begin - copied);
            m_replacement.AppendTo(m_made, subject.groups);
            copied = start;
            if (m_made.size() > std::size_t{longestText})
                return Reason::TooLong;
        }
        if (result == Pattern::Result::GaveUp)
            return GiveUp(subject);
        if (!subject.groups.HasMatched())
            return Reason::None;
        m_made += units.substr(copied);
        PutBack(subject, std::u16string_view(m_made));
        return Reason::None;
    }

    Pattern m_pattern;
    Replacement m_replacement;
    PatternRuleSettings m_settings;
    /// The match to replace in the current name; nothing for all of them.
    std::optional<int> m_chosen;
    int m_count = 0;
    /// A member to reuse its memory.
    std::u16string m_made;
};

} // namespace

Rules PatternRules(const CString& find, const CString& replacement, const PatternRuleSettings& settings)
{
    if (find.IsEmpty())
        throw Text::UsageError("--regex: there is no pattern to look for");
    return OneRule<PatternRule>(find, replacement, settings);
}

int ParseNth(const CString& text)
{
    constexpr const char* option = "--nth";
    const int number = ParseNumber(text, -std::numeric_limits<int>::max(), option);
    if (number == 0)
        Text::RefuseValue(option, text, "1 is the first match and -1 the last; there is none between them");
    return number;
}

NamePart ParseNamePart(const CString& text)
{
    if (text == u"name")
        return NamePart::Name;
    if (text == u"extension")
        return NamePart::Extension;
    if (text == u"all")
        return NamePart::All;
    Text::RefuseValue("--regex-in", text, "name, extension or all is expected");
}

} // namespace VyrHost::Rename
