// Private-profile files on Linux: properties that Windows' own functions do not have.
#include <VyrPlatform/documents/PrivateProfile.h>

#include <tests/support/Describe.h>
#include <tests/support/FileState.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <sys/stat.h>

namespace PrivateProfile = VyrPlatform::PrivateProfile;
using VyrTests::ScratchFolder;

TEST(PrivateProfileLinux, BytesThatAreNoTextStayAsTheyAre)
{
    const ScratchFolder scratch;
    const std::string hostile = "; \xFF\xC3\x28\xE4\xB8\r\n[S]\r\nother=\xE4\xF6\xFC\xC3\r\n";
    const CString path = scratch.WriteFile(u"a.ini", hostile);
    EXPECT_EQ(PrivateProfile::WriteText(path, u"S", u"k", u"v"), 0U);
    EXPECT_EQ(scratch.ReadFile(u"a.ini"), hostile + "k=v\r\n");
}

TEST(PrivateProfileLinux, FirstNameLikeAMarkIsNotReadAsOne)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a.ini", "\v\xFF\xFE\r\n[S]\r\nk=v\r\n");
    EXPECT_EQ(PrivateProfile::WriteText(path, u"S", u"l", u"w"), 0U);
    EXPECT_EQ(scratch.ReadFile(u"a.ini"), "\r\n\xFF\xFE\r\n[S]\r\nk=v\r\nl=w\r\n");
    EXPECT_EQ(PrivateProfile::ReadText(path, u"S", u"k", 260), u"v");
}

TEST(PrivateProfileLinux, WrittenFileKeepsItsModeAndALinkStaysOne)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a.ini", "[S]\nk=v\n");
    const std::filesystem::path stdPath = VyrTests::ToStdPath(path);
    ASSERT_EQ(chmod(stdPath.c_str(), 0604), 0);
    std::filesystem::create_symlink("a.ini", VyrTests::ToStdPath(scratch.Path(u"link.ini")));
    EXPECT_EQ(PrivateProfile::WriteText(scratch.Path(u"link.ini"), u"S", u"k", u"w"), 0U);
    EXPECT_TRUE(std::filesystem::is_symlink(VyrTests::ToStdPath(scratch.Path(u"link.ini"))));
    EXPECT_EQ(PrivateProfile::WriteText(path, u"S", u"l", u"x"), 0U);
    EXPECT_EQ(scratch.ReadFile(u"a.ini"), "[S]\r\nk=w\r\nl=x\r\n");
    struct stat status;
    ASSERT_EQ(stat(stdPath.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0604U);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(stdPath.parent_path()), {}), 2);
}

TEST(PrivateProfileLinux, ReadOnlyFileIsNotWritten)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a.ini", "[S]\nk=v\n");
    VyrTests::SetReadOnly(path, true);
    EXPECT_NE(PrivateProfile::WriteText(path, u"S", u"k", u"w"), 0U);
    EXPECT_EQ(PrivateProfile::WriteText(path, u"S", u"k", u"v"), 0U) << "there is nothing to write";
    EXPECT_EQ(scratch.ReadFile(u"a.ini"), "[S]\nk=v\n");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(VyrTests::ToStdPath(scratch.Path())), {}), 1);
}

TEST(PrivateProfileLinux, NamesAreFoundWithoutRegardToCaseBeyondAscii)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a.ini", "\xEF\xBB\xBF[\xD0\xAF]\n\xC3\x84=v");
    EXPECT_EQ(PrivateProfile::ReadText(path, u"\u044F", u"\u00E4", 260), u"v");
}

TEST(PrivateProfileLinux, HugeFileAndPipeAreNotRead)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"huge.ini", "[S]\nk=v\n");
    std::filesystem::resize_file(VyrTests::ToStdPath(path), 65ULL * 1024 * 1024);
    EXPECT_EQ(PrivateProfile::ReadText(path, u"S", u"k", 260), u"");
    EXPECT_NE(PrivateProfile::WriteText(path, u"S", u"k", u"w"), 0U);
    const CString pipe = scratch.Path(u"pipe");
    ASSERT_EQ(mkfifo(VyrTests::ToStdPath(pipe).c_str(), 0600), 0);
    EXPECT_EQ(PrivateProfile::ReadText(pipe, u"S", u"k", 260), u"");
    EXPECT_NE(PrivateProfile::WriteText(pipe, u"S", u"k", u"w"), 0U);
}
