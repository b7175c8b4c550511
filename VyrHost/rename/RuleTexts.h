/// @file
/// Makes rules of the texts in which users write them. Each throws UsageError for a text that makes no sense.
#pragma once

#include <VyrHost/rename/NameTokens.h>
#include <VyrHost/rename/Rule.h>
#include <VyrHost/rename/Words.h>

#include <cstdint>
#include <limits>
#include <optional>
#include <vector>

namespace VyrHost::Rename {

/// Settings of a sequence number beside its template.
struct NumberSettings
{
    /// 1 when not given.
    std::optional<int> start;
    /// 1 when not given.
    std::optional<int> step;
    /// The least width; the template's when not given.
    std::optional<int> digits;
};

/// A run of "#", each of which is at least one digit, or "<Number>", is the number; "<Name>" is the name so far, which
/// is dropped where the template lacks it; all else stays as it is. The rule throws UsageError where a number would not
/// be an int.
[[nodiscard]] Rules NumberRules(const CString& text, const NumberSettings& settings);

/// A date format in which "<Name>", the name so far, may stand once.
[[nodiscard]] Rules DateRules(const CString& text, const DateSettings& settings);

/// The whole new name, by the tokens of TokenTable.
[[nodiscard]] Rules NameRules(const CString& text, const TemplateSettings& settings);

/// "PLACE:TEXT" inserts TEXT: PLACE counts from the start, with a minus sign from the end ("-0" is the end).
[[nodiscard]] Rules InsertRules(const CString& text);
[[nodiscard]] Rules PrefixRules(const CString& text);
[[nodiscard]] Rules SuffixRules(const CString& text);
/// "PLACE:COUNT" deletes COUNT characters from PLACE on; with a minus sign those that end there.
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
/// The least number of digits of every number in the name; "first:N" and "last:N" mean one number alone.
[[nodiscard]] Rules PadRules(const CString& text);
/// Spells the letters of Latin script out in ASCII.
[[nodiscard]] Rules AsciiRules();
[[nodiscard]] Rules TrimRules();
[[nodiscard]] Rules CollapseRules();

/// What a pattern is looked for in.
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
    /// Which match is replaced, from 1 on, or -1 for the last; every one when not given.
    std::optional<int> nth = {};
    NamePart part = NamePart::Name;
};

/// Puts `replacement` (Replacement) in for what the pattern `find` (Pattern) matches.
[[nodiscard]] Rules PatternRules(const CString& find, const CString& replacement, const PatternRuleSettings& settings);
/// A whole number other than 0.
[[nodiscard]] int ParseNth(const CString& text);
/// "name", "extension" or "all".
[[nodiscard]] NamePart ParseNamePart(const CString& text);

/// An extension, with or without its dot; "auto" for the one that the content of each file asks for.
[[nodiscard]] Rules ExtensionRules(const CString& text);
/// Gives a file the usual extension of what it contains. One that such a file may have stays, and links are followed.
[[nodiscard]] Rules ContentExtensionRules();
/// "upper" or "lower".
[[nodiscard]] Rules ExtensionCaseRules(const CString& text);
[[nodiscard]] Rules DropExtensionRules();

/// The dates named in "picture,modified" and the like, in that order.
[[nodiscard]] std::vector<Model::DateSource> ParseDateSources(const CString& text);
/// "UTC", the name of a zone such as "Europe/Berlin", or how far a clock is ahead of UTC in hours and minutes, such as
/// "+02:00", "-9:30" or "+1".
[[nodiscard]] ZoneClock ParseTimeZone(const CString& text);
/// A number of digits, from 0 to widestNumber, given with `option`.
[[nodiscard]] int ParseDigits(const CString& text, const char* option);
/// A whole number in decimal, from `least` to `most`. `what` names it in the message.
[[nodiscard]] int ParseNumber(const CString& text, int least, const char* what,
                              int most = std::numeric_limits<int>::max());

} // namespace VyrHost::Rename
