/// @file
/// The times of files: the change of kind "times", and which times the files of a list get.
#pragma once

#include <VyrHost/metadata/Changes.h>
#include <VyrHost/metadata/Dates.h>
#include <VyrHost/model/Change.h>
#include <VyrHost/text/TypedDateTime.h>

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace VyrHost::Metadata {

/// One of the times that a change sets.
struct TimeStep
{
    FileDate date = FileDate::Modified;
    VyrPlatform::FileTicks before = 0;
    /// The same exactly, as ExactState keeps it.
    CString beforeState;
    /// More than 0.
    VyrPlatform::FileTicks after = 0;
};

/// Sets times by DateTimeFuncs::SetModifiedFileDateTime, and takes them back to the file system's precision.
///
/// A time counts as set where the file system has kept it within two seconds.
class TimesChange final : public Model::Change
{
public:
    /// @param steps  one or more, each of another date.
    explicit TimesChange(std::vector<TimeStep> steps) : m_steps(std::move(steps)) {}

    static constexpr std::string_view kind = "times";
    /// What the journal keeps; null for texts that are none of this kind.
    [[nodiscard]] static std::shared_ptr<const Model::Change> Read(const CString& before, const CString& after);

    [[nodiscard]] std::string_view Kind() const override { return kind; }
    [[nodiscard]] CString Before() const override;
    [[nodiscard]] CString After() const override;
    [[nodiscard]] CString ShownBefore() const override;
    [[nodiscard]] CString ShownAfter() const override;
    [[nodiscard]] Model::ChangeLook Look(const CString& path) const override;
    [[nodiscard]] std::uint32_t Apply(const CString& path) const override;
    [[nodiscard]] std::uint32_t TakeBack(const CString& path) const override;

    [[nodiscard]] const std::vector<TimeStep>& Steps() const { return m_steps; }

private:
    std::vector<TimeStep> m_steps;
};

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
