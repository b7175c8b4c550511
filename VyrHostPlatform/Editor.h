/// @file
/// The user's own text editor.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <memory>
#include <optional>
#include <string>

namespace VyrHostPlatform {

struct EditedText
{
    /// The text as the user saved it; nothing when editing failed.
    std::optional<std::string> text;
    /// Why editing failed, for people.
    CString error;
};

/// A text in a temporary file, for the user to edit. The destructor removes the file unless Keep was called.
class EditorFile
{
public:
    explicit EditorFile(const std::string& text);
    EditorFile(const EditorFile&) = delete;
    EditorFile& operator=(const EditorFile&) = delete;
    ~EditorFile();

    /// Opens the file in the program that the environment variable VISUAL or EDITOR names (a command line, which may
    /// have arguments; else the system's own: vi, on Windows notepad), waits for the program's end and reads the file
    /// back. A program that ends with a code other than 0 counts as "do nothing". May be called again: the file is as
    /// the user saved it.
    [[nodiscard]] EditedText Edit();
    /// Keeps the file.
    /// @return its path.
    [[nodiscard]] CString Keep();

private:
    class TemporaryFile;
    std::unique_ptr<TemporaryFile> m_file;
};

} // namespace VyrHostPlatform
