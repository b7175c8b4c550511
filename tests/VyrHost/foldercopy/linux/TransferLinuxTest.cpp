// Trees with entries that only Linux has, and file systems that lack something.
#include "../Snapshot.h"

#include <VyrHost/foldercopy/TargetCheck.h>
#include <VyrHost/foldercopy/Transfer.h>
#include <VyrHost/foldercopy/TransferBatch.h>
#include <VyrHost/text/Errors.h>
#include <VyrPlatform/files/FileTimes.h>
#include <tests/support/FileMoments.h>
#include <tests/support/linux/MountedFolder.h>
#include <tests/support/linux/Unprivileged.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

namespace fs = std::filesystem;
namespace FileTimes = VyrPlatform::FileTimes;
using namespace VyrHost::FolderCopy;
using namespace VyrHost::Text;
using VyrTests::MountedFolder;
using VyrTests::ScratchFolder;
using VyrTests::SnapshotOf;
using VyrTests::ToStdPath;
using VyrTests::TreeSnapshot;

namespace {

/// The result of copying or moving a tree.
struct Went
{
    TransferProblems problems;
    std::uint32_t creationError = 0;
};

/// Copies or moves in the same way as the program.
Went Carry(const CString& from, const CString& to, TransferAction action)
{
    const FolderSnapshot tree = TakeSnapshot(from);
    EXPECT_TRUE(CheckTarget(tree, to, Trial::Allowed).conflicts.empty());
    TransferRecords records;
    EXPECT_EQ(TransferFolder(tree, to, action, records, [](std::size_t) {}), 0u);
    Went went{FinishTransfer(tree, to, action, records)};
    const CreatedFoldersResult times = CompleteFolders(tree, records);
    EXPECT_TRUE(times.problems.empty());
    went.creationError = times.creationError;
    return went;
}

CString PathIn(const fs::path& folder)
{
    return VyrTests::FromStdPath(folder);
}

/// The problem's path and reason, for comparison.
std::vector<std::string> TextsOf(const TransferProblems& problems)
{
    std::vector<std::string> texts;
    for (const TransferProblem& problem : problems)
        texts.push_back(ToStdPath(problem.path).string() + " " + std::to_string(static_cast<int>(problem.fault)) + " " +
                        std::to_string(problem.error));
    std::sort(texts.begin(), texts.end());
    return texts;
}

std::string Text(const std::string& path, TransferFault fault, int error)
{
    return path + " " + std::to_string(static_cast<int>(fault)) + " " + std::to_string(error);
}

const TreeSnapshot Missing = {{"missing", ""}};

} // namespace

TEST(TransferLinux, NamesThatAreNotUtf8AreKept)
{
    const ScratchFolder scratch;
    const fs::path from = ToStdPath(scratch.MakeFolder(u"from"));
    fs::create_directory(from / "\xFF\xFE");
    std::ofstream(from / "\xFF\xFE" / "\xC3(\n\x80") << "1";
    fs::create_symlink("caf\xE9", from / "link");
    const TreeSnapshot before = SnapshotOf(PathIn(from));
    EXPECT_TRUE(Carry(PathIn(from), scratch.Path(u"copy"), TransferAction::Copy).problems.empty());
    EXPECT_EQ(SnapshotOf(scratch.Path(u"copy")), before);
    EXPECT_TRUE(Carry(PathIn(from), scratch.Path(u"moved"), TransferAction::Move).problems.empty());
    EXPECT_EQ(SnapshotOf(scratch.Path(u"moved")), before);
    EXPECT_EQ(SnapshotOf(PathIn(from)), Missing);
}

TEST(TransferLinux, LinksAreCopiedAsLinksAndNotFollowed)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"outside/file", "outside");
    scratch.WriteFile(u"from/sub/file", "inside");
    const fs::path from = ToStdPath(scratch.Path(u"from"));
    fs::create_symlink("nowhere", from / "dangling");
    fs::create_symlink("..", from / "up");
    fs::create_symlink("../..", from / "sub" / "top");
    fs::create_symlink("self", from / "self");
    fs::create_symlink("../outside", from / "folder");
    fs::create_symlink("/dev/zero", from / "device");
    const TreeSnapshot before = SnapshotOf(PathIn(from));
    ASSERT_EQ(before.size(), 8u);
    EXPECT_TRUE(Carry(PathIn(from), scratch.Path(u"copy"), TransferAction::Copy).problems.empty());
    EXPECT_EQ(SnapshotOf(scratch.Path(u"copy")), before);
    EXPECT_TRUE(Carry(PathIn(from), scratch.Path(u"moved"), TransferAction::Move).problems.empty());
    EXPECT_EQ(SnapshotOf(scratch.Path(u"moved")), before);
    EXPECT_EQ(scratch.ReadFile(u"outside/file"), "outside");
}

