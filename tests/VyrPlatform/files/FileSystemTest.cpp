// Queries of paths, and the creation of folders.
#include <VyrPlatform/files/FileSystem.h>
#include <tests/support/FileMoments.h>
#include <tests/support/Links.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <gtest/gtest.h>

#include <filesystem>

namespace FileSystem = VyrPlatform::FileSystem;
using FileSystem::Kind;
using VyrTests::ScratchFolder;

namespace {

constexpr char16_t withNul[] = u"a\0b";
const CString nameWithNul(std::u16string_view(withNul, 3));

/// A folder far below `scratch`, whose path is longer than the 260 code units of old programs.
CString MakeDeepFolder(const ScratchFolder& scratch)
{
    CString path = scratch.Path();
    for (int level = 0; level < 5; ++level) {
        path = path + CString(FileSystem::Separator(), 1) + CString(u'd', 100);
        EXPECT_EQ(FileSystem::CreateFolder(path), 0U);
    }
    return path;
}

} // namespace

TEST(FileSystemQuery, GivesAFileWithItsSize)
{
    const ScratchFolder scratch;
    const FileSystem::Entry entry = FileSystem::Query(scratch.WriteFile(u"a.txt", "twelve bytes"));
    EXPECT_EQ(entry.kind, Kind::File);
    EXPECT_FALSE(entry.isLink);
    EXPECT_EQ(entry.size, 12);
    EXPECT_EQ(FileSystem::Query(scratch.WriteFile(u"empty")).size, 0);
}

TEST(FileSystemQuery, GivesAFolderWithoutASize)
{
    const ScratchFolder scratch;
    const FileSystem::Entry entry = FileSystem::Query(scratch.MakeFolder(u"folder"));
    EXPECT_EQ(entry.kind, Kind::Folder);
    EXPECT_FALSE(entry.isLink);
    EXPECT_EQ(entry.size, 0);
    EXPECT_NE(entry.modified.value_or(0), 0);
}

TEST(FileSystemQuery, GivesTheFileTimes)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    constexpr VyrPlatform::FileTicks modified = 133'500'000'001'234'500;
    constexpr VyrPlatform::FileTicks accessed = 131'000'000'007'654'300;
    VyrTests::StampFile(path, modified, accessed);
    const FileSystem::Entry entry = FileSystem::Query(path);
    EXPECT_EQ(entry.modified, modified);
    EXPECT_EQ(entry.accessed, accessed);
}

TEST(FileSystemQuery, GivesASizeAboveFourGigabytes)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"large");
    constexpr std::uintmax_t size = 5'000'000'123;
    std::filesystem::resize_file(VyrTests::ToStdPath(path), size);
    EXPECT_EQ(FileSystem::Query(path).size, static_cast<std::int64_t>(size));
}

TEST(FileSystemQuery, NothingIsMissing)
{
    const ScratchFolder scratch;
    const FileSystem::Entry entry = FileSystem::Query(scratch.Path(u"nothing"));
    EXPECT_EQ(entry.kind, Kind::Missing);
    EXPECT_EQ(entry.size, 0);
    EXPECT_EQ(entry.modified, std::nullopt);
    EXPECT_EQ(FileSystem::Query(scratch.Path(u"no folder/nothing")).kind, Kind::Missing);
    EXPECT_EQ(FileSystem::Query(u"").kind, Kind::Missing);
}

TEST(FileSystemQuery, NothingExistsBelowAFile)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"a.txt", "content");
    EXPECT_EQ(FileSystem::Query(scratch.Path(u"a.txt/b.txt")).kind, Kind::Missing);
    EXPECT_FALSE(FileSystem::Exists(scratch.Path(u"a.txt/b.txt")));
    EXPECT_FALSE(FileSystem::IsFolder(scratch.Path(u"a.txt/b.txt")));
    EXPECT_NE(FileSystem::CreateFolder(scratch.Path(u"a.txt/b")), 0U);
}

TEST(FileSystemQuery, NameWithNulNamesNothing)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"a", "must not be taken for it");
    const CString path = scratch.Path(u"") + nameWithNul;
    ASSERT_TRUE(FileSystem::Exists(scratch.Path(u"a")));
    EXPECT_EQ(FileSystem::Query(path).kind, Kind::Missing);
    EXPECT_FALSE(FileSystem::Exists(path));
    EXPECT_FALSE(FileSystem::IsFolder(path));
    EXPECT_NE(FileSystem::CreateFolder(path), 0U);
}

TEST(FileSystemQuery, SeparatorAtTheEndIsNoPartOfAFoldersName)
{
    const ScratchFolder scratch;
    const CString path = scratch.MakeFolder(u"folder") + CString(FileSystem::Separator(), 1);
    EXPECT_EQ(FileSystem::Query(path).kind, Kind::Folder);
    EXPECT_TRUE(FileSystem::Exists(path));
    EXPECT_TRUE(FileSystem::IsFolder(path));
}

