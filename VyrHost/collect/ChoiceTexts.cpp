// Reads ranges of dates and of sizes.
#include <VyrHost/collect/Choice.h>

#include <VyrHost/text/Errors.h>
#include <VyrHost/text/TypedDateTime.h>
#include <VyrLibraryUtils/DateTimeUtils.h>
#include <VyrPlatform/text/Digits.h>

#include <cstddef>
#include <limits>
#include <string>

namespace VyrHost::Collect {

using VyrPlatform::IsDigit;

namespace {

using VyrLibraryFuncs::SearchFuncs;

/// A word for a kind of range.
template <class Kind>
struct RangeWord
{
    std::u16string_view word;
    Kind kind;
};

constexpr RangeWord<SearchFuncs::DateTimeRange> dateWords[] = {
    {u"today", SearchFuncs::DateTimeRange::Today},          {u"yesterday", SearchFuncs::DateTimeRange::Yesterday},
    {u"this-week", SearchFuncs::DateTimeRange::ThisWeek},   {u"last-week", SearchFuncs::DateTimeRange::LastWeek},
    {u"this-month", SearchFuncs::DateTimeRange::ThisMonth}, {u"last-month", SearchFuncs::DateTimeRange::LastMonth},
    {u"this-year", SearchFuncs::DateTimeRange::ThisYear},   {u"last-year", SearchFuncs::DateTimeRange::LastYear},
};

constexpr RangeWord<SearchFuncs::SizeRange> sizeWords[] = {
    {u"empty", SearchFuncs::SizeRange::Empty}, {u"tiny", SearchFuncs::SizeRange::Tiny},
    {u"small", SearchFuncs::SizeRange::Small}, {u"medium", SearchFuncs::SizeRange::Medium},
    {u"large", SearchFuncs::SizeRange::Large}, {u"huge", SearchFuncs::SizeRange::Huge},
    {u"giant", SearchFuncs::SizeRange::Giant},
};

/// The two texts around "..".
struct Bounds
{
    std::u16string_view from;
    std::u16string_view to;
};

std::u16string_view WithoutBlanks(std::u16string_view text)
{
    const std::size_t first = text.find_first_not_of(u' ');
    if (first == std::u16string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(u' ') - first + 1);
}

/// @throws UsageError where there is no "..", or nothing on both sides of it.
Bounds CutRange(std::u16string_view text, const char* option, const std::string& expected)
{
    constexpr std::u16string_view mark = u"..";
    const std::size_t at = text.find(mark);
    if (at == std::u16string_view::npos)
        Text::RefuseValue(option, text, expected);
    const Bounds bounds{WithoutBlanks(text.substr(0, at)), WithoutBlanks(text.substr(at + mark.size()))};
    if (bounds.from.empty() && bounds.to.empty())
        Text::RefuseValue(option, text, "a bound is missing: " + expected);
    return bounds;
}

COleDateTime OpenEnd()
{
    COleDateTime open;
    open.SetStatus(COleDateTime::null);
    return open;
}

Text::TypedDateTime ReadBound(std::u16string_view bound, std::u16string_view text, const char* option)
{
    const auto typed = Text::ReadTypedDateTime(bound);
    if (!typed || !typed->hasDate)
        Text::RefuseValue(option, text,
                          "FROM and TO are dates, such as 2024-01-05 or \"2024-01-05 10:30\" of days that exist");
    return *typed;
}

/// 1 for an unknown unit.
std::int64_t UnitSize(std::u16string_view unit)
{
    constexpr std::u16string_view letters = u"BKMGTbkmgt";
    constexpr std::size_t count = letters.size() / 2;
    const std::size_t letter = unit.empty() ? 0 : letters.find(unit.front()) % count;
    return std::int64_t{1} << (10 * letter);
}

bool IsUnit(std::u16string_view unit)
{
    if (unit.empty() || unit == u"B" || unit == u"b")
        return true;
    if (std::u16string_view(u"KMGTkmgt").find(unit.front()) == std::u16string_view::npos)
        return false;
    const std::u16string_view rest = unit.substr(1);
    return rest.empty() || rest == u"B" || rest == u"b" || rest == u"iB";
}

/// Removes at most `most` digits from the front of `text` and returns their value; -1 when there are more.
std::int64_t TakeDigits(std::u16string_view& text, std::size_t most, std::size_t& count)
{
    std::int64_t number = 0;
    for (count = 0; !text.empty() && IsDigit(text.front()); ++count, text.remove_prefix(1)) {
        if (count == most)
            return -1;
        number = number * 10 + (text.front() - u'0');
    }
    return number;
}

/// A size in bytes; -1 when `text` is invalid or the size too large. A fraction of a byte is dropped.
std::int64_t ReadSize(std::u16string_view text, bool& isPartOfByte)
{
    isPartOfByte = false;
    constexpr std::size_t mostDigits = 18;
    constexpr std::size_t mostDecimals = 6;
    std::size_t count = 0;
    const std::int64_t whole = TakeDigits(text, mostDigits, count);
    if (whole < 0 || count == 0)
        return -1;
    std::int64_t fraction = 0;
    std::int64_t parts = 1;
    if (text.starts_with(u'.')) {
        text.remove_prefix(1);
        fraction = TakeDigits(text, mostDecimals, count);
        if (fraction < 0 || count == 0)
            return -1;
        for (; count > 0; --count)
            parts *= 10;
    }
    text = WithoutBlanks(text);
    if (!IsUnit(text))
        return -1;
    const std::int64_t unit = UnitSize(text);
    isPartOfByte = unit == 1 && parts > 1;
    if (whole > std::numeric_limits<std::int64_t>::max() / unit - 1)
        return -1;
    return whole * unit + fraction * unit / parts;
}

std::int64_t ReadSizeBound(std::u16string_view bound, std::int64_t open, std::u16string_view text, const char* option)
{
    if (bound.empty())
        return open;
    bool isPartOfByte = false;
    const std::int64_t size = ReadSize(bound, isPartOfByte);
    if (size < 0)
        Text::RefuseValue(option, text, "FROM and TO are sizes, such as 500, 16KB or \"1.5 GB\"");
    if (isPartOfByte)
        Text::RefuseValue(option, text, "there is no part of a byte; a fraction needs a larger unit, such as 1.5KB");
    return size;
}

} // namespace

DateRange ParseDateRange(std::u16string_view text, const char* option)
{
    DateRange range;
    for (const auto& [word, kind] : dateWords)
        if (text == word) {
            range.kind = kind;
            return range;
        }
    const Bounds bounds = CutRange(text, option,
                                   "today, yesterday, this-week, last-week, this-month, last-month, this-year, "
                                   "last-year or FROM..TO is expected");
    range.from = bounds.from.empty() ? OpenEnd() : ReadBound(bounds.from, text, option).value;
    range.to = OpenEnd();
    if (!bounds.to.empty()) {
        const Text::TypedDateTime to = ReadBound(bounds.to, text, option);
        range.to = to.hasTime ? to.value : VyrLibraryUtils::DateTimeUtils::GetEndDateTime(to.value);
    }
    if (!bounds.from.empty() && !bounds.to.empty() && range.from.m_dt > range.to.m_dt)
        Text::RefuseValue(option, text, "the range begins after its end");
    return range;
}

SizeSpan ParseSizeSpan(std::u16string_view text, const char* option)
{
    SizeSpan span;
    for (const auto& [word, kind] : sizeWords)
        if (text == word) {
            span.kind = kind;
            return span;
        }
    const Bounds bounds = CutRange(
        text, option, "empty, tiny, small, medium, large, huge, giant or FROM..TO is expected, such as 1MB..20MB");
    span.from = ReadSizeBound(bounds.from, 0, text, option);
    span.to = ReadSizeBound(bounds.to, std::numeric_limits<std::int64_t>::max(), text, option);
    if (span.from > span.to)
        Text::RefuseValue(option, text, "the range begins after its end");
    return span;
}

} // namespace VyrHost::Collect
