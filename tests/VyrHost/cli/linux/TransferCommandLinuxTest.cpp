// Tests of the program: folders with odd names, behind links, and interrupts before a folder is begun and in it.
#include "../VyrProgram.h"

#include <VyrHost/cli/Program.h>
#include <VyrHostPlatform/Interrupt.h>

#include <gmock/gmock.h>
#include <tests/support/MessagePosting.h>
#include <tests/support/StdPath.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <thread>
#include <vector>

using namespace VyrTests;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

using TransferCommandLinux = VyrProgram;

} // namespace

TEST_F(TransferCommandLinux, InterruptBeforeAFolderPreventsIt)
{
    m_folder.WriteFile(u"from/a", "1");
    const std::vector<CString> call = {u"move", m_folder.Path(u"from"), m_folder.Path(u"to"), u"--apply", u"--quiet"};
    const auto runInterrupted = [&call] {
        VyrHostPlatform::Interrupt::Catch();
        std::raise(SIGINT);
        std::_Exit(VyrHost::Cli::RunProgram(call));
    };
    EXPECT_EXIT(runInterrupted(), testing::ExitedWithCode(130), "from' not reached");
    EXPECT_EQ(m_folder.ReadFile(u"from/a"), "1");
    EXPECT_FALSE(m_folder.Has(u"to"));
}

TEST_F(TransferCommandLinux, InterruptInAFolderFinishesItAndIsReported)
{
    m_folder.WriteFile(u"one/a", "1");
    m_folder.WriteFile(u"one/b/c", "2");
    m_folder.WriteFile(u"two/d", "3");
    m_folder.MakeFolder(u"to");
    const std::vector<CString> call = {
        u"move", m_folder.Path(u"one"), m_folder.Path(u"two"), m_folder.Path(u"to"), u"--apply", u"--quiet"};
    const auto runInterrupted = [&call] {
        const MessagePosting posting;
        // The walk through the first folder runs this, and shows progress afterwards.
        posting.PostWork([] {
            std::raise(SIGINT);
            std::this_thread::sleep_for(std::chrono::milliseconds(250));
        });
        std::_Exit(VyrHost::Cli::RunProgram(call));
    };
    EXPECT_EXIT(runInterrupted(), testing::ExitedWithCode(130),
                "vyr: interrupted; '.*one' is finished first .*\n.*vyr: '.*two' not reached\n$");
    EXPECT_EQ(m_folder.ReadFile(u"to/one/a"), "1");
    EXPECT_EQ(m_folder.ReadFile(u"to/one/b/c"), "2");
    EXPECT_FALSE(m_folder.Has(u"one"));
    EXPECT_EQ(m_folder.ReadFile(u"two/d"), "3");
    EXPECT_FALSE(m_folder.Has(u"to/two"));
}

TEST_F(TransferCommandLinux, AFolderDoesNotGoIntoItselfThroughALink)
{
    m_folder.WriteFile(u"a/b/file", "1");
    std::filesystem::create_directory_symlink("a/b", ToStdPath(m_folder.Path(u"link")));
    for (const CString destination : {u"link", u"link/new"}) {
        const ProgramResult result = Run({u"move", u"a", destination, u"--apply"});
        EXPECT_EQ(result.exitCode, 2);
        EXPECT_THAT(result.errors, HasSubstr("is inside 'a'"));
    }
    EXPECT_EQ(m_folder.ReadFile(u"a/b/file"), "1");
}

TEST_F(TransferCommandLinux, OddNamesAreCopiedAndShownAsEscapes)
{
    m_folder.WriteFile(u"-a\n\xDCFF[1]/b\x1b", "1");
    const ProgramResult result = Run({u"copy", u"--apply", u"--", u"-a\n\xDCFF[1]", u"to"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_THAT(result.output, StartsWith("-a\\n\\udcff[1]  ->  to  1 folder, 1 file, 1 byte\n"));
    EXPECT_EQ(m_folder.ReadFile(u"to/b\x1b"), "1");
}
