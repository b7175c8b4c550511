// What copies and moves keep on Linux, and the state of the files when the system fails half-way.
#include <VyrPlatform/files/FileCopy.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/files/FileTimes.h>
#include <tests/support/FileMoments.h>
#include <tests/support/Links.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <tests/support/linux/Unprivileged.h>

#include <gtest/gtest.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <string>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <vector>

namespace FileCopy = VyrPlatform::FileCopy;
using VyrTests::ScratchFolder;
using VyrTests::ToStdPath;

namespace {

struct stat StatusOf(const CString& path)
{
    struct stat status;
    EXPECT_EQ(lstat(ToStdPath(path).c_str(), &status), 0);
    return status;
}

std::string ReadLink(const CString& path)
{
    return std::filesystem::read_symlink(ToStdPath(path));
}

std::string AttributeOf(const CString& path, const char* name)
{
    std::string value(1000, '\0');
    const ssize_t size = getxattr(ToStdPath(path).c_str(), name, value.data(), value.size());
    value.resize(size > 0 ? static_cast<std::size_t>(size) : 0);
    return size < 0 ? "none" : value;
}

void SetAttribute(const CString& path, const char* name, const std::string& value)
{
    ASSERT_EQ(setxattr(ToStdPath(path).c_str(), name, value.data(), value.size(), 0), 0) << std::strerror(errno);
}

std::size_t CountEntries(const CString& folder)
{
    const std::filesystem::directory_iterator entries(ToStdPath(folder));
    return static_cast<std::size_t>(std::distance(begin(entries), end(entries)));
}

/// A small file system in memory in a folder of the scratch folder, which only root can mount.
class SmallDisk
{
public:
    SmallDisk() : m_path(m_scratch.MakeFolder(u"disk"))
    {
        if (mount("vyr-test", ToStdPath(m_path).c_str(), "tmpfs", 0, "size=256k") != 0)
            m_error = errno;
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;
    ~SmallDisk()
    {
        if (m_error == 0)
            umount2(ToStdPath(m_path).c_str(), MNT_DETACH);
    }

    [[nodiscard]] std::string WhyNot() const
    {
        return m_error == 0 ? std::string()
                            : std::string("no file system can be mounted here: ") + std::strerror(m_error);
    }
    /// A folder of another file system.
    [[nodiscard]] const ScratchFolder& Outside() const noexcept { return m_scratch; }
    [[nodiscard]] CString Path(std::u16string_view name) const { return m_path + u"/" + name; }

private:
    ScratchFolder m_scratch;
    CString m_path;
    int m_error = 0;
};

/// As long as it lives, no file grows beyond `size`, as on a full disk.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t size) : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{size, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }

private:
    void (*m_handler)(int);
    rlimit m_before;
};

} // namespace

TEST(FileCopyKeeps, Mode)
{
    const ScratchFolder scratch;
    const CString source = scratch.WriteFile(u"a", "content");
    for (const mode_t mode : {0644U, 0600U, 0755U, 0400U, 0444U, 0000U, 04755U, 02755U, 0777U}) {
        ASSERT_EQ(chmod(ToStdPath(source).c_str(), mode), 0);
        EXPECT_EQ(FileCopy::Copy(source, scratch.Path(u"b")), 0U);
        EXPECT_EQ(StatusOf(scratch.Path(u"b")).st_mode & 07777, mode);
        std::filesystem::remove(ToStdPath(scratch.Path(u"b")));
    }
}

