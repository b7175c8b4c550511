// Listings with names that only some file systems distinguish.
#include <VyrHost/model/FolderSet.h>

#include <gtest/gtest.h>
#include <tests/VyrHost/collect/ListedNames.h>
#include <tests/support/Describe.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <filesystem>
#include <string>
#include <vector>

namespace {

using namespace VyrHost::Model;
using namespace VyrTests;

TEST(FolderSetOnLinux, HasAllNamesThatDifferInCaseAlone)
{
    const ScratchFolder scratch;
    for (const char16_t* const name : {u"img10.JPG", u"IMG2.jpg", u"img2.jpg", u"Img2.jpg", u"img10.jpg", u"img1.jpg"})
        scratch.WriteFile(name);
    FolderSet folders;
    Folder& folder = folders[folders.Open(scratch.Path() + u"/", u"")];
    EXPECT_EQ(NamesIn(folder), (std::vector<std::u16string>{u"img1.jpg", u"IMG2.jpg", u"Img2.jpg", u"img2.jpg",
                                                            u"img10.JPG", u"img10.jpg"}));
    for (const NameRecord& record : folder.names.Records())
        EXPECT_EQ(folder.names.Find(record.name), &record);
    EXPECT_EQ(folder.names.Find(u"iMg2.jpg"), nullptr);
}

TEST(FolderSetOnLinux, HasNamesThatAreNotText)
{
    const ScratchFolder scratch;
    const std::filesystem::path folderPath = ToStdPath(scratch.Path());
    // Bytes that are not UTF-8, a line break, a backslash.
    for (const char* const name : {"b\xFF", "a\n", "c\\d", "b\xFE"})
        ASSERT_TRUE(std::filesystem::create_directory(folderPath / name));
    FolderSet folders;
    Folder& folder = folders[folders.Open(scratch.Path() + u"/", u"")];
    const std::vector<std::u16string> names = NamesIn(folder);
    ASSERT_EQ(names.size(), 4u);
    EXPECT_EQ(names[0], u"a\n");
    EXPECT_EQ(names[3], u"c\\d");
    EXPECT_EQ(ToStdPath(scratch.Path()) / ToStdPath(CString(names[1])), folderPath / "b\xFE");
    EXPECT_EQ(ToStdPath(scratch.Path()) / ToStdPath(CString(names[2])), folderPath / "b\xFF");
}

TEST(FolderSetOnLinux, RecognisesAFolderThroughALink)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"folder/name");
    std::filesystem::create_directory_symlink("folder", ToStdPath(scratch.Path(u"link")));
    std::filesystem::create_symlink("nowhere", ToStdPath(scratch.Path(u"lost")));
    FolderSet folders;
    const std::uint32_t number = folders.Open(scratch.Path(u"folder") + u"/", u"");
    EXPECT_EQ(folders.Open(scratch.Path(u"link") + u"/", u""), number);
    Folder& outer = folders[folders.Open(scratch.Path() + u"/", u"")];
    EXPECT_EQ(NamesIn(outer), (std::vector<std::u16string>{u"folder", u"link", u"lost"}));
    EXPECT_FALSE(outer.names.Find(u"folder")->isLink);
    EXPECT_TRUE(outer.names.Find(u"link")->isLink);
    EXPECT_TRUE(outer.names.Find(u"lost")->isLink);
}

} // namespace
