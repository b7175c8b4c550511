// Copies and moves that replace, and never lose a file when they fail.
#include <VyrPlatform/files/FileAttributes.h>
#include <VyrPlatform/files/FileCopy.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/files/FileTimes.h>
#include <tests/support/FileMoments.h>
#include <tests/support/FileState.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <string>

namespace FileCopy = VyrPlatform::FileCopy;
using VyrTests::ScratchFolder;

namespace {

constexpr char16_t withNul[] = u"a\0b";

std::size_t CountEntries(const ScratchFolder& scratch)
{
    const std::filesystem::directory_iterator entries(VyrTests::ToStdPath(scratch.Path()));
    return static_cast<std::size_t>(std::distance(begin(entries), end(entries)));
}

/// Bytes without a pattern that a copy in blocks could hit by chance.
std::string MakeContent(std::size_t size)
{
    std::string content(size, '\0');
    std::uint32_t state = 12345;
    for (char& byte : content) {
        state = state * 1'664'525 + 1'013'904'223;
        byte = static_cast<char>(state >> 24);
    }
    return content;
}

/// Tests of what Copy and Move have in common.
using Operation = std::uint32_t (*)(const CString&, const CString&);
class FileCopyOrMove : public testing::TestWithParam<Operation>
{};

} // namespace

TEST_P(FileCopyOrMove, CreatesAFileWithTheContent)
{
    const ScratchFolder scratch;
    for (const std::size_t size : {0U, 1U, 4095U, 4096U, 4097U, 3'000'001U}) {
        const std::string content = MakeContent(size);
        EXPECT_EQ(GetParam()(scratch.WriteFile(u"a", content), scratch.Path(u"b")), 0U);
        EXPECT_TRUE(scratch.ReadFile(u"b") == content) << size;
        std::filesystem::remove(VyrTests::ToStdPath(scratch.Path(u"b")));
    }
}

TEST_P(FileCopyOrMove, ReplacesAnExistingFile)
{
    const ScratchFolder scratch;
    const CString destination = scratch.WriteFile(u"b", "old content, longer than the new one");
    EXPECT_EQ(GetParam()(scratch.WriteFile(u"a", "new"), destination), 0U);
    EXPECT_EQ(scratch.ReadFile(u"b"), "new");
}

TEST_P(FileCopyOrMove, KeepsTheModificationTime)
{
    const ScratchFolder scratch;
    constexpr VyrPlatform::FileTicks modified = VyrTests::TicksOfUnixTime(1'234'567'890, 1'234'500);
    scratch.WriteFile(u"existing");
    for (const char16_t* const name : {u"new", u"existing"}) {
        const CString source = scratch.WriteFile(u"a", "content");
        VyrTests::StampFile(source, modified, modified);
        EXPECT_EQ(GetParam()(source, scratch.Path(name)), 0U);
        EXPECT_EQ(VyrPlatform::FileTimes::GetModified(scratch.Path(name)), modified);
    }
}

TEST_P(FileCopyOrMove, ReadOnlySourceGivesAReadOnlyFile)
{
    const ScratchFolder scratch;
    const CString source = scratch.WriteFile(u"a", "content");
    VyrTests::SetReadOnly(source, true);
    EXPECT_EQ(GetParam()(source, scratch.Path(u"b")), 0U);
    EXPECT_EQ(scratch.ReadFile(u"b"), "content");
    EXPECT_TRUE(VyrPlatform::FileAttributes::IsReadOnly(scratch.Path(u"b")));
}

TEST_P(FileCopyOrMove, ReadOnlyFileIsNotReplaced)
{
    const ScratchFolder scratch;
    const CString source = scratch.WriteFile(u"a", "new");
    const CString destination = scratch.WriteFile(u"b", "precious");
    VyrTests::SetReadOnly(destination, true);
    EXPECT_NE(GetParam()(source, destination), 0U);
    EXPECT_EQ(scratch.ReadFile(u"a"), "new");
    EXPECT_EQ(scratch.ReadFile(u"b"), "precious");
    EXPECT_TRUE(VyrPlatform::FileAttributes::IsReadOnly(destination));
    EXPECT_EQ(CountEntries(scratch), 2U);
}

TEST_P(FileCopyOrMove, FolderIsNotReplaced)
{
    const ScratchFolder scratch;
    scratch.MakeFolder(u"folder");
    EXPECT_NE(GetParam()(scratch.WriteFile(u"a", "content"), scratch.Path(u"folder")), 0U);
    EXPECT_EQ(scratch.ReadFile(u"a"), "content");
    EXPECT_TRUE(VyrPlatform::FileSystem::IsFolder(scratch.Path(u"folder")));
    EXPECT_EQ(CountEntries(scratch), 2U);
}

TEST_P(FileCopyOrMove, FolderAsASourceFails)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"folder/a", "content");
    EXPECT_NE(GetParam()(scratch.Path(u"folder"), scratch.Path(u"b")), 0U);
    EXPECT_FALSE(scratch.Has(u"b"));
    EXPECT_EQ(scratch.ReadFile(u"folder/a"), "content");
}

