/// @file
/// Which times the files of a list get.
#pragma once

#include <VyrHost/metadata/FileDate.h>
#include <VyrHost/metadata/Proposal.h>
#include <VyrHost/text/TypedDateTime.h>

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace VyrHost::Metadata {

/// Where a new time comes from.
struct TimeSource
{
    enum class Kind : std::uint8_t
    {
        /// From what was typed; of a date or a time of day alone the other part is that of the time that is set.
        Typed,
        Modified,
        Created,
        Accessed,
        /// The moment at which a picture was taken.
        Picture,
        /// FindNameDate; of a date alone the time of day stays.
        Name
    };

    Kind kind = Kind::Typed;
    Text::TypedDateTime typed{};
};

/// Reads a date-time, a date, a time of day, or `from:modified`, `from:created`, `from:accessed`, `from:picture`,
/// `from:name`.
/// @throws UsageError for any other text.
[[nodiscard]] TimeSource ParseTimeSource(std::u16string_view text, const char* option);

/// By how much times move.
struct Amounts
{
    int years = 0;
    int months = 0;
    int days = 0;
    int hours = 0;
    int minutes = 0;
    int seconds = 0;

    friend bool operator==(const Amounts&, const Amounts&) = default;
};

/// Reads numbers with the units y (years), mo (months), d, h, m (minutes), s, each unit once, such as `1h30m`,
/// `-1y 6mo` or `+2d`; a sign in front holds for all.
/// @throws UsageError for any other text, and where all numbers are 0.
[[nodiscard]] Amounts ParseAmounts(std::u16string_view text, const char* option);

struct TimesSettings
{
    /// By FileDate. Where there is none, the time of the last change is moved.
    std::array<std::optional<TimeSource>, fileDates.size()> sources;
    /// By DateTimeFuncs::GetStaggerFileDateTime, on the clock without daylight-saving time.
    std::optional<Amounts> shift;
    /// Each file gets one step more than the one before it in the list; the first gets none.
    std::optional<Amounts> stagger;
    /// Takes the place of every source.
    std::optional<COleDateTime> start;
};

/// The times of a file by what was asked for. Local times become the instant at which clocks show them, with the offset
/// from UTC of their own date. A time that comes from another time of the file stays exactly that, unless it is moved:
/// then its fraction of a second stays.
class TimesRule final : public ChangeRule
{
public:
    /// @param settings  with a source, a shift, steps or a start.
    explicit TimesRule(const TimesSettings& settings);

    [[nodiscard]] Proposal Propose(const CString& path, const Model::Entry& entry, std::size_t index) const override;

private:
    TimesSettings m_settings;
};

} // namespace VyrHost::Metadata
