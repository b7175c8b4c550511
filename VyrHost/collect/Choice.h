/// @file
/// Chooses files by their names, one of their dates and their size.
#pragma once

#include <VyrLibraryFuncs/select/FilterFuncs.h>
#include <VyrLibraryFuncs/select/SearchFuncs.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace VyrHost::Collect {

/// Whether `pattern` has a "*" or a "?".
[[nodiscard]] bool IsPattern(std::u16string_view pattern);

/// Whether `pattern` matches the whole of `name`: "*" matches any text, "?" any one code unit.
[[nodiscard]] bool MatchesPattern(std::u16string_view pattern, std::u16string_view name);

/// The date of a criterion.
using ChoiceDate = VyrLibraryFuncs::SearchFuncs::DateTimeTarget;

/// The dates from the first to the last of a range.
struct DateRange
{
    VyrLibraryFuncs::SearchFuncs::DateTimeRange kind = VyrLibraryFuncs::SearchFuncs::DateTimeRange::Custom;
    /// The bounds of a custom range; the status null means an open end.
    COleDateTime from;
    COleDateTime to;
};

/// Reads `today`, `yesterday`, `this-week`, `last-week`, `this-month`, `last-month`, `this-year`, `last-year`, or
/// `FROM..TO`, two date-times in a form of Text::ReadTypedDateTime. One of them may be missing: that end is open. A
/// date without a time of day as TO means its last second.
/// @param option  the option that it was given with, for messages.
/// @throws UsageError for any other text, and where FROM is after TO.
[[nodiscard]] DateRange ParseDateRange(std::u16string_view text, const char* option);

/// Sizes in bytes, both bounds included.
struct SizeSpan
{
    VyrLibraryFuncs::SearchFuncs::SizeRange kind = VyrLibraryFuncs::SearchFuncs::SizeRange::Custom;
    std::int64_t from = 0;
    std::int64_t to = 0;
};

/// Reads `empty`, `tiny` (to 16 KB), `small` (to 1 MB), `medium` (to 128 MB), `large` (to 1 GB), `huge` (to 4 GB),
/// `giant`, or `FROM..TO`, two sizes such as `500`, `16KB` or `1.5 GB` (units of 1024: B, KB, MB, GB, TB, or K, KiB and
/// so on). A missing FROM is 0, a missing TO has no limit.
/// @throws UsageError for any other text, and where FROM is more than TO.
[[nodiscard]] SizeSpan ParseSizeSpan(std::u16string_view text, const char* option);

/// The criteria as typed.
struct ChoiceTexts
{
    std::vector<CString> include;
    std::vector<CString> exclude;
    std::optional<ChoiceDate> dateTarget;
    /// The range for the date `dateTarget`.
    CString dates;
    std::optional<CString> sizes;
    /// Whether upper and lower case differ.
    bool matchCase = false;
};

/// Conditions on names: wildcards ("*" and "?", matched here), or texts after `contains:`, `begins:`, `ends:` or
/// `equals:` (matched by FilterFuncs). The normal form of a name makes no difference.
class NameConditions
{
public:
    NameConditions() = default;
    /// @throws UsageError for an empty condition.
    NameConditions(const std::vector<CString>& texts, bool matchCase, const char* option);

    [[nodiscard]] bool IsEmpty() const noexcept { return m_patterns.empty() && m_texts.empty(); }
    /// Whether `name` meets one of the conditions.
    [[nodiscard]] bool MeetsAny(const CString& name) const;

private:
    void Add(const CString& text, const char* option);
    [[nodiscard]] CString Comparable(const CString& text) const;

    bool m_matchCase = false;
    std::vector<CString> m_patterns;
    std::vector<VyrLibraryFuncs::FilterFuncs::FILTERITEM> m_texts;
};

/// Decides which entries stay in the list. SearchFuncs decides on dates and sizes. Its settings belong to the process,
/// so only the last object that was made from texts is valid.
class Choice
{
public:
    /// Chooses everything.
    Choice() = default;
    /// @throws UsageError for an invalid text.
    explicit Choice(const ChoiceTexts& texts);

    /// Whether a name is excluded. A folder of such a name is not entered. The empty name is never excluded.
    [[nodiscard]] bool Excludes(std::u16string_view name) const;
    /// Whether the entry `name` stays in the list. Reads the file only where a criterion needs it.
    /// @param folder  its folder's path, with the separator at its end.
    [[nodiscard]] bool Keeps(std::u16string_view folder, std::u16string_view name) const;

private:
    [[nodiscard]] bool MeetsCriteria(const CString& path) const;

    NameConditions m_include;
    NameConditions m_exclude;
    std::optional<ChoiceDate> m_dateTarget;
    bool m_hasSizes = false;
};

} // namespace VyrHost::Collect
