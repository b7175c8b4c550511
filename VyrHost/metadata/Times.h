/// @file
/// The times of files: the change of kind "times", and the rule for the files of a list.
#pragma once

#include <VyrHost/metadata/Changes.h>
#include <VyrHost/metadata/Dates.h>
#include <VyrHost/metadata/Shift.h>
#include <VyrHost/model/Change.h>
#include <VyrHost/text/TypedDateTime.h>

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace VyrHost::Metadata {

/// A time that a change sets.
struct TimeStep
{
    FileDate date = FileDate::Modified;
    VyrPlatform::FileTicks before = 0;
    /// Its exact form from ExactState.
    CString beforeState;
    /// More than 0.
    VyrPlatform::FileTicks after = 0;
};

/// Sets times by DateTimeFuncs::SetModifiedFileDateTime, and restores them to the file system's precision.
///
/// A time is regarded as set where the file has it as the file system counts: in microseconds, hundredths of a second,
/// seconds or pairs of seconds. An undo leaves a last-access time that has changed since, and restores the others.
class TimesChange final : public Model::Change
{
public:
    /// @param steps  at least one, each for another date.
    /// @param file   the file itself, where it is known.
    explicit TimesChange(std::vector<TimeStep> steps, const std::optional<VyrPlatform::FileIdentity>& file = {})
        : m_steps(std::move(steps)), m_file(file)
    {}

    static constexpr std::string_view kind = "times";
    /// Reads the texts of the journal; null for texts that are not of this kind.
    [[nodiscard]] static std::shared_ptr<const Model::Change> Read(const CString& before, const CString& after);

    [[nodiscard]] std::string_view Kind() const override { return kind; }
    [[nodiscard]] CString Before() const override;
    [[nodiscard]] CString After() const override;
    [[nodiscard]] CString ShownBefore() const override;
    [[nodiscard]] CString ShownAfter() const override;
    [[nodiscard]] std::optional<VyrPlatform::FileIdentity> OnlyFile() const override { return m_file; }
    [[nodiscard]] bool MayLiftProtection() const override;
    [[nodiscard]] Model::ChangeLook Look(const CString& path) const override;
    [[nodiscard]] std::uint32_t Apply(const CString& path) const override;
    [[nodiscard]] std::uint32_t Undo(const CString& path) const override;

    [[nodiscard]] const std::vector<TimeStep>& Steps() const { return m_steps; }

private:
    std::vector<TimeStep> m_steps;
    std::optional<VyrPlatform::FileIdentity> m_file;
};

/// The source of a new time.
struct TimeSource
{
    enum class Kind : std::uint8_t
    {
        /// As typed; if only a date or a time of day was typed, the other part is that of the time to be set.
        Typed,
        Modified,
        Created,
        Accessed,
        /// The time when a picture was taken.
        Picture,
        /// FindNameDate; with a date alone the time of day is kept.
        Name
    };

    Kind kind = Kind::Typed;
    Text::TypedDateTime typed{};
};

/// Reads a date-time, a date, a time of day, or `from:modified`, `from:created`, `from:accessed`, `from:picture`,
/// `from:name`.
/// @throws UsageError for any other text.
[[nodiscard]] TimeSource ParseTimeSource(std::u16string_view text, const char* option);

struct TimesSettings
{
    /// By FileDate. Without any, the time of the last change is shifted.
    std::array<std::optional<TimeSource>, fileDates.size()> sources;
    /// As Shifted does it, on the clock without daylight-saving time.
    std::optional<Amounts> shift;
    /// Each file is shifted by one step more than the one before it in the list; the first is not shifted.
    std::optional<Amounts> stagger;
    /// Replaces all sources.
    std::optional<COleDateTime> start;
};

/// Computes the new times of a file. Local times become the instant at which clocks show them, with the offset from UTC
/// of their own date; one that clocks skip is refused. A time from another time of the file is copied exactly. When it
/// is shifted, or gets another date, its fraction of a second is kept, and in an hour that exists twice its offset from
/// UTC. A read-only file is refused, as it is when the times are written.
class TimesRule final : public ChangeRule
{
public:
    /// @param settings  with a source, a shift, steps or a start.
    explicit TimesRule(const TimesSettings& settings);

    [[nodiscard]] Proposal Propose(const CString& path, const Model::Entry& entry, std::size_t index) const override;
    [[nodiscard]] bool IsThreadSafe() const override { return true; }

private:
    TimesSettings m_settings;
};

} // namespace VyrHost::Metadata