TEST(FileCopyKeeps, BothTimes)
{
    const ScratchFolder scratch;
    const CString source = scratch.WriteFile(u"a", "content");
    constexpr VyrPlatform::FileTicks modified = VyrTests::TicksOfUnixTime(-1000, 1'234'500);
    constexpr VyrPlatform::FileTicks accessed = VyrTests::TicksOfUnixTime(1'234'567'890, 7'654'300);
    VyrTests::StampFile(source, modified, accessed);
    EXPECT_EQ(FileCopy::Copy(source, scratch.Path(u"b")), 0U);
    EXPECT_EQ(VyrPlatform::FileTimes::GetModified(scratch.Path(u"b")), modified);
    EXPECT_EQ(VyrPlatform::FileTimes::GetAccessed(scratch.Path(u"b")), accessed);
}

TEST(FileCopyKeeps, ExtendedAttributesEvenOfAReadOnlyFile)
{
    const ScratchFolder scratch;
    const CString source = scratch.WriteFile(u"a", "content");
    SetAttribute(source, "user.comment", std::string("bytes\0and more", 14));
    SetAttribute(source, "user.empty", "");
    SetAttribute(source, "user.long", std::string(900, 'x'));
    SetAttribute(source, "user.DOSATTRIB", "0x22");
    ASSERT_EQ(chmod(ToStdPath(source).c_str(), 0444), 0);
    ASSERT_EQ(chmod(ToStdPath(scratch.Path()).c_str(), 0777), 0);
    {
        const VyrTests::Unprivileged user;
        ASSERT_TRUE(user.IsDone());
        EXPECT_EQ(FileCopy::Copy(source, scratch.Path(u"b")), 0U);
    }
    EXPECT_EQ(AttributeOf(scratch.Path(u"b"), "user.comment"), std::string("bytes\0and more", 14));
    EXPECT_EQ(AttributeOf(scratch.Path(u"b"), "user.empty"), "");
    EXPECT_EQ(AttributeOf(scratch.Path(u"b"), "user.long"), std::string(900, 'x'));
    EXPECT_EQ(AttributeOf(scratch.Path(u"b"), "user.DOSATTRIB"), "0x22");
    EXPECT_EQ(StatusOf(scratch.Path(u"b")).st_mode & 07777, 0444U);
}

TEST(FileCopyKeeps, ManyExtendedAttributes)
{
    const ScratchFolder scratch;
    const CString source = scratch.WriteFile(u"a");
    for (int number = 0; number < 60; ++number)
        SetAttribute(source, ("user.attribute with a long name " + std::to_string(number)).c_str(), "v");
    EXPECT_EQ(FileCopy::Copy(source, scratch.Path(u"b")), 0U);
    for (int number = 0; number < 60; ++number)
        EXPECT_EQ(
            AttributeOf(scratch.Path(u"b"), ("user.attribute with a long name " + std::to_string(number)).c_str()),
            "v");
}

TEST(FileCopyKeeps, OwnerWhereRootCopies)
{
    const ScratchFolder scratch;
    const CString source = scratch.WriteFile(u"a", "content");
    if (chown(ToStdPath(source).c_str(), 1234, 5678) != 0)
        GTEST_SKIP() << "only root can give files to others";
    ASSERT_EQ(chmod(ToStdPath(source).c_str(), 04755), 0);
    EXPECT_EQ(FileCopy::Copy(source, scratch.Path(u"b")), 0U);
    const struct stat status = StatusOf(scratch.Path(u"b"));
    EXPECT_EQ(status.st_uid, 1234U);
    EXPECT_EQ(status.st_gid, 5678U);
    EXPECT_EQ(status.st_mode & 07777, 04755U);
}

TEST(FileCopyKeeps, NoSetIdBitsForAnotherOwner)
{
    const ScratchFolder scratch;
    const CString source = scratch.WriteFile(u"a", "content");
    ASSERT_EQ(chmod(ToStdPath(source).c_str(), 06755), 0);
    ASSERT_EQ(chmod(ToStdPath(scratch.Path()).c_str(), 0777), 0);
    if (geteuid() != 0)
        GTEST_SKIP() << "only root has files of others here";
    {
        const VyrTests::Unprivileged user;
        ASSERT_TRUE(user.IsDone());
        EXPECT_EQ(FileCopy::Copy(source, scratch.Path(u"b")), 0U);
    }
    EXPECT_NE(StatusOf(scratch.Path(u"b")).st_uid, 0U);
    EXPECT_EQ(StatusOf(scratch.Path(u"b")).st_mode & 07777, 0755U);
}

TEST(FileCopyKeeps, Holes)
{
    const ScratchFolder scratch;
    const CString source = scratch.WriteFile(u"a");
    constexpr off_t size = 300'000'000;
    {
        std::ofstream stream(ToStdPath(source), std::ios::binary);
        stream << "start";
        stream.seekp(100'000'000);
        stream << std::string(10'000, 'm');
    }
    std::filesystem::resize_file(ToStdPath(source), size);
    ASSERT_LT(StatusOf(source).st_blocks, 1000) << "this file system has no holes";
    EXPECT_EQ(FileCopy::Copy(source, scratch.Path(u"b")), 0U);
    const struct stat status = StatusOf(scratch.Path(u"b"));
    EXPECT_EQ(status.st_size, size);
    EXPECT_LT(status.st_blocks, 1000);
    std::ifstream copy(ToStdPath(scratch.Path(u"b")), std::ios::binary);
    std::string bytes(10'002, '?');
    copy.read(bytes.data(), 6);
    EXPECT_EQ(bytes.substr(0, 6), std::string("start\0", 6));
    copy.seekg(99'999'999);
    copy.read(bytes.data(), 10'002);
    EXPECT_EQ(bytes, '\0' + std::string(10'000, 'm') + '\0');
}

TEST(FileCopyKeeps, FileThatIsOneHole)
{
    const ScratchFolder scratch;
    const CString source = scratch.WriteFile(u"a");
    std::filesystem::resize_file(ToStdPath(source), 123'456'789);
    EXPECT_EQ(FileCopy::Copy(source, scratch.Path(u"b")), 0U);
    EXPECT_EQ(StatusOf(scratch.Path(u"b")).st_size, 123'456'789);
    EXPECT_LT(StatusOf(scratch.Path(u"b")).st_blocks, 100);
}

TEST(FileCopyLinks, LinkIsCopiedAsALink)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"folder/a", "content");
    for (const CString target : {u"folder", u"folder/a", u"missing", u"link itself"}) {
        std::filesystem::create_symlink(ToStdPath(target), ToStdPath(scratch.Path(u"link")));
        for (int round = 0; round < 2; ++round) {
            EXPECT_EQ(FileCopy::Copy(scratch.Path(u"link"), scratch.Path(u"copy")), 0U);
            EXPECT_EQ(ReadLink(scratch.Path(u"copy")), ToStdPath(target).native());
        }
        EXPECT_EQ(StatusOf(scratch.Path(u"copy")).st_mtim.tv_nsec, StatusOf(scratch.Path(u"link")).st_mtim.tv_nsec);
        std::filesystem::remove(ToStdPath(scratch.Path(u"link")));
        std::filesystem::remove(ToStdPath(scratch.Path(u"copy")));
    }
}

TEST(FileCopyLinks, LinkTakesTheFilesPlaceAndTheFileTheLinks)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"target", "precious");
    scratch.WriteFile(u"a", "content");
    std::filesystem::create_symlink("target", ToStdPath(scratch.Path(u"link")));
    EXPECT_EQ(FileCopy::Copy(scratch.Path(u"a"), scratch.Path(u"link")), 0U);
    EXPECT_TRUE(S_ISREG(StatusOf(scratch.Path(u"link")).st_mode));
    EXPECT_EQ(scratch.ReadFile(u"link"), "content");
    EXPECT_EQ(scratch.ReadFile(u"target"), "precious");

    std::filesystem::create_symlink("target", ToStdPath(scratch.Path(u"second link")));
    EXPECT_EQ(FileCopy::Copy(scratch.Path(u"second link"), scratch.Path(u"a")), 0U);
    EXPECT_EQ(ReadLink(scratch.Path(u"a")), "target");
    EXPECT_EQ(scratch.ReadFile(u"target"), "precious");
}

TEST(FileCopyLinks, LinkToTheSourceBecomesItsCopy)
{
    const ScratchFolder scratch;
    const CString source = scratch.WriteFile(u"a", "content");
    std::filesystem::create_symlink("a", ToStdPath(scratch.Path(u"link")));
    EXPECT_EQ(FileCopy::Copy(source, scratch.Path(u"link")), 0U);
    EXPECT_EQ(scratch.ReadFile(u"a"), "content");
    EXPECT_EQ(scratch.ReadFile(u"link"), "content");
}

TEST(FileCopyLinks, LinkIsMovedAsALink)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"folder/a", "content");
    std::filesystem::create_symlink("folder", ToStdPath(scratch.Path(u"link")));
    EXPECT_EQ(FileCopy::Move(scratch.Path(u"link"), scratch.Path(u"moved")), 0U);
    EXPECT_EQ(ReadLink(scratch.Path(u"moved")), "folder");
    EXPECT_FALSE(scratch.Has(u"link"));
    EXPECT_EQ(scratch.ReadFile(u"folder/a"), "content");
}

