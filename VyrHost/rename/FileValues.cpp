// Calls the readers of content, times and names, and caches their results.
#include <VyrHost/rename/FileValues.h>

#include <VyrHost/documents/Document.h>
#include <VyrHost/metadata/Dates.h>
#include <VyrHost/model/FolderSet.h>
#include <VyrHostPlatform/FileHash.h>
#include <VyrLibraryUtils/ImageUtils.h>
#include <VyrPlatform/text/Encoding.h>
#include <VyrPlatform/time/Epochs.h>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>

namespace VyrHost::Rename {

namespace {

using Media::MediaQuestion;
using Media::MediaValues;
using Metadata::FileDate;
using Model::DateSource;
using VyrPlatform::FileTicks;
using VyrPlatform::ticksPerSecond;

constexpr bool MediaQuestion::*askedParts[] = {&MediaQuestion::size,      &MediaQuestion::duration,
                                               &MediaQuestion::tags,      &MediaQuestion::videoCreated,
                                               &MediaQuestion::exifDates, &MediaQuestion::xmpDate};

/// Whether `question` includes `asked`.
bool Covers(const MediaQuestion& question, const MediaQuestion& asked)
{
    const bool areParts = std::all_of(std::begin(askedParts), std::end(askedParts),
                                      [&](bool MediaQuestion::*part) { return question.*part || !(asked.*part); });
    return areParts && (question.exif | asked.exif) == question.exif;
}

bool IsPortable(char16_t unit)
{
    constexpr std::u16string_view forbidden = u"<>:\"/\\|?*";
    return unit >= u' ' && unit != 0x7F && forbidden.find(unit) == std::u16string_view::npos;
}

std::optional<FileMoment> MomentAt(FileTicks ticks)
{
    constexpr FileTicks ticksPerMillisecond = ticksPerSecond / 1000;
    FileMoment moment{VyrPlatform::FileTimes::ToLocal(ticks)};
    if (moment.local.GetStatus() != COleDateTime::valid)
        return std::nullopt;
    const FileTicks fraction = (ticks % ticksPerSecond + ticksPerSecond) % ticksPerSecond;
    moment.milliseconds = static_cast<int>(fraction / ticksPerMillisecond);
    moment.instant = ticks;
    return moment;
}

std::optional<FileMoment> MomentAt(const std::optional<FileTicks>& ticks)
{
    return ticks ? MomentAt(*ticks) : std::nullopt;
}

/// The first three digits of a fraction of a second.
int Milliseconds(std::u16string_view digits)
{
    constexpr std::size_t count = 3;
    int milliseconds = 0;
    for (std::size_t at = 0; at < count; ++at)
        milliseconds = milliseconds * 10 + (at < digits.size() ? digits[at] - u'0' : 0);
    return milliseconds;
}

std::optional<FileMoment> MomentOf(const std::optional<Media::PictureDate>& date)
{
    if (!date)
        return std::nullopt;
    return FileMoment{date->dateTime, Milliseconds(date->fraction), date->Instant()};
}

std::optional<FileMoment> DateInName(const CString& path)
{
    Metadata::NameDateProblem problem = Metadata::NameDateProblem::None;
    const auto found = Metadata::FindNameDate(Model::NamePart(path), problem);
    return found ? std::optional(FileMoment{found->value, found->milliseconds}) : std::nullopt;
}

bool IsEmpty(const WorkValues& work)
{
    return work.title.IsEmpty() && work.artist.IsEmpty() && work.album.IsEmpty() && work.genre.IsEmpty() &&
           work.track == 0 && work.disc == 0 && work.year == 0;
}

WorkValues WorkOfDocument(const CString& path)
{
    namespace Id = VyrPlatform::SummaryId;
    const VyrPlatform::DocumentProperties properties = Documents::ReadDocument(path).properties;
    const auto text = [&properties](std::uint32_t id) {
        const auto found = properties.texts.find(id);
        return found == properties.texts.end() ? CString() : found->second;
    };
    WorkValues work;
    work.title = text(Id::title);
    work.artist = text(Id::author);
    work.genre = text(Id::keywords);
    if (const auto created = properties.times.find(Id::created); created != properties.times.end())
        if (const auto moment = MomentAt(created->second))
            work.year = static_cast<unsigned>(moment->local.GetYear());
    return work;
}

} // namespace

void AddTo(MediaQuestion& question, const MediaQuestion& more)
{
    for (bool MediaQuestion::*const part : askedParts)
        question.*part = question.*part || more.*part;
    question.exif |= more.exif;
}

MediaQuestion QuestionFor(DateSource source)
{
    MediaQuestion question;
    question.exifDates = source == DateSource::PictureTaken || source == DateSource::Digitized;
    question.xmpDate = source == DateSource::Xmp;
    question.videoCreated = source == DateSource::Video;
    return question;
}

CString AsNamePart(const CString& text)
{
    std::u16string part(text.View());
    std::replace_if(
        part.begin(), part.end(), [](char16_t unit) { return !IsPortable(unit); }, u'_');
    part.erase(0, part.find_first_not_of(u' '));
    part.erase(part.find_last_not_of(u' ') + 1);
    return std::u16string_view(part);
}

void FileValues::Enter(const CString& path)
{
    if (path == m_path)
        return;
    *this = {};
    m_path = path;
}

const MediaValues& FileValues::Content(const MediaQuestion& question)
{
    if (!m_content || !Covers(m_question, question)) {
        AddTo(m_question, question);
        m_content = std::make_shared<MediaValues>(Media::ReadMedia(m_path, m_question));
    }
    return *m_content;
}

const WorkValues& FileValues::Work(const MediaQuestion& question)
{
    if (!m_work) {
        const MediaValues& content = Content(question);
        WorkValues work{content.title, content.artist, content.album, content.genre,
                        content.track, content.disc,   content.year};
        if (IsEmpty(work))
            work = WorkOfDocument(m_path);
        m_work = std::make_shared<WorkValues>(std::move(work));
    }
    return *m_work;
}

std::optional<FileMoment> FileValues::Moment(DateSource source, const MediaQuestion& question)
{
    MediaQuestion all = question;
    AddTo(all, QuestionFor(source));
    switch (source) {
    case DateSource::PictureTaken:
        return MomentOf(Content(all).taken);
    case DateSource::Digitized:
        return MomentOf(Content(all).digitized);
    case DateSource::Xmp:
        return MomentOf(Content(all).xmpCreated);
    case DateSource::Video:
        return MomentAt(Content(all).videoCreated);
    case DateSource::Name:
    case DateSource::Modified:
    case DateSource::Created:
    case DateSource::Accessed:
        break;
    }
    return TimeOf(source);
}

std::optional<FileMoment> FileValues::TimeOf(DateSource source)
{
    auto& known = m_times[static_cast<std::size_t>(source)];
    if (!known) {
        const FileDate date = source == DateSource::Modified  ? FileDate::Modified
                              : source == DateSource::Created ? FileDate::Created
                                                              : FileDate::Accessed;
        known = source == DateSource::Name ? DateInName(m_path) : MomentAt(Metadata::TicksOf(m_path, date));
    }
    return *known;
}

CString FileValues::Make()
{
    if (!m_make)
        m_make = AsNamePart(VyrLibraryUtils::ImageUtils::GetEquipMake(m_path));
    return *m_make;
}

CString FileValues::Model()
{
    if (!m_model)
        m_model = AsNamePart(VyrLibraryUtils::ImageUtils::GetEquipModel(m_path));
    return *m_model;
}

std::optional<std::int64_t> FileValues::Size()
{
    if (!m_state)
        m_state = VyrPlatform::FileSystem::Query(m_path);
    return m_state->kind == VyrPlatform::FileSystem::Kind::File ? std::optional(m_state->size) : std::nullopt;
}

const CString& FileValues::Hash()
{
    if (!m_hash)
        m_hash = VyrPlatform::Encoding::FromUtf8(VyrHostPlatform::Sha256Of(m_path).digits);
    return *m_hash;
}

std::uint32_t FileValues::ReadError()
{
    return Content({}).error;
}

} // namespace VyrHost::Rename
