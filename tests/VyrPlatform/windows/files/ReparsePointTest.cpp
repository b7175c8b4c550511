// The data of symbolic links and junctions, and copying them where the system supports them.
#include <VyrPlatform/files/FileCopy.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/text/WindowsCString.h>
#include <VyrPlatform/windows/Handle.h>
#include <VyrPlatform/windows/files/ReparsePoint.h>
#include <tests/support/ScratchFolder.h>

#include <cstring>
#include <gtest/gtest.h>
#include <string>
#include <winioctl.h>

using namespace VyrPlatform;
using VyrTests::ScratchFolder;

namespace {

void Append(std::vector<std::byte>& data, const void* bytes, std::size_t size)
{
    const auto* const first = static_cast<const std::byte*>(bytes);
    data.insert(data.end(), first, first + size);
}

/// The data of a link with these two names, by the documented layout.
std::vector<std::byte> MakeData(DWORD tag, const std::u16string& path, const std::u16string& shownPath)
{
    const auto bytesOf = [](const std::u16string& text) {
        return static_cast<WORD>(text.size() * sizeof(char16_t));
    };
    const WORD end = sizeof(char16_t);
    const bool isLink = tag == IO_REPARSE_TAG_SYMLINK;
    const WORD numbers[] = {0, bytesOf(path), static_cast<WORD>(bytesOf(path) + end), bytesOf(shownPath)};
    const WORD length =
        static_cast<WORD>(sizeof numbers + (isLink ? 4U : 0U) + bytesOf(path) + bytesOf(shownPath) + 2U * end);
    const WORD header[] = {length, 0};
    const DWORD flags = 0;
    std::vector<std::byte> data;
    Append(data, &tag, sizeof tag);
    Append(data, header, sizeof header);
    Append(data, numbers, sizeof numbers);
    if (isLink)
        Append(data, &flags, sizeof flags);
    Append(data, path.c_str(), bytesOf(path) + end);
    Append(data, shownPath.c_str(), bytesOf(shownPath) + end);
    return data;
}

/// Makes the folder `path` a junction to `target`.
bool MakeJunction(const CString& path, const CString& target)
{
    const CString native = u"\\??\\" + target;
    std::vector<std::byte> data =
        MakeData(IO_REPARSE_TAG_MOUNT_POINT, std::u16string(native.View()), std::u16string(target.View()));
    const Handle folder(CreateFileW(ToWide(path), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING,
                                    FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
    DWORD size = 0;
    return folder.IsOpen() && DeviceIoControl(folder.Get(), FSCTL_SET_REPARSE_POINT, data.data(),
                                              static_cast<DWORD>(data.size()), nullptr, 0, &size, nullptr);
}

} // namespace

TEST(ReparsePoint, TargetOfALinkAndOfAJunctionIsRead)
{
    const auto link = ParseReparsePoint(MakeData(IO_REPARSE_TAG_SYMLINK, u"\\??\\C:\\a b", u"C:\\a b"));
    ASSERT_TRUE(link);
    EXPECT_FALSE(link->isJunction);
    EXPECT_EQ(link->path, u"\\??\\C:\\a b");
    EXPECT_EQ(link->shownPath, u"C:\\a b");
    const auto junction = ParseReparsePoint(MakeData(IO_REPARSE_TAG_MOUNT_POINT, u"\\??\\D:\\", u""));
    ASSERT_TRUE(junction);
    EXPECT_TRUE(junction->isJunction);
    EXPECT_EQ(junction->path, u"\\??\\D:\\");
    EXPECT_EQ(junction->shownPath, u"");
}

TEST(ReparsePoint, OtherAndDamagedDataGiveNothing)
{
    EXPECT_FALSE(ParseReparsePoint({}));
    EXPECT_FALSE(ParseReparsePoint(MakeData(0x9000001A, u"cloud", u"cloud")));
    const std::vector<std::byte> data = MakeData(IO_REPARSE_TAG_SYMLINK, u"C:\\a", u"C:\\a");
    const std::size_t end = data.size() - sizeof(char16_t);
    for (std::size_t size = 0; size < end; ++size)
        EXPECT_FALSE(ParseReparsePoint(std::span(data).first(size)).value_or(LinkTarget{}).shownPath == u"C:\\a")
            << size;
    EXPECT_TRUE(ParseReparsePoint(std::span(data).first(end)));
}

TEST(ReparsePoint, JunctionIsCopiedAndMovedAsAJunction)
{
    const ScratchFolder scratch;
    const CString target = scratch.MakeFolder(u"target");
    scratch.WriteFile(u"target/a", "content");
    const CString junction = scratch.MakeFolder(u"junction");
    if (!MakeJunction(junction, target))
        GTEST_SKIP() << "no junctions can be made here, error " << GetLastError();
    EXPECT_EQ(FileCopy::Copy(junction, scratch.Path(u"copy")), 0U);
    EXPECT_EQ(FileSystem::GetLinkTarget(scratch.Path(u"copy")), FileSystem::GetLinkTarget(junction));
    EXPECT_EQ(FileCopy::Move(junction, scratch.Path(u"moved")), 0U);
    EXPECT_FALSE(scratch.Has(u"junction"));
    EXPECT_TRUE(FileSystem::Query(scratch.Path(u"moved")).isLink);
    EXPECT_EQ(scratch.ReadFile(u"target/a"), "content");
}
