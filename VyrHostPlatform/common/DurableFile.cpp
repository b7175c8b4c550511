// Files that are complete as soon as they have their name.
#include <VyrHostPlatform/DurableFile.h>

#include <VyrHostPlatform/RenameFile.h>
#include <VyrPlatform/common/files/TemporaryPath.h>
#include <VyrPlatform/files/FileSystem.h>

namespace VyrHostPlatform {

std::uint32_t DurableFile::WriteWhole(const CString& path, const Content& content, bool mayReplace)
{
    const CString temporary = VyrPlatform::MakeTemporaryPath(path);
    const bool isReplaced = mayReplace && VyrPlatform::FileSystem::Exists(path);
    // Not readable for more users than the replaced file.
    const Readers readers = isReplaced ? Readers::Owner : Readers::ByMask;
    if (const std::uint32_t error = WriteNew(temporary, content, readers))
        return error;
    const std::uint32_t error = isReplaced ? RenameOver(temporary, path) : RenameNoReplace(temporary, path);
    if (error != 0)
        static_cast<void>(Remove(temporary));
    return error;
}

} // namespace VyrHostPlatform
