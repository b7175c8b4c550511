// Where the program keeps its files.
#include <VyrLibraryUtils/PathUtils.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/process/Process.h>
#include <VyrPlatform/text/Encoding.h>

#include <tests/support/ChildProcess.h>
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

TEST(PathUtils, PutsEachFileInTheFolderOfTheProgramsProduct)
{
    EXPECT_EQ(PathUtils::GetApplicationLogFolderPath(), Below(DataLocation::State, {u"Companion t\u00E9sts", u"Logs"}));
    EXPECT_EQ(PathUtils::GetLocalDataApplicationFilePath(),
              Below(DataLocation::Local, {u"Companion t\u00E9sts", u"Application.ini"}));
    EXPECT_EQ(PathUtils::GetUpdatesFilePath(), Below(DataLocation::Roaming, {u"Companion t\u00E9sts", u"Updates.ini"}));
    EXPECT_EQ(PathUtils::GetLocalDataUpdatesFilePath(),
              Below(DataLocation::Local, {u"Companion t\u00E9sts", u"Updates.ini"}));
}

TEST(PathUtils, ReplacesForbiddenCharactersOfTheProductsName)
{
    const VyrTests::ProgramResult result =
        VyrTests::RunProgram({VyrTests::BesideThisProgram(u"VersionedProbe"), {u"log-folder"}});
    EXPECT_EQ(VyrPlatform::Encoding::FromNameBytes(result.output),
              Below(DataLocation::State, {u"Pr\u00FCf-_Programm_ _ 日本", u"Logs"}) + u"\n");
}

TEST(PathUtils, NamesTheFolderOfAProgramWithoutAProductByItsFile)
{
    const VyrTests::ProgramResult result =
        VyrTests::RunProgram({VyrTests::BesideThisProgram(u"PlatformProbe"), {u"log-folder"}});
    EXPECT_EQ(VyrPlatform::Encoding::FromNameBytes(result.output),
              Below(DataLocation::State, {u"PlatformProbe", u"Logs"}) + u"\n");
}

TEST(PathUtils, HasTwoUpdatesFilesOfOneNameInDifferentFolders)
{
    EXPECT_NE(PathUtils::GetUpdatesFilePath(), PathUtils::GetLocalDataUpdatesFilePath());
    EXPECT_TRUE(PathUtils::GetUpdatesFilePath().View().ends_with(PathUtils::GetUpdatesFileName()));
    EXPECT_TRUE(PathUtils::GetLocalDataUpdatesFilePath().View().ends_with(PathUtils::GetUpdatesFileName()));
    EXPECT_EQ(PathUtils::GetUpdatesFileName(), u"Updates.ini");
}

} // namespace