TEST(TransferLinux, LinkThatLeadsElsewhereDiffers)
{
    const ScratchFolder scratch;
    const fs::path from = ToStdPath(scratch.MakeFolder(u"from"));
    fs::create_symlink("a", from / "link");
    const FolderSnapshot tree = TakeSnapshot(PathIn(from));
    TransferRecords records;
    ASSERT_EQ(TransferFolder(tree, scratch.Path(u"to"), TransferAction::Copy, records, [](std::size_t) {}), 0u);
    fs::remove(ToStdPath(scratch.Path(u"to/link")));
    fs::create_symlink("b", ToStdPath(scratch.Path(u"to/link")));
    EXPECT_EQ(TextsOf(FinishTransfer(tree, scratch.Path(u"to"), TransferAction::Copy, records)),
              std::vector<std::string>{Text("link", TransferFault::Differs, 0)});
}

TEST(TransferLinux, PipesAreRefusedBeforehandAndFailAlone)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"from/sub/file", "1");
    ASSERT_EQ(mkfifo(ToStdPath(scratch.Path(u"from/sub/pipe")).c_str(), 0600), 0);
    const std::vector<std::string> expected = {Text("sub/pipe", TransferFault::NoContent, 0)};
    const auto foresee = [&scratch](const CString& target, TransferAction action) {
        return TextsOf(PredictProblems(TakeSnapshot(scratch.Path(u"from")), target, action));
    };
    EXPECT_EQ(foresee(scratch.Path(u"to"), TransferAction::Copy), expected);
    EXPECT_TRUE(foresee(scratch.Path(u"to"), TransferAction::Move).empty());
    if (const MountedFolder disk(MountedFolder::Kind::Memory); disk.WhyNot().empty()) {
        EXPECT_EQ(foresee(disk.Path(), TransferAction::Move), expected);
        EXPECT_EQ(foresee(disk.Path(u"to"), TransferAction::Move), expected);
    }
    EXPECT_EQ(TextsOf(Carry(scratch.Path(u"from"), scratch.Path(u"to"), TransferAction::Copy).problems), expected);
    EXPECT_EQ(SnapshotOf(scratch.Path(u"to")), (TreeSnapshot{{"sub", "<folder>"}, {"sub/file", "1"}}));
    EXPECT_TRUE(Carry(scratch.Path(u"from"), scratch.Path(u"moved"), TransferAction::Move).problems.empty());
    EXPECT_EQ(SnapshotOf(scratch.Path(u"moved")).at("sub/pipe"), "<other>");
}

TEST(TransferLinux, LittleSpaceIsPredictedForTheTreesThatItDoesNotHold)
{
    const MountedFolder disk(MountedFolder::Kind::Memory, "size=1m");
    if (!disk.WhyNot().empty())
        GTEST_SKIP() << disk.WhyNot();
    const ScratchFolder scratch;
    const std::string content(600 << 10, 'x');
    scratch.WriteFile(u"first/file", content);
    scratch.WriteFile(u"second/file", content);
    const std::vector<CString> sources = {scratch.Path(u"first"), scratch.Path(u"second")};
    for (const TransferAction action : {TransferAction::Copy, TransferAction::Move}) {
        const TransferBatch batch(sources, disk.Path(), action, Trial::No);
        EXPECT_FALSE(batch.IsRefused());
        EXPECT_TRUE(batch.Reports()[0].problems.empty());
        EXPECT_EQ(batch.Reports()[1].status, VyrHost::Model::Status::Incomplete);
        EXPECT_EQ(TextsOf(batch.Reports()[1].problems),
                  std::vector<std::string>{Text("", TransferFault::LittleSpace, 0)});
    }
    const TransferBatch within({scratch.Path(u"first")}, scratch.MakeFolder(u"to"), TransferAction::Move, Trial::No);
    EXPECT_TRUE(within.Reports()[0].problems.empty());
}

