// The mark of a download on Windows: an alternate stream of the file.
#include <VyrPlatform/files/NamedStreams.h>

#include "LongPath.h"
#include "OpenEntry.h"

#include <VyrPlatform/files/FileSystem.h>

#include <windows.h>

#include <cstddef>
#include <utility>

namespace VyrPlatform::NamedStreams {

namespace {

constexpr std::size_t mostBytes = 64 * 1024;

/// Reads to the end of an open stream. @return 0, or the error code.
DWORD ReadAll(HANDLE stream, std::string& bytes)
{
    bytes.resize(mostBytes + 1);
    std::size_t size = 0;
    for (DWORD count = 1; count > 0 && size < bytes.size(); size += count)
        if (!ReadFile(stream, bytes.data() + size, static_cast<DWORD>(bytes.size() - size), &count, nullptr))
            return GetLastError();
    bytes.resize(size);
    return size > mostBytes ? ERROR_FILE_TOO_LARGE : ERROR_SUCCESS;
}

/// Keeps the times of a file: to the system a stream is part of it, and writing or deleting one changes them.
class KeptTimes
{
public:
    explicit KeptTimes(const CString& path)
        : m_file(OpenEntry(LongPath(path), FILE_READ_ATTRIBUTES | FILE_WRITE_ATTRIBUTES, Links::Follow)),
          m_isKnown(m_file.IsOpen() && GetFileTime(m_file.Get(), nullptr, &m_accessed, &m_modified))
    {}
    KeptTimes(const KeptTimes&) = delete;
    KeptTimes& operator=(const KeptTimes&) = delete;
    ~KeptTimes()
    {
        if (m_isKnown)
            SetFileTime(m_file.Get(), nullptr, &m_accessed, &m_modified);
    }

private:
    Handle m_file;
    FILETIME m_accessed{};
    FILETIME m_modified{};
    bool m_isKnown;
};

std::uint32_t WriteStream(const CString& path, const std::string& bytes)
{
    const Handle stream(CreateFileW(LongPath(path, zoneStream).Get(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                    CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
    DWORD written = 0;
    const bool isWritten =
        stream.IsOpen() && WriteFile(stream.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    return isWritten ? ERROR_SUCCESS : GetLastError();
}

} // namespace

std::optional<std::vector<ZoneForm>> ReadZoneMark(const CString& path, std::uint32_t& error)
{
    error = ERROR_SUCCESS;
    const Handle stream = OpenEntry(LongPath(path, zoneStream), GENERIC_READ, Links::Follow);
    if (!stream.IsOpen()) {
        error = GetLastError();
        // For a path with a stream the error is the same whether the file or the stream is missing.
        if (error != ERROR_FILE_NOT_FOUND || !FileSystem::Exists(path))
            return std::nullopt;
        error = ERROR_SUCCESS;
        return std::vector<ZoneForm>();
    }
    ZoneForm form{zoneStream, {}};
    error = ReadAll(stream.Get(), form.bytes);
    if (error != ERROR_SUCCESS)
        return std::nullopt;
    return std::vector{std::move(form)};
}

std::uint32_t WriteZoneForm(const CString& path, const ZoneForm& form)
{
    if (form.name != zoneStream || !form.state.IsEmpty())
        return ERROR_INVALID_PARAMETER;
    if (!FileSystem::Exists(path))
        return ERROR_FILE_NOT_FOUND;
    const KeptTimes times(path);
    return WriteStream(path, form.bytes);
}

std::uint32_t DeleteZoneMark(const CString& path)
{
    const KeptTimes times(path);
    return DeleteFileW(LongPath(path, zoneStream).Get()) ? 0 : GetLastError();
}

} // namespace VyrPlatform::NamedStreams
