/// @file
/// What a terminal understands, and the progress of a long work on it.
#pragma once

#include <VyrHostPlatform/Console.h>

#include <chrono>
#include <cstddef>
#include <string>

namespace VyrHost::Ui {

/// Whether `stream` is a terminal that obeys escape sequences (colours, erasing a line): any but one that TERM calls
/// "dumb".
[[nodiscard]] bool ObeysEscapes(VyrHostPlatform::Console::Stream stream);

/// Shows how far a work is in a line of the error stream, from half a second on and a few times a second. Shows nothing
/// where that is no terminal, or when it is told to be silent. The line is gone at the end.
class Progress
{
public:
    /// `what` is done with `total` entries.
    Progress(std::string what, std::size_t total, bool isSilent);
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    ~Progress();

    void Show(std::size_t done);
    /// Takes the line away; others may write now.
    void Close();

private:
    using Clock = std::chrono::steady_clock;

    const std::string m_what;
    const std::size_t m_total;
    const bool m_isShown;
    Clock::time_point m_next;
    bool m_hasLine = false;
};

} // namespace VyrHost::Ui
