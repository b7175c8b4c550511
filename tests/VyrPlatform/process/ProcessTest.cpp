// The running program and the system's folders.
#include <tests/support/ChildProcess.h>
#include <tests/support/ScratchFolder.h>

#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/process/Process.h>
#include <VyrPlatform/text/Encoding.h>

#include <gtest/gtest.h>

using namespace VyrPlatform;
using VyrTests::BesideThisProgram;
using VyrTests::ProgramResult;
using VyrTests::RunProgram;

namespace {

/// The output of the probe, without the line end.
CString Probe(std::vector<CString> arguments, std::map<CString, std::optional<CString>> environment = {})
{
    const ProgramResult result =
        RunProgram({BesideThisProgram(u"PlatformProbe"), std::move(arguments), {}, std::move(environment)});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_TRUE(result.output.ends_with('\n'));
    return Encoding::FromNameBytes(result.output.substr(0, result.output.find_last_not_of('\n') + 1));
}

CString VersionOf(std::u16string_view program)
{
    const ProgramResult result = RunProgram({BesideThisProgram(program), {u"version"}});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    return Encoding::FromUtf8(result.output);
}

} // namespace

TEST(ProcessTest, ProgramPathLeadsToTheProgram)
{
    EXPECT_EQ(FileSystem::Query(Process::GetProgramPath()).kind, FileSystem::Kind::File);
    EXPECT_EQ(Probe({u"path"}), BesideThisProgram(u"PlatformProbe"));
}

TEST(ProcessTest, ProgramReadsItsOwnVersionBack)
{
    EXPECT_EQ(VersionOf(u"VersionedProbe"), u"3.14.8.65535|Prüf-\"Programm\" \\ 日本|3.14 beta; 2\n");
}

TEST(ProcessTest, ProgramWithoutVersionReadsZerosAndEmptyTexts)
{
    EXPECT_EQ(VersionOf(u"PlatformProbe"), u"0.0.0.0||\n");
}

TEST(ProcessTest, SystemFolderExists)
{
    const CString folder = Process::GetSystemFolder();
    EXPECT_TRUE(FileSystem::IsFolder(folder));
    EXPECT_FALSE(FileSystem::IsSeparator(folder[folder.GetLength() - 1]));
    const CString apps = Process::GetSystemAppsFolder();
    EXPECT_FALSE(apps.IsEmpty());
    EXPECT_FALSE(FileSystem::IsSeparator(apps[apps.GetLength() - 1]));
}

TEST(ProcessTest, DataFoldersAreNamedWithoutASeparatorAtTheEnd)
{
    using Process::DataLocation;
    for (const DataLocation location : {DataLocation::Local, DataLocation::Roaming, DataLocation::State}) {
        const CString folder = Process::GetDataFolder(location);
        ASSERT_FALSE(folder.IsEmpty());
        EXPECT_FALSE(FileSystem::IsSeparator(folder[folder.GetLength() - 1]));
    }
    EXPECT_NE(Process::GetDataFolder(DataLocation::Local), Process::GetDataFolder(DataLocation::Roaming));
}

TEST(ProcessTest, EnvironmentVariablesHaveTheirValues)
{
    const CString longValue = CString(u'x', 6000) + u" ä 日本";
    EXPECT_EQ(Probe({u"environment", u"VYR_PROBE"}, {{u"VYR_PROBE", u"ä=b;c"}}), u"ä=b;c");
    EXPECT_EQ(Probe({u"environment", u"VYR_PROBE"}, {{u"VYR_PROBE", longValue}}), longValue);
}

TEST(ProcessTest, EmptyVariableIsNotAnUnsetOne)
{
    EXPECT_EQ(Probe({u"environment", u"VYR_PROBE"}, {{u"VYR_PROBE", u""}}), u"");
    const ProgramResult unset =
        RunProgram({BesideThisProgram(u"PlatformProbe"), {u"environment", u"VYR_PROBE"}, {}, {{u"VYR_PROBE", {}}}});
    EXPECT_EQ(unset.exitCode, 3);
    EXPECT_FALSE(Process::GetEnvironment(u"VYR_A_VARIABLE_THAT_NOBODY_SETS"));
    EXPECT_FALSE(Process::GetEnvironment(u""));
}

TEST(ProcessTest, CurrentFolderIsAFullPath)
{
    const VyrTests::ScratchFolder scratch;
    // Longer in all than the first buffer that most programs offer.
    const CString name = u"Ordner ä " + CString(u'n', 100);
    const CString folder = scratch.MakeFolder(name + u"/" + name);
    const ProgramResult result = RunProgram({BesideThisProgram(u"PlatformProbe"), {u"current-folder"}, {}, {}, folder});
    EXPECT_EQ(Encoding::FromUtf8(result.output), folder + u"\n");
    EXPECT_TRUE(FileSystem::IsFolder(Process::GetCurrentFolder()));
}

TEST(ProcessTest, ErrorCodesHaveMessagesOfOneLine)
{
    // 2 is "no such file" on both systems, 5 is an error on both.
    for (const std::uint32_t code : {2U, 5U}) {
        const CString message = Process::GetErrorMessage(code);
        ASSERT_FALSE(message.IsEmpty());
        EXPECT_EQ(message.View().find_first_of(u"\r\n"), std::u16string_view::npos);
        EXPECT_NE(message[message.GetLength() - 1], u' ');
    }
    EXPECT_NE(Process::GetErrorMessage(2), Process::GetErrorMessage(5));
}

TEST(ProcessTest, UnknownErrorCodeHasNoMessage)
{
    EXPECT_EQ(Process::GetErrorMessage(0x2000BEEF), u"");
    EXPECT_EQ(Process::GetErrorMessage(0xFFFFFFFF), u"");
}
