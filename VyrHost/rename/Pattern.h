/// @file
/// Regular expressions in Perl's syntax, compiled once and searched in many names, and replacements for their matches.
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
/// case, are Unicode's. A byte of a name that is not UTF-8 (a lone surrogate) matches nothing.
class Pattern
{
public:
    /// @param ignoresCase  whether letters match in either case.
    /// @throws UsageError for an invalid pattern, with a mark under the place.
    Pattern(const CString& text, bool ignoresCase);
    ~Pattern();
    Pattern(const Pattern&) = delete;
    Pattern& operator=(const Pattern&) = delete;

    /// The number of groups, without the whole match.
    [[nodiscard]] std::size_t GroupCount() const { return m_groupCount; }
    [[nodiscard]] const std::vector<GroupName>& GroupNames() const { return m_names; }

    enum class Result : std::uint8_t
    {
        Found,
        NotFound,
        /// It took too many steps or too much memory.
        GaveUp
    };
    /// Searches for the pattern in `text` from `start` on.
    /// @param mayBeEmpty  whether an empty match at `start` counts: false after a match that ended there.
    Result Find(std::u16string_view text, std::size_t start, bool mayBeEmpty);
    /// The reason why the last Find gave up.
    [[nodiscard]] CString Problem() const;
    /// The ranges of the groups in the last match, the whole match first.
    [[nodiscard]] const std::vector<PatternGroups::Range>& Groups() const { return m_ranges; }

private:
    void ReadNames();

    /// The objects of PCRE2.
    struct Compiled;
    std::unique_ptr<Compiled> m_compiled;
    int m_problem = 0;
    std::size_t m_groupCount = 0;
    std::vector<GroupName> m_names;
    std::vector<PatternGroups::Range> m_ranges;
};

/// The replacement for a match: text, with $1, ${1} and ${name} for groups, $& and $0 for the whole match, $$ for a
/// dollar sign. \U and \L convert the following text, up to \E, to upper or lower case; \u and \l convert the next
/// character. A backslash before a punctuation character makes it literal.
class Replacement
{
public:
    /// @throws UsageError for a group that `pattern` lacks, and for an invalid text, with a mark under the place.
    Replacement(const CString& text, const Pattern& pattern);

    /// Appends the text for the match in `groups`.
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
            /// Sets the letter case up to the next such part.
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
