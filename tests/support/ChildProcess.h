// For tests: runs a program as a shell does, without a shell.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace VyrTests {

struct ProgramCall
{
    /// The full path of the program, see BesideThisProgram.
    CString program;
    /// The program gets each argument unchanged.
    std::vector<CString> arguments;
    /// The bytes of its standard input.
    std::string input = {};
    /// Variables that differ from the test's own environment; without a value the variable is removed.
    std::map<CString, std::optional<CString>> environment = {};
    /// The folder in which it runs; empty: the test's own.
    CString folder = {};
    /// The file or folder that its standard input is opened on, in place of `input`.
    CString inputFrom = {};
    /// Its standard input never ends.
    bool staysInputOpen = false;
    /// Its standard output is a pipe whose reader is gone.
    bool isOutputClosed = false;
    /// It stops before each change, see ChildProcess::GoToNextChange.
    bool stopsAtChanges = false;
};

struct ProgramResult
{
    /// Its exit code; on Linux 128 plus the signal that ended it.
    int exitCode = -1;
    std::string output;
    std::string errors;
};

/// A running program. After two minutes it is killed and the test fails.
class ChildProcess
{
public:
    /// Starts the program; throws std::runtime_error when that fails.
    explicit ChildProcess(const ProgramCall& call);
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;
    /// Kills the program unless it was waited for.
    ~ChildProcess();

    /// Waits until its standard output holds `text`; false when the program ends first.
    [[nodiscard]] bool WaitForOutput(std::string_view text);
    /// Lets a program that stops at changes work until it is about to make the next one, and holds it there. A change
    /// is a call of the system that creates, writes, renames, flushes or deletes a file or folder, or sets its
    /// properties. The same work makes the same changes each time. Call it on the thread that started the program.
    /// @return false when the program ended instead.
    [[nodiscard]] bool GoToNextChange();
    /// Interrupts it as Ctrl-C does; on Windows every running program of the test is interrupted. One that is held
    /// makes the change that it is held before, and knows of the interrupt after that.
    void Interrupt();
    /// Kills it at once, as a crash does. One that is held does not make the change that it is held before.
    void Kill();
    /// Waits for its end; one that is held goes on. Call it once.
    [[nodiscard]] ProgramResult Wait();

private:
    struct State;
    std::unique_ptr<State> m_state;
};

/// Runs a program to its end.
[[nodiscard]] ProgramResult RunProgram(const ProgramCall& call);

/// Runs a program to its end.
/// @return how many changes it made, see ChildProcess::GoToNextChange.
[[nodiscard]] int CountChanges(ProgramCall call);

/// The full path of the program `name` (without ".exe") that the build puts beside the test's own.
[[nodiscard]] CString BesideThisProgram(std::u16string_view name);

} // namespace VyrTests