TEST_P(FileCopyOrMove, MissingSourceKeepsTheDestination)
{
    const ScratchFolder scratch;
    const CString destination = scratch.WriteFile(u"b", "content");
    EXPECT_NE(GetParam()(scratch.Path(u"missing"), destination), 0U);
    EXPECT_NE(GetParam()(u"", destination), 0U);
    EXPECT_NE(GetParam()(scratch.Path(u"b/below"), destination), 0U);
    scratch.WriteFile(u"a", "must not be taken for it");
    EXPECT_NE(GetParam()(scratch.Path(u"") + CString(std::u16string_view(withNul, 3)), destination), 0U);
    EXPECT_EQ(scratch.ReadFile(u"b"), "content");
    EXPECT_EQ(CountEntries(scratch), 2U);
}

TEST_P(FileCopyOrMove, ImpossibleDestinationKeepsTheSource)
{
    const ScratchFolder scratch;
    const CString source = scratch.WriteFile(u"a", "content");
    EXPECT_NE(GetParam()(source, scratch.Path(u"missing folder/b")), 0U);
    EXPECT_NE(GetParam()(source, scratch.Path(u"a/b")), 0U);
    EXPECT_NE(GetParam()(source, scratch.Path(CString(u'n', 256))), 0U);
    EXPECT_NE(GetParam()(source, scratch.Path(u"") + CString(std::u16string_view(withNul, 3))), 0U);
    EXPECT_NE(GetParam()(source, u""), 0U);
    EXPECT_EQ(scratch.ReadFile(u"a"), "content");
    EXPECT_EQ(CountEntries(scratch), 1U);
}

TEST_P(FileCopyOrMove, OntoItselfLosesNothing)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a", "content");
    static_cast<void>(GetParam()(path, path));
    EXPECT_EQ(scratch.ReadFile(u"a"), "content");
    scratch.MakeFolder(u"folder");
    static_cast<void>(GetParam()(path, scratch.Path(u"folder/../a")));
    EXPECT_EQ(scratch.ReadFile(u"a"), "content");
    EXPECT_EQ(CountEntries(scratch), 2U);
}

TEST_P(FileCopyOrMove, LongestNamesAndForeignOnesWork)
{
    const ScratchFolder scratch;
    for (const CString& name : {CString(u'n', 255), CString(u"写真 001.jpg"), CString(u"\U0001F4F7")}) {
        EXPECT_EQ(GetParam()(scratch.WriteFile(u"a", "first"), scratch.Path(name)), 0U);
        EXPECT_EQ(GetParam()(scratch.WriteFile(u"a", "second"), scratch.Path(name)), 0U);
        EXPECT_EQ(scratch.ReadFile(name), "second");
    }
}

TEST_P(FileCopyOrMove, PathsLongerThanTheOldLimitWork)
{
    const ScratchFolder scratch;
    const CString separator(VyrPlatform::FileSystem::Separator(), 1);
    CString folder = scratch.Path();
    for (int level = 0; level < 3; ++level) {
        folder = folder + separator + CString(u'd', 120);
        ASSERT_EQ(VyrPlatform::FileSystem::CreateFolder(folder), 0U);
    }
    const CString destination = folder + separator + u"b";
    EXPECT_EQ(GetParam()(scratch.WriteFile(u"a", "first"), destination), 0U);
    EXPECT_EQ(GetParam()(scratch.WriteFile(u"a", "second"), destination), 0U);
    EXPECT_EQ(VyrPlatform::FileSystem::Query(destination).size, 6);
}

INSTANTIATE_TEST_SUITE_P(FileCopy, FileCopyOrMove, testing::Values(&FileCopy::Copy, &FileCopy::Move),
                         [](const auto& information) { return information.index == 0 ? "Copy" : "Move"; });

TEST(FileCopyCopy, KeepsTheSource)
{
    const ScratchFolder scratch;
    EXPECT_EQ(FileCopy::Copy(scratch.WriteFile(u"a", "content"), scratch.Path(u"b")), 0U);
    EXPECT_EQ(scratch.ReadFile(u"a"), "content");
    EXPECT_EQ(CountEntries(scratch), 2U);
}

