// Asks the readers of pictures, times and names, and remembers their answers.
#include <VyrHost/rename/FileValues.h>

#include <VyrHost/metadata/Dates.h>
#include <VyrHost/model/FolderSet.h>
#include <VyrLibraryUtils/DateTimeUtils.h>
#include <VyrLibraryUtils/ImageUtils.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

namespace VyrHost::Rename {

namespace {

using Metadata::FileDate;
using Model::DateSource;
using VyrLibraryUtils::DateTimeUtils;
using VyrLibraryUtils::ImageUtils;

bool IsPortable(char16_t unit)
{
    constexpr std::u16string_view forbidden = u"<>:\"/\\|?*";
    return unit >= u' ' && unit != 0x7F && forbidden.find(unit) == std::u16string_view::npos;
}

std::optional<FileMoment> MomentOf(const COleDateTime& local)
{
    return local.GetStatus() == COleDateTime::valid ? std::optional(FileMoment{local}) : std::nullopt;
}

/// The time `date` of the file at `path`.
std::optional<FileMoment> TimeOf(const CString& path, FileDate date)
{
    constexpr VyrPlatform::FileTicks ticksPerSecond = 10'000'000;
    constexpr VyrPlatform::FileTicks ticksPerMillisecond = 10'000;
    const auto ticks = Metadata::TicksOf(path, date);
    if (!ticks)
        return std::nullopt;
    auto moment = MomentOf(VyrPlatform::FileTimes::ToLocal(*ticks));
    if (moment) {
        const VyrPlatform::FileTicks fraction = (*ticks % ticksPerSecond + ticksPerSecond) % ticksPerSecond;
        moment->milliseconds = static_cast<int>(fraction / ticksPerMillisecond);
        moment->instant = ticks;
    }
    return moment;
}

std::optional<FileMoment> DateInName(const CString& path)
{
    Metadata::NameDateProblem problem = Metadata::NameDateProblem::None;
    const std::u16string_view name = path.View().substr(Model::FolderPart(path).size());
    const auto found = Metadata::FindNameDate(name, problem);
    return found ? std::optional(FileMoment{found->value}) : std::nullopt;
}

} // namespace

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

std::optional<FileMoment> FileValues::Moment(DateSource source)
{
    auto& known = m_moments[static_cast<std::size_t>(source)];
    if (!known)
        known = ReadMoment(source);
    return *known;
}

std::optional<FileMoment> FileValues::ReadMoment(DateSource source) const
{
    switch (source) {
    case DateSource::PictureTaken:
        return MomentOf(DateTimeUtils::GetExifDateTime(ImageUtils::GetPropertyTagExifDTOrig(m_path)));
    case DateSource::Name:
        return DateInName(m_path);
    case DateSource::Modified:
        return TimeOf(m_path, FileDate::Modified);
    case DateSource::Created:
        return TimeOf(m_path, FileDate::Created);
    case DateSource::Accessed:
        return TimeOf(m_path, FileDate::Accessed);
    case DateSource::Digitized:
    case DateSource::Xmp:
    case DateSource::Video:
        break;
    }
    return std::nullopt;
}

CString FileValues::Make()
{
    if (!m_make)
        m_make = AsNamePart(ImageUtils::GetEquipMake(m_path));
    return *m_make;
}

CString FileValues::Model()
{
    if (!m_model)
        m_model = AsNamePart(ImageUtils::GetEquipModel(m_path));
    return *m_model;
}

std::optional<std::int64_t> FileValues::Size()
{
    if (!m_state)
        m_state = VyrPlatform::FileSystem::Query(m_path);
    return m_state->kind == VyrPlatform::FileSystem::Kind::File ? std::optional(m_state->size) : std::nullopt;
}

std::uint32_t FileValues::ReadError()
{
    if (!m_readError)
        m_readError = Model::PictureReadError(m_path);
    return *m_readError;
}

} // namespace VyrHost::Rename
