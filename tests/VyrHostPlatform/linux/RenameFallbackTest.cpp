// RenameFile where the system lacks the rename without replacing: a filter makes its calls fail as on such file
// systems.
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <VyrHostPlatform/RenameFile.h>

#include <gtest/gtest.h>

#include <cerrno>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <linux/audit.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <thread>
#include <vector>

namespace {

using namespace VyrHostPlatform;
using namespace VyrPlatform;
using VyrTests::ScratchFolder;
using VyrTests::ToStdPath;
namespace fs = std::filesystem;

/// A system call, and its result.
struct Fault
{
    long call;
    unsigned error;
};

/// Makes the calling thread's calls fail until it ends.
bool Install(const std::vector<Fault>& faults)
{
    std::vector<sock_filter> program{BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr))};
    for (const Fault& fault : faults) {
        program.push_back(BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, static_cast<unsigned>(fault.call), 0, 1));
        program.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | fault.error));
    }
    program.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW));
    const sock_fprog filter{static_cast<unsigned short>(program.size()), program.data()};
    return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 && prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter) == 0;
}

/// Runs `work` in a thread of its own with `faults`.
/// @return false when this system takes no such filter.
bool RunWith(const std::vector<Fault>& faults, const std::function<void()>& work)
{
    bool isInstalled = false;
    std::thread([&] {
        isInstalled = Install(faults);
        if (isInstalled)
            work();
    }).join();
    return isInstalled;
}

constexpr const char* noFilter = "the system lets no program filter its own calls";

class WithoutNoReplace : public testing::TestWithParam<unsigned>
{};

TEST_P(WithoutNoReplace, FilesAndFoldersAreRenamedAllTheSame)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"a", "content");
    scratch.WriteFile(u"folder/x", "inside");
    fs::create_symlink("nowhere", ToStdPath(scratch.Path(u"link")));
    const bool wasRun = RunWith({{SYS_renameat2, GetParam()}}, [&scratch] {
        EXPECT_EQ(RenameNoReplace(scratch.Path(u"a"), scratch.Path(u"folder/b")), 0u);
        EXPECT_EQ(RenameNoReplace(scratch.Path(u"folder"), scratch.Path(u"renamed")), 0u);
        EXPECT_EQ(RenameNoReplace(scratch.Path(u"link"), scratch.Path(u"link 2")), 0u);
    });
    if (!wasRun)
        GTEST_SKIP() << noFilter;
    EXPECT_EQ(scratch.ReadFile(u"renamed/b"), "content");
    EXPECT_EQ(LookAtFile(scratch.Path(u"renamed/b")).links, 1u);
    EXPECT_EQ(scratch.ReadFile(u"renamed/x"), "inside");
    EXPECT_FALSE(scratch.Has(u"a"));
    EXPECT_FALSE(scratch.Has(u"folder"));
    EXPECT_EQ(fs::read_symlink(ToStdPath(scratch.Path(u"link 2"))), "nowhere");
}

TEST_P(WithoutNoReplace, NothingIsReplaced)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"a", "1");
    scratch.WriteFile(u"taken", "2");
    scratch.MakeFolder(u"folder");
    scratch.MakeFolder(u"empty");
    fs::create_hard_link(ToStdPath(scratch.Path(u"a")), ToStdPath(scratch.Path(u"same")));
    const bool wasRun = RunWith({{SYS_renameat2, GetParam()}}, [&scratch] {
        for (const char16_t* from : {u"a", u"folder"})
            for (const char16_t* to : {u"taken", u"empty", u"same"})
                EXPECT_TRUE(IsTargetTaken(RenameNoReplace(scratch.Path(from), scratch.Path(to))));
    });
    if (!wasRun)
        GTEST_SKIP() << noFilter;
    EXPECT_EQ(scratch.ReadFile(u"a"), "1");
    EXPECT_EQ(scratch.ReadFile(u"taken"), "2");
    EXPECT_EQ(scratch.ReadFile(u"same"), "1");
    EXPECT_TRUE(scratch.Has(u"folder"));
    EXPECT_TRUE(scratch.Has(u"empty"));
}

TEST_P(WithoutNoReplace, AFileIsNotRenamedWhereNoHardLinkIsPossible)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"a", "1");
    std::uint32_t error = 0;
    if (!RunWith({{SYS_renameat2, GetParam()}, {SYS_linkat, EPERM}},
                 [&] { error = RenameNoReplace(scratch.Path(u"a"), scratch.Path(u"b")); }))
        GTEST_SKIP() << noFilter;
    EXPECT_EQ(error, std::uint32_t{EPERM});
    EXPECT_EQ(scratch.ReadFile(u"a"), "1");
    EXPECT_FALSE(scratch.Has(u"b"));
}

TEST_P(WithoutNoReplace, AFailureIsToldWithTheSystemsCode)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"a", "1");
    std::vector<std::uint32_t> errors;
    if (!RunWith({{SYS_renameat2, GetParam()}}, [&] {
            errors.push_back(RenameNoReplace(scratch.Path(u"nothing"), scratch.Path(u"b")));
            errors.push_back(RenameNoReplace(scratch.Path(u"a"), scratch.Path(u"no/b")));
        }))
        GTEST_SKIP() << noFilter;
    EXPECT_EQ(errors, (std::vector<std::uint32_t>{ENOENT, ENOENT}));
    EXPECT_EQ(scratch.ReadFile(u"a"), "1");
}

INSTANTIATE_TEST_SUITE_P(RenameFile, WithoutNoReplace, testing::Values(EINVAL, ENOSYS),
                         [](const auto& error) { return error.param == EINVAL ? "NotByTheFileSystem" : "NotAtAll"; });

TEST(OpenFolder, DropsTheSecondNameOfAFile)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"a", "1");
    fs::create_hard_link(ToStdPath(scratch.Path(u"a")), ToStdPath(scratch.Path(u"b")));
    const OpenFolder folder(scratch.Path());
    EXPECT_EQ(folder.DropSecondName(u"a", folder, u"b"), 0u);
    EXPECT_FALSE(scratch.Has(u"a"));
    EXPECT_EQ(scratch.ReadFile(u"b"), "1");
}

} // namespace
