// Programs started as the user's shell does.
#include <tests/support/ChildProcess.h>
#include <tests/support/ScratchFolder.h>

#include <VyrPlatform/process/Shell.h>

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

using namespace VyrPlatform;
using VyrTests::BesideThisProgram;
using VyrTests::ScratchFolder;

namespace {

void WaitFor(const ScratchFolder& scratch, std::u16string_view name)
{
    while (!scratch.Has(name))
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
}

CString ProgramFile()
{
    return BesideThisProgram(u"PlatformProbe");
}

} // namespace

TEST(Shell, ProgramIsStartedWithItsArguments)
{
    const ScratchFolder scratch;
    const CString arguments =
        CString::Join({u"write \"", scratch.Path(u"told"), u"\"  /name \"two words\" \"\" a\"b c\"d é"});
    EXPECT_GT(Shell::Start(nullptr, ProgramFile(), arguments), 32U);
    WaitFor(scratch, u"told");
    EXPECT_EQ(scratch.ReadFile(u"told"), "/name\ntwo words\n\nab cd\né\n");
}

TEST(Shell, StartDoesNotWaitForTheEnd)
{
    const ScratchFolder scratch;
    // The program cannot end before the file is there, which is made after Start has come back.
    const CString arguments =
        CString::Join({u"wait-for \"", scratch.Path(u"go"), u"\" \"", scratch.Path(u"gone"), u"\""});
    EXPECT_GT(Shell::Start(nullptr, ProgramFile(), arguments), 32U);
    EXPECT_FALSE(scratch.Has(u"gone"));
    scratch.WriteFile(u"go");
    WaitFor(scratch, u"gone");
}

TEST(Shell, MissingProgramIsNumberTwo)
{
    const ScratchFolder scratch;
    EXPECT_EQ(Shell::Start(nullptr, scratch.Path(u"missing.exe"), u"/x"), 2U);
}

TEST(Shell, SetStarterIsCalledInsteadOfTheSystem)
{
    Shell::Window window = nullptr;
    CString started;
    Shell::SetStarter([&](Shell::Window owner, const CString& path, const CString& arguments) -> std::uintptr_t {
        window = owner;
        started = CString::Join({path, u"|", arguments});
        return 77;
    });
    int place = 0;
    auto* const given = reinterpret_cast<Shell::Window>(&place);
    EXPECT_EQ(Shell::Start(given, u"a", u"b c"), 77U);
    Shell::SetStarter({});
    EXPECT_EQ(window, given);
    EXPECT_EQ(started, u"a|b c");
    const ScratchFolder scratch;
    EXPECT_EQ(Shell::Start(nullptr, scratch.Path(u"missing"), u""), 2U);
}
