// Every form in which programs on Linux mark a download.
#include <VyrPlatform/files/FileTimes.h>
#include <VyrPlatform/files/NamedStreams.h>
#include <tests/support/FileMoments.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <tests/support/linux/Unprivileged.h>

#include <gtest/gtest.h>

#include <cerrno>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
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

TEST(NamedStreamsForms, FileBesideTheMarkedOneComesBackWithItsPermissionsAndTimes)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a", "content");
    const std::string sibling = VyrTests::ToStdPath(scratch.WriteFile(u"a:Zone.Identifier", "[ZoneTransfer]"));
    const struct timespec times[] = {{1'600'000'000, 7}, {1'500'000'000, 5}};
    ASSERT_EQ(chmod(sibling.c_str(), 0440), 0);
    ASSERT_EQ(utimensat(AT_FDCWD, sibling.c_str(), times, 0), 0);
    std::uint32_t error = 0;
    const auto forms = NamedStreams::ReadZoneMark(path, error);
    ASSERT_TRUE(forms);
    ASSERT_EQ(forms->size(), 1U);
    EXPECT_EQ(forms->front().state, u"0440 1500000000.000000005 1600000000.000000007");
    ASSERT_EQ(NamedStreams::DeleteZoneMark(path), 0U);
    EXPECT_EQ(NamedStreams::WriteZoneForm(path, forms->front()), 0U);
    struct stat status = {};
    ASSERT_EQ(stat(sibling.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0440U);
    EXPECT_EQ(status.st_mtim.tv_sec, times[1].tv_sec);
    EXPECT_EQ(status.st_mtim.tv_nsec, times[1].tv_nsec);
    EXPECT_EQ(status.st_atim.tv_sec, times[0].tv_sec);
    EXPECT_EQ(status.st_atim.tv_nsec, times[0].tv_nsec);
    EXPECT_EQ(scratch.ReadFile(u"a:Zone.Identifier"), "[ZoneTransfer]");
}

TEST(NamedStreamsForms, StatesThatAreNoneAreRefusedAndWriteNothing)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a", "content");
    const CString name(NamedStreams::zoneStream);
    for (const char16_t* const state :
         {u"x", u"0644", u"0644 1.5", u"0644 1.000000005 1", u"77777 1.000000005 1.000000005"})
        EXPECT_EQ(NamedStreams::WriteZoneForm(path, {name, "x", state}), static_cast<std::uint32_t>(EINVAL));
    EXPECT_EQ(NamedStreams::WriteZoneForm(path, {u"user.xdg.origin.url", "x", u"0644 1.000000005 1.000000005"}),
              static_cast<std::uint32_t>(EINVAL));
    EXPECT_FALSE(scratch.Has(u"a:Zone.Identifier"));
    EXPECT_FALSE(HasAttribute(path, "user.xdg.origin.url"));
}

TEST(NamedStreamsForms, ReadingAMarkKeepsTheAccessTimeOfTheFileThatHoldsIt)
{
    constexpr VyrPlatform::FileTicks accessed = VyrTests::TicksOfUnixTime(1'000'000'000);
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    const CString sibling = scratch.WriteFile(u"a:Zone.Identifier", "[ZoneTransfer]");
    VyrTests::StampFile(sibling, accessed + 1, accessed);
    std::uint32_t error = 0;
    EXPECT_EQ(NamedStreams::ReadZoneMark(path, error).value().size(), 1U);
    EXPECT_EQ(VyrPlatform::FileTimes::GetAccessed(sibling), accessed);
}
