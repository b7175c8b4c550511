// Sets and restores times, and writes them for the journal: "DATE TICKS STATE" before, "DATE TICKS" after, separated by
// semicolons.
#include <VyrHost/metadata/Times.h>

#include <VyrHost/metadata/Changes.h>
#include <VyrHost/text/Pieces.h>
#include <VyrLibraryFuncs/metadata/DateTimeFuncs.h>
#include <VyrPlatform/files/ExactState.h>
#include <VyrPlatform/files/FileIdentity.h>
#include <VyrPlatform/files/FileTicks.h>

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <iterator>
#include <optional>

namespace VyrHost::Metadata {

namespace {

using Model::ChangeLook;
using Model::ChangeState;
using VyrPlatform::FileTicks;

/// The system's error code for a file whose times cannot be read.
std::uint32_t ErrorOf(const CString& path)
{
    constexpr std::uint32_t missingFile = 2;
    const std::uint32_t error = VyrPlatform::LookAtFile(path).error;
    return error != 0 ? error : missingFile;
}

/// Whether a file system may have stored `now` for `wanted`: as a whole number of the microseconds, hundredths of a
/// second, seconds or pairs of seconds in which it counts, the next one below or above.
bool MayBeStoredFor(FileTicks wanted, FileTicks now)
{
    constexpr FileTicks ticksPerMicrosecond = 10;
    constexpr FileTicks steps[] = {1, 10'000, 1'000'000, 2'000'000};
    return std::any_of(std::begin(steps), std::end(steps), [wanted, now](FileTicks microseconds) {
        const FileTicks step = microseconds * ticksPerMicrosecond;
        return now % step == 0 && now > wanted - step && now < wanted + step;
    });
}

ChangeState StateOf(const TimeStep& step, FileTicks now)
{
    if (now == step.after)
        return ChangeState::After;
    if (now == step.before)
        return ChangeState::Before;
    return MayBeStoredFor(step.after, now) ? ChangeState::After : ChangeState::Other;
}

std::optional<FileDate> DateOf(std::u16string_view word)
{
    for (const FileDate date : fileDates)
        if (word == WordFor(date))
            return date;
    return std::nullopt;
}

/// The step of a pair of journal texts; nothing when they do not match.
std::optional<TimeStep> StepOf(std::u16string_view before, std::u16string_view after)
{
    TimeStep step;
    const std::u16string_view word = Text::TakeUpTo(before, u' ');
    const auto date = DateOf(word);
    const auto ticks = Text::ReadWhole(Text::TakeUpTo(before, u' '));
    step.beforeState = before;
    if (!date || !ticks || before.empty() || Text::TakeUpTo(after, u' ') != word)
        return std::nullopt;
    const auto ticksAfter = Text::ReadWhole(after);
    if (!ticksAfter || *ticksAfter <= 0)
        return std::nullopt;
    step.date = *date;
    step.before = *ticks;
    step.after = *ticksAfter;
    return step;
}

CString NumberText(FileTicks ticks)
{
    char digits[20];
    const auto [end, error] = std::to_chars(std::begin(digits), std::end(digits), ticks);
    char16_t text[std::size(digits)];
    return std::u16string_view(text, static_cast<std::size_t>(std::copy(std::begin(digits), end, text) - text));
}

/// The texts of all steps, separated by `separator`.
template <class ToText>
CString Joined(const std::vector<TimeStep>& steps, std::u16string_view separator, ToText toText)
{
    CString text;
    for (const TimeStep& step : steps) {
        if (!text.IsEmpty())
            text += separator;
        text += toText(step);
    }
    return text;
}

} // namespace

std::shared_ptr<const Model::Change> TimesChange::Read(const CString& before, const CString& after)
{
    std::vector<TimeStep> steps;
    std::u16string_view restBefore = before;
    std::u16string_view restAfter = after;
    do {
        const auto step = StepOf(Text::TakeUpTo(restBefore, u';'), Text::TakeUpTo(restAfter, u';'));
        const auto isSame = [&step](const TimeStep& other) {
            return other.date == step->date;
        };
        if (!step || std::any_of(steps.begin(), steps.end(), isSame))
            return nullptr;
        steps.push_back(*step);
    } while (!restBefore.empty() && !restAfter.empty());
    return restBefore.empty() && restAfter.empty() ? std::make_shared<TimesChange>(std::move(steps)) : nullptr;
}

CString TimesChange::Before() const
{
    return Joined(m_steps, u";", [](const TimeStep& step) {
        return CString::Join({WordFor(step.date), u" ", NumberText(step.before), u" ", step.beforeState});
    });
}

CString TimesChange::After() const
{
    return Joined(m_steps, u";", [](const TimeStep& step) {
        return CString::Join({WordFor(step.date), u" ", NumberText(step.after)});
    });
}

CString TimesChange::ShownBefore() const
{
    return Joined(m_steps, u", ", [](const TimeStep& step) {
        return CString::Join({WordFor(step.date), u" ", Shown(step.before)});
    });
}

CString TimesChange::ShownAfter() const
{
    return Joined(m_steps, u", ", [](const TimeStep& step) {
        return CString::Join({WordFor(step.date), u" ", Shown(step.after)});
    });
}

/// Some file systems store a creation time only for writable files; it is restored all the same.
bool TimesChange::MayLiftProtection() const
{
    return std::any_of(m_steps.begin(), m_steps.end(),
                       [](const TimeStep& step) { return step.date == FileDate::Created; });
}

ChangeLook TimesChange::Look(const CString& path) const
{
    ChangeLook look{ChangeState::Other, 0};
    for (const TimeStep& step : m_steps) {
        const auto now = TicksOf(path, step.date);
        if (!now)
            return {ChangeState::Unknown, ErrorOf(path)};
        const ChangeState state = StateOf(step, *now);
        // Reading a file changes the time of its last access, so the other times are compared without it.
        if (state == ChangeState::Other && step.date == FileDate::Accessed)
            look.left = u"the time of the last access, which has changed since, stays";
        else if (state == ChangeState::Other)
            return {ChangeState::Other, 0};
        else
            look.state = look.state == ChangeState::Other || look.state == state ? state : ChangeState::Partly;
    }
    return look;
}

std::uint32_t TimesChange::Apply(const CString& path) const
{
    VyrPlatform::FileTimes::NewTimes wanted;
    FILETIME times[fileDates.size()] = {};
    const FILETIME* given[fileDates.size()] = {};
    for (const TimeStep& step : m_steps) {
        const auto place = static_cast<std::size_t>(step.date);
        times[place] = VyrPlatform::ToFileTime(step.after);
        given[place] = &times[place];
        (step.date == FileDate::Modified  ? wanted.modified
         : step.date == FileDate::Created ? wanted.created
                                          : wanted.accessed) = step.after;
    }
    const auto timeOf = [&given](FileDate date) {
        return given[static_cast<std::size_t>(date)];
    };
    if (VyrLibraryFuncs::DateTimeFuncs::SetModifiedFileDateTime(path, timeOf(FileDate::Created),
                                                                timeOf(FileDate::Modified), timeOf(FileDate::Accessed)))
        return 0;
    // The library reports only that it failed; the service below it also gives the reason.
    return VyrPlatform::FileTimes::Write(path, wanted);
}

std::uint32_t TimesChange::Undo(const CString& path) const
{
    for (const TimeStep& step : m_steps) {
        const auto now = TicksOf(path, step.date);
        if (!now)
            return ErrorOf(path);
        if (StateOf(step, *now) != ChangeState::After)
            continue;
        if (const std::uint32_t error = VyrPlatform::ExactState::Restore(path, PartOf(step.date), step.beforeState))
            return error;
    }
    return 0;
}

} // namespace VyrHost::Metadata
