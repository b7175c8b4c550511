#include <VyrLibraryFuncs/select/SearchFuncs.h>

#include <VyrLibraryFuncs/metadata/DateTimeFuncs.h>
#include <VyrLibraryUtils/DateTimeUtils.h>
#include <VyrLibraryUtils/FileUtils.h>
#include <VyrLibraryUtils/ImageUtils.h>
#include <VyrLibraryUtils/StringUtils.h>
#include <VyrPlatform/process/DebugOutput.h>
#include <VyrPlatform/time/Clock.h>

#include <initializer_list>

using VyrLibraryUtils::DateTimeUtils;
using VyrLibraryUtils::FileUtils;
using VyrLibraryUtils::ImageUtils;
using VyrLibraryUtils::StringUtils;

namespace VyrLibraryFuncs {

namespace {

bool IsBetween(double value, double from, double to)
{
    return from <= value && value <= to;
}

bool IsInCustomRange(const COleDateTime& value, const COleDateTime& from, const COleDateTime& to)
{
    const bool isFromOpen = from.GetStatus() == COleDateTime::null;
    const bool isToOpen = to.GetStatus() == COleDateTime::null;
    if (isFromOpen && isToOpen)
        return false;
    if (IsBetween(value, from, to))
        return true;
    if (isFromOpen)
        return value.m_dt <= to.m_dt;
    return isToOpen && value.m_dt >= from.m_dt;
}

/// The week that begins with `sunday`.
bool IsInWeek(const COleDateTime& value, const COleDateTime& sunday)
{
    return IsBetween(value, DateTimeUtils::GetBeginDateTime(sunday),
                     DateTimeUtils::GetEndDateTime(DateTimeFuncs::GetEndWeekDateTime(sunday)));
}

COleDateTime ReadDateTime(const CString& path, int target)
{
    switch (static_cast<SearchFuncs::DateTimeTarget>(target)) {
    case SearchFuncs::DateTimeTarget::Modified:
        return DateTimeUtils::GetDateModified(path);
    case SearchFuncs::DateTimeTarget::Created:
        return DateTimeUtils::GetDateCreated(path);
    case SearchFuncs::DateTimeTarget::PictureTaken:
        return DateTimeUtils::GetExifDateTime(ImageUtils::GetPropertyTagExifDTOrig(path));
    }
    return {};
}

void Trace(std::int64_t size)
{
    for (const CString& piece : {CString(u"FileSize: "), FileUtils::GetFileSize(size, 0), CString(u", FileSize: "),
                                 StringUtils::GetFormatedSizeThousands(size), CString(u"\r\n")})
        VyrPlatform::DebugOutput::Write(piece);
}

} // namespace

SearchFuncs::SearchFuncs() = default;
SearchFuncs::~SearchFuncs() = default;
SearchFuncs& SearchFuncs::operator=(const SearchFuncs&) = default;

int SearchFuncs::IsMatch(CString path, int /*reserved*/)
{
    if (!FileUtils::IsFileExist(path))
        return 1;
    return (m_dateTimeSearch == 0 || IsMatchDateTime(path)) && (m_sizeSearch == 0 || IsMatchSize(path, 0));
}

int SearchFuncs::IsMatch(ITEM item)
{
    return (m_dateTimeSearch == 0 || IsMatchDateTime(item.dateTime)) && (m_sizeSearch == 0 || IsMatchSize(item.size));
}

int SearchFuncs::IsMatchDateTime(CString path)
{
    return FileUtils::IsFileExist(path) && IsMatchDateTime(ReadDateTime(path, m_dateTimeTarget));
}

int SearchFuncs::IsMatchDateTime(COleDateTime value)
{
    if (value.GetStatus() == COleDateTime::invalid)
        return 0;
    const COleDateTime now = VyrPlatform::Clock::Now();
    switch (static_cast<DateTimeRange>(m_dateTimeRange)) {
    case DateTimeRange::Custom:
        return IsInCustomRange(value, m_dateTimeFromDateTime, m_dateTimeToDateTime);
    case DateTimeRange::Today:
        return DateTimeFuncs::IsMatchDate(value, now);
    case DateTimeRange::Yesterday:
        return DateTimeFuncs::IsMatchDate(value, DateTimeFuncs::GetYesterdayDateTime(now));
    case DateTimeRange::ThisWeek:
        return IsInWeek(value, DateTimeFuncs::GetBeginThisWeekDateTime(now));
    case DateTimeRange::LastWeek:
        return IsInWeek(value, DateTimeFuncs::GetBeginLastWeekDateTime(now));
    case DateTimeRange::ThisMonth:
        return DateTimeFuncs::IsMatchDateMonth(value, now);
    case DateTimeRange::LastMonth:
        return DateTimeFuncs::IsMatchDateMonth(value, DateTimeFuncs::GetLastMonthDateTime(now));
    case DateTimeRange::ThisYear:
        return value.GetYear() == now.GetYear();
    case DateTimeRange::LastYear:
        return value.GetYear() == DateTimeFuncs::GetLastYearDateTime(now).GetYear();
    }
    return 0;
}

int SearchFuncs::IsMatchSize(CString path, int withFolders)
{
    if (!FileUtils::IsFileExist(path))
        return 0;
    const bool isFolder = FileUtils::IsDirectory(path) != 0;
    const std::int64_t size = isFolder && withFolders == 0 ? -1 : FileUtils::GetFileSize(path);
    if (!isFolder)
        Trace(size);
    return IsMatchSize(size);
}

int SearchFuncs::IsMatchSize(std::int64_t size)
{
    constexpr std::int64_t KiB = 1024;
    constexpr std::int64_t MiB = 1024 * KiB;
    constexpr std::int64_t GiB = 1024 * MiB;
    const auto isIn = [size](std::int64_t from, std::int64_t to) {
        return from <= size && size <= to;
    };
    switch (static_cast<SizeRange>(m_sizeRange)) {
    case SizeRange::Custom:
        return isIn(m_sizeFromSize, m_sizeToSize);
    case SizeRange::Empty:
        return size == 0;
    case SizeRange::Tiny:
        return isIn(1, 16 * KiB);
    case SizeRange::Small:
        return isIn(16 * KiB + 1, MiB);
    case SizeRange::Medium:
        return isIn(MiB + 1, 128 * MiB);
    case SizeRange::Large:
        return isIn(128 * MiB + 1, GiB);
    case SizeRange::Huge:
        return isIn(GiB + 1, 4 * GiB);
    case SizeRange::Giant:
        return size > 4 * GiB;
    case SizeRange::Folder:
        return size == -1;
    }
    return 0;
}

} // namespace VyrLibraryFuncs
