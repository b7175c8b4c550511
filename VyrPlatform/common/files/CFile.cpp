#include <VyrPlatform/files/CFile.h>
#include <VyrPlatform/files/CInvalidArgException.h>

#include <cstddef>
#include <span>

using VyrPlatform::FileStream;

namespace {

FileStream::Access AccessOf(std::uint32_t flags) noexcept
{
    if (flags & CFile::modeReadWrite)
        return FileStream::Access::ReadWrite;
    return flags & CFile::modeWrite ? FileStream::Access::Write : FileStream::Access::Read;
}

FileStream::Creation CreationOf(std::uint32_t flags) noexcept
{
    if (!(flags & CFile::modeCreate))
        return FileStream::Creation::Open;
    return flags & CFile::modeNoTruncate ? FileStream::Creation::OpenOrCreate : FileStream::Creation::CreateEmpty;
}

FileStream::Sharing SharingOf(std::uint32_t flags) noexcept
{
    constexpr std::uint32_t kinds = 0x70;
    switch (flags & kinds) {
    case CFile::shareDenyWrite:
        return {.read = true, .write = false};
    case CFile::shareDenyRead:
        return {.read = false, .write = true};
    case CFile::shareDenyNone:
        return {.read = true, .write = true};
    default:
        return {.read = false, .write = false};
    }
}

FileStream::Origin OriginOf(std::uint32_t origin)
{
    switch (origin) {
    case CFile::begin:
        return FileStream::Origin::Begin;
    case CFile::current:
        return FileStream::Origin::Current;
    case CFile::end:
        return FileStream::Origin::End;
    default:
        throw CInvalidArgException();
    }
}

CFileException MakeException(std::uint32_t osError, const CString& path)
{
    const auto code = static_cast<std::int32_t>(osError);
    return CFileException(CFileException::OsErrorToException(code), code, path);
}

} // namespace

CFile::CFile() = default;

CFile::~CFile() = default;

CString CFile::GetFilePath() const
{
    return m_path;
}

void CFile::SetFilePath(const char16_t* name)
{
    if (!name)
        throw CInvalidArgException();
    m_path = name;
}

int CFile::Open(const char16_t* name, std::uint32_t flags, CFileException* error)
{
    Close();
    m_path = name;
    const std::uint32_t code = m_file.Open(m_path, AccessOf(flags), CreationOf(flags), SharingOf(flags));
    if (code && error)
        *error = MakeException(code, m_path);
    return code == 0 ? 1 : 0;
}

std::uint64_t CFile::Seek(std::int64_t offset, std::uint32_t origin)
{
    RequireOpen();
    std::uint64_t place = 0;
    ThrowUnless0(m_file.Seek(offset, OriginOf(origin), place));
    return place;
}

std::uint64_t CFile::GetPosition() const
{
    RequireOpen();
    std::uint64_t place = 0;
    ThrowUnless0(m_file.Seek(0, FileStream::Origin::Current, place));
    return place;
}

std::uint32_t CFile::Read(void* buffer, std::uint32_t count)
{
    RequireOpen();
    std::size_t taken = 0;
    ThrowUnless0(m_file.Read({static_cast<std::byte*>(buffer), count}, taken));
    return static_cast<std::uint32_t>(taken);
}

void CFile::Write(const void* buffer, std::uint32_t count)
{
    RequireOpen();
    ThrowUnless0(m_file.Write({static_cast<const std::byte*>(buffer), count}));
}

void CFile::Close()
{
    ThrowUnless0(m_file.Close());
}

void CFile::Abort() noexcept
{
    static_cast<void>(m_file.Close());
}

void CFile::ThrowUnless0(std::uint32_t osError) const
{
    if (osError)
        throw MakeException(osError, m_path);
}

void CFile::RequireOpen() const
{
    if (!IsOpen())
        throw CFileException(CFileException::invalidFile, -1, m_path);
}