TEST(FileCopySpecial, PipesAndDevicesFailWithoutAWait)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"b", "content");
    ASSERT_EQ(mkfifo(ToStdPath(scratch.Path(u"pipe")).c_str(), 0600), 0);
    for (const CString& source : {scratch.Path(u"pipe"), CString(u"/dev/null"), CString(u"/dev/zero")}) {
        EXPECT_NE(FileCopy::Copy(source, scratch.Path(u"new")), 0U);
        EXPECT_NE(FileCopy::Copy(source, scratch.Path(u"b")), 0U);
    }
    EXPECT_FALSE(scratch.Has(u"new"));
    EXPECT_EQ(scratch.ReadFile(u"b"), "content");
    EXPECT_EQ(CountEntries(scratch.Path()), 2U);
}

TEST(FileCopySpecial, FileWithoutASizeIsCopiedWhole)
{
    const ScratchFolder scratch;
    EXPECT_EQ(FileCopy::Copy(u"/proc/version", scratch.Path(u"b")), 0U);
    std::ifstream version("/proc/version");
    std::string line;
    std::getline(version, line);
    ASSERT_FALSE(line.empty());
    EXPECT_EQ(scratch.ReadFile(u"b"), line + "\n");
}

TEST(FileCopyFailures, FailedWriteLeavesNoNewFileAndKeepsTheOldOne)
{
    const ScratchFolder scratch;
    const CString source = scratch.WriteFile(u"a", std::string(1'000'000, 'x'));
    scratch.WriteFile(u"b", "precious");
    {
        const FileSizeLimit limit(400'000);
        EXPECT_EQ(FileCopy::Copy(source, scratch.Path(u"new")), static_cast<std::uint32_t>(EFBIG));
        EXPECT_EQ(FileCopy::Copy(source, scratch.Path(u"b")), static_cast<std::uint32_t>(EFBIG));
    }
    EXPECT_EQ(scratch.ReadFile(u"b"), "precious");
    EXPECT_EQ(CountEntries(scratch.Path()), 2U);
}

TEST(FileCopyFailures, FullDiskFailsAndKeepsEveryFile)
{
    const SmallDisk disk;
    if (!disk.WhyNot().empty())
        GTEST_SKIP() << disk.WhyNot();
    const ScratchFolder& outside = disk.Outside();
    const std::string content(400'000, 'x');
    const CString source = outside.WriteFile(u"a", content);
    outside.WriteFile(u"disk/b", "precious");
    for (const auto operation : {&FileCopy::Copy, &FileCopy::Move}) {
        EXPECT_EQ(operation(source, disk.Path(u"new")), static_cast<std::uint32_t>(ENOSPC));
        EXPECT_EQ(operation(source, disk.Path(u"b")), static_cast<std::uint32_t>(ENOSPC));
    }
    EXPECT_TRUE(outside.ReadFile(u"a") == content);
    EXPECT_EQ(outside.ReadFile(u"disk/b"), "precious");
    EXPECT_EQ(CountEntries(disk.Path(u"")), 1U);
    const CString small = outside.WriteFile(u"small", "fits");
    EXPECT_EQ(FileCopy::Copy(small, disk.Path(u"b")), 0U);
    EXPECT_EQ(outside.ReadFile(u"disk/b"), "fits");
}

TEST(FileCopyFailures, UnreadableFileFails)
{
    const ScratchFolder scratch;
    const CString source = scratch.WriteFile(u"a", "content");
    scratch.WriteFile(u"b", "precious");
    ASSERT_EQ(chmod(ToStdPath(source).c_str(), 0), 0);
    ASSERT_EQ(chmod(ToStdPath(scratch.Path()).c_str(), 0777), 0);
    {
        const VyrTests::Unprivileged user;
        ASSERT_TRUE(user.IsDone());
        EXPECT_EQ(FileCopy::Copy(source, scratch.Path(u"new")), static_cast<std::uint32_t>(EACCES));
        EXPECT_EQ(FileCopy::Copy(source, scratch.Path(u"b")), static_cast<std::uint32_t>(EACCES));
    }
    EXPECT_EQ(scratch.ReadFile(u"b"), "precious");
    EXPECT_EQ(CountEntries(scratch.Path()), 2U);
}

/// A folder that may not be written, with one file that may be and one that may not, and a folder of the user's own.
class LockedFolder
{
public:
    LockedFolder()
    {
        for (const char16_t* const name : {u"locked/open", u"locked/closed"})
            m_scratch.WriteFile(name, "precious, and longer");
        m_scratch.MakeFolder(u"own");
        Allow(u"locked/open", 0666);
        Allow(u"locked", 0555);
        Allow(u"own", 0777);
        Allow(u"", 0755);
    }

    /// Writes a file that the user may move away.
    CString WriteSource() const
    {
        const CString path = m_scratch.WriteFile(u"own/a", "content");
        Allow(u"own/a", 0666);
        return path;
    }
    void Allow(std::u16string_view name, mode_t mode) const
    {
        EXPECT_EQ(chmod(ToStdPath(name.empty() ? m_scratch.Path() : m_scratch.Path(name)).c_str(), mode), 0);
    }
    [[nodiscard]] const ScratchFolder& Scratch() const noexcept { return m_scratch; }
    [[nodiscard]] CString Path(std::u16string_view name) const { return m_scratch.Path(name); }

private:
    ScratchFolder m_scratch;
};

TEST(FileCopyFailures, FolderThatOneMayNotWriteKeepsItsFiles)
{
    const LockedFolder folder;
    const CString source = folder.WriteSource();
    {
        const VyrTests::Unprivileged user;
        ASSERT_TRUE(user.IsDone());
        for (const auto operation : {&FileCopy::Copy, &FileCopy::Move}) {
            EXPECT_NE(operation(source, folder.Path(u"locked/new")), 0U);
            EXPECT_NE(operation(source, folder.Path(u"locked/closed")), 0U);
        }
    }
    EXPECT_EQ(folder.Scratch().ReadFile(u"own/a"), "content");
    EXPECT_EQ(folder.Scratch().ReadFile(u"locked/closed"), "precious, and longer");
    EXPECT_EQ(CountEntries(folder.Path(u"locked")), 2U);
}

TEST(FileCopyInPlace, FileIsOverwrittenWhereItsFolderMayNotBeWritten)
{
    for (const bool isMove : {false, true}) {
        const LockedFolder folder;
        const CString source = folder.WriteSource();
        const ino_t number = StatusOf(folder.Path(u"locked/open")).st_ino;
        {
            const VyrTests::Unprivileged user;
            ASSERT_TRUE(user.IsDone());
            EXPECT_EQ((isMove ? FileCopy::Move : FileCopy::Copy)(source, folder.Path(u"locked/open")), 0U);
        }
        EXPECT_EQ(folder.Scratch().ReadFile(u"locked/open"), "content");
        EXPECT_EQ(StatusOf(folder.Path(u"locked/open")).st_ino, number);
        EXPECT_EQ(folder.Scratch().Has(u"own/a"), !isMove);
        EXPECT_EQ(CountEntries(folder.Path(u"locked")), 2U);
    }
}

TEST(FileCopyInPlace, MoveOfAFileThatCannotBeRemovedChangesNothing)
{
    const LockedFolder folder;
    const CString source = folder.WriteSource();
    // Neither a folder that may not be written nor one whose files belong to others gives a file away.
    for (const mode_t mode : {0555U, 01777U}) {
        folder.Allow(u"own", mode);
        {
            const VyrTests::Unprivileged user;
            ASSERT_TRUE(user.IsDone());
            EXPECT_NE(FileCopy::Move(source, folder.Path(u"locked/open")), 0U);
        }
        EXPECT_EQ(folder.Scratch().ReadFile(u"locked/open"), "precious, and longer");
        EXPECT_EQ(folder.Scratch().ReadFile(u"own/a"), "content");
    }
}

TEST(FileCopyInPlace, LinkIsNotWrittenThrough)
{
    const LockedFolder folder;
    const CString source = folder.WriteSource();
    const CString target = folder.Scratch().WriteFile(u"target", "kept");
    folder.Allow(u"target", 0666);
    std::filesystem::create_symlink(ToStdPath(target), ToStdPath(folder.Path(u"locked/link")));
    {
        const VyrTests::Unprivileged user;
        ASSERT_TRUE(user.IsDone());
        EXPECT_NE(FileCopy::Copy(source, folder.Path(u"locked/link")), 0U);
        EXPECT_NE(FileCopy::Move(source, folder.Path(u"locked/link")), 0U);
    }
    EXPECT_EQ(folder.Scratch().ReadFile(u"target"), "kept");
}

TEST(FileCopyFolderMode, IsThatOfTheSource)
{
    const ScratchFolder scratch;
    const CString source = scratch.MakeFolder(u"a");
    const CString destination = scratch.MakeFolder(u"b");
    for (const mode_t mode : {0700U, 0755U, 0500U, 0000U, 01777U, 02750U}) {
        ASSERT_EQ(chmod(ToStdPath(source).c_str(), mode), 0);
        EXPECT_EQ(FileCopy::CopyFolderMode(source, destination, FileCopy::OwnerAccess::Full), 0U);
        EXPECT_EQ(StatusOf(destination).st_mode & 07777, mode | 0700);
        EXPECT_EQ(FileCopy::CopyFolderMode(source, destination, FileCopy::OwnerAccess::AsInSource), 0U);
        EXPECT_EQ(StatusOf(destination).st_mode & 07777, mode);
    }
    EXPECT_EQ(FileCopy::CopyFolderMode(scratch.Path(u"missing"), destination, FileCopy::OwnerAccess::Full),
              static_cast<std::uint32_t>(ENOENT));
}

TEST(FileCopyFolderMode, SetGroupIdIsNotCopiedToAnotherGroup)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root may give a folder to another group";
    const ScratchFolder scratch;
    const CString source = scratch.MakeFolder(u"a");
    const CString destination = scratch.MakeFolder(u"b");
    ASSERT_EQ(chown(ToStdPath(source).c_str(), 0, 65534), 0);
    ASSERT_EQ(chmod(ToStdPath(source).c_str(), 02770), 0);
    EXPECT_EQ(FileCopy::CopyFolderMode(source, destination, FileCopy::OwnerAccess::AsInSource), 0U);
    EXPECT_EQ(StatusOf(destination).st_mode & 07777, 0770U);
}

TEST(FileCopyFailures, ReadOnlyBitOfSambaProtectsAFile)
{
    const ScratchFolder scratch;
    const CString source = scratch.WriteFile(u"a", "content");
    const CString destination = scratch.WriteFile(u"b", "precious");
    SetAttribute(destination, "user.DOSATTRIB", "0x21");
    EXPECT_EQ(FileCopy::Copy(source, destination), static_cast<std::uint32_t>(EACCES));
    EXPECT_EQ(FileCopy::Move(source, destination), static_cast<std::uint32_t>(EACCES));
    EXPECT_EQ(scratch.ReadFile(u"b"), "precious");
}

TEST(FileCopyVolumes, MoveTakesFilesAndLinksToAnotherVolume)
{
    const SmallDisk disk;
    if (!disk.WhyNot().empty())
        GTEST_SKIP() << disk.WhyNot();
    const ScratchFolder& outside = disk.Outside();
    constexpr VyrPlatform::FileTicks modified = VyrTests::TicksOfUnixTime(1'234'567'890, 1'234'500);
    for (const std::string old : {"", "old content"}) {
        if (!old.empty())
            outside.WriteFile(u"disk/b", old);
        const CString source = outside.WriteFile(u"a", "content");
        ASSERT_EQ(chmod(ToStdPath(source).c_str(), 0440), 0);
        VyrTests::StampFile(source, modified, modified);
        EXPECT_EQ(FileCopy::Move(source, disk.Path(u"b")), 0U);
        EXPECT_FALSE(outside.Has(u"a"));
        EXPECT_EQ(outside.ReadFile(u"disk/b"), "content");
        EXPECT_EQ(StatusOf(disk.Path(u"b")).st_mode & 07777, 0440U);
        EXPECT_EQ(VyrPlatform::FileTimes::GetModified(disk.Path(u"b")), modified);
        ASSERT_EQ(chmod(ToStdPath(disk.Path(u"b")).c_str(), 0640), 0);
    }
    std::filesystem::create_symlink("anywhere", ToStdPath(outside.Path(u"link")));
    EXPECT_EQ(FileCopy::Move(outside.Path(u"link"), disk.Path(u"link")), 0U);
    EXPECT_EQ(ReadLink(disk.Path(u"link")), "anywhere");
    EXPECT_FALSE(outside.Has(u"link"));
}

TEST(FileCopyVolumes, PipeStaysOnItsVolume)
{
    const SmallDisk disk;
    if (!disk.WhyNot().empty())
        GTEST_SKIP() << disk.WhyNot();
    const CString pipe = disk.Outside().Path(u"pipe");
    ASSERT_EQ(mkfifo(ToStdPath(pipe).c_str(), 0600), 0);
    EXPECT_NE(FileCopy::Move(pipe, disk.Path(u"pipe")), 0U);
    EXPECT_TRUE(disk.Outside().Has(u"pipe"));
    EXPECT_EQ(CountEntries(disk.Path(u"")), 0U);
}

TEST(FileCopyVolumes, SourceThatCannotBeRemovedIsReportedAndNothingIsLost)
{
    const SmallDisk disk;
    if (!disk.WhyNot().empty())
        GTEST_SKIP() << disk.WhyNot();
    const ScratchFolder& outside = disk.Outside();
    const CString source = outside.WriteFile(u"locked/a", "content");
    ASSERT_EQ(chmod(ToStdPath(source).c_str(), 0644), 0);
    ASSERT_EQ(chmod(ToStdPath(outside.Path(u"locked")).c_str(), 0555), 0);
    ASSERT_EQ(chmod(ToStdPath(disk.Path(u"")).c_str(), 0777), 0);
    {
        const VyrTests::Unprivileged user;
        ASSERT_TRUE(user.IsDone());
        EXPECT_EQ(FileCopy::Move(source, disk.Path(u"a")), static_cast<std::uint32_t>(EACCES));
    }
    EXPECT_EQ(outside.ReadFile(u"locked/a"), "content");
}