TEST(FileSystemQuery, LongestNameIsFoundAndALongerOneMissing)
{
    const ScratchFolder scratch;
    const CString name(u'n', 255);
    EXPECT_EQ(FileSystem::Query(scratch.WriteFile(name, "x")).size, 1);
    EXPECT_TRUE(FileSystem::Exists(scratch.Path(name)));
    EXPECT_EQ(FileSystem::Query(scratch.Path(name + u"n")).kind, Kind::Missing);
    EXPECT_FALSE(FileSystem::Exists(scratch.Path(name + u"n")));
    EXPECT_NE(FileSystem::CreateFolder(scratch.Path(name + u"n")), 0U);
}

TEST(FileSystemQuery, NamesOfOtherScriptsAreFound)
{
    const ScratchFolder scratch;
    for (const CString name : {u"Grün & Weiß.jpg", u"写真 001.jpg", u"\U0001F4F7 camera", u"a\u0301 decomposed"}) {
        scratch.WriteFile(name, "bytes");
        EXPECT_EQ(FileSystem::Query(scratch.Path(name)).size, 5);
    }
}

TEST(FileSystemQuery, PathLongerThanOldLimitIsFound)
{
    const ScratchFolder scratch;
    const CString folder = MakeDeepFolder(scratch);
    ASSERT_GT(folder.GetLength(), 500);
    EXPECT_TRUE(FileSystem::Exists(folder));
    EXPECT_TRUE(FileSystem::IsFolder(folder));
    EXPECT_EQ(FileSystem::Query(folder).kind, Kind::Folder);
}

TEST(FileSystemLinks, LinkToAFileIsThatFile)
{
    const ScratchFolder scratch;
    const CString file = scratch.WriteFile(u"file", "seven b");
    if (const std::string reason = VyrTests::MakeLink(file, scratch.Path(u"link")); !reason.empty())
        GTEST_SKIP() << reason;
    const FileSystem::Entry entry = FileSystem::Query(scratch.Path(u"link"));
    EXPECT_EQ(entry.kind, Kind::File);
    EXPECT_TRUE(entry.isLink);
    EXPECT_EQ(entry.size, 7);
    EXPECT_EQ(entry.modified, FileSystem::Query(file).modified);
    EXPECT_TRUE(FileSystem::Exists(scratch.Path(u"link")));
    EXPECT_FALSE(FileSystem::IsFolder(scratch.Path(u"link")));
}

TEST(FileSystemLinks, LinkToAFolderIsAFolder)
{
    const ScratchFolder scratch;
    if (const std::string reason = VyrTests::MakeLink(scratch.MakeFolder(u"folder"), scratch.Path(u"link"));
        !reason.empty())
        GTEST_SKIP() << reason;
    const FileSystem::Entry entry = FileSystem::Query(scratch.Path(u"link"));
    EXPECT_EQ(entry.kind, Kind::Folder);
    EXPECT_TRUE(entry.isLink);
    EXPECT_TRUE(FileSystem::IsFolder(scratch.Path(u"link")));
}

TEST(FileSystemLinks, BrokenLinkExistsAsOther)
{
    const ScratchFolder scratch;
    if (const std::string reason = VyrTests::MakeLink(scratch.Path(u"nothing"), scratch.Path(u"link")); !reason.empty())
        GTEST_SKIP() << reason;
    const FileSystem::Entry entry = FileSystem::Query(scratch.Path(u"link"));
    EXPECT_EQ(entry.kind, Kind::Other);
    EXPECT_TRUE(entry.isLink);
    EXPECT_EQ(entry.modified, std::nullopt);
    EXPECT_EQ(entry.accessed, std::nullopt);
    EXPECT_EQ(entry.created, std::nullopt);
    EXPECT_TRUE(FileSystem::Exists(scratch.Path(u"link")));
    EXPECT_FALSE(FileSystem::IsFolder(scratch.Path(u"link")));
}

TEST(FileSystemLinks, LinksInACycleAreOther)
{
    const ScratchFolder scratch;
    if (const std::string reason = VyrTests::MakeLink(scratch.Path(u"b"), scratch.Path(u"a")); !reason.empty())
        GTEST_SKIP() << reason;
    ASSERT_EQ(VyrTests::MakeLink(scratch.Path(u"a"), scratch.Path(u"b")), "");
    EXPECT_EQ(FileSystem::Query(scratch.Path(u"a")).kind, Kind::Other);
    EXPECT_TRUE(FileSystem::Exists(scratch.Path(u"a")));
    EXPECT_FALSE(FileSystem::Exists(scratch.Path(u"a/below")));
}

