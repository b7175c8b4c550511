// A program on a pseudo-terminal.
#include <tests/support/linux/OnTerminal.h>

#include <VyrPlatform/text/Encoding.h>

#include <cstdlib>
#include <pty.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace VyrTests {

namespace {

using VyrPlatform::Encoding::ToNameBytes;

/// What the forked child does; it never comes back.
[[noreturn]] void Become(const ProgramCall& call)
{
    for (const auto& [name, value] : call.environment) {
        if (value)
            ::setenv(ToNameBytes(name).c_str(), ToNameBytes(*value).c_str(), 1);
        else
            ::unsetenv(ToNameBytes(name).c_str());
    }
    std::vector<std::string> texts = {ToNameBytes(call.program)};
    for (const CString& argument : call.arguments)
        texts.push_back(ToNameBytes(argument));
    std::vector<char*> pointers;
    for (std::string& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    if (call.folder.IsEmpty() || ::chdir(ToNameBytes(call.folder).c_str()) == 0)
        ::execv(pointers.front(), pointers.data());
    ::_exit(127);
}

} // namespace

ProgramResult RunOnTerminal(const ProgramCall& call, unsigned short columns)
{
    const winsize size{25, columns, 0, 0};
    int terminal = -1;
    const pid_t child = ::forkpty(&terminal, nullptr, nullptr, &size);
    if (child == 0)
        Become(call);
    ProgramResult result;
    // The terminal keeps what is typed until the program reads it.
    if (::write(terminal, call.input.data(), call.input.size()) < 0)
        result.errors = "cannot type";
    char bytes[4096];
    // A terminal whose last program has ended gives an error, not an end.
    for (ssize_t count = 0; (count = ::read(terminal, bytes, sizeof bytes)) > 0;)
        result.output.append(bytes, static_cast<std::size_t>(count));
    int status = 0;
    ::waitpid(child, &status, 0);
    ::close(terminal);
    result.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    return result;
}

} // namespace VyrTests
