// Folder copy and move among what only Linux has: links, pipes, names that are not UTF-8, a second file system.
#include <VyrLibraryFuncs/name/NameFuncs.h>

#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <gtest/gtest.h>
#include <tests/support/Describe.h>

#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>

using VyrLibraryFuncs::NameFuncs;
using VyrTests::ScratchFolder;

namespace fs = std::filesystem;

namespace {

using Records = std::list<NameFuncs::RENAMEITEM>;

dev_t DeviceOf(const fs::path& path)
{
    struct stat status = {};
    EXPECT_EQ(stat(path.c_str(), &status), 0);
    return status.st_dev;
}

/// A folder on the file system in memory, removed at the end.
class MemoryFolder
{
public:
    MemoryFolder() : m_path("/dev/shm/vyr-folder-test-" + std::to_string(getpid())) { fs::create_directory(m_path); }
    MemoryFolder(const MemoryFolder&) = delete;
    MemoryFolder& operator=(const MemoryFolder&) = delete;
    ~MemoryFolder() { fs::remove_all(m_path); }

    [[nodiscard]] const fs::path& Path() const noexcept { return m_path; }

private:
    fs::path m_path;
};

} // namespace

TEST(NameFuncsFolderLinux, LinksAreCopiedAsLinksAndNeverFollowed)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"outside/secret.txt", "secret");
    scratch.MakeFolder(u"from");
    scratch.MakeFolder(u"to");
    const fs::path from = VyrTests::ToStdPath(scratch.Path(u"from"));
    const fs::path to = VyrTests::ToStdPath(scratch.Path(u"to"));
    fs::create_directory_symlink("../outside", from / "folder link");
    fs::create_symlink("../outside/secret.txt", from / "file link");
    fs::create_symlink("nowhere", from / "dangling link");
    fs::create_directory_symlink(".", from / "endless link");
    Records records;
    EXPECT_EQ(NameFuncs::CopyFolder(scratch.Path(u"from"), scratch.Path(u"to"), &records), 1);
    EXPECT_TRUE(records.empty());
    for (const char* const name : {"folder link", "file link", "dangling link", "endless link"}) {
        EXPECT_TRUE(fs::is_symlink(to / name)) << name;
        EXPECT_EQ(fs::read_symlink(to / name), fs::read_symlink(from / name)) << name;
    }
}

TEST(NameFuncsFolderLinux, MovingALinkToAFolderLeavesTheFolder)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"outside/a.txt", "a");
    scratch.MakeFolder(u"from");
    fs::create_directory_symlink("../outside", VyrTests::ToStdPath(scratch.Path(u"from")) / "link");
    scratch.MakeFolder(u"to");
    Records records;
    EXPECT_EQ(NameFuncs::MoveFolder(scratch.Path(u"from"), scratch.Path(u"to"), &records), 1);
    EXPECT_FALSE(scratch.Has(u"from"));
    EXPECT_TRUE(fs::is_symlink(VyrTests::ToStdPath(scratch.Path(u"to")) / "link"));
    EXPECT_EQ(scratch.ReadFile(u"outside/a.txt"), "a");
}

TEST(NameFuncsFolderLinux, PipeIsAFailedEntryAndNobodyWaitsForIt)
{
    const ScratchFolder scratch;
    scratch.MakeFolder(u"from");
    const fs::path pipe = VyrTests::ToStdPath(scratch.Path(u"from")) / "pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    scratch.MakeFolder(u"to");
    Records records;
    EXPECT_EQ(NameFuncs::CopyFolder(scratch.Path(u"from"), scratch.Path(u"to"), &records), 0);
    EXPECT_FALSE(scratch.Has(u"to/pipe"));
    scratch.WriteFile(u"from/a.txt", "a");
    NameFuncs::CopyFolder(scratch.Path(u"from"), scratch.Path(u"to"), &records);
    EXPECT_EQ(scratch.ReadFile(u"to/a.txt"), "a");
}

TEST(NameFuncsFolderLinux, NamesThatAreNotUtf8AreKept)
{
    const ScratchFolder scratch;
    scratch.MakeFolder(u"from");
    const fs::path from = VyrTests::ToStdPath(scratch.Path(u"from"));
    const fs::path to = VyrTests::ToStdPath(scratch.Path(u"to"));
    const char* const folder = "fo\xFFlder";
    const char* const file = "\xC3(\x80";
    fs::create_directory(from / folder);
    std::ofstream(from / folder / file) << "content";
    Records records;
    EXPECT_EQ(NameFuncs::CopyFolder(scratch.Path(u"from"), scratch.Path(u"to"), &records), 1);
    EXPECT_TRUE(fs::exists(to / folder / file));
    EXPECT_EQ(NameFuncs::MoveFolder(scratch.Path(u"from"), scratch.Path(u"moved"), &records), 1);
    EXPECT_FALSE(fs::exists(from));
    EXPECT_TRUE(fs::exists(VyrTests::ToStdPath(scratch.Path(u"moved")) / folder / file));
}

TEST(NameFuncsFolderLinux, TreeIsMovedToAnotherFileSystem)
{
    const ScratchFolder scratch;
    const MemoryFolder other;
    if (DeviceOf(other.Path()) == DeviceOf(VyrTests::ToStdPath(scratch.Path())))
        GTEST_SKIP() << "the folder for temporary files is on the file system in memory, so there is no second one";
    scratch.WriteFile(u"from/sub/a.txt", "a");
    scratch.MakeFolder(u"from/empty");
    Records records;
    EXPECT_EQ(NameFuncs::MoveFolder(scratch.Path(u"from"), VyrTests::FromStdPath(other.Path() / "to"), &records), 1);
    EXPECT_FALSE(scratch.Has(u"from"));
    EXPECT_EQ(records.size(), 2U);
    EXPECT_EQ(fs::file_size(other.Path() / "to" / "sub" / "a.txt"), 1U);
    EXPECT_TRUE(fs::is_directory(other.Path() / "to" / "empty"));
}
