/// @file
/// Which names of files and folders are valid.
#pragma once

#include <cstdint>
#include <string_view>

namespace VyrHostPlatform {

enum class NameFault : std::uint8_t
{
    None,
    /// Empty, "." or "..".
    NoName,
    /// A folder separator, NUL; on Windows also < > : " / \ | ? * and the control characters below U+0020.
    ForbiddenCharacter,
    /// Longer than 255 bytes of UTF-8 (Linux) or 255 code units (Windows).
    TooLong,
    /// CON, PRN, AUX, NUL, COM0 to COM9, LPT0 to LPT9 (the superscripts 1 to 3 count as digits), CONIN$, CONOUT$, alone
    /// or before a dot.
    ReservedWord,
    /// A dot or a blank at the end.
    TrailingDotOrBlank
};

struct NameVerdict
{
    NameFault fault = NameFault::None;
    /// Whether the name is invalid on this system; false when it is invalid on Windows only.
    bool isError = false;
};

/// Checks `name` (without a folder) by the rules of both systems. A fault on this system is reported before one on the
/// other. (Windows: "Naming Files, Paths, and Namespaces" in the Win32 documentation.)
[[nodiscard]] NameVerdict CheckName(std::u16string_view name);

} // namespace VyrHostPlatform
