// The read-only state and the download mark on Linux.
#include <tests/support/FileState.h>
#include <tests/support/StdPath.h>

#include <gtest/gtest.h>

#include <string_view>
#include <sys/xattr.h>

namespace VyrTests {

namespace {

constexpr const char* zoneMark = "user.DosStream.Zone.Identifier:$DATA";

} // namespace

void SetReadOnly(const CString& path, bool isReadOnly)
{
    using std::filesystem::perm_options;
    constexpr auto write = std::filesystem::perms::owner_write | std::filesystem::perms::group_write |
                           std::filesystem::perms::others_write;
    std::filesystem::permissions(ToStdPath(path), isReadOnly ? write : std::filesystem::perms::owner_write,
                                 isReadOnly ? perm_options::remove : perm_options::add);
}

void MarkAsDownloaded(const CString& path)
{
    constexpr std::string_view content = "[ZoneTransfer]\r\nZoneId=3\r\n";
    ASSERT_EQ(setxattr(ToStdPath(path).c_str(), zoneMark, content.data(), content.size(), 0), 0);
}

bool IsMarkedAsDownloaded(const CString& path)
{
    return getxattr(ToStdPath(path).c_str(), zoneMark, nullptr, 0) >= 0;
}

} // namespace VyrTests
