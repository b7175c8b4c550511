// Exact states on Windows: a time as its count of 100-nanosecond intervals, the attributes as their bits.
#include <VyrPlatform/files/ExactState.h>

#include "FileStatus.h"
#include "OpenEntry.h"

#include <VyrPlatform/common/files/StateText.h>
#include <VyrPlatform/files/FileAttributes.h>
#include <VyrPlatform/text/Digits.h>

#include <string>
#include <utility>

namespace VyrPlatform::ExactState {

namespace {

std::optional<CString> ReadAttributes(const CString& path, std::uint32_t& error)
{
    const std::uint32_t attributes = FileAttributes::Get(path);
    if (attributes == FileAttributes::unknown) {
        error = GetLastError();
        return std::nullopt;
    }
    CString text;
    text.Format(u"%x", attributes);
    return text;
}

std::uint32_t RestoreTime(const CString& path, Part part, const FILETIME& time)
{
    const Handle file = OpenEntry(LongPath(path), FILE_WRITE_ATTRIBUTES, Links::Follow);
    const auto given = [part, &time](Part wanted) {
        return part == wanted ? &time : nullptr;
    };
    const bool isSet =
        file.IsOpen() && SetFileTime(file.Get(), given(Part::Created), given(Part::Accessed), given(Part::Modified));
    return isSet ? ERROR_SUCCESS : GetLastError();
}

} // namespace

std::optional<CString> Read(const CString& path, Part part, std::uint32_t& error)
{
    if (part == Part::Attributes)
        return ReadAttributes(path, error);
    auto time = ReadTime(path, part, error);
    return time ? std::optional(std::move(time->state)) : std::nullopt;
}

std::optional<TimeState> ReadTime(const CString& path, Part part, std::uint32_t& error)
{
    const Handle file = OpenEntry(LongPath(path), FILE_READ_ATTRIBUTES, Links::Follow);
    FILE_BASIC_INFO information;
    if (!file.IsOpen() || !GetFileInformationByHandleEx(file.Get(), FileBasicInfo, &information, sizeof information)) {
        error = GetLastError();
        return std::nullopt;
    }
    TimeState time;
    time.ticks = (part == Part::Created    ? information.CreationTime
                  : part == Part::Accessed ? information.LastAccessTime
                                           : information.LastWriteTime)
                     .QuadPart;
    time.isReadOnly =
        (information.FileAttributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY)) == FILE_ATTRIBUTE_READONLY;
    time.state.Format(u"%d", time.ticks);
    return time;
}

std::uint32_t Restore(const CString& path, Part part, const CString& state)
{
    const bool isAttributes = part == Part::Attributes;
    const auto number = ReadWhole(StateBytes(state), isAttributes ? 16 : 10);
    if (!number || *number < 0 || (isAttributes && *number >= FileAttributes::unknown))
        return ERROR_INVALID_PARAMETER;
    if (isAttributes)
        return FileAttributes::Set(path, static_cast<std::uint32_t>(*number));
    return RestoreTime(path, part, ToFileTime(*number));
}

} // namespace VyrPlatform::ExactState
