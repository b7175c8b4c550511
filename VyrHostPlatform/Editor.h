/// @file
/// The user's own text editor.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <optional>
#include <string>

namespace VyrHostPlatform {

struct EditedText
{
    /// What the user left behind; nothing when that did not work.
    std::optional<std::string> text;
    /// Why not, for people.
    CString error;
};

/// Puts `text` into a temporary file, opens that in the program that the environment variable VISUAL or EDITOR names
/// (a command line, which may have arguments; else the system's own: vi, on Windows notepad), waits for the program's
/// end and reads the file back. The file is removed. A program that ends with a code other than 0 counts as "do
/// nothing".
[[nodiscard]] EditedText EditText(const std::string& text);

} // namespace VyrHostPlatform
