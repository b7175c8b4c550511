// Reads and words the times of a file.
#include <VyrHost/metadata/FileDate.h>

#include <VyrPlatform/time/DateTimePattern.h>

namespace VyrHost::Metadata {

namespace FileTimes = VyrPlatform::FileTimes;

std::u16string_view WordFor(FileDate date)
{
    switch (date) {
    case FileDate::Modified:
        return u"modified";
    case FileDate::Created:
        return u"created";
    case FileDate::Accessed:
        break;
    }
    return u"accessed";
}

std::optional<VyrPlatform::FileTicks> TicksOf(const CString& path, FileDate date)
{
    switch (date) {
    case FileDate::Modified:
        return FileTimes::GetModified(path);
    case FileDate::Created:
        return FileTimes::GetCreated(path);
    case FileDate::Accessed:
        break;
    }
    return FileTimes::GetAccessed(path);
}

CString Shown(const COleDateTime& dateTime)
{
    return VyrPlatform::DateTimePattern::Write(dateTime, u"%Y-%m-%d %H:%M:%S");
}

CString Shown(VyrPlatform::FileTicks ticks)
{
    return Shown(FileTimes::ToLocal(ticks));
}

} // namespace VyrHost::Metadata
