// Where the program keeps its files.
#include <VyrLibraryUtils/PathUtils.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/process/Process.h>

#include <tests/support/Describe.h>

#include <gtest/gtest.h>

using VyrLibraryUtils::PathUtils;
using VyrPlatform::Process::DataLocation;
using VyrPlatform::Process::GetDataFolder;

namespace {

/// `location` and `parts` in it, joined by the system's separator.
CString Below(DataLocation location, std::initializer_list<std::u16string_view> parts)
{
    CString path = GetDataFolder(location);
    EXPECT_NE(path, u"");
    for (const std::u16string_view part : parts) {
        path += VyrPlatform::FileSystem::Separator();
        path += part;
    }
    return path;
}

TEST(PathUtils, PutsEachFileInTheProductsFolderOfItsLocation)
{
    EXPECT_EQ(PathUtils::GetApplicationLogFolderPath(), Below(DataLocation::State, {u"VyrLibrary", u"Logs"}));
    EXPECT_EQ(PathUtils::GetLocalDataApplicationFilePath(),
              Below(DataLocation::Local, {u"VyrLibrary", u"Application.ini"}));
    EXPECT_EQ(PathUtils::GetUpdatesFilePath(), Below(DataLocation::Roaming, {u"VyrLibrary", u"Updates.ini"}));
    EXPECT_EQ(PathUtils::GetLocalDataUpdatesFilePath(), Below(DataLocation::Local, {u"VyrLibrary", u"Updates.ini"}));
}

TEST(PathUtils, KeepsTheTwoUpdatesFilesApartUnderOneName)
{
    EXPECT_NE(PathUtils::GetUpdatesFilePath(), PathUtils::GetLocalDataUpdatesFilePath());
    EXPECT_TRUE(PathUtils::GetUpdatesFilePath().View().ends_with(PathUtils::GetUpdatesFileName()));
    EXPECT_TRUE(PathUtils::GetLocalDataUpdatesFilePath().View().ends_with(PathUtils::GetUpdatesFileName()));
    EXPECT_EQ(PathUtils::GetUpdatesFileName(), u"Updates.ini");
}

} // namespace
