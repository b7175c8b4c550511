// Long paths on Windows: what is handed to the system. (Wine itself has no limit, so that only the text can tell.)
#include <VyrPlatform/windows/files/LongPath.h>
#include <tests/support/Describe.h>

#include <gtest/gtest.h>

using VyrPlatform::AddLongPathPrefix;
using VyrPlatform::ToSystemPath;

namespace {

const CString longName(u'n', 250);

} // namespace

TEST(LongPath, DrivePathGetsThePrefix)
{
    EXPECT_EQ(AddLongPathPrefix(uR"(C:\folder\file)"), uR"(\\?\C:\folder\file)");
}

TEST(LongPath, NetworkPathGetsThePrefixOfNetworks)
{
    EXPECT_EQ(AddLongPathPrefix(uR"(\\server\share\file)"), uR"(\\?\UNC\server\share\file)");
}

TEST(LongPath, PathWithAPrefixStays)
{
    for (const CString path : {uR"(\\?\C:\file)", uR"(\\?\UNC\server\share)", uR"(\\.\NUL)"}) {
        EXPECT_EQ(AddLongPathPrefix(path), path);
        EXPECT_EQ(ToSystemPath(path), path);
    }
    const CString longPath = uR"(\\?\C:\)" + longName;
    EXPECT_EQ(ToSystemPath(longPath), longPath);
}

TEST(LongPath, ShortFullPathStaysAsItIsWritten)
{
    for (const CString path : {uR"(C:\file)", uR"(C:/folder/../file)", uR"(\\server\share\file)", uR"(C:\)"})
        EXPECT_EQ(ToSystemPath(path), path);
}

TEST(LongPath, PrefixBeginsWhereAFolderCouldNoLongerBeCreated)
{
    const CString longest = uR"(C:\)" + CString(u'n', 244);
    EXPECT_EQ(ToSystemPath(longest), longest);
    EXPECT_EQ(ToSystemPath(longest + u"n"), uR"(\\?\)" + longest + u"n");
}

TEST(LongPath, LongPathIsMadePlainSinceThePrefixEndsAllReading)
{
    EXPECT_EQ(ToSystemPath(u"C:/folder/../" + longName + u"/./file"), uR"(\\?\C:\)" + longName + uR"(\file)");
    EXPECT_EQ(ToSystemPath(uR"(\\server\share\folder\..\)" + longName), uR"(\\?\UNC\server\share\)" + longName);
}

TEST(LongPath, RelativePathBecomesFull)
{
    const CString path = ToSystemPath(u"file");
    EXPECT_EQ(path.Mid(1, 2), uR"(:\)");
    EXPECT_EQ(path.Right(5), uR"(\file)");
    const CString longPath = ToSystemPath(longName);
    EXPECT_EQ(longPath.Left(4), uR"(\\?\)");
    EXPECT_EQ(longPath.Right(251), uR"(\)" + longName);
}

TEST(LongPath, PathThatNoFileCanHaveIsEmpty)
{
    constexpr char16_t withNul[] = u"C:\\a\0b";
    EXPECT_EQ(ToSystemPath(u""), u"");
    EXPECT_EQ(ToSystemPath(CString(std::u16string_view(withNul, 6))), u"");
}

TEST(LongPath, SuffixCountsForTheLength)
{
    const CString path = uR"(C:\)" + CString(u'n', 240);
    EXPECT_EQ(ToSystemPath(path, u":Zone.Identifier"), uR"(\\?\)" + path + u":Zone.Identifier");
    EXPECT_EQ(ToSystemPath(uR"(C:\a)", uR"(\*)"), uR"(C:\a\*)");
}

TEST(LongPath, StreamOfANameOfOneLetterIsNoDrive)
{
    const CString path = ToSystemPath(u"a", u":Zone.Identifier");
    EXPECT_EQ(path.Mid(1, 2), uR"(:\)");
    EXPECT_EQ(path.Right(18), uR"(\a:Zone.Identifier)");
}
