#include <VyrHost/rename/ZoneClock.h>

#include <VyrLibraryUtils/pictures/ByteView.h>

#include <algorithm>
#include <iterator>
#include <string>

namespace VyrHost::Rename {

namespace {

using namespace VyrLibraryUtils::Pictures;

/// No offset from UTC is larger.
constexpr int mostSeconds = 26 * 60 * 60;

/// The header of one of the two parts of a file.
struct Head
{
    std::uint32_t utcMarks;
    std::uint32_t standardMarks;
    std::uint32_t leapSeconds;
    std::uint32_t changes;
    std::uint32_t types;
    std::uint32_t letters;

    /// The size of the data after it, with times of `timeSize` bytes.
    [[nodiscard]] std::uint64_t SizeOfRest(std::uint64_t timeSize) const
    {
        constexpr std::uint64_t typeSize = 6;
        return changes * (timeSize + 1) + types * typeSize + SizeBehindTypes(timeSize);
    }
    [[nodiscard]] std::uint64_t SizeBehindTypes(std::uint64_t timeSize) const
    {
        return letters + leapSeconds * (timeSize + 4) + standardMarks + std::uint64_t{utcMarks};
    }
};

/// Takes the header at the cursor; nothing unless it has version 2 or later.
std::optional<Head> TakeHead(ByteCursor& file)
{
    const bool hasMark = file.Bytes(4) == "TZif";
    const bool isNew = file.U8() >= '2';
    constexpr std::uint64_t reserved = 15;
    file.Skip(reserved);
    const Head head{file.U32(), file.U32(), file.U32(), file.U32(), file.U32(), file.U32()};
    return hasMark && isNew && !file.Failed() ? std::optional(head) : std::nullopt;
}

/// The rule between two line ends.
std::optional<ZoneRule> RuleIn(const ByteView& foot)
{
    constexpr std::size_t longest = 256;
    const std::string text = foot.Copy(longest);
    if (!text.starts_with('\n'))
        return std::nullopt;
    return ZoneRule::Read(std::string_view(text).substr(1, text.find('\n', 1) - 1));
}

} // namespace

std::optional<ZoneClock> ZoneClock::Read(std::string_view file)
{
    MemorySource source(file);
    ByteCursor cursor(ByteView(source), ByteOrder::Big);
    // The first part has times of four bytes; the second part repeats them in eight bytes.
    const auto shortPart = TakeHead(cursor);
    if (!shortPart)
        return std::nullopt;
    cursor.Skip(shortPart->SizeOfRest(4));
    const auto head = TakeHead(cursor);
    if (!head || head->types == 0 || head->SizeOfRest(8) > cursor.Remaining())
        return std::nullopt;

    ZoneClock clock(0);
    clock.m_changes.resize(head->changes);
    for (Change& change : clock.m_changes)
        change.instant = static_cast<std::int64_t>(cursor.Unsigned(8));
    std::vector<std::uint8_t> typeOf(head->changes);
    for (std::uint8_t& type : typeOf)
        type = cursor.U8();
    std::vector<int> ahead(head->types);
    for (int& seconds : ahead) {
        seconds = static_cast<std::int32_t>(cursor.U32());
        if (seconds < -mostSeconds || seconds > mostSeconds)
            return std::nullopt;
        cursor.Skip(2);
    }
    cursor.Skip(head->SizeBehindTypes(8));
    for (std::size_t at = 0; at < typeOf.size(); ++at) {
        if (typeOf[at] >= ahead.size())
            return std::nullopt;
        clock.m_changes[at].secondsAhead = ahead[typeOf[at]];
    }
    clock.m_atFirst = ahead.front();
    clock.m_rule = RuleIn(cursor.Take(cursor.Remaining()));
    if (!std::ranges::is_sorted(clock.m_changes, {}, &Change::instant))
        return std::nullopt;
    return clock;
}

int ZoneClock::SecondsAhead(std::int64_t instant) const
{
    const auto next = std::ranges::upper_bound(m_changes, instant, {}, &Change::instant);
    if (next == m_changes.end() && m_rule)
        return m_rule->SecondsAhead(instant);
    return next == m_changes.begin() ? m_atFirst : std::prev(next)->secondsAhead;
}

} // namespace VyrHost::Rename
