// Files whose content is on the disk, and the lock between programs, on Windows.
#include <VyrHostPlatform/DurableFile.h>

#include <VyrPlatform/windows/files/LongPath.h>

#include <algorithm>
#include <memory>
#include <windows.h>

namespace VyrHostPlatform {

using namespace VyrPlatform;

namespace {

DWORD WriteAll(HANDLE file, std::string_view content) noexcept
{
    constexpr std::size_t longestWrite = 0x4000'0000;
    while (!content.empty()) {
        DWORD written = 0;
        const auto count = static_cast<DWORD>(std::min(content.size(), longestWrite));
        if (!WriteFile(file, content.data(), count, &written, nullptr))
            return GetLastError();
        content.remove_prefix(written);
    }
    return ERROR_SUCCESS;
}

DWORD Close(HANDLE file, DWORD error) noexcept
{
    return CloseHandle(file) || error ? error : GetLastError();
}

struct HandleCloser
{
    void operator()(HANDLE file) const noexcept { CloseHandle(file); }
};

} // namespace

std::uint32_t DurableFile::WriteNew(const CString& path, const Content& content)
{
    const LongPath longPath(path);
    const HANDLE file = CreateFileW(longPath.Get(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, CREATE_NEW,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return GetLastError();
    std::unique_ptr<void, HandleCloser> owner(file);
    DWORD error = ERROR_SUCCESS;
    content([file, &error](std::string_view piece) {
        if (!error)
            error = WriteAll(file, piece);
    });
    if (!error && !FlushFileBuffers(file))
        error = GetLastError();
    error = Close(owner.release(), error);
    if (error)
        DeleteFileW(longPath.Get());
    return error;
}

std::uint32_t DurableFile::Append(const CString& path, std::string_view content)
{
    const HANDLE file = CreateFileW(LongPath(path).Get(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return GetLastError();
    if (!SetFilePointerEx(file, {}, nullptr, FILE_END))
        return Close(file, GetLastError());
    return Close(file, WriteAll(file, content));
}

std::uint32_t DurableFile::Remove(const CString& path)
{
    return DeleteFileW(LongPath(path).Get()) ? ERROR_SUCCESS : GetLastError();
}

std::uint32_t DurableFile::FlushFolder(const CString&)
{
    return ERROR_SUCCESS;
}

FileLock::FileLock(const CString& path)
{
    const HANDLE file =
        CreateFileW(LongPath(path).Get(), GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    m_handle = reinterpret_cast<std::intptr_t>(file);
    if (file != INVALID_HANDLE_VALUE)
        return;
    m_error = GetLastError();
    m_isTaken = m_error == ERROR_SHARING_VIOLATION;
}

FileLock::~FileLock()
{
    if (IsHeld())
        CloseHandle(reinterpret_cast<HANDLE>(m_handle));
}

} // namespace VyrHostPlatform