TEST(TransferLinux, SparseFilesStaySparse)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"from/sparse", "start");
    const auto size = std::uintmax_t{64} << 20;
    fs::resize_file(ToStdPath(scratch.Path(u"from/sparse")), size);
    EXPECT_TRUE(Carry(scratch.Path(u"from"), scratch.Path(u"to"), TransferAction::Copy).problems.empty());
    struct stat status
    {};
    ASSERT_EQ(stat(ToStdPath(scratch.Path(u"to/sparse")).c_str(), &status), 0);
    EXPECT_EQ(static_cast<std::uintmax_t>(status.st_size), size);
    EXPECT_LT(status.st_blocks * 512, 1 << 20);
}

TEST(TransferLinux, UnreadableEntriesFailAlone)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"from/closed/file", "1");
    scratch.WriteFile(u"from/secret", "2");
    scratch.WriteFile(u"from/open", "3");
    scratch.MakeFolder(u"parent");
    for (const CString& path : {scratch.Path(), scratch.Path(u"parent")})
        ASSERT_EQ(chmod(ToStdPath(path).c_str(), 0777), 0);
    ASSERT_EQ(chmod(ToStdPath(scratch.Path(u"from/closed")).c_str(), 0), 0);
    ASSERT_EQ(chmod(ToStdPath(scratch.Path(u"from/secret")).c_str(), 0), 0);
    {
        const VyrTests::Unprivileged user;
        ASSERT_TRUE(user.IsDone());
        EXPECT_EQ(TextsOf(PredictProblems(TakeSnapshot(scratch.Path(u"from")), scratch.Path(u"parent/to"),
                                          TransferAction::Copy)),
                  std::vector<std::string>{Text("closed", TransferFault::NotRead, EACCES)});
        EXPECT_EQ(TextsOf(Carry(scratch.Path(u"from"), scratch.Path(u"parent/to"), TransferAction::Copy).problems),
                  (std::vector<std::string>{Text("closed", TransferFault::NotRead, EACCES),
                                            Text("secret", TransferFault::System, EACCES)}));
    }
    EXPECT_EQ(SnapshotOf(scratch.Path(u"parent/to")), (TreeSnapshot{{"closed", "<folder>"}, {"open", "3"}}));
    // A file without permissions has none at its new path.
    EXPECT_EQ(fs::status(ToStdPath(scratch.Path(u"parent/to/closed"))).permissions(), fs::perms::none);
}

TEST(TransferLinux, FoldersKeepTheirPermissions)
{
    for (const TransferAction action : {TransferAction::Copy, TransferAction::Move}) {
        const ScratchFolder scratch;
        scratch.WriteFile(u"from/private/a", "1");
        scratch.WriteFile(u"from/finished/deep/b", "2");
        const auto modeOf = [&scratch](const char16_t* path) {
            return fs::status(ToStdPath(scratch.Path(path))).permissions();
        };
        const std::vector<std::pair<const char16_t*, fs::perms>> modes = {{u"/private", fs::perms(0700)},
                                                                          {u"/finished/deep", fs::perms(0775)},
                                                                          {u"/finished", fs::perms(0711)},
                                                                          {u"", fs::perms(0750)}};
        for (const auto& [path, mode] : modes)
            fs::permissions(ToStdPath(scratch.Path(CString(u"from") + path)), mode);
        EXPECT_TRUE(Carry(scratch.Path(u"from"), scratch.Path(u"to"), action).problems.empty());
        for (const auto& [path, mode] : modes)
            EXPECT_EQ(modeOf((CString(u"to") + path).GetString()), mode);
    }
}

TEST(TransferLinux, FolderThatMayNotBeWrittenLosesNoFileOfAMove)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"from/locked/a", "1");
    scratch.WriteFile(u"from/open/b", "2");
    scratch.MakeFolder(u"parent");
    TransferProblems problems;
    {
        const VyrTests::WriteProtection protection(scratch.Path(u"from/locked"));
        if (!protection.WhyNot().empty())
            GTEST_SKIP() << protection.WhyNot();
        problems = Carry(scratch.Path(u"from"), scratch.Path(u"parent/to"), TransferAction::Move).problems;
    }
    ASSERT_EQ(problems.size(), 1u);
    EXPECT_EQ(problems[0].path, u"locked/a");
    EXPECT_EQ(problems[0].fault, TransferFault::System);
    EXPECT_TRUE(problems[0].error == EACCES || problems[0].error == EPERM);
    EXPECT_EQ(SnapshotOf(scratch.Path(u"from")), (TreeSnapshot{{"locked", "<folder>"}, {"locked/a", "1"}}));
    EXPECT_EQ(SnapshotOf(scratch.Path(u"parent/to")),
              (TreeSnapshot{{"locked", "<folder>"}, {"open", "<folder>"}, {"open/b", "2"}}));
}

