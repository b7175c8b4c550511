#include <tests/VyrLibraryFuncs/PrivateOperations.h>

#include <VyrLibraryFuncs/shell/ControlPanelFuncs.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/process/Process.h>
#include <VyrPlatform/process/Shell.h>

#include <gtest/gtest.h>

using VyrLibraryFuncs::ControlPanelFuncs;
using VyrLibraryFuncs::PrivateOperations;

namespace Shell = VyrPlatform::Shell;

namespace {

/// Records the programs to be started, and returns `m_answer`.
class ControlPanel : public testing::Test
{
protected:
    ControlPanel()
    {
        Shell::SetStarter([this](Shell::Window window, const CString& path, const CString& given) {
            ++starts;
            owner = window;
            program = path;
            arguments = given;
            return answer;
        });
    }
    ~ControlPanel() override { Shell::SetStarter({}); }

    int starts = 0;
    Shell::Window owner = nullptr;
    CString program;
    CString arguments;
    std::uintptr_t answer = 33;
};

} // namespace

TEST_F(ControlPanel, PagesAreOpenedByTheirNames)
{
    EXPECT_EQ(ControlPanelFuncs::ExecDateAndTime(nullptr), 1);
    EXPECT_EQ(arguments, u"/name Microsoft.DateAndTime");
    EXPECT_EQ(owner, nullptr);
    EXPECT_EQ(ControlPanelFuncs::ExecProgramsAndFeatures(nullptr), 1);
    EXPECT_EQ(arguments, u"/name Microsoft.ProgramsAndFeatures");
    EXPECT_EQ(starts, 2);
}

TEST_F(ControlPanel, ProgramIsThatOfTheSystemsFolder)
{
    EXPECT_EQ(PrivateOperations::ExecuteItems(nullptr, u"/any thing"), 1);
    EXPECT_EQ(arguments, u"/any thing");
    const CString folder = VyrPlatform::Process::GetSystemFolder();
    EXPECT_EQ(program.Left(folder.GetLength()), folder);
    EXPECT_EQ(program.Mid(folder.GetLength() + 1), u"control.exe");
}

TEST_F(ControlPanel, OwnerIsPassedOn)
{
    int place = 0;
    auto* const window = reinterpret_cast<Shell::Window>(&place);
    EXPECT_EQ(ControlPanelFuncs::ExecDateAndTime(window), 1);
    EXPECT_EQ(owner, window);
}

TEST_F(ControlPanel, NumbersUpTo32AreFailures)
{
    for (const std::uintptr_t failure : {0U, 2U, 5U, 31U, 32U}) {
        answer = failure;
        EXPECT_EQ(ControlPanelFuncs::ExecDateAndTime(nullptr), 0);
        EXPECT_EQ(ControlPanelFuncs::ExecProgramsAndFeatures(nullptr), 0);
    }
    answer = 42;
    EXPECT_EQ(ControlPanelFuncs::ExecDateAndTime(nullptr), 1);
}
