// Files on a Windows disk, whose driver keeps properties in extended attributes.
#include <VyrPlatform/files/FileAttributes.h>
#include <VyrPlatform/files/FileCopy.h>
#include <VyrPlatform/files/FileTimes.h>
#include <VyrPlatform/files/NamedStreams.h>
#include <tests/support/FileMoments.h>
#include <tests/support/StdPath.h>
#include <tests/support/linux/NtfsDisk.h>

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <sys/stat.h>
#include <sys/xattr.h>

namespace FileAttributes = VyrPlatform::FileAttributes;
namespace FileTimes = VyrPlatform::FileTimes;
using namespace std::string_view_literals;

namespace {

/// A mounted disk with the file "a".
class Ntfs : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!m_disk.WhyNot().empty())
            GTEST_SKIP() << m_disk.WhyNot();
        m_disk.Outside().WriteFile(u"disk/a", "content");
    }

    [[nodiscard]] CString Path(std::u16string_view name) const { return m_disk.Path(name); }
    [[nodiscard]] const VyrTests::ScratchFolder& Outside() const { return m_disk.Outside(); }

    void SetAttribute(const char* name, std::string_view value) const
    {
        ASSERT_EQ(setxattr(VyrTests::ToStdPath(Path(u"a")).c_str(), name, value.data(), value.size(), 0), 0);
    }

    [[nodiscard]] std::string GetAttribute(const char* name) const
    {
        std::string value(64, '\0');
        const ssize_t size = getxattr(VyrTests::ToStdPath(Path(u"a")).c_str(), name, value.data(), value.size());
        value.resize(size > 0 ? static_cast<std::size_t>(size) : 0);
        return value;
    }

private:
    VyrTests::NtfsDisk m_disk;
};

} // namespace

TEST_F(Ntfs, CreationTimeIsTheOneOfTheDisk)
{
    // 1 January 2000, as the driver takes it: most significant byte first.
    SetAttribute("system.ntfs_crtime_be", "\x01\xbf\x53\xeb\x25\x6d\x40\x00"sv);
    constexpr VyrPlatform::FileTicks modified = VyrTests::TicksOfUnixTime(1'234'567'890);
    VyrTests::StampFile(Path(u"a"), modified, modified);
    EXPECT_EQ(FileTimes::GetCreated(Path(u"a")), 0x01'BF'53'EB'25'6D'40'00);
    EXPECT_EQ(FileTimes::GetModified(Path(u"a")), modified);
}

TEST_F(Ntfs, CreationTimeIsSetOnTheDisk)
{
    constexpr VyrPlatform::FileTicks created = 0x01'BF'53'EB'25'6D'40'07;
    ASSERT_EQ(FileTimes::SetCreated(Path(u"a"), created), 0U);
    EXPECT_EQ(FileTimes::GetCreated(Path(u"a")), created);
    EXPECT_LT(getxattr(VyrTests::ToStdPath(Path(u"a")).c_str(), "user.DOSATTRIB", nullptr, 0), 0);
}

TEST_F(Ntfs, ReadOnlyAttributeMakesAFileReadOnly)
{
    EXPECT_FALSE(VyrPlatform::FileAttributes::IsReadOnly(Path(u"a")));
    SetAttribute("system.ntfs_attrib_be", "\0\0\0\x21"sv);
    EXPECT_TRUE(VyrPlatform::FileAttributes::IsReadOnly(Path(u"a")));
}

TEST_F(Ntfs, AttributesAreThoseOfTheDisk)
{
    SetAttribute("system.ntfs_attrib_be", "\0\0\x01\x26"sv);
    EXPECT_EQ(FileAttributes::Get(Path(u"a")), 0x126U);
    ASSERT_EQ(FileAttributes::Set(Path(u"a"), 0x3007), 0U);
    EXPECT_EQ(GetAttribute("system.ntfs_attrib_be"), "\0\0\x30\x07"sv);
    EXPECT_EQ(FileAttributes::Get(Path(u"a")), 0x3007U);
    ASSERT_EQ(FileAttributes::Set(Path(u"a"), 0), 0U);
    EXPECT_EQ(FileAttributes::Get(Path(u"a")), 0x80U);
    EXPECT_EQ(GetAttribute("user.DOSATTRIB"), "");
}

TEST_F(Ntfs, AttributesOfAFolderAreThoseOfTheDisk)
{
    const CString folder = Outside().MakeFolder(u"disk/folder");
    EXPECT_EQ(FileAttributes::Get(folder) & ~0x20U, 0x10U);
    ASSERT_EQ(FileAttributes::Set(folder, 0x13), 0U);
    EXPECT_EQ(FileAttributes::Get(folder), 0x13U);
    EXPECT_TRUE(FileAttributes::IsReadOnly(folder));
}

TEST_F(Ntfs, TimesAreWrittenToTheTick)
{
    constexpr VyrPlatform::FileTicks created = 0x01'BF'53'EB'25'6D'40'07;
    ASSERT_EQ(FileTimes::Write(Path(u"a"), {.created = created, .modified = created + 1, .accessed = created + 2}), 0U);
    EXPECT_EQ(FileTimes::GetCreated(Path(u"a")), created);
    EXPECT_EQ(FileTimes::GetModified(Path(u"a")), created + 1);
    EXPECT_EQ(FileTimes::GetAccessed(Path(u"a")), created + 2);
    ASSERT_EQ(FileAttributes::Set(Path(u"a"), 0x21), 0U);
    EXPECT_NE(FileTimes::Write(Path(u"a"), {.modified = created}), 0U) << "it is read-only";
}

TEST_F(Ntfs, ZoneMarkIsAStreamAndIsRemoved)
{
    SetAttribute("user.Zone.Identifier", "[ZoneTransfer]\r\nZoneId=3\r\n");
    EXPECT_EQ(VyrPlatform::NamedStreams::DeleteZoneMark(Path(u"a")), 0U);
    EXPECT_NE(VyrPlatform::NamedStreams::DeleteZoneMark(Path(u"a")), 0U);
    EXPECT_EQ(Outside().ReadFile(u"disk/a"), "content");
}

TEST_F(Ntfs, CopySucceedsWithoutTheModeThatTheDiskCannotKeep)
{
    const CString source = Outside().WriteFile(u"b", "from outside");
    ASSERT_EQ(chmod(VyrTests::ToStdPath(source).c_str(), 0640), 0);
    constexpr VyrPlatform::FileTicks modified = VyrTests::TicksOfUnixTime(1'234'567'890, 1'234'500);
    VyrTests::StampFile(source, modified, modified);
    EXPECT_EQ(VyrPlatform::FileCopy::Copy(source, Path(u"new")), 0U);
    EXPECT_EQ(VyrPlatform::FileCopy::Copy(source, Path(u"a")), 0U);
    EXPECT_EQ(VyrPlatform::FileCopy::Move(source, Path(u"moved")), 0U);
    for (const CString name : {u"disk/new", u"disk/a", u"disk/moved"}) {
        EXPECT_EQ(Outside().ReadFile(name), "from outside");
        EXPECT_EQ(FileTimes::GetModified(Outside().Path(name)), modified);
    }
    EXPECT_FALSE(Outside().Has(u"b"));
}
