// Linux names are bytes: names that are not UTF-8, and texts that encode no bytes.
#include <VyrPlatform/files/FileReader.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/files/FileTimes.h>
#include <VyrPlatform/files/FolderListing.h>
#include <VyrPlatform/text/Encoding.h>
#include <tests/support/Describe.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <tests/support/linux/Unprivileged.h>

#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

namespace FileSystem = VyrPlatform::FileSystem;
using FileSystem::Kind;
using VyrPlatform::FolderListing;
using VyrTests::ScratchFolder;

namespace {

/// Names in many ways no UTF-8, none of which another must be taken for.
const std::string oddNames[] = {"\xff",         "Gr\xfcn.jpg",  "a\x80z",           "\xc3",         "\xc0\x80",
                                "\xed\xa0\x80", "\xed\xb2\x80", "\xf4\x90\x80\x80", "\xf0\x9f\x93", "\xf0\x9f\x93\xb7",
                                "a\nb",         "back\\slash",  "C:\\file"};

} // namespace

TEST(FileNames, ThatAreNotUtf8AreConvertedBack)
{
    const ScratchFolder scratch;
    const std::filesystem::path folder = VyrTests::ToStdPath(scratch.Path());
    std::set<std::string> expected;
    for (const std::string& name : oddNames) {
        std::ofstream(folder / name) << name;
        expected.insert(name);
    }
    std::set<std::string> found;
    for (FolderListing listing(scratch.Path()); listing.Next();) {
        const std::string name = VyrPlatform::Encoding::ToNameBytes(listing.Name());
        found.insert(name);
        const CString path = scratch.Path() + u"/" + listing.Name();
        EXPECT_EQ(FileSystem::Query(path).size, static_cast<std::int64_t>(name.size()));
        EXPECT_TRUE(VyrPlatform::FileReader(path).IsOpen());
        EXPECT_TRUE(VyrPlatform::FileTimes::GetModified(path));
    }
    EXPECT_EQ(found, expected);
}

TEST(FileNames, WithASurrogateThatEncodesNoByteNameNoFile)
{
    const ScratchFolder scratch;
    // The bytes that UTF-8's scheme would give to the lone surrogate U+D800 name a file of their own.
    std::ofstream(VyrTests::ToStdPath(scratch.Path()) / "\xed\xa0\x80") << "content";
    for (const CString name : {u"\xD800", u"a\xD800z", u"\xDBFF", u"\xDC00", u"\xDC7F", u"\xDD00", u"\xDFFF",
                               u"\xD800\xD83D\xDCF7", u"\xDC80\xDC00"}) {
        const CString path = scratch.Path() + u"/" + name;
        EXPECT_EQ(FileSystem::Query(path).kind, Kind::Missing);
        EXPECT_FALSE(FileSystem::Exists(path));
        EXPECT_NE(FileSystem::CreateFolder(path), 0U);
        EXPECT_FALSE(VyrPlatform::FileReader(path).IsOpen());
        EXPECT_FALSE(VyrPlatform::FileTimes::GetModified(path));
    }
}

TEST(FileNames, MayFillALongPath)
{
    const ScratchFolder scratch;
    for (const CString& part : {CString(u'n', 250), CString(u'ü', 120)}) {
        CString path = scratch.Path();
        for (int level = 0; level < 12; ++level) {
            path = path + u"/" + part;
            ASSERT_EQ(FileSystem::CreateFolder(path), 0U) << level;
        }
        EXPECT_TRUE(FileSystem::IsFolder(path));
    }
    EXPECT_FALSE(FileSystem::Exists(scratch.Path() + CString(u'/', 100'000) + u"n"));
}

TEST(FileNames, SeparatorBehindAFileNamesNoFile)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a") + u"/";
    EXPECT_EQ(FileSystem::Query(path).kind, Kind::Missing);
    EXPECT_FALSE(FileSystem::Exists(path));
}

TEST(FileKinds, PipesSocketsAndDevicesAreOther)
{
    const ScratchFolder scratch;
    ASSERT_EQ(mkfifo(VyrTests::ToStdPath(scratch.Path(u"pipe")).c_str(), 0600), 0);
    sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
    const std::string socketName = VyrTests::ToStdPath(scratch.Path(u"socket"));
    ASSERT_LT(socketName.size(), sizeof address.sun_path);
    socketName.copy(address.sun_path, sizeof address.sun_path - 1);
    const int descriptor = socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_EQ(bind(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    close(descriptor);

    for (const CString& path : {scratch.Path(u"pipe"), scratch.Path(u"socket"), CString(u"/dev/null")}) {
        const FileSystem::Entry entry = FileSystem::Query(path);
        EXPECT_EQ(entry.kind, Kind::Other);
        EXPECT_FALSE(entry.isLink);
        EXPECT_EQ(entry.size, 0);
        EXPECT_TRUE(FileSystem::Exists(path));
        const VyrPlatform::FileReader reader(path);
        EXPECT_FALSE(reader.IsOpen());
        EXPECT_NE(reader.Error(), 0U);
    }
    int count = 0;
    for (FolderListing listing(scratch.Path()); listing.Next(); ++count)
        EXPECT_EQ(listing.Kind(), Kind::Other);
    EXPECT_EQ(count, 2);
}

TEST(FilePermissions, EntriesOfALockedFolderAreMissing)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"locked/a", "content");
    const CString folder = scratch.Path(u"locked");
    std::filesystem::permissions(VyrTests::ToStdPath(folder), std::filesystem::perms::none);
    const VyrTests::Unprivileged user;
    ASSERT_TRUE(user.IsDone());
    EXPECT_EQ(FileSystem::Query(folder).kind, Kind::Folder);
    EXPECT_EQ(FileSystem::Query(scratch.Path(u"locked/a")).kind, Kind::Missing);
    EXPECT_FALSE(FileSystem::Exists(scratch.Path(u"locked/a")));
    EXPECT_NE(FileSystem::CreateFolder(scratch.Path(u"locked/new")), 0U);
    EXPECT_FALSE(VyrPlatform::FileTimes::GetModified(scratch.Path(u"locked/a")));
    FolderListing listing(folder);
    EXPECT_FALSE(listing.Next());
    EXPECT_EQ(listing.Error(), static_cast<std::uint32_t>(EACCES));
}

TEST(FilePermissions, LockedFileHasAStateButDoesNotOpen)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a", "content");
    std::filesystem::permissions(VyrTests::ToStdPath(path), std::filesystem::perms::none);
    const VyrTests::Unprivileged user;
    ASSERT_TRUE(user.IsDone());
    EXPECT_EQ(FileSystem::Query(path).size, 7);
    const VyrPlatform::FileReader reader(path);
    EXPECT_FALSE(reader.IsOpen());
    EXPECT_EQ(reader.Error(), static_cast<std::uint32_t>(EACCES));
}
