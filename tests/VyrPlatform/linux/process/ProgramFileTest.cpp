// The path of a program's own file on Linux.
#include <tests/support/ChildProcess.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <VyrPlatform/text/Encoding.h>

#include <filesystem>
#include <gtest/gtest.h>

using VyrTests::BesideThisProgram;
using VyrTests::RunProgram;

TEST(ProgramFileTest, LongPathThatIsNotUtf8IsWhole)
{
    const VyrTests::ScratchFolder scratch;
    const CString part(u'p', 200);
    const CString folder = scratch.MakeFolder(part + u"/" + part);
    const CString program = folder + std::u16string_view(u"/probe \xDCE9");
    std::filesystem::copy(VyrTests::ToStdPath(BesideThisProgram(u"PlatformProbe")), VyrTests::ToStdPath(program));
    const VyrTests::ProgramResult result = RunProgram({program, {u"path"}});
    EXPECT_EQ(result.output, VyrPlatform::Encoding::ToNameBytes(program) + "\n") << result.errors;
}

TEST(ProgramFileTest, PathStaysWhenTheFileIsReplacedOrRemovedWhileItRuns)
{
    namespace fs = std::filesystem;
    for (const char16_t* const name : {u"probe", u"probe (deleted)", u"probe (deleted) (deleted)"}) {
        for (const bool isReplaced : {false, true}) {
            const VyrTests::ScratchFolder scratch;
            const CString program = scratch.Path(name);
            fs::copy(VyrTests::ToStdPath(BesideThisProgram(u"PlatformProbe")), VyrTests::ToStdPath(program));
            VyrTests::ChildProcess child({program, {u"path-when-gone"}});
            ASSERT_TRUE(child.WaitForOutput("ready\n"));
            fs::remove(VyrTests::ToStdPath(program));
            if (isReplaced)
                scratch.WriteFile(name, "another file");
            const VyrTests::ProgramResult result = child.Wait();
            EXPECT_EQ(result.output, "ready\n" + VyrPlatform::Encoding::ToNameBytes(program) + "\n") << result.errors;
        }
    }
}

TEST(ProgramFileTest, DamagedVersionNoteIsNoVersion)
{
    for (const char16_t* program : {u"UnendedVersionProbe", u"OverlongVersionProbe"}) {
        const VyrTests::ProgramResult result = RunProgram({BesideThisProgram(program), {u"version"}});
        EXPECT_EQ(result.output, "0.0.0.0||\n");
        EXPECT_EQ(result.exitCode, 0) << result.errors;
    }
}
