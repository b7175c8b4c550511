// Files whose content is on the disk, and the lock between programs, on Linux.
#include <VyrHostPlatform/DurableFile.h>

#include <VyrPlatform/linux/files/Descriptor.h>
#include <VyrPlatform/linux/files/FlushFolder.h>
#include <VyrPlatform/linux/files/NativePath.h>

#include <fcntl.h>
#include <sys/file.h>

namespace VyrHostPlatform {

using namespace VyrPlatform;

namespace {

std::uint32_t LastError() noexcept
{
    return static_cast<std::uint32_t>(errno);
}

std::uint32_t Write(const Descriptor& file, std::string_view content) noexcept
{
    while (!content.empty()) {
        const ssize_t written = write(file.Get(), content.data(), content.size());
        if (written < 0 && errno != EINTR)
            return LastError();
        if (written > 0)
            content.remove_prefix(static_cast<std::size_t>(written));
    }
    return 0;
}

std::uint32_t Close(Descriptor& file, std::uint32_t error) noexcept
{
    const int closingError = file.Close();
    return error ? error : static_cast<std::uint32_t>(closingError);
}

} // namespace

std::uint32_t DurableFile::WriteNew(const CString& path, const Content& content, Readers readers)
{
    const NativePath nativePath(path);
    const mode_t mode = readers == Readers::Owner ? 0600 : 0666;
    Descriptor file(open(nativePath.Get(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode));
    if (!file.IsOpen())
        return LastError();
    std::uint32_t error = 0;
    content([&file, &error](std::string_view piece) {
        if (!error)
            error = Write(file, piece);
    });
    if (!error && fdatasync(file.Get()) != 0)
        error = LastError();
    error = Close(file, error);
    if (error)
        unlink(nativePath.Get());
    return error;
}

std::uint32_t DurableFile::Append(const CString& path, std::string_view content)
{
    Descriptor file(open(NativePath(path).Get(), O_WRONLY | O_APPEND | O_CLOEXEC));
    return file.IsOpen() ? Close(file, Write(file, content)) : LastError();
}

std::uint32_t DurableFile::Remove(const CString& path)
{
    return unlink(NativePath(path).Get()) == 0 ? 0 : LastError();
}

std::uint32_t DurableFile::FlushFolder(const CString& path)
{
    return VyrPlatform::FlushFolder(path);
}

FileLock::FileLock(const CString& path) : m_handle(open(NativePath(path).Get(), O_RDWR | O_CREAT | O_CLOEXEC, 0600))
{
    if (m_handle >= 0 && flock(static_cast<int>(m_handle), LOCK_EX | LOCK_NB) == 0)
        return;
    m_error = LastError();
    m_isTaken = m_handle >= 0 && m_error == EWOULDBLOCK;
}

FileLock::~FileLock()
{
    if (m_handle >= 0)
        close(static_cast<int>(m_handle));
}

} // namespace VyrHostPlatform
