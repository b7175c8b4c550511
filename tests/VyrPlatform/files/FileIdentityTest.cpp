#include <tests/support/Links.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <VyrPlatform/files/FileIdentity.h>

#include <gtest/gtest.h>

#include <filesystem>

namespace {

using namespace VyrPlatform;
using VyrPlatform::FileSystem::Kind;
using VyrTests::ScratchFolder;
using VyrTests::ToStdPath;
namespace fs = std::filesystem;

TEST(FileIdentity, StaysTheSameThroughARename)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a", "content");
    const FileState before = LookAtFile(path);
    fs::rename(ToStdPath(path), ToStdPath(scratch.Path(u"b")));
    const FileState after = LookAtFile(scratch.Path(u"b"));
    EXPECT_EQ(after.identity, before.identity);
    EXPECT_EQ(after.modified, before.modified);
    EXPECT_EQ(after.size, 7);
    EXPECT_EQ(after.kind, Kind::File);
    EXPECT_EQ(after.links, 1u);
    EXPECT_EQ(after.error, 0u);
}

TEST(FileIdentity, DiffersBetweenFiles)
{
    const ScratchFolder scratch;
    const FileState a = LookAtFile(scratch.WriteFile(u"a", "same"));
    const FileState b = LookAtFile(scratch.WriteFile(u"b", "same"));
    EXPECT_EQ(a.identity.device, b.identity.device);
    EXPECT_NE(a.identity.number, b.identity.number);
}

TEST(FileIdentity, IsOneForHardLinks)
{
    const ScratchFolder scratch;
    const CString a = scratch.WriteFile(u"a");
    fs::create_hard_link(ToStdPath(a), ToStdPath(scratch.Path(u"b")));
    EXPECT_EQ(LookAtFile(a).identity, LookAtFile(scratch.Path(u"b")).identity);
    EXPECT_EQ(LookAtFile(a).links, 2u);
}

TEST(FileIdentity, ShowsAChangedContent)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a", "short");
    fs::last_write_time(ToStdPath(path), fs::file_time_type::clock::now() - std::chrono::hours(1));
    const FileState before = LookAtFile(path);
    scratch.WriteFile(u"a", "much longer");
    EXPECT_EQ(LookAtFile(path).size, 11);
    EXPECT_GT(LookAtFile(path).modified, before.modified);
}

TEST(FileIdentity, KnowsFolders)
{
    const ScratchFolder scratch;
    const FileState state = LookAtFile(scratch.Path());
    EXPECT_EQ(state.kind, Kind::Folder);
    EXPECT_EQ(state.size, 0);
}

TEST(FileIdentity, IsOfALinkItself)
{
    const ScratchFolder scratch;
    const CString target = scratch.WriteFile(u"target");
    const std::string whyNot = VyrTests::MakeLink(target, scratch.Path(u"link"));
    if (!whyNot.empty())
        GTEST_SKIP() << whyNot;
    EXPECT_EQ(LookAtFile(scratch.Path(u"link")).kind, Kind::Other);
    EXPECT_NE(LookAtFile(scratch.Path(u"link")).identity, LookAtFile(target).identity);
}

TEST(FileIdentity, GivesTheReasonForAMissingEntry)
{
    const ScratchFolder scratch;
    EXPECT_EQ(LookAtFile(scratch.Path(u"nothing")).kind, Kind::Missing);
    EXPECT_NE(LookAtFile(scratch.Path(u"nothing")).error, 0u);
    EXPECT_EQ(LookAtFile(u"").kind, Kind::Missing);
    EXPECT_EQ(LookAtFile(CString(std::u16string_view(u"a\0b", 3))).kind, Kind::Missing);
}

} // namespace
