/// @file
/// Makes rules from the texts of users. Each function throws UsageError for an invalid text.
#pragma once

#include <VyrHost/rename/NameTokens.h>
#include <VyrHost/rename/Rule.h>
#include <VyrHost/rename/Words.h>

#include <cstdint>
#include <limits>
#include <optional>
#include <vector>

namespace VyrHost::Rename {

/// Settings of a sequence number in addition to its template.
struct NumberSettings
{
    /// 1 when not given.
    std::optional<int> start;
    /// 1 when not given.
    std::optional<int> step;
    /// The minimum width; that of the template when not given.
    std::optional<int> digits;
};

/// A run of "#" (each is at least one digit) or "<Number>" is the number; "<Name>" is the name so far, which is dropped
/// if the template lacks it; everything else is literal. The rule throws UsageError if a number would not fit into an
/// int.
[[nodiscard]] Rules NumberRules(const CString& text, const NumberSettings& settings);

/// A date format that may contain "<Name>", the name so far, once.
[[nodiscard]] Rules DateRules(const CString& text, const DateSettings& settings);

/// A template of the whole new name, with the tokens of TokenTable.
[[nodiscard]] Rules NameRules(const CString& text, const TemplateSettings& settings);

/// "PLACE:TEXT" inserts TEXT: PLACE counts from the start, with a minus sign from the end ("-0" is the end).
[[nodiscard]] Rules InsertRules(const CString& text);
[[nodiscard]] Rules PrefixRules(const CString& text);
[[nodiscard]] Rules SuffixRules(const CString& text);
/// "PLACE:COUNT" deletes COUNT characters from PLACE on; with a minus sign, those that end there.
[[nodiscard]] Rules DeleteRules(const CString& text);
/// A count of characters.
[[nodiscard]] Rules DeleteFirstRules(const CString& text);
[[nodiscard]] Rules DeleteLastRules(const CString& text);
[[nodiscard]] Rules KeepFirstRules(const CString& text);
[[nodiscard]] Rules KeepLastRules(const CString& text);

/// "first", "upper", "lower", "title", "title-en" or "sentence".
[[nodiscard]] Rules CaseRules(const CString& text);
[[nodiscard]] Rules ReplaceRules(const CString& find, const CString& replacement, bool ignoresCase = false);

/// See Words.h.
[[nodiscard]] Rules TitleCaseRules(TitleStyle style);
[[nodiscard]] Rules SentenceCaseRules();
/// The minimum number of digits of every number in the name; "first:N" and "last:N" mean only one number.
[[nodiscard]] Rules PadRules(const CString& text);
/// Spells the letters of the Latin script in ASCII.
[[nodiscard]] Rules AsciiRules();
[[nodiscard]] Rules TrimRules();
[[nodiscard]] Rules CollapseRules();

/// The part of a name in which a pattern is searched.
enum class NamePart : std::uint8_t
{
    /// The name before the extension.
    Name,
    /// The extension without its dot.
    Extension,
    All
};

/// Settings of a pattern.
struct PatternRuleSettings
{
    bool ignoresCase = false;
    /// The match to replace, from 1, or -1 for the last one; all matches when not given.
    std::optional<int> nth = {};
    NamePart part = NamePart::Name;
};

/// Replaces matches of the pattern `find` (Pattern) with `replacement` (Replacement).
[[nodiscard]] Rules PatternRules(const CString& find, const CString& replacement, const PatternRuleSettings& settings);
/// A whole number other than 0.
[[nodiscard]] int ParseNth(const CString& text);
/// "name", "extension" or "all".
[[nodiscard]] NamePart ParseNamePart(const CString& text);

/// An extension, with or without its dot; "auto" for the one that matches the content of each file.
[[nodiscard]] Rules ExtensionRules(const CString& text);
/// Gives a file the usual extension for its content. Keeps an extension that such a file may have. Follows links.
[[nodiscard]] Rules ContentExtensionRules();
/// "upper" or "lower".
[[nodiscard]] Rules ExtensionCaseRules(const CString& text);
[[nodiscard]] Rules DropExtensionRules();

/// Parses a list of dates such as "picture,modified".
[[nodiscard]] std::vector<Model::DateSource> ParseDateSources(const CString& text);
/// "UTC", the name of a zone such as "Europe/Berlin", or an offset from UTC in hours and minutes, such as "+02:00",
/// "-9:30" or "+1".
[[nodiscard]] ZoneClock ParseTimeZone(const CString& text);
/// A number of digits, from 0 to widestNumber, given with `option`.
[[nodiscard]] int ParseDigits(const CString& text, const char* option);
/// A whole number in decimal, from `least` to `most`. `what` names it in the message.
[[nodiscard]] int ParseNumber(const CString& text, int least, const char* what,
                              int most = std::numeric_limits<int>::max());

} // namespace VyrHost::Rename
