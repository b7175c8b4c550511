// File times through SetFileTime, calendar fields through LocalFileTimeToFileTime.
#include <tests/support/FileMoments.h>

#include <VyrPlatform/text/WindowsCString.h>

#include <gtest/gtest.h>

#include <windows.h>

namespace VyrTests {

namespace {

FILETIME ToFileTime(VyrPlatform::FileTicks ticks)
{
    return {static_cast<DWORD>(ticks), static_cast<DWORD>(ticks >> 32)};
}

} // namespace

void StampFile(const CString& path, VyrPlatform::FileTicks modified, VyrPlatform::FileTicks accessed)
{
    const HANDLE file = ::CreateFileW(VyrPlatform::ToWide(path), FILE_WRITE_ATTRIBUTES, FILE_SHARE_READ, nullptr,
                                      OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    ASSERT_NE(file, INVALID_HANDLE_VALUE) << ::GetLastError();
    const FILETIME access = ToFileTime(accessed);
    const FILETIME write = ToFileTime(modified);
    EXPECT_TRUE(::SetFileTime(file, nullptr, &access, &write)) << ::GetLastError();
    ::CloseHandle(file);
}

VyrPlatform::FileTicks ToFileTicks(const COleDateTime& local)
{
    SYSTEMTIME fields;
    FILETIME localTime{};
    FILETIME time{};
    EXPECT_TRUE(local.GetAsSystemTime(fields) && ::SystemTimeToFileTime(&fields, &localTime) &&
                ::LocalFileTimeToFileTime(&localTime, &time));
    return static_cast<VyrPlatform::FileTicks>(time.dwHighDateTime) << 32 | time.dwLowDateTime;
}

} // namespace VyrTests
