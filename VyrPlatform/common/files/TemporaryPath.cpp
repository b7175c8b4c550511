#include <VyrPlatform/common/files/TemporaryPath.h>

#include <VyrPlatform/files/FileSystem.h>

#include <random>

namespace VyrPlatform {

CString GetFolderOf(const CString& path)
{
    int length = path.GetLength();
    while (length > 0 && !FileSystem::IsSeparator(path[length - 1]))
        --length;
    return path.Left(length);
}

CString MakeTemporaryPath(const CString& path)
{
    std::random_device random;
    CString name;
    name.Format(u".vyr-%08x%08x.tmp", static_cast<std::uint32_t>(random()), static_cast<std::uint32_t>(random()));
    return GetFolderOf(path) + name;
}

} // namespace VyrPlatform
