// Every form in which programs on Linux mark a download.
#include <VyrPlatform/files/NamedStreams.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <tests/support/linux/Unprivileged.h>

#include <gtest/gtest.h>

#include <cerrno>
#include <string>
#include <sys/xattr.h>

namespace NamedStreams = VyrPlatform::NamedStreams;
using VyrTests::ScratchFolder;

namespace {

const std::string attributeNames[] = {"user.DosStream.Zone.Identifier:$DATA", "user.DosStream.Zone.Identifier",
                                      "user.Zone.Identifier", "user.xdg.origin.url", "user.xdg.referrer.url"};

void SetAttribute(const CString& path, const std::string& name)
{
    ASSERT_EQ(setxattr(VyrTests::ToStdPath(path).c_str(), name.c_str(), "value", 5, 0), 0);
}

bool HasAttribute(const CString& path, const std::string& name)
{
    return getxattr(VyrTests::ToStdPath(path).c_str(), name.c_str(), nullptr, 0) >= 0;
}

} // namespace

TEST(NamedStreamsForms, EachSingleFormIsRemoved)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a", "content");
    for (const std::string& name : attributeNames) {
        SetAttribute(path, name);
        EXPECT_EQ(NamedStreams::DeleteZoneMark(path), 0U) << name;
        EXPECT_FALSE(HasAttribute(path, name)) << name;
    }
    scratch.WriteFile(u"a:Zone.Identifier", "[ZoneTransfer]");
    EXPECT_EQ(NamedStreams::DeleteZoneMark(path), 0U);
    EXPECT_FALSE(scratch.Has(u"a:Zone.Identifier"));
    EXPECT_EQ(NamedStreams::DeleteZoneMark(path), static_cast<std::uint32_t>(ENOENT));
    EXPECT_EQ(scratch.ReadFile(u"a"), "content");
}

TEST(NamedStreamsForms, AllFormsAtOnceAreRemoved)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a", "content");
    for (const std::string& name : attributeNames)
        SetAttribute(path, name);
    scratch.WriteFile(u"a:Zone.Identifier", "[ZoneTransfer]");
    EXPECT_EQ(NamedStreams::DeleteZoneMark(path), 0U);
    for (const std::string& name : attributeNames)
        EXPECT_FALSE(HasAttribute(path, name)) << name;
    EXPECT_FALSE(scratch.Has(u"a:Zone.Identifier"));
}

TEST(NamedStreamsForms, OtherAttributesAndNeighboursStay)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    SetAttribute(path, "user.comment");
    SetAttribute(path, "user.DosStream.Other:$DATA");
    scratch.WriteFile(u"b:Zone.Identifier");
    scratch.WriteFile(u"a:Other");
    EXPECT_NE(NamedStreams::DeleteZoneMark(path), 0U);
    EXPECT_TRUE(HasAttribute(path, "user.comment"));
    EXPECT_TRUE(HasAttribute(path, "user.DosStream.Other:$DATA"));
    EXPECT_TRUE(scratch.Has(u"b:Zone.Identifier"));
    EXPECT_TRUE(scratch.Has(u"a:Other"));
}

TEST(NamedStreamsForms, SiblingOfAMissingFileStays)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"a:Zone.Identifier");
    EXPECT_NE(NamedStreams::DeleteZoneMark(scratch.Path(u"a")), 0U);
    EXPECT_TRUE(scratch.Has(u"a:Zone.Identifier"));
}

TEST(NamedStreamsForms, FolderIsUnmarkedWithAnySeparatorsAtItsEnd)
{
    const ScratchFolder scratch;
    const CString folder = scratch.MakeFolder(u"folder");
    scratch.WriteFile(u"folder/:Zone.Identifier");
    for (const char16_t* const ending : {u"", u"/", u"//"}) {
        scratch.WriteFile(u"folder:Zone.Identifier");
        EXPECT_EQ(NamedStreams::DeleteZoneMark(folder + ending), 0U);
        EXPECT_FALSE(scratch.Has(u"folder:Zone.Identifier"));
    }
    EXPECT_TRUE(scratch.Has(u"folder/:Zone.Identifier"));
}

TEST(NamedStreamsForms, MarkWithoutPermissionGivesAnError)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    SetAttribute(path, attributeNames[0]);
    std::filesystem::permissions(VyrTests::ToStdPath(path),
                                 std::filesystem::perms::owner_read | std::filesystem::perms::others_read);
    {
        const VyrTests::Unprivileged user;
        ASSERT_TRUE(user.IsDone());
        EXPECT_EQ(NamedStreams::DeleteZoneMark(path), static_cast<std::uint32_t>(EACCES));
    }
    EXPECT_TRUE(HasAttribute(path, attributeNames[0]));
}

TEST(NamedStreamsForms, FileSystemWithoutAttributesGivesAnError)
{
    EXPECT_NE(NamedStreams::DeleteZoneMark(u"/proc/self/status"), 0U);
}