TEST(FileCopyCopy, OntoItselfFails)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a", "content");
    EXPECT_NE(FileCopy::Copy(path, path), 0U);
}

TEST(FileCopyCopy, OntoAnotherHardLinkOfTheFileFails)
{
    const ScratchFolder scratch;
    const CString source = scratch.WriteFile(u"a", "content");
    std::filesystem::create_hard_link(VyrTests::ToStdPath(source), VyrTests::ToStdPath(scratch.Path(u"b")));
    EXPECT_NE(FileCopy::Copy(source, scratch.Path(u"b")), 0U);
    EXPECT_EQ(scratch.ReadFile(u"a"), "content");
    EXPECT_EQ(scratch.ReadFile(u"b"), "content");
    EXPECT_EQ(CountEntries(scratch), 2U);
}

TEST(FileCopyCopy, CopyIsAFileOfItsOwn)
{
    const ScratchFolder scratch;
    EXPECT_EQ(FileCopy::Copy(scratch.WriteFile(u"a", "content"), scratch.Path(u"b")), 0U);
    scratch.WriteFile(u"a", "changed");
    EXPECT_EQ(scratch.ReadFile(u"b"), "content");
}

TEST(FileCopyMove, TakesTheSourceAway)
{
    const ScratchFolder scratch;
    EXPECT_EQ(FileCopy::Move(scratch.WriteFile(u"a", "content"), scratch.Path(u"b")), 0U);
    EXPECT_FALSE(scratch.Has(u"a"));
    EXPECT_EQ(CountEntries(scratch), 1U);
}

TEST(FileCopyMove, OntoAnotherHardLinkOfTheFileRemovesTheSource)
{
    const ScratchFolder scratch;
    scratch.MakeFolder(u"folder");
    for (const char16_t* const name : {u"b", u"folder/a"}) {
        const CString source = scratch.WriteFile(u"a", "content");
        std::filesystem::create_hard_link(VyrTests::ToStdPath(source), VyrTests::ToStdPath(scratch.Path(name)));
        EXPECT_EQ(FileCopy::Move(source, scratch.Path(name)), 0U);
        EXPECT_FALSE(scratch.Has(u"a"));
        EXPECT_EQ(scratch.ReadFile(name), "content");
        EXPECT_EQ(std::filesystem::hard_link_count(VyrTests::ToStdPath(scratch.Path(name))), 1U);
    }
    EXPECT_EQ(CountEntries(scratch), 2U);
}

TEST(FileCopyMove, OntoItselfKeepsAFileThatHasMoreHardLinks)
{
    const ScratchFolder scratch;
    scratch.MakeFolder(u"folder");
    const CString path = scratch.WriteFile(u"a", "content");
    std::filesystem::create_hard_link(VyrTests::ToStdPath(path), VyrTests::ToStdPath(scratch.Path(u"b")));
    for (const CString& same : {path, scratch.Path(u"folder/../a")})
        static_cast<void>(FileCopy::Move(path, same));
    EXPECT_EQ(scratch.ReadFile(u"a"), "content");
    EXPECT_EQ(scratch.ReadFile(u"b"), "content");
    EXPECT_EQ(CountEntries(scratch), 3U);
}

TEST(FileCopyMove, TakesTheFileToAnotherFolder)
{
    const ScratchFolder scratch;
    scratch.MakeFolder(u"folder");
    EXPECT_EQ(FileCopy::Move(scratch.WriteFile(u"a", "content"), scratch.Path(u"folder/a")), 0U);
    EXPECT_EQ(scratch.ReadFile(u"folder/a"), "content");
    EXPECT_FALSE(scratch.Has(u"a"));
}

TEST(FileCopyRemoveEmptyFolder, RemovesAnEmptyFolder)
{
    const ScratchFolder scratch;
    EXPECT_EQ(FileCopy::RemoveEmptyFolder(scratch.MakeFolder(u"folder")), 0U);
    EXPECT_FALSE(scratch.Has(u"folder"));
}

TEST(FileCopyRemoveEmptyFolder, RefusesAllElse)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"folder/a", "content");
    EXPECT_NE(FileCopy::RemoveEmptyFolder(scratch.Path(u"folder")), 0U);
    EXPECT_NE(FileCopy::RemoveEmptyFolder(scratch.Path(u"folder/a")), 0U);
    EXPECT_NE(FileCopy::RemoveEmptyFolder(scratch.Path(u"missing")), 0U);
    EXPECT_NE(FileCopy::RemoveEmptyFolder(u""), 0U);
    EXPECT_EQ(scratch.ReadFile(u"folder/a"), "content");
}
