// Tests of the program: --open-settings allows no other options.
#include "VyrProgram.h"

#include <gmock/gmock.h>

using namespace VyrTests;
using testing::HasSubstr;

namespace {

class SettingsPage : public VyrProgram
{};

} // namespace

TEST_F(SettingsPage, IsRefusedWithOtherOptionsAndNames)
{
    for (const std::vector<CString>& call : {std::vector<CString>{u"programs", u"--open-settings", u"--find", u"x"},
                                             std::vector<CString>{u"times", u"--open-settings", u"--shift", u"1h"},
                                             std::vector<CString>{u"times", u"--open-settings", u"a.jpg"}}) {
        const ProgramResult result = Run(call);
        EXPECT_EQ(result.exitCode, 2);
        EXPECT_THAT(result.errors, HasSubstr("--open-settings only opens a page of the system"));
    }
}