TEST(FileSystemCreateFolder, CreatesAMissingFolder)
{
    const ScratchFolder scratch;
    EXPECT_EQ(FileSystem::CreateFolder(scratch.Path(u"new")), 0U);
    EXPECT_TRUE(std::filesystem::is_directory(VyrTests::ToStdPath(scratch.Path(u"new"))));
}

TEST(FileSystemCreateFolder, RefusesAnExistingFolder)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"file", "content");
    EXPECT_NE(FileSystem::CreateFolder(scratch.MakeFolder(u"folder")), 0U);
    EXPECT_NE(FileSystem::CreateFolder(scratch.Path(u"file")), 0U);
    EXPECT_EQ(scratch.ReadFile(u"file"), "content");
}

TEST(FileSystemCreateFolder, RefusesAMissingParent)
{
    const ScratchFolder scratch;
    EXPECT_NE(FileSystem::CreateFolder(scratch.Path(u"no/new")), 0U);
    EXPECT_FALSE(scratch.Has(u"no"));
    EXPECT_NE(FileSystem::CreateFolder(u""), 0U);
}

TEST(FileSystemLinkTarget, IsTheTextOfTheLink)
{
    const ScratchFolder scratch;
    const CString file = scratch.WriteFile(u"file");
    if (const std::string reason = VyrTests::MakeLink(file, scratch.Path(u"link")); !reason.empty())
        GTEST_SKIP() << reason;
    EXPECT_GE(FileSystem::GetLinkTarget(scratch.Path(u"link")).value_or(CString()).Find(file), 0);
    ASSERT_EQ(VyrTests::MakeLink(u"no way/é", scratch.Path(u"dangling")), "");
    EXPECT_GE(FileSystem::GetLinkTarget(scratch.Path(u"dangling")).value_or(CString()).Find(u"é"), 0);
}

TEST(FileSystemLinkTarget, IsNothingWithoutALink)
{
    const ScratchFolder scratch;
    for (const CString& path : {scratch.WriteFile(u"file"), scratch.MakeFolder(u"folder"), scratch.Path(u"missing")})
        EXPECT_EQ(FileSystem::GetLinkTarget(path), std::nullopt);
}

TEST(FileSystemSeparator, IsOneOfThoseThatSeparate)
{
    EXPECT_TRUE(FileSystem::IsSeparator(FileSystem::Separator()));
    EXPECT_TRUE(FileSystem::IsSeparator(u'/'));
    EXPECT_FALSE(FileSystem::IsSeparator(u'a'));
    EXPECT_FALSE(FileSystem::IsSeparator(u':'));
    EXPECT_FALSE(FileSystem::IsSeparator(u'\0'));
}

TEST(FileSystemWithSeparator, AddsOneOnlyWhereThereIsNone)
{
    const CString separator(FileSystem::Separator(), 1);
    EXPECT_EQ(FileSystem::WithSeparator(u"folder"), u"folder" + separator);
    EXPECT_EQ(FileSystem::WithSeparator(u"folder" + separator), u"folder" + separator);
    EXPECT_EQ(FileSystem::WithSeparator(u"folder/"), u"folder/");
    EXPECT_EQ(FileSystem::WithSeparator(separator), separator);
}

TEST(FileSystemJoinPath, PutsOneSeparatorBetweenFolderAndName)
{
    const CString separator(FileSystem::Separator(), 1);
    const CString joined = u"folder" + separator + u"name";
    EXPECT_EQ(FileSystem::JoinPath(u"folder", u"name"), joined);
    EXPECT_EQ(FileSystem::JoinPath(u"folder" + separator, u"name"), joined);
    EXPECT_EQ(FileSystem::JoinPath(separator, u"name"), separator + u"name");
}

TEST(FileSystemJoinPath, NameInNoFolderIsTheName)
{
    EXPECT_EQ(FileSystem::JoinPath(u"", u"name"), u"name");
}

TEST(FileSystemRemoveFile, RemovesOnlyTheFile)
{
    const ScratchFolder scratch;
    EXPECT_EQ(FileSystem::RemoveFile(scratch.WriteFile(u"a", "content")), 0U);
    EXPECT_FALSE(scratch.Has(u"a"));
    EXPECT_NE(FileSystem::RemoveFile(scratch.Path(u"a")), 0U);
    scratch.WriteFile(u"folder/b", "content");
    EXPECT_NE(FileSystem::RemoveFile(scratch.Path(u"folder")), 0U);
    EXPECT_NE(FileSystem::RemoveFile(scratch.MakeFolder(u"empty")), 0U);
    EXPECT_NE(FileSystem::RemoveFile(CString()), 0U);
    EXPECT_EQ(scratch.ReadFile(u"folder/b"), "content");
    EXPECT_TRUE(scratch.Has(u"empty"));
}
