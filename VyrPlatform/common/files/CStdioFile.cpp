// One buffer, which at any time contains either bytes not yet read or bytes not yet written.
#include <VyrPlatform/files/CInvalidArgException.h>
#include <VyrPlatform/files/CStdioFile.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>
#include <utility>

struct CStdioFile::Stream
{
    std::array<char, 16384> bytes;
    /// The unread bytes are those from `next` to `end`.
    std::size_t next = 0;
    std::size_t end = 0;
    /// The number of bytes, from the first on, that are not written yet.
    std::size_t waiting = 0;
    /// The system's position in the file: after the bytes that were read, before those that are not written yet.
    std::uint64_t place = 0;

    [[nodiscard]] std::size_t Unread() const noexcept { return end - next; }
};

namespace {

/// The number of code units before the first line feed among `count` at `bytes`, which need not be aligned.
template <class Unit>
std::size_t CountToLineFeed(const char* bytes, std::size_t count) noexcept
{
    if constexpr (sizeof(Unit) == 1) {
        return std::min(count, std::string_view(bytes, count).find('\n'));
    } else {
        for (std::size_t index = 0; index < count; ++index) {
            Unit unit;
            std::memcpy(&unit, bytes + index * sizeof(Unit), sizeof(Unit));
            if (unit == u'\n')
                return index;
        }
        return count;
    }
}

} // namespace

CStdioFile::CStdioFile() = default;

CStdioFile::~CStdioFile()
{
    try {
        CStdioFile::Close();
    } catch (const CFileException&) {
        // A destructor cannot report it.
    }
}

int CStdioFile::Open(const char16_t* name, std::uint32_t flags, CFileException* error)
{
    const int isOpen = CFile::Open(name, flags, error);
    if (isOpen)
        m_stream = std::make_unique<Stream>();
    return isOpen;
}

std::uint64_t CStdioFile::Seek(std::int64_t offset, std::uint32_t origin)
{
    RequireOpen();
    FlushWritten();
    // The system's position is after the unread bytes.
    if (origin == current && __builtin_sub_overflow(offset, m_stream->Unread(), &offset))
        throw CFileException(CFileException::badSeek, -1, GetFilePath());
    m_stream->place = CFile::Seek(offset, origin);
    m_stream->next = m_stream->end = 0;
    return m_stream->place;
}

std::uint64_t CStdioFile::GetPosition() const
{
    RequireOpen();
    return m_stream->place - m_stream->Unread() + m_stream->waiting;
}

std::uint32_t CStdioFile::Read(void* buffer, std::uint32_t count)
{
    RequireOpen();
    auto* target = static_cast<char*>(buffer);
    std::uint32_t done = 0;
    while (done < count && Fill(1)) {
        const std::size_t part = std::min<std::size_t>(count - done, m_stream->Unread());
        std::memcpy(target + done, m_stream->bytes.data() + m_stream->next, part);
        m_stream->next += part;
        done += static_cast<std::uint32_t>(part);
    }
    return done;
}

void CStdioFile::Write(const void* buffer, std::uint32_t count)
{
    RequireOpen();
    DropUnread();
    if (count > m_stream->bytes.size() - m_stream->waiting)
        FlushWritten();
    if (count > m_stream->bytes.size()) {
        CFile::Write(buffer, count);
        m_stream->place += count;
    } else if (count > 0) {
        std::memcpy(m_stream->bytes.data() + m_stream->waiting, buffer, count);
        m_stream->waiting += count;
    }
}

void CStdioFile::Close()
{
    if (m_stream) {
        try {
            FlushWritten();
        } catch (const CFileException&) {
            Abort();
            throw;
        }
        m_stream.reset();
    }
    CFile::Close();
}

void CStdioFile::Abort() noexcept
{
    m_stream.reset();
    CFile::Abort();
}

void CStdioFile::WriteString(const char16_t* text)
{
    if (!text)
        throw CInvalidArgException();
    constexpr std::size_t unitsAtOnce = 0x4000'0000;
    for (std::u16string_view rest = text; !rest.empty(); rest.remove_prefix(std::min(rest.size(), unitsAtOnce)))
        Write(rest.data(), static_cast<std::uint32_t>(std::min(rest.size(), unitsAtOnce) * sizeof(char16_t)));
}

int CStdioFile::ReadString(CString& line)
{
    line.Empty();
    std::array<char16_t, 128> part;
    bool isAnyRead = false;
    for (std::size_t count; (count = ReadLine(part.data(), part.size())) > 0;) {
        isAnyRead = true;
        const bool isWhole = part[count - 1] == u'\n';
        line += std::u16string_view(part.data(), isWhole ? count - 1 : count);
        if (isWhole)
            break;
    }
    return isAnyRead ? 1 : 0;
}

char16_t* CStdioFile::ReadString(char16_t* buffer, std::uint32_t capacity)
{
    if (!buffer || capacity == 0)
        throw CInvalidArgException();
    const std::size_t count = ReadLine(buffer, capacity - 1);
    buffer[count] = u'\0';
    return count > 0 ? buffer : nullptr;
}

std::size_t CStdioFile::ReadLine(char* target, std::size_t capacity)
{
    return ReadUnits(target, capacity);
}

std::size_t CStdioFile::ReadLine(char16_t* target, std::size_t capacity)
{
    return ReadUnits(target, capacity);
}

template <class Unit>
std::size_t CStdioFile::ReadUnits(Unit* target, std::size_t capacity)
{
    RequireOpen();
    std::size_t done = 0;
    while (done < capacity && Fill(sizeof(Unit))) {
        const char* const bytes = m_stream->bytes.data() + m_stream->next;
        const std::size_t available = std::min(capacity - done, m_stream->Unread() / sizeof(Unit));
        const std::size_t before = CountToLineFeed<Unit>(bytes, available);
        const std::size_t taken = std::min(before + 1, available);
        std::memcpy(target + done, bytes, taken * sizeof(Unit));
        m_stream->next += taken * sizeof(Unit);
        done += taken;
        if (before < available)
            break;
    }
    return done;
}

/// Makes at least `wanted` unread bytes available.
/// @return false when the file ends before; its last bytes are then discarded.
bool CStdioFile::Fill(std::size_t wanted)
{
    if (m_stream->Unread() >= wanted)
        return true;
    FlushWritten();
    std::array<char, sizeof(m_stream->bytes)>& bytes = m_stream->bytes;
    const std::size_t kept = m_stream->Unread();
    std::memmove(bytes.data(), bytes.data() + m_stream->next, kept);
    m_stream->next = 0;
    m_stream->end = kept;
    const std::uint32_t read = CFile::Read(bytes.data() + kept, static_cast<std::uint32_t>(bytes.size() - kept));
    m_stream->place += read;
    m_stream->end += read;
    if (m_stream->Unread() >= wanted)
        return true;
    m_stream->end = 0;
    return false;
}

void CStdioFile::FlushWritten()
{
    // Bytes that cannot be written are discarded: the error is reported once.
    const std::size_t waiting = std::exchange(m_stream->waiting, 0);
    if (waiting == 0)
        return;
    CFile::Write(m_stream->bytes.data(), static_cast<std::uint32_t>(waiting));
    m_stream->place += waiting;
}

/// Moves the system's position back to the reader's.
void CStdioFile::DropUnread()
{
    if (m_stream->Unread() > 0)
        Seek(0, current);
}
