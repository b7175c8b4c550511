// Folder copy and move with entries that only Linux has: links, pipes, names that are not UTF-8, a second file system.
#include <VyrLibraryFuncs/name/NameFuncs.h>

#include <tests/support/ChildProcess.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <tests/support/linux/MemoryFolder.h>
#include <tests/support/linux/Unprivileged.h>

#include <gtest/gtest.h>
#include <tests/support/Describe.h>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <utility>

using VyrLibraryFuncs::NameFuncs;
using VyrTests::MemoryFolder;
using VyrTests::ScratchFolder;

namespace fs = std::filesystem;

namespace {

using Records = std::list<NameFuncs::RENAMEITEM>;

mode_t ModeOf(const CString& path)
{
    struct stat status = {};
    EXPECT_EQ(lstat(VyrTests::ToStdPath(path).c_str(), &status), 0);
    return status.st_mode & 07777;
}

/// As long as it lives, the process may have as many files open as is usual.
class UsualFileLimit
{
public:
    UsualFileLimit()
    {
        getrlimit(RLIMIT_NOFILE, &m_before);
        const rlimit limit{std::min<rlim_t>(1024, m_before.rlim_cur), m_before.rlim_max};
        setrlimit(RLIMIT_NOFILE, &limit);
    }
    UsualFileLimit(const UsualFileLimit&) = delete;
    UsualFileLimit& operator=(const UsualFileLimit&) = delete;
    ~UsualFileLimit() { setrlimit(RLIMIT_NOFILE, &m_before); }

private:
    rlimit m_before;
};

/// Enters `levels` folders called "d" from `folder`, and creates missing ones if `isMaking`.
/// @return a descriptor of the last one; negative when one is missing.
int GoDown(const CString& folder, int levels, bool isMaking)
{
    int at = open(VyrTests::ToStdPath(folder).c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC);
    for (int level = 0; level < levels && at >= 0; ++level) {
        if (isMaking)
            mkdirat(at, "d", 0755);
        const int below = openat(at, "d", O_PATH | O_DIRECTORY | O_CLOEXEC);
        close(at);
        at = below;
    }
    return at;
}

bool HasFile(int folder, const char* name)
{
    return folder >= 0 && faccessat(folder, name, F_OK, 0) == 0;
}

dev_t DeviceOf(const fs::path& path)
{
    struct stat status = {};
    EXPECT_EQ(stat(path.c_str(), &status), 0);
    return status.st_dev;
}

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

TEST(NameFuncsFolderLinux, MovingALinkToAFolderKeepsTheFolder)
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

TEST(NameFuncsFolderLinux, PipeFailsWithoutWaiting)
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

TEST(NameFuncsFolderLinux, CreatedFoldersHaveTheModeOfTheirSource)
{
    for (const auto operation : {&NameFuncs::CopyFolder, &NameFuncs::MoveFolder}) {
        const ScratchFolder scratch;
        const std::pair<const char16_t*, mode_t> folders[] = {
            {u"from/private", 0700}, {u"from/shared", 0777}, {u"from/kept", 0500}, {u"from/kept/below", 01755}};
        for (const auto& [name, mode] : folders)
            scratch.WriteFile(CString(name) + u"/a", "a");
        for (const auto& [name, mode] : folders)
            ASSERT_EQ(chmod(VyrTests::ToStdPath(scratch.Path(name)).c_str(), mode), 0);
        EXPECT_EQ(operation(scratch.Path(u"from"), scratch.Path(u"to"), nullptr), 1);
        for (const auto& [name, mode] : folders) {
            const CString copied = CString(u"to") + CString(name).Mid(4);
            EXPECT_EQ(ModeOf(scratch.Path(copied)), mode);
            EXPECT_EQ(scratch.ReadFile(copied + u"/a"), "a");
        }
    }
}

TEST(NameFuncsFolderLinux, FolderThatMayNotBeWrittenIsFilledAndThenLocked)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"from/sub/a", "a");
    ASSERT_EQ(chmod(VyrTests::ToStdPath(scratch.Path(u"from/sub")).c_str(), 0555), 0);
    ASSERT_EQ(chmod(VyrTests::ToStdPath(scratch.Path()).c_str(), 0777), 0);
    {
        const VyrTests::Unprivileged user;
        ASSERT_TRUE(user.IsDone());
        EXPECT_EQ(NameFuncs::CopyFolder(scratch.Path(u"from"), scratch.Path(u"to"), nullptr), 1);
    }
    EXPECT_EQ(scratch.ReadFile(u"to/sub/a"), "a");
    EXPECT_EQ(ModeOf(scratch.Path(u"to/sub")), 0555U);
}

