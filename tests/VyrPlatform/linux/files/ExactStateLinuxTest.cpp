// Exact states on Linux: nanoseconds, permissions, and the bytes of extended attributes.
#include <VyrPlatform/files/ExactState.h>

#include <VyrPlatform/files/FileAttributes.h>
#include <VyrPlatform/files/FileTimes.h>
#include <tests/support/FileMoments.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <filesystem>
#include <optional>
#include <string>
#include <sys/stat.h>
#include <sys/xattr.h>

namespace FileAttributes = VyrPlatform::FileAttributes;
namespace FileTimes = VyrPlatform::FileTimes;
using VyrPlatform::ExactState::Part;
using VyrPlatform::ExactState::Read;
using VyrPlatform::ExactState::Restore;
using VyrTests::ScratchFolder;
using VyrTests::TicksOfUnixTime;
using VyrTests::ToStdPath;

namespace {

constexpr std::uint32_t readOnly = 0x1;
constexpr std::uint32_t hidden = 0x2;

CString StateOf(const CString& path, Part part)
{
    std::uint32_t error = 0;
    return Read(path, part, error).value_or(CString());
}

struct stat StatusOf(const CString& path)
{
    struct stat status = {};
    EXPECT_EQ(stat(ToStdPath(path).c_str(), &status), 0);
    return status;
}

/// The bytes of Samba's attribute; nothing when there is none.
std::optional<std::string> Samba(const CString& path)
{
    std::string value(256, '\0');
    const ssize_t size = getxattr(ToStdPath(path).c_str(), "user.DOSATTRIB", value.data(), value.size());
    if (size < 0)
        return std::nullopt;
    value.resize(static_cast<std::size_t>(size));
    return value;
}

} // namespace

TEST(ExactStateLinux, TimesAreRestoredToTheNanosecond)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    const struct timespec times[] = {{1'600'000'000, 123'456'789}, {-86'400, 987'654'321}};
    ASSERT_EQ(utimensat(AT_FDCWD, ToStdPath(path).c_str(), times, 0), 0);
    const CString accessed = StateOf(path, Part::Accessed);
    const CString modified = StateOf(path, Part::Modified);
    VyrTests::StampFile(path, TicksOfUnixTime(1), TicksOfUnixTime(2));
    EXPECT_EQ(Restore(path, Part::Modified, modified), 0U);
    EXPECT_EQ(Restore(path, Part::Accessed, accessed), 0U);
    const struct stat now = StatusOf(path);
    EXPECT_EQ(now.st_atim.tv_sec, 1'600'000'000);
    EXPECT_EQ(now.st_atim.tv_nsec, 123'456'789);
    EXPECT_EQ(now.st_mtim.tv_sec, -86'400);
    EXPECT_EQ(now.st_mtim.tv_nsec, 987'654'321);
}

TEST(ExactStateLinux, WritePermissionIsRestoredAndOthersAreKept)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    ASSERT_EQ(chmod(ToStdPath(path).c_str(), 0664), 0);
    const CString before = StateOf(path, Part::Attributes);
    ASSERT_EQ(FileAttributes::Set(path, FileAttributes::Get(path) | readOnly | hidden), 0U);
    ASSERT_EQ(chmod(ToStdPath(path).c_str(), 0440), 0);
    EXPECT_EQ(Restore(path, Part::Attributes, before), 0U);
    EXPECT_EQ(StatusOf(path).st_mode & 07777, 0660U);
    EXPECT_EQ(Samba(path), std::nullopt) << "it had none";
}

TEST(ExactStateLinux, CreationTimeThatWasSetSinceOutlivesTheAttributes)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    const CString before = StateOf(path, Part::Attributes);
    ASSERT_EQ(FileAttributes::Set(path, FileAttributes::Get(path) | hidden), 0U);
    ASSERT_EQ(FileTimes::SetCreated(path, TicksOfUnixTime(1'000'000'000)), 0U);
    EXPECT_EQ(Restore(path, Part::Attributes, before), 0U);
    EXPECT_EQ(FileAttributes::Get(path) & hidden, 0U);
    EXPECT_EQ(FileTimes::GetCreated(path), TicksOfUnixTime(1'000'000'000));
}

TEST(ExactStateLinux, ValueOfSambaIsRestoredToTheByte)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    const std::string value("0x22\0", 5);
    ASSERT_EQ(setxattr(ToStdPath(path).c_str(), "user.DOSATTRIB", value.data(), value.size(), 0), 0);
    const CString created = StateOf(path, Part::Created);
    const CString attributes = StateOf(path, Part::Attributes);
    ASSERT_EQ(FileTimes::SetCreated(path, TicksOfUnixTime(1'000'000'000)), 0U);
    EXPECT_EQ(Restore(path, Part::Created, created), 0U);
    EXPECT_EQ(Samba(path), value);
    ASSERT_EQ(FileAttributes::Set(path, hidden | readOnly), 0U);
    EXPECT_EQ(Restore(path, Part::Attributes, attributes), 0U);
    EXPECT_EQ(Samba(path), value);
}

TEST(ExactStateLinux, CreationTimeOfAReadOnlyFileIsRestored)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    const CString created = StateOf(path, Part::Created);
    ASSERT_EQ(FileTimes::SetCreated(path, TicksOfUnixTime(1'000'000'000)), 0U);
    ASSERT_EQ(chmod(ToStdPath(path).c_str(), 0444), 0);
    EXPECT_EQ(Restore(path, Part::Created, created), 0U);
    EXPECT_EQ(Samba(path), std::nullopt);
    EXPECT_EQ(StatusOf(path).st_mode & 07777, 0444U);
}

TEST(ExactStateLinux, TimeTellsTheFileThatALinkLeadsTo)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    const CString link = scratch.Path(u"link");
    std::filesystem::create_symlink(ToStdPath(path), ToStdPath(link));
    for (const Part part : {Part::Modified, Part::Accessed, Part::Created}) {
        std::uint32_t error = 0;
        const auto time = VyrPlatform::ExactState::ReadTime(link, part, error);
        ASSERT_TRUE(time) << error;
        EXPECT_EQ(time->file, VyrPlatform::LookAtFile(path).identity);
    }
}
