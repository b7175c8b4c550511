#include <VyrLibraryUtils/DateTimeUtils.h>
#include <VyrLibraryUtils/FileListUtils.h>
#include <VyrLibraryUtils/ImageUtils.h>
#include <VyrPlatform/files/FileTimes.h>
#include <VyrPlatform/time/DateTimePattern.h>

namespace VyrLibraryUtils {

namespace DateTimePattern = VyrPlatform::DateTimePattern;
namespace FileTimes = VyrPlatform::FileTimes;

namespace {

CString Text(const std::optional<VyrPlatform::FileTicks>& ticks)
{
    return ticks ? DateTimePattern::Write(FileTimes::ToLocalForWriting(*ticks), DateTimePattern::stored) : CString();
}

} // namespace

FileListUtils::FileListUtils() = default;
FileListUtils::~FileListUtils() = default;
FileListUtils& FileListUtils::operator=(const FileListUtils&) = default;

CString FileListUtils::GetLastWriteDateTime(CString path)
{
    return Text(FileTimes::GetModified(path));
}

CString FileListUtils::GetCreationDateTime(CString path)
{
    return Text(FileTimes::GetCreated(path));
}

CString FileListUtils::GetLastAccessDateTime(CString path)
{
    return Text(FileTimes::GetAccessed(path));
}

CString FileListUtils::GetExifDTOrig(CString path)
{
    const COleDateTime taken = DateTimeUtils::GetExifDateTime(ImageUtils::GetPropertyTagExifDTOrig(path));
    return DateTimePattern::Write(taken, DateTimePattern::stored);
}

} // namespace VyrLibraryUtils