TEST(NameFuncsFolderLinux, ExistingFolderKeepsItsMode)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"from/sub/a", "a");
    scratch.MakeFolder(u"to/sub");
    ASSERT_EQ(chmod(VyrTests::ToStdPath(scratch.Path(u"from/sub")).c_str(), 0700), 0);
    ASSERT_EQ(chmod(VyrTests::ToStdPath(scratch.Path(u"to/sub")).c_str(), 0751), 0);
    EXPECT_EQ(NameFuncs::CopyFolder(scratch.Path(u"from"), scratch.Path(u"to"), nullptr), 1);
    EXPECT_EQ(ModeOf(scratch.Path(u"to/sub")), 0751U);
}

TEST(NameFuncsFolderLinux, DestinationThatALinkLeadsIntoTheSourceGivesZero)
{
    for (const auto operation : {&NameFuncs::CopyFolder, &NameFuncs::MoveFolder}) {
        const ScratchFolder scratch;
        scratch.WriteFile(u"from/sub/a", "a");
        const fs::path link = VyrTests::ToStdPath(scratch.Path(u"link"));
        fs::create_directory_symlink("from/sub", link);
        EXPECT_EQ(operation(scratch.Path(u"from"), scratch.Path(u"link/to"), nullptr), 0);
        EXPECT_EQ(operation(scratch.Path(u"link"), scratch.Path(u"from/sub/to"), nullptr), 0);
        EXPECT_FALSE(scratch.Has(u"from/sub/to"));
        EXPECT_EQ(scratch.ReadFile(u"from/sub/a"), "a");
        // A path beyond a link that only begins inside is outside.
        EXPECT_EQ(operation(scratch.Path(u"from"), scratch.Path(u"link/../../to"), nullptr), 1);
        EXPECT_EQ(scratch.ReadFile(u"to/sub/a"), "a");
    }
}

TEST(NameFuncsFolderLinux, ThreeThousandLevelsAreCopiedAndMovedWithFewOpenFiles)
{
    // More folders than files may be open, and a path that is longer than the system takes.
    constexpr int levels = 3000;
    const ScratchFolder scratch;
    const UsualFileLimit limit;
    const int deepest = GoDown(scratch.MakeFolder(u"from"), levels, true);
    ASSERT_GE(deepest, 0);
    close(openat(deepest, "a", O_WRONLY | O_CREAT | O_CLOEXEC, 0644));
    close(deepest);

    EXPECT_EQ(NameFuncs::CopyFolder(scratch.Path(u"from"), scratch.Path(u"copied"), nullptr), 1);
    EXPECT_EQ(NameFuncs::MoveFolder(scratch.Path(u"from"), scratch.Path(u"moved"), nullptr), 1);
    EXPECT_FALSE(scratch.Has(u"from"));
    for (const char16_t* const name : {u"copied", u"moved"}) {
        const int reached = GoDown(scratch.Path(name), levels, false);
        EXPECT_TRUE(HasFile(reached, "a"));
        close(reached);
        EXPECT_EQ(VyrTests::RunProgram({u"/bin/rm", {u"-r", scratch.Path(name)}}).exitCode, 0);
    }
}
