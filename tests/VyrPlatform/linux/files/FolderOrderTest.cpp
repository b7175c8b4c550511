// The order of a folder's entries is the system's own.
#include <VyrPlatform/files/CFileFind.h>
#include <VyrPlatform/files/FolderListing.h>
#include <tests/support/Describe.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <gtest/gtest.h>

#include <dirent.h>
#include <string_view>
#include <vector>

using VyrTests::ScratchFolder;

namespace {

std::vector<CString> NamesOfTheSystem(const CString& folder)
{
    std::vector<CString> names;
    DIR* const entries = opendir(VyrTests::ToStdPath(folder).c_str());
    while (const dirent* const entry = readdir(entries))
        names.push_back(VyrTests::FromStdPath(entry->d_name));
    closedir(entries);
    return names;
}

} // namespace

TEST(FolderOrder, IsTheSystemsWithDotsAndWithout)
{
    const ScratchFolder scratch;
    for (int number = 0; number < 50; ++number)
        scratch.WriteFile(CString(static_cast<char16_t>(u'0' + number), 1 + number % 7));
    std::vector<CString> expected = NamesOfTheSystem(scratch.Path());
    ASSERT_EQ(expected.size(), 52U);

    std::vector<CString> found;
    CFileFind finder;
    for (bool more = finder.FindFile(scratch.Path(u"*.*")); more;) {
        more = finder.FindNextFile();
        found.push_back(finder.GetFileName());
    }
    EXPECT_EQ(found, expected);

    std::erase_if(expected, [](const CString& name) { return name == u"." || name == u".."; });
    std::vector<CString> listed;
    for (VyrPlatform::FolderListing listing(scratch.Path()); listing.Next();)
        listed.push_back(listing.Name());
    EXPECT_EQ(listed, expected);
}
