// The standard streams and arguments of a program of its own.
#include <tests/support/ChildProcess.h>
#include <tests/support/ScratchFolder.h>

#include <VyrHostPlatform/Console.h>
#include <VyrPlatform/text/Encoding.h>

#include <gtest/gtest.h>
#include <random>

using namespace VyrHostPlatform;
using namespace VyrPlatform;
using VyrTests::BesideThisProgram;
using VyrTests::ProgramCall;
using VyrTests::ProgramResult;
using VyrTests::RunProgram;

namespace {

ProgramCall ProbeCall(std::vector<CString> arguments, std::string input = {})
{
    return {BesideThisProgram(u"PlatformProbe"), std::move(arguments), std::move(input)};
}

} // namespace

TEST(ConsoleTest, ArgumentsAreUnchanged)
{
    const std::vector<CString> arguments = {u"plain", u"two words", u"",      u"\"quoted\"",   u"back\\slash\\",
                                            u"\\\"",  u"*",         u"?.jpg", u"$HOME %PATH%", u"ä 日本 \U0001F600",
                                            u"'",     u" "};
    std::vector<CString> call = {u"arguments"};
    call.insert(call.end(), arguments.begin(), arguments.end());
    std::string expected;
    for (const CString& argument : arguments)
        expected += Encoding::ToUtf8(argument) + "\n";
    const ProgramResult result = RunProgram(ProbeCall(call));
    EXPECT_EQ(result.output, expected);
    EXPECT_EQ(result.exitCode, 0);
}

TEST(ConsoleTest, ArgumentThatIsNotUnicodeIsReversible)
{
    const CString name(std::u16string_view(u"caf\xDCE9.jpg"));
    EXPECT_EQ(RunProgram(ProbeCall({u"arguments", name})).output, "caf\xE9.jpg\n");
}

TEST(ConsoleTest, ListIsEmptyWithoutArguments)
{
    EXPECT_EQ(RunProgram(ProbeCall({u"arguments"})).output, "");
}

TEST(ConsoleTest, NoByteOfTheStreamsIsChanged)
{
    std::string bytes;
    for (int value = 0; value < 256; ++value)
        bytes += static_cast<char>(value);
    bytes += "\n\r\n\n\x1A after what ends a text file";
    const ProgramResult result = RunProgram(ProbeCall({u"copy"}, bytes));
    EXPECT_EQ(result.output, bytes);
    EXPECT_EQ(result.errors, bytes);
    EXPECT_EQ(result.exitCode, 0);
}

TEST(ConsoleTest, LongInputArrivesWhole)
{
    std::mt19937 random(3);
    std::string bytes(std::size_t{3} << 20, '\0');
    for (char& byte : bytes)
        byte = static_cast<char>(random());
    const ProgramResult result = RunProgram(ProbeCall({u"copy"}, bytes));
    EXPECT_TRUE(result.output == bytes);
    EXPECT_TRUE(result.errors == bytes);
}

TEST(ConsoleTest, InputThatCannotBeReadIsAnError)
{
    const VyrTests::ScratchFolder folder;
    ProgramCall call = ProbeCall({u"copy"});
    call.inputFrom = folder.Path();
    EXPECT_EQ(RunProgram(call).exitCode, 4);
    folder.WriteFile(u"file", "content");
    call.inputFrom = folder.Path(u"file");
    const ProgramResult result = RunProgram(call);
    EXPECT_EQ(result.output, "content");
    EXPECT_EQ(result.exitCode, 0);
}

TEST(ConsoleTest, EmptyInputIsAtItsEndAtOnce)
{
    const ProgramResult result = RunProgram(ProbeCall({u"copy"}));
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.exitCode, 0);
}

TEST(ConsoleTest, ClosedOutputFailsTheWriteAndNotTheProgram)
{
    ProgramCall call = ProbeCall({u"copy"}, "text");
    call.isOutputClosed = true;
    const ProgramResult result = RunProgram(call);
    // The probe's own code for a refused write; the signal of a broken pipe would give another.
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(result.errors, "");
}

TEST(ConsoleTest, PipesAreNoTerminals)
{
    EXPECT_EQ(RunProgram(ProbeCall({u"terminals"})).output, "0 0 0 0\n");
}
