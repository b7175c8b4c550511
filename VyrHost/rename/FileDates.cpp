// Tries one date source after the other, and writes the date by the library.
#include <VyrHost/rename/FileDates.h>

#include <VyrHost/rename/TemplateTokens.h>
#include <VyrLibraryUtils/DateTimeUtils.h>
#include <VyrPlatform/time/Epochs.h>

#include <chrono>

namespace VyrHost::Rename {

namespace {

using Model::DateSource;
using VyrLibraryUtils::DateTimeUtils;
using VyrPlatform::FileTicks;

/// The time that `zone` shows at `instant`.
COleDateTime ShownBy(const ZoneClock& zone, FileTicks instant)
{
    using namespace std::chrono;
    using Ticks = duration<FileTicks, std::ratio<1, VyrPlatform::ticksPerSecond>>;
    const seconds universal = floor<seconds>(Ticks{instant});
    const seconds unixTime = universal - seconds{VyrPlatform::secondsToUnixEpoch};
    return Metadata::OnClock(universal.count() + zone.SecondsAhead(unixTime.count()));
}

bool IsInContent(DateSource source)
{
    return source == DateSource::PictureTaken || source == DateSource::Digitized || source == DateSource::Xmp ||
           source == DateSource::Video;
}

/// Converts `moment` to the requested clock, and shifts it; false if it would be out of range.
bool Adjust(FileMoment& moment, const DateSettings& settings)
{
    if (settings.clock && moment.instant)
        moment.local = ShownBy(*settings.clock, *moment.instant);
    if (settings.shift) {
        const auto shifted = Metadata::Shifted(moment.local, *settings.shift);
        if (!shifted)
            return false;
        moment.local = *shifted;
    }
    return moment.local.GetStatus() == COleDateTime::valid;
}

} // namespace

Media::MediaQuestion QuestionFor(const DateSettings& settings)
{
    return settings.sources.empty() ? Media::MediaQuestion() : QuestionFor(settings.sources.front());
}

FoundDate FindDate(FileValues& values, const DateSettings& settings, const Media::MediaQuestion& question)
{
    FoundDate found;
    for (std::size_t rank = 0; rank < settings.sources.size(); ++rank) {
        const DateSource source = settings.sources[rank];
        if (const auto moment = values.Moment(source, question)) {
            found.rank = rank;
            found.moment = *moment;
            found.reason = Adjust(found.moment, settings) ? Reason::None : Reason::DateOutOfRange;
            return found;
        }
        if (IsInContent(source) && values.ReadError() != 0) {
            found.rank = rank;
            found.reason = Reason::PictureNotRead;
            return found;
        }
    }
    return found;
}

DateWriter::DateWriter(std::u16string_view format)
{
    for (const std::u16string_view piece : CutAtMilliseconds(format))
        m_patterns.push_back(DateTimeUtils::GetDateTimeFormat(piece, {}));
}

CString DateWriter::Write(const FileMoment& moment) const
{
    CString text;
    for (const CString& pattern : m_patterns) {
        if (&pattern != m_patterns.data()) {
            CString milliseconds;
            milliseconds.Format(u"%03d", moment.milliseconds);
            text += milliseconds;
        }
        text += DateTimeUtils::GetOleDateTimeFormat(moment.local, pattern);
    }
    return text;
}

} // namespace VyrHost::Rename
