// Opens a file as the readers of pictures do.
#include <VyrHost/model/DateSource.h>

#include <VyrPlatform/files/FileReader.h>
#include <VyrPlatform/files/FileSystem.h>

#include <array>
#include <cstddef>

namespace VyrHost::Model {

std::uint32_t PictureReadError(const CString& path)
{
    namespace FileSystem = VyrPlatform::FileSystem;
    std::array<std::byte, 512> beginning;
    const VyrPlatform::FileReader file(path, beginning);
    if (file.IsOpen())
        return 0;
    const FileSystem::Kind kind = FileSystem::Query(path).kind;
    return kind == FileSystem::Kind::Folder || kind == FileSystem::Kind::Other ? 0 : file.Error();
}

} // namespace VyrHost::Model
