// Computes the new times of a file from their source and the shift.
#include <VyrHost/metadata/Times.h>

#include <VyrHost/metadata/Dates.h>
#include <VyrHost/text/Errors.h>
#include <VyrLibraryUtils/DateTimeUtils.h>
#include <VyrLibraryUtils/ImageUtils.h>
#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/files/ExactState.h>
#include <VyrPlatform/files/FileIdentity.h>
#include <VyrPlatform/files/FileReader.h>
#include <VyrPlatform/time/Epochs.h>

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <iterator>
#include <utility>
#include <vector>

namespace VyrHost::Metadata {

namespace {

namespace FileTimes = VyrPlatform::FileTimes;
using VyrLibraryUtils::DateTimeUtils;
using VyrPlatform::FileTicks;
using VyrPlatform::ticksPerSecond;

constexpr const char16_t* outOfCalendar = u"the new time is outside the calendar's range";

/// The reason why a file gets no new time.
struct Refusal
{
    CString reason;
};

/// A time as clocks show it.
struct LocalTime
{
    COleDateTime value;
    /// The fraction of a second.
    FileTicks fraction = 0;
    /// The exact instant, where it is a time of a file and not shifted.
    FileTicks exact = 0;
    /// How many seconds clocks were ahead of UTC at the file's time, where it is one.
    std::optional<FileTicks> ahead{};
};

bool IsValid(const COleDateTime& dateTime)
{
    return dateTime.GetStatus() == COleDateTime::valid;
}

CString ErrorOf(const CString& path)
{
    constexpr std::uint32_t missingFile = 2;
    const std::uint32_t error = VyrPlatform::LookAtFile(path).error;
    return Text::ErrorText(error != 0 ? error : missingFile);
}

FileTicks RequireTicks(const CString& path, FileDate date)
{
    const auto ticks = TicksOf(path, date);
    if (!ticks)
        throw Refusal{ErrorOf(path)};
    return *ticks;
}

LocalTime FromTicks(FileTicks ticks)
{
    const COleDateTime value = FileTimes::ToLocal(ticks);
    if (!IsValid(value))
        throw Refusal{u"its time is outside the calendar's range"};
    const FileTicks fraction = ((ticks % ticksPerSecond) + ticksPerSecond) % ticksPerSecond;
    return {value, fraction, ticks, SecondsOnClock(value) - (ticks - fraction) / ticksPerSecond};
}

/// The typed date-time, with its missing part from the file's `own` time: a time of day includes its fraction of a
/// second, and its occurrence of an hour that exists twice.
LocalTime Completed(const Text::TypedDateTime& typed, const LocalTime& own)
{
    if (typed.hasTime)
        return {DateTimeUtils::CombineDateTime(own.value, typed.value)};
    return {DateTimeUtils::CombineDateTime(typed.value, own.value), own.fraction, 0, own.ahead};
}

Text::TypedDateTime DateOfPicture(const CString& path)
{
    const COleDateTime taken =
        DateTimeUtils::GetExifDateTime(VyrLibraryUtils::ImageUtils::GetPropertyTagExifDTOrig(path));
    if (!IsValid(taken)) {
        const VyrPlatform::FileReader reader(path);
        throw Refusal{reader.IsOpen() || reader.Error() == 0
                          ? CString(u"it does not say when a picture was taken")
                          : CString::Join({u"the picture cannot be read: ", Text::ErrorText(reader.Error())})};
    }
    return {taken, true, true};
}

const char16_t* ReasonOf(NameDateProblem problem)
{
    switch (problem) {
    case NameDateProblem::NoSuchDay:
        return u"the date in its name does not exist";
    case NameDateProblem::NoSuchTime:
        return u"the time in its name does not exist";
    case NameDateProblem::None:
    case NameDateProblem::NoDate:
        break;
    }
    return u"its name holds no date";
}

Text::TypedDateTime DateOfName(std::u16string_view name)
{
    NameDateProblem problem = NameDateProblem::None;
    const auto found = FindNameDate(name, problem);
    if (!found)
        throw Refusal{ReasonOf(problem)};
    return {found->value, true, found->hasTime};
}

LocalTime FromSource(const TimeSource& source, const CString& path, const Model::Entry& entry, FileDate date)
{
    switch (source.kind) {
    case TimeSource::Kind::Modified:
        return FromTicks(RequireTicks(path, FileDate::Modified));
    case TimeSource::Kind::Created:
        return FromTicks(RequireTicks(path, FileDate::Created));
    case TimeSource::Kind::Accessed:
        return FromTicks(RequireTicks(path, FileDate::Accessed));
    case TimeSource::Kind::Typed:
    case TimeSource::Kind::Picture:
    case TimeSource::Kind::Name:
        break;
    }
    const Text::TypedDateTime typed = source.kind == TimeSource::Kind::Typed     ? source.typed
                                      : source.kind == TimeSource::Kind::Picture ? DateOfPicture(path)
                                                                                 : DateOfName(entry.name);
    if (typed.hasDate && typed.hasTime)
        return {typed.value};
    return Completed(typed, FromTicks(RequireTicks(path, date)));
}

constexpr int Amounts::*allAmounts[] = {&Amounts::years, &Amounts::months,  &Amounts::days,
                                        &Amounts::hours, &Amounts::minutes, &Amounts::seconds};

/// `amounts` `count` times.
Amounts Times(const Amounts& amounts, std::size_t count)
{
    Amounts product;
    for (int Amounts::*const amount : allAmounts) {
        const std::int64_t value = static_cast<std::int64_t>(count) * (amounts.*amount);
        if (value != static_cast<int>(value))
            throw Refusal{outOfCalendar};
        product.*amount = static_cast<int>(value);
    }
    return product;
}

void Move(LocalTime& local, const Amounts& amounts)
{
    if (amounts == Amounts())
        return;
    const auto moved = Shifted(local.value, amounts);
    if (!moved)
        throw Refusal{outOfCalendar};
    local.value = *moved;
    local.exact = 0;
}

/// `first`, or the second instant at which clocks show the same, where it has the offset that the file's time has: a
/// shift within an hour that exists twice stays in its occurrence.
FileTicks OccurrenceOf(const LocalTime& local, FileTicks first)
{
    if (!local.ahead)
        return first;
    const FileTicks sameOffset = (SecondsOnClock(local.value) - *local.ahead) * ticksPerSecond;
    return FileTimes::ToLocal(sameOffset) == local.value ? sameOffset : first;
}

/// The instant at which clocks show `local`.
FileTicks ToInstant(const LocalTime& local)
{
    if (local.exact > 0)
        return local.exact;
    const auto ticks = FileTimes::FromLocal(local.value);
    if (!ticks || *ticks <= 0)
        throw Refusal{u"a file's time begins in 1601"};
    if (FileTimes::ToLocal(*ticks) != local.value)
        throw Refusal{CString::Join({u"clocks leave ", Shown(local.value), u" out"})};
    return OccurrenceOf(local, *ticks) + local.fraction;
}

} // namespace

TimesRule::TimesRule(const TimesSettings& settings) : m_settings(settings)
{
    for (const auto& source : m_settings.sources)
        if (source)
            return;
    m_settings.sources[static_cast<std::size_t>(FileDate::Modified)] = TimeSource{TimeSource::Kind::Modified};
}

Proposal TimesRule::Propose(const CString& path, const Model::Entry& entry, std::size_t index) const
{
    std::vector<TimeStep> steps;
    std::optional<VyrPlatform::FileIdentity> file;
    bool isReadOnly = false;
    try {
        for (const FileDate date : fileDates) {
            const auto& source = m_settings.sources[static_cast<std::size_t>(date)];
            if (!source)
                continue;
            LocalTime local = m_settings.start ? LocalTime{*m_settings.start} : FromSource(*source, path, entry, date);
            if (m_settings.stagger)
                Move(local, Times(*m_settings.stagger, index));
            if (m_settings.shift)
                Move(local, *m_settings.shift);
            steps.push_back({date, 0, {}, ToInstant(local)});
        }
        // The times before are read last, since reading a picture may change the time of the last access.
        for (TimeStep& step : steps) {
            std::uint32_t error = 0;
            auto before = VyrPlatform::ExactState::ReadTime(path, PartOf(step.date), error);
            if (!before)
                throw Refusal{Text::ErrorText(error)};
            step.before = before->ticks;
            step.beforeState = std::move(before->state);
            file = before->file;
            isReadOnly = before->isReadOnly;
        }
    } catch (const Refusal& refusal) {
        return {nullptr, refusal.reason};
    }
    std::erase_if(steps, [](const TimeStep& step) { return step.before == step.after; });
    if (steps.empty())
        return {};
    if (isReadOnly)
        return {nullptr, u"it is read-only"};
    return {std::make_shared<TimesChange>(std::move(steps), file), {}};
}

TimeSource ParseTimeSource(std::u16string_view text, const char* option)
{
    constexpr std::pair<std::u16string_view, TimeSource::Kind> words[] = {
        {u"from:modified", TimeSource::Kind::Modified}, {u"from:created", TimeSource::Kind::Created},
        {u"from:accessed", TimeSource::Kind::Accessed}, {u"from:picture", TimeSource::Kind::Picture},
        {u"from:name", TimeSource::Kind::Name},
    };
    for (const auto& [word, kind] : words)
        if (text == word)
            return {kind};
    const auto typed = Text::ReadTypedDateTime(text);
    if (!typed)
        Text::RefuseValue(option, text,
                          "a date-time (\"2024-01-05 10:30\") or a date, each of a day that exists, a time of day, "
                          "from:modified, from:created, from:accessed, from:picture or from:name is expected");
    return {TimeSource::Kind::Typed, *typed};
}

} // namespace VyrHost::Metadata
