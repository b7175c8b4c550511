/// @file
/// What a name of a file or folder may be.
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
    /// This system takes no such name. When false, the name is a bad one on Windows alone.
    bool isError = false;
};

/// Judges `name` (without a folder) by the rules of both systems; an error of this system comes before a fault that
/// matters elsewhere. (Windows: "Naming Files, Paths, and Namespaces" in the Win32 documentation.)
[[nodiscard]] NameVerdict CheckName(std::u16string_view name);

} // namespace VyrHostPlatform
