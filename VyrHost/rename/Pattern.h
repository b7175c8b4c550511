/// @file
/// Patterns in Perl's syntax, compiled once and looked for in name after name, and the texts that are put in for what
/// they match.
#pragma once

#include <VyrHost/rename/PatternGroups.h>
#include <VyrPlatform/text/CString.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace VyrHost::Rename {

/// Throws a UsageError for --regex: the reason, and below it `text` with a mark under the unit at `place`.
[[noreturn]] void RefusePattern(std::u16string_view text, std::size_t place, const std::string& reason);

/// A pattern as PCRE2 understands it. It sees characters, never halves of one; classes such as \w and \d, and letter
/// case, are Unicode's. A byte of a name that is no text (a lone surrogate) matches nothing.
class Pattern
{
public:
    /// @param ignoresCase  whether letters match in either case.
    /// @throws UsageError for a text that is no pattern, with a mark under the place.
    Pattern(const CString& text, bool ignoresCase);
    ~Pattern();
    Pattern(const Pattern&) = delete;
    Pattern& operator=(const Pattern&) = delete;

    /// How many groups it has, besides the whole match.
    [[nodiscard]] std::size_t GroupCount() const { return m_groupCount; }
    [[nodiscard]] const std::vector<GroupName>& GroupNames() const { return m_names; }

    enum class Result : std::uint8_t
    {
        Found,
        NotFound,
        /// It took more steps, or more memory, than a sensible pattern takes for a name.
        GaveUp
    };
    /// Looks for the pattern in `text` from `start` on.
    /// @param mayBeEmpty  whether an empty match at `start` counts: not behind another one that ended there.
    Result Find(std::u16string_view text, std::size_t start, bool mayBeEmpty);
    /// Why Find gave up last.
    [[nodiscard]] CString Problem() const;
    /// Where the groups of the last match that Find found are, the whole match first.
    [[nodiscard]] const std::vector<PatternGroups::Range>& Groups() const { return m_ranges; }

private:
    void ReadNames();

    /// The library's objects, which its header alone knows.
    struct Compiled;
    std::unique_ptr<Compiled> m_compiled;
    int m_problem = 0;
    std::size_t m_groupCount = 0;
    std::vector<GroupName> m_names;
    std::vector<PatternGroups::Range> m_ranges;
};

/// What is put in for a match: text, with $1, ${1} and ${name} for groups, $& and $0 for the whole match, $$ for a
/// dollar sign. \U and \L make what follows, up to \E, capital or small; \u and \l the next character alone. A
/// backslash before a sign makes that text.
class Replacement
{
public:
    /// @throws UsageError for a group that `pattern` lacks, and a text that makes no sense, with a mark under the
    /// place.
    Replacement(const CString& text, const Pattern& pattern);

    /// Appends the text for the match that `groups` tell of.
    void AppendTo(std::u16string& result, const PatternGroups& groups) const;

private:
    friend class ReplacementReader;

    enum class LetterCase : std::uint8_t
    {
        AsIs,
        Upper,
        Lower
    };
    struct Part
    {
        enum class Kind : std::uint8_t
        {
            Text,
            NumberedGroup,
            NamedGroup,
            /// Sets the letter case up to the next of its kind.
            CaseOfRest,
            /// Sets the letter case of the next character.
            CaseOfNext
        };
        Kind kind = Kind::Text;
        /// The text, or the name of the group.
        std::u16string text = {};
        std::size_t number = 0;
        LetterCase letterCase = LetterCase::AsIs;
    };
    static void Convert(char16_t* text, std::size_t length, LetterCase letterCase);

    std::vector<Part> m_parts;
};

} // namespace VyrHost::Rename
