// Tests of the program: a current folder that was removed.
#include "../VyrProgram.h"

#include <gmock/gmock.h>

using namespace VyrTests;

namespace {

using RemovedFolder = VyrProgram;

} // namespace

TEST_F(RemovedFolder, IsNotTakenForTheRoot)
{
    for (const std::vector<CString>& arguments : {std::vector<CString>{u"rename", u"--prefix", u"x", u"etc"},
                                                  {u"rename", u"--prefix", u"x", u"*"},
                                                  {u"list", u"-r", u"."},
                                                  {u"copy", u"etc", u"to"},
                                                  {u"undo"}}) {
        ProgramCall call = CallOf(arguments);
        const std::vector<CString> shell = {u"-c", u"mkdir gone && cd gone && rmdir ../gone && exec \"$0\" \"$@\"",
                                            call.program};
        call.arguments.insert(call.arguments.begin(), shell.begin(), shell.end());
        call.program = u"/bin/sh";
        const ProgramResult result = RunProgram(call);
        EXPECT_EQ(result.exitCode, 2) << result.output;
        EXPECT_EQ(result.errors, "vyr: the current folder does not exist any more; change to one that does\n");
        EXPECT_EQ(result.output, "");
    }
}
