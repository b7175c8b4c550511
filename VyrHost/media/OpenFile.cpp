#include <VyrHost/media/OpenFile.h>

#include <VyrPlatform/files/FileSystem.h>

namespace VyrHost::Media {

std::uint32_t OpenFile::ErrorFor(const CString& path) const
{
    namespace FileSystem = VyrPlatform::FileSystem;
    if (m_file.IsOpen())
        return 0;
    const FileSystem::Kind kind = FileSystem::Query(path).kind;
    return kind == FileSystem::Kind::Folder || kind == FileSystem::Kind::Other ? 0 : m_file.Error();
}

} // namespace VyrHost::Media
