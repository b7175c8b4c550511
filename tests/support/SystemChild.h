// For ChildProcess: a started program as each system has it.
#pragma once

#include <tests/support/ChildProcess.h>

#include <chrono>
#include <cstddef>
#include <cstdint>

namespace VyrTests {

/// A program and the test's ends of its three standard streams. Each stream may be used by a thread of its own.
class SystemChild
{
public:
    explicit SystemChild(const ProgramCall& call);
    SystemChild(const SystemChild&) = delete;
    SystemChild& operator=(const SystemChild&) = delete;
    ~SystemChild();

    /// Writes `bytes` to its standard input as far as it takes them.
    void WriteInput(std::string_view bytes);
    void EndInput();

    enum class Stream : std::uint8_t
    {
        Output,
        Errors
    };
    /// The next bytes that it has written to `stream`; empty at the end.
    [[nodiscard]] std::string Read(Stream stream);

    /// See ChildProcess.
    [[nodiscard]] bool GoToNextChange();

    /// The exit code, once it has ended; nothing when it still runs after `patience`.
    [[nodiscard]] std::optional<int> WaitFor(std::chrono::milliseconds patience);
    void Interrupt();
    void Kill();

private:
    struct Handles;
    std::unique_ptr<Handles> m_handles;
};

/// The ending of a program's file name: ".exe" or nothing.
[[nodiscard]] CString ProgramEnding();

} // namespace VyrTests
