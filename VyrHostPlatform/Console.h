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

/// Whether `stream` is a terminal; colour and progress go there alone. Switches on the escape sequences of
/// colours in a Windows console.
[[nodiscard]] bool IsTerminal(Stream stream);
/// Whether the standard input is a terminal.
[[nodiscard]] bool IsInputTerminal();
/// The terminal's width in columns; 0 when `stream` is no terminal.
[[nodiscard]] int GetWidth(Stream stream);

/// Writes `bytes` (UTF-8, whole characters) unchanged and without a buffer. A closed pipe does not end the program; it
/// is an error like any other.
/// @return 0, or the system's error code (a closed pipe, a full disk).
std::uint32_t Write(Stream stream, std::string_view bytes);
/// The next piece of the standard input, at most 1 MiB; empty at its end, once an interrupt was noted (Interrupt.h),
/// and after an error.
/// @param error  set to the system's error code where the input cannot be read (a folder, a closed stream), else to 0.
[[nodiscard]] std::string ReadInput(std::uint32_t& error);

} // namespace VyrHostPlatform::Console
