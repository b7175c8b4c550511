// Tests of the program: a system without settings pages.
#include <tests/VyrHost/cli/VyrProgram.h>

using namespace VyrTests;

namespace {

class SettingsPageLinux : public VyrProgram
{};

} // namespace

TEST_F(SettingsPageLinux, CannotBeOpened)
{
    const ProgramResult programs = Run({u"programs", u"--open-settings"});
    EXPECT_EQ(programs.exitCode, 4);
    EXPECT_EQ(programs.errors, "vyr: this system's list of programs cannot be opened\n");
    const ProgramResult times = Run({u"times", u"--open-settings"});
    EXPECT_EQ(times.exitCode, 4);
    EXPECT_EQ(times.errors, "vyr: this system's page of date and time cannot be opened\n");
}