TEST(TransferLinux, EmptiedFolderThatCannotBeRemovedIsReportedWithTheReason)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"outer/from/file", "1");
    TransferProblems problems;
    {
        const VyrTests::WriteProtection protection(scratch.Path(u"outer"));
        if (!protection.WhyNot().empty())
            GTEST_SKIP() << protection.WhyNot();
        problems = Carry(scratch.Path(u"outer/from"), scratch.Path(u"to"), TransferAction::Move).problems;
    }
    ASSERT_EQ(problems.size(), 1u);
    EXPECT_EQ(problems[0].path, u"");
    EXPECT_EQ(problems[0].fault, TransferFault::StillAtSource);
    EXPECT_TRUE(problems[0].error == EACCES || problems[0].error == EPERM);
    EXPECT_EQ(SnapshotOf(scratch.Path(u"to")), (TreeSnapshot{{"file", "1"}}));
    EXPECT_EQ(SnapshotOf(scratch.Path(u"outer/from")), TreeSnapshot());
}

TEST(TransferLinux, FullDiskFailsEntriesThatDoNotFitAndLosesNoFileOfAMove)
{
    const MountedFolder disk(MountedFolder::Kind::Memory, "size=1m");
    if (!disk.WhyNot().empty())
        GTEST_SKIP() << disk.WhyNot();
    const ScratchFolder scratch;
    const std::string big(3 << 20, 'x');
    scratch.WriteFile(u"from/sub/big", big);
    scratch.WriteFile(u"from/sub/small", "1");
    scratch.WriteFile(u"from/small", "2");
    const std::vector<std::string> expected = {Text("sub/big", TransferFault::System, ENOSPC)};
    const TreeSnapshot arrived = {{"small", "2"}, {"sub", "<folder>"}, {"sub/small", "1"}};
    EXPECT_EQ(TextsOf(Carry(scratch.Path(u"from"), disk.Path(u"copy"), TransferAction::Copy).problems), expected);
    EXPECT_EQ(SnapshotOf(disk.Path(u"copy")), arrived);
    EXPECT_EQ(TextsOf(Carry(scratch.Path(u"from"), disk.Path(u"moved"), TransferAction::Move).problems), expected);
    EXPECT_EQ(SnapshotOf(disk.Path(u"moved")), arrived);
    EXPECT_EQ(SnapshotOf(scratch.Path(u"from")), (TreeSnapshot{{"sub", "<folder>"}, {"sub/big", big}}));
}

