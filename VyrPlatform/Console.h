/// @file
/// The terminal and the standard streams of a command-line program.
#pragma once

#include <VyrPlatform/CString.h>
#include <VyrPlatform/Export.h>

#include <string>
#include <string_view>
#include <vector>

namespace VyrPlatform::Console {

enum class Stream
{
    Output,
    Error
};

/// The program's arguments without its name, as the system holds them (on Windows the wide command line).
[[nodiscard]] VYR_PLATFORM_API std::vector<CString> GetArguments(int count, const char* const* arguments);

/// Whether `stream` is a terminal; colour and progress go there alone. A Windows console understands the escape
/// sequences of colours from then on.
[[nodiscard]] VYR_PLATFORM_API bool IsTerminal(Stream stream);
/// Whether someone types the standard input.
[[nodiscard]] VYR_PLATFORM_API bool IsInputTerminal();
/// The terminal's width in columns; 0 when `stream` is no terminal.
[[nodiscard]] VYR_PLATFORM_API int GetWidth(Stream stream);

/// Writes `bytes` (UTF-8, whole characters) as they stand, at once. A closed pipe ends no program: it is refused like
/// any other failure, and what the caller does then decides the exit code.
/// @return false when the system refuses them (a closed pipe, a full disk).
VYR_PLATFORM_API bool Write(Stream stream, std::string_view bytes);
/// The next piece of the standard input, at most 1 MiB; empty at its end, and once an interrupt was noted
/// (Interrupt.h).
[[nodiscard]] VYR_PLATFORM_API std::string ReadInput();

} // namespace VyrPlatform::Console
