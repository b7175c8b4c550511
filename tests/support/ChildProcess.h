// For tests: running a program as a user's shell does, without a shell.
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
    /// The program gets each exactly as it stands.
    std::vector<CString> arguments;
    /// The bytes of its standard input.
    std::string input = {};
    /// What its environment has other than the test's own; nothing takes the variable away.
    std::map<CString, std::optional<CString>> environment = {};
    /// The folder in which it runs; empty: the test's own.
    CString folder = {};
    /// More input may come, which never does: its standard input has no end.
    bool staysInputOpen = false;
    /// Its standard output is a pipe that nobody reads any more.
    bool isOutputClosed = false;
};

struct ProgramResult
{
    /// What it ended with; on Linux 128 plus the signal that ended it.
    int exitCode = -1;
    std::string output;
    std::string errors;
};

/// A program at work. One that runs for more than two minutes is killed, and the test fails.
class ChildProcess
{
public:
    /// Starts the program; throws std::runtime_error when the system does not.
    explicit ChildProcess(const ProgramCall& call);
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;
    /// Kills it where nobody has waited for it.
    ~ChildProcess();

    /// Waits until its standard output holds `text`; false when it ends without it.
    [[nodiscard]] bool WaitForOutput(std::string_view text);
    /// Interrupts it, as Ctrl-C does; on Windows every program that the test runs at the time gets it.
    void Interrupt();
    /// Ends it at once, as a crash does.
    void Kill();
    /// Waits for its end. To be called once.
    [[nodiscard]] ProgramResult Wait();

private:
    struct State;
    std::unique_ptr<State> m_state;
};

/// Runs a program to its end.
[[nodiscard]] ProgramResult RunProgram(const ProgramCall& call);

/// The full path of the program `name` (without ".exe") that the build puts beside the test's own.
[[nodiscard]] CString BesideThisProgram(std::u16string_view name);

} // namespace VyrTests
