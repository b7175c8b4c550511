// Reads, combines and writes a file's date-times.
#include <VyrLibraryFuncs/metadata/DateTimeFuncs.h>

#include <VyrLibraryFuncs/metadata/LocalFileTime.h>
#include <VyrLibraryFuncs/textfile/LogFuncs.h>
#include <VyrLibraryUtils/DateTimeUtils.h>
#include <VyrLibraryUtils/FileListUtils.h>
#include <VyrLibraryUtils/LogUtils.h>
#include <VyrPlatform/files/FileTicks.h>
#include <VyrPlatform/time/AutomationDate.h>

#include <cstdint>

using VyrLibraryUtils::DateTimeUtils;
using VyrLibraryUtils::FileListUtils;
using VyrLibraryUtils::LogUtils;

namespace VyrLibraryFuncs {

namespace {

namespace FileTimes = VyrPlatform::FileTimes;

CString OtherDateTime(const CString& path, int target)
{
    switch (target) {
    case 0:
        return FileListUtils::GetLastWriteDateTime(path);
    case 1:
        return FileListUtils::GetCreationDateTime(path);
    case 2:
        return FileListUtils::GetLastAccessDateTime(path);
    default:
        return FileListUtils::GetExifDTOrig(path);
    }
}

/// The ticks of `time`, or 0 for a null pointer; both keep the file's time.
VyrPlatform::FileTicks ToTicks(const FILETIME* time) noexcept
{
    return time ? VyrPlatform::ToTicks(*time) : 0;
}

void LogFailure(const CString& operation, const CString& path, std::uint32_t error)
{
    constexpr int level = 2;
    CString line;
    line.Format(u"%s %s %s", operation, path, LogUtils::GetLastErrorMessage(error));
    LogFuncs::Write(LogFuncs::GetApplicationLogFilePath(), line, level);
}

} // namespace

DateTimeFuncs::DateTimeFuncs() = default;

DateTimeFuncs::~DateTimeFuncs() = default;

DateTimeFuncs& DateTimeFuncs::operator=(const DateTimeFuncs&) = default;

CString DateTimeFuncs::GetOtherDateTime(CString path, int dateTimeTarget)
{
    return OtherDateTime(path, dateTimeTarget);
}

FILETIME DateTimeFuncs::GetSelectedFileDateTime(CString path, int dateTimeTarget, int isEnabled)
{
    if (!isEnabled)
        return {};
    const CString text = OtherDateTime(path, dateTimeTarget);
    const auto dateTime = text.IsEmpty() ? std::nullopt : VyrPlatform::AutomationDate::Parse(text);
    return dateTime ? ToFileTime(*dateTime) : FILETIME{};
}

FILETIME DateTimeFuncs::GetModifiedFileDateTime(CString path, int isEnabled, COleDateTime date, COleDateTime time,
                                                int dateTimeMode)
{
    if (!isEnabled)
        return {};
    const auto part = [&](const COleDateTime& value, int number) {
        return DateTimeUtils::GetDateTime(path, value, dateTimeMode, number);
    };
    return ToFileTime(
        COleDateTime(part(date, 0), part(date, 1), part(date, 2), part(time, 3), part(time, 4), part(time, 5)));
}

int DateTimeFuncs::SetModifiedFileDateTime(CString path, const FILETIME* created, const FILETIME* modified,
                                           const FILETIME* accessed)
{
    const std::uint32_t error = FileTimes::Write(
        path, {.created = ToTicks(created), .modified = ToTicks(modified), .accessed = ToTicks(accessed)});
    if (error != 0)
        LogFailure(u"VyrLibraryFuncs::DateTimeFuncs::SetModifiedFileDateTime", path, error);
    return error == 0;
}

} // namespace VyrLibraryFuncs
