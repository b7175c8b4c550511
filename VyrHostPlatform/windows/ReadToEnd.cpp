// Reading files, pipes and consoles to their end, on Windows.
#include <VyrHostPlatform/ReadToEnd.h>

#include <VyrPlatform/windows/Handle.h>
#include <VyrPlatform/windows/files/LongPath.h>

namespace VyrHostPlatform {

using namespace VyrPlatform;

namespace {

/// @return 0 when `file` has an end (no endless device), else the error code.
DWORD CheckKind(HANDLE file) noexcept
{
    DWORD mode = 0;
    const DWORD kind = GetFileType(file);
    const bool hasEnd = kind == FILE_TYPE_DISK || kind == FILE_TYPE_PIPE || GetConsoleMode(file, &mode);
    return hasEnd ? ERROR_SUCCESS : ERROR_BAD_FILE_TYPE;
}

/// @return 0 at the end, else the error code.
DWORD AppendAll(HANDLE file, std::string& bytes)
{
    constexpr DWORD pieceSize = DWORD{1} << 18;
    for (;;) {
        const std::size_t size = bytes.size();
        DWORD count = 0;
        bytes.resize(size + pieceSize);
        const bool isRead = ReadFile(file, bytes.data() + size, pieceSize, &count, nullptr);
        bytes.resize(size + count);
        if (!isRead)
            // The other end of a pipe is closed.
            return GetLastError() == ERROR_BROKEN_PIPE ? ERROR_SUCCESS : GetLastError();
        if (count == 0)
            return ERROR_SUCCESS;
    }
}

} // namespace

std::optional<std::string> ReadToEnd(const CString& path, std::uint32_t& error)
{
    const Handle file(CreateFileW(LongPath(path).Get(), GENERIC_READ,
                                  FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                                  FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file.IsOpen()) {
        error = GetLastError();
        return std::nullopt;
    }
    std::string bytes;
    error = CheckKind(file.Get());
    if (error == ERROR_SUCCESS)
        error = AppendAll(file.Get(), bytes);
    return error == ERROR_SUCCESS ? std::optional(std::move(bytes)) : std::nullopt;
}

} // namespace VyrHostPlatform
