/// @file
/// The abilities of a terminal, and the progress of long work on it.
#pragma once

#include <VyrHostPlatform/Console.h>

#include <chrono>
#include <cstddef>
#include <string>

namespace VyrHost::Ui {

/// Whether `stream` is a terminal that understands escape sequences (colours, erasing a line): any except one for which
/// TERM is "dumb".
[[nodiscard]] bool ObeysEscapes(VyrHostPlatform::Console::Stream stream);

/// Shows the progress of work in a line of the error stream, after half a second and then a few times a second. Shows
/// nothing without a terminal, or when silent. Erases the line at the end.
class Progress
{
public:
    /// @param what  what is done with the `total` entries.
    Progress(std::string what, std::size_t total, bool isSilent);
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    ~Progress();

    void Show(std::size_t done);
    /// Erases the line; then others may write.
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
