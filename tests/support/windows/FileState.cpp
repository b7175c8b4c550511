// The read-only attribute and the download mark on Windows.
#include <tests/support/FileState.h>
#include <tests/support/StdPath.h>

#include <VyrPlatform/text/WindowsCString.h>

#include <gtest/gtest.h>

#include <fstream>
#include <windows.h>

namespace VyrTests {

namespace {

using VyrPlatform::ToWide;

CString ZoneMarkOf(const CString& path)
{
    return path + u":Zone.Identifier";
}

} // namespace

void SetReadOnly(const CString& path, bool isReadOnly)
{
    const DWORD attributes = GetFileAttributesW(ToWide(path));
    ASSERT_NE(attributes, INVALID_FILE_ATTRIBUTES);
    constexpr DWORD readOnly = FILE_ATTRIBUTE_READONLY;
    EXPECT_TRUE(SetFileAttributesW(ToWide(path), isReadOnly ? attributes | readOnly : attributes & ~readOnly));
}

void MarkAsDownloaded(const CString& path)
{
    std::ofstream mark(ToStdPath(ZoneMarkOf(path)), std::ios::binary);
    mark << "[ZoneTransfer]\r\nZoneId=3\r\n";
    ASSERT_TRUE(mark.flush());
}

bool IsMarkedAsDownloaded(const CString& path)
{
    return GetFileAttributesW(ToWide(ZoneMarkOf(path))) != INVALID_FILE_ATTRIBUTES;
}

} // namespace VyrTests
