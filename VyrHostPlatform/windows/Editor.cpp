// Starts the editor as a process.
#include <VyrHostPlatform/Editor.h>

#include <VyrHostPlatform/common/EditorCommand.h>
#include <VyrPlatform/process/Process.h>
#include <VyrPlatform/text/WindowsCString.h>
#include <VyrPlatform/windows/Handle.h>

#include <array>
#include <string_view>

namespace VyrHostPlatform {

using namespace VyrPlatform;

namespace {

/// Runs `command` with `path` as its last argument.
/// @return false when it could not be started.
bool RunOnFile(const CString& command, const CString& path, DWORD& code)
{
    const CString line = CString::Join({command, u" \"", path, u"\""});
    std::wstring writable = ToWide(line);
    STARTUPINFOW startup{};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(nullptr, writable.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process))
        return false;
    const Handle thread(process.hThread);
    const Handle editor(process.hProcess);
    WaitForSingleObject(editor.Get(), INFINITE);
    return GetExitCodeProcess(editor.Get(), &code) != FALSE;
}

EditedText Failure(const CString& what, DWORD error)
{
    return {std::nullopt, CString::Join({what, u": ", Process::GetErrorMessage(error)})};
}

} // namespace

/// A new file in the folder for temporary files.
class EditorFile::TemporaryFile
{
public:
    explicit TemporaryFile(std::string_view text)
    {
        std::array<wchar_t, MAX_PATH + 1> folder{};
        std::array<wchar_t, MAX_PATH + 1> name{};
        if (GetTempPathW(static_cast<DWORD>(folder.size()), folder.data()) != 0 &&
            GetTempFileNameW(folder.data(), L"vyr", 0, name.data()) != 0)
            m_path = FromWide(name.data());
        if (m_path.IsEmpty() || !Write(text))
            m_error = GetLastError() != ERROR_SUCCESS ? GetLastError() : ERROR_WRITE_FAULT;
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile()
    {
        if (!m_path.IsEmpty() && !m_isKept)
            DeleteFileW(ToWide(m_path));
    }

    void Keep() noexcept { m_isKept = true; }
    [[nodiscard]] const CString& Path() const noexcept { return m_path; }
    /// The error code if the text could not be written; else 0.
    [[nodiscard]] DWORD Error() const noexcept { return m_error; }

    /// Reads the present file at the path: an editor may have replaced it.
    [[nodiscard]] bool Read(std::string& bytes) const
    {
        const Handle file = Open(GENERIC_READ, OPEN_EXISTING);
        if (!file.IsOpen())
            return false;
        std::array<char, 65536> piece;
        DWORD count = 0;
        BOOL succeeded = FALSE;
        while ((succeeded = ReadFile(file.Get(), piece.data(), static_cast<DWORD>(piece.size()), &count, nullptr)) &&
               count > 0)
            bytes.append(piece.data(), count);
        return succeeded != FALSE;
    }

private:
    [[nodiscard]] bool Write(std::string_view bytes) const
    {
        Handle file = Open(GENERIC_WRITE, TRUNCATE_EXISTING);
        if (!file.IsOpen())
            return false;
        DWORD written = 0;
        const bool isWhole = bytes.size() <= MAXDWORD &&
                             WriteFile(file.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) &&
                             written == bytes.size();
        return file.Close() == ERROR_SUCCESS && isWhole;
    }

    [[nodiscard]] Handle Open(DWORD access, DWORD disposition) const
    {
        return Handle(CreateFileW(ToWide(m_path), access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                  nullptr, disposition, FILE_ATTRIBUTE_TEMPORARY, nullptr));
    }

    CString m_path;
    DWORD m_error = ERROR_SUCCESS;
    bool m_isKept = false;
};

EditorFile::EditorFile(const std::string& text) : m_file(std::make_unique<TemporaryFile>(text)) {}

EditorFile::~EditorFile() = default;

EditedText EditorFile::Edit()
{
    if (m_file->Error() != ERROR_SUCCESS)
        return Failure(m_file->Path(), m_file->Error());
    const CString command = GetEditorCommand(u"notepad");
    DWORD code = 0;
    if (!RunOnFile(command, m_file->Path(), code))
        return Failure(command, GetLastError());
    if (code != 0) {
        CString message;
        message.Format(u"the editor (%s) ended with the code %d", command, static_cast<int>(code));
        return {std::nullopt, message};
    }
    std::string edited;
    if (!m_file->Read(edited))
        return Failure(m_file->Path(), GetLastError());
    return {std::move(edited), {}};
}

CString EditorFile::Keep()
{
    m_file->Keep();
    return m_file->Path();
}

} // namespace VyrHostPlatform
