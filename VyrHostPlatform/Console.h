/// @file
/// The terminal and the standard streams of a command-line program.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace VyrHostPlatform::Console {

enum class Stream
{
    Output,
    Error
};

/// The program's arguments without its name, as the system holds them (on Windows the wide command line).
[[nodiscard]] std::vector<CString> GetArguments(int count, const char* const* arguments);

/// Whether `stream` is a terminal; colour and progress go there alone. A Windows console understands the escape
/// sequences of colours from then on.
[[nodiscard]] bool IsTerminal(Stream stream);
/// Whether someone types the standard input.
[[nodiscard]] bool IsInputTerminal();
/// The terminal's width in columns; 0 when `stream` is no terminal.
[[nodiscard]] int GetWidth(Stream stream);

/// Writes `bytes` (UTF-8, whole characters) as they stand, at once. A closed pipe ends no program: it is refused like
/// any other failure, and what the caller does then decides the exit code.
/// @return 0, or the system's error code when it refuses them (a closed pipe, a full disk).
std::uint32_t Write(Stream stream, std::string_view bytes);
/// The next piece of the standard input, at most 1 MiB; empty at its end, once an interrupt was noted (Interrupt.h),
/// and after an error.
/// @param error  set to the system's error code where the input cannot be read (a folder, a closed stream), else to 0.
[[nodiscard]] std::string ReadInput(std::uint32_t& error);

} // namespace VyrHostPlatform::Console