TEST(TransferLinux, MovesAcrossFileSystemsWithTheTimesOfFolders)
{
    const MountedFolder other(MountedFolder::Kind::Memory, "size=8m");
    if (!other.WhyNot().empty())
        GTEST_SKIP() << other.WhyNot();
    const ScratchFolder scratch;
    scratch.WriteFile(u"from/a/b/file", "1");
    fs::create_symlink("up", ToStdPath(scratch.Path(u"from/a/link")));
    constexpr auto modified = VyrTests::TicksOfUnixTime(1'234'567'890, 1'234'567);
    for (const char16_t* const name : {u"from/a/b", u"from/a", u"from"})
        VyrTests::StampFile(scratch.Path(name), modified, modified);
    const TreeSnapshot before = SnapshotOf(scratch.Path(u"from"));
    EXPECT_TRUE(Carry(scratch.Path(u"from"), other.Path(u"to"), TransferAction::Move).problems.empty());
    EXPECT_EQ(SnapshotOf(other.Path(u"to")), before);
    EXPECT_EQ(SnapshotOf(scratch.Path(u"from")), Missing);
    for (const char16_t* const name : {u"to/a/b", u"to/a", u"to"})
        EXPECT_EQ(FileTimes::GetModified(other.Path(name)), modified);
}

TEST(TransferLinux, NamesThatTheTargetTakesForTheSameAreRefused)
{
    const MountedFolder disk(MountedFolder::Kind::Exfat);
    if (!disk.WhyNot().empty())
        GTEST_SKIP() << disk.WhyNot();
    const ScratchFolder scratch;
    for (const char16_t* const name : {u"from/sub/a.txt", u"from/sub/A.TXT", u"from/b/1", u"from/B/2", u"from/c"})
        scratch.WriteFile(name);
    const FolderSnapshot tree = TakeSnapshot(scratch.Path(u"from"));
    // The disk is empty, so only a trial shows how it compares names.
    TargetCheck check = CheckTarget(tree, disk.Path(u"to"), Trial::Allowed);
    EXPECT_EQ(check.conflicts.size(), 2u);
    for (const TransferProblem& conflict : check.conflicts)
        EXPECT_EQ(conflict.fault, TransferFault::TwoNamesInOne);
    EXPECT_EQ(SnapshotOf(disk.Path()), TreeSnapshot());
    std::ofstream(ToStdPath(disk.Path(u"name"))) << "1";
    check = CheckTarget(tree, disk.Path(u"to"), Trial::No);
    EXPECT_EQ(check.conflicts.size(), 2u);
    EXPECT_TRUE(CheckTarget(tree, scratch.Path(u"to"), Trial::Allowed).conflicts.empty());
    EXPECT_TRUE(Carry(scratch.Path(u"from"), scratch.Path(u"to"), TransferAction::Move).problems.empty());
}

TEST(TransferLinux, FileSystemWithoutCreationTimesIsReported)
{
    const MountedFolder disk(MountedFolder::Kind::Exfat);
    if (!disk.WhyNot().empty())
        GTEST_SKIP() << disk.WhyNot();
    const ScratchFolder scratch;
    scratch.WriteFile(u"from/a/file", "1");
    const Went went = Carry(scratch.Path(u"from"), disk.Path(u"to"), TransferAction::Copy);
    EXPECT_TRUE(went.problems.empty());
    EXPECT_EQ(went.creationError, static_cast<std::uint32_t>(ENOTSUP));
    EXPECT_EQ(SnapshotOf(disk.Path(u"to")), (TreeSnapshot{{"a", "<folder>"}, {"a/file", "1"}}));
    EXPECT_EQ(Carry(scratch.Path(u"from"), scratch.Path(u"to"), TransferAction::Copy).creationError, 0u);
}

TEST(TransferLinux, AThousandLevelsAreCopied)
{
    const ScratchFolder scratch;
    scratch.MakeFolder(u"from");
    constexpr int levels = 1000;
    CString deepest = u"from";
    for (int level = 0; level < levels; ++level)
        deepest += u"/d";
    scratch.WriteFile(deepest + u"/file", "deep");
    EXPECT_TRUE(Carry(scratch.Path(u"from"), scratch.Path(u"copy"), TransferAction::Copy).problems.empty());
    EXPECT_EQ(scratch.ReadFile(u"copy" + deepest.Mid(4) + u"/file"), "deep");
    EXPECT_TRUE(Carry(scratch.Path(u"from"), scratch.Path(u"moved"), TransferAction::Move).problems.empty());
    EXPECT_EQ(scratch.ReadFile(u"moved" + deepest.Mid(4) + u"/file"), "deep");
    EXPECT_FALSE(scratch.Has(u"from"));
}

TEST(TransferLinux, SourceIsRecognisedThroughAMount)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root may mount";
    const ScratchFolder scratch;
    scratch.MakeFolder(u"from/inner");
    const CString seen = scratch.MakeFolder(u"seen");
    if (mount(ToStdPath(scratch.Path(u"from")).c_str(), ToStdPath(seen).c_str(), nullptr, MS_BIND, nullptr) != 0)
        GTEST_SKIP() << "a folder cannot be mounted a second time, error " << errno;
    EXPECT_THROW(static_cast<void>(MakeTransferTasks({scratch.Path(u"from")}, scratch.Path(u"seen/new"))), UsageError);
    EXPECT_THROW(static_cast<void>(MakeTransferTasks({scratch.Path(u"from"), seen}, scratch.Path())), UsageError);
    EXPECT_EQ(umount2(ToStdPath(seen).c_str(), 0), 0);
}
