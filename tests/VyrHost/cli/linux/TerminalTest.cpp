// Tests of the program on a terminal.
#include "../VyrProgram.h"

#include <gmock/gmock.h>
#include <tests/support/linux/OnTerminal.h>

using namespace VyrTests;
using testing::HasSubstr;
using testing::Not;

namespace {

using OnTerminal = VyrProgram;

} // namespace

TEST_F(OnTerminal, IsInColourUnlessTheTerminalIsDumb)
{
    m_folder.WriteFile(u"a");
    m_environment[u"NO_COLOR"] = std::nullopt;
    const std::vector<CString> call = {u"rename", u"--case", u"lower", u"a"};
    m_environment[u"TERM"] = u"xterm";
    EXPECT_THAT(RunOnTerminal(CallOf(call), 80).output, HasSubstr("\x1b[2m"));
    m_environment[u"TERM"] = u"dumb";
    EXPECT_THAT(RunOnTerminal(CallOf(call), 80).output, Not(HasSubstr("\x1b")));
}

TEST_F(OnTerminal, NamesAreShownWhole)
{
    const std::string name(200, 'n');
    m_folder.WriteFile(VyrPlatform::Encoding::FromUtf8(name));
    const std::string output =
        RunOnTerminal(CallOf({u"rename", u"--prefix", u"x", VyrPlatform::Encoding::FromUtf8(name)}), 80).output;
    EXPECT_THAT(output, HasSubstr(name + "\r\n  ->  x" + name + "\r\n"));
}

TEST_F(OnTerminal, TheEditorOpensAgainAfterAMistake)
{
    // The first edit removes the tab from the second line, the next one corrects that.
    m_folder.WriteFile(u"one", "1");
    m_folder.WriteFile(u"two", "2");
    m_folder.WriteFile(u"editor", "#!/bin/sh\nif grep -q BROKEN \"$1\"\nthen sed -i 's/^BROKEN/2\\t/' \"$1\"\n"
                                  "else sed -i 's/^2\\ttwo/BROKENthree/' \"$1\"\nfi\n");
    m_environment[u"VISUAL"] = std::nullopt;
    m_environment[u"EDITOR"] = u"sh ./editor";
    const std::vector<CString> arguments = {u"rename", u"--edit", u"--apply", u"one", u"two"};
    const ProgramResult result = RunOnTerminal(CallOf(arguments, "\n"), 80);
    EXPECT_EQ(result.exitCode, 0) << result.output;
    EXPECT_THAT(result.output, HasSubstr("a number and a tab are expected before the name\r\nPress Enter to edit"));
    EXPECT_EQ(m_folder.ReadFile(u"three"), "2");
    EXPECT_TRUE(m_folder.Has(u"one"));
}

TEST_F(OnTerminal, TheEditedTextIsKeptWhenTheMistakeIsNotCorrected)
{
    const ScratchFolder temporary;
    m_folder.WriteFile(u"one", "1");
    m_environment[u"TMPDIR"] = temporary.Path();
    m_environment[u"VISUAL"] = std::nullopt;
    m_environment[u"EDITOR"] = u"sed -i s/^1/9/";
    // Ctrl-D ends the input.
    const ProgramResult result = RunOnTerminal(CallOf({u"rename", u"--edit", u"one"}, "\x04"), 80);
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_THAT(result.output, HasSubstr("The edited text is kept in "));
    EXPECT_NE(std::filesystem::directory_iterator(ToStdPath(temporary.Path())), std::filesystem::directory_iterator());
}
