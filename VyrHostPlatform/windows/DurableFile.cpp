// Files whose content is on the disk, and the lock between programs, on Windows.
#include <VyrHostPlatform/DurableFile.h>

#include <VyrPlatform/windows/Handle.h>
#include <VyrPlatform/windows/files/LongPath.h>

#include <algorithm>

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

/// Closes `file`. @return `error`, or the error of closing.
DWORD Close(Handle& file, DWORD error) noexcept
{
    const DWORD closeError = file.Close();
    return error ? error : closeError;
}

} // namespace

std::uint32_t DurableFile::WriteNew(const CString& path, const Content& content, Readers /*readers*/)
{
    const LongPath longPath(path);
    Handle file(CreateFileW(longPath.Get(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL,
                            nullptr));
    if (!file.IsOpen())
        return GetLastError();
    DWORD error = ERROR_SUCCESS;
    content([&file, &error](std::string_view piece) {
        if (!error)
            error = WriteAll(file.Get(), piece);
    });
    if (!error && !FlushFileBuffers(file.Get()))
        error = GetLastError();
    error = Close(file, error);
    if (error)
        DeleteFileW(longPath.Get());
    return error;
}

std::uint32_t DurableFile::Append(const CString& path, std::string_view content)
{
    Handle file(CreateFileW(LongPath(path).Get(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                            FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file.IsOpen() || !SetFilePointerEx(file.Get(), {}, nullptr, FILE_END))
        return GetLastError();
    return Close(file, WriteAll(file.Get(), content));
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
    Handle file(
        CreateFileW(LongPath(path).Get(), GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
    m_error = file.IsOpen() ? ERROR_SUCCESS : GetLastError();
    m_handle = reinterpret_cast<std::intptr_t>(file.Release());
    m_isTaken = m_error == ERROR_SHARING_VIOLATION;
}

FileLock::~FileLock()
{
    // Closes itself.
    const Handle file(reinterpret_cast<HANDLE>(m_handle));
}

} // namespace VyrHostPlatform
