#include <VyrPlatform/common/files/TemporaryPath.h>

#include <VyrPlatform/files/FileSystem.h>

#include <cstddef>
#include <cstdint>
#include <random>

namespace VyrPlatform {

namespace {

CString PathOfNumber(const CString& folder, std::uint32_t high, std::uint32_t low)
{
    CString name;
    name.Format(u".vyr-%08x%08x.tmp", high, low);
    return folder + name;
}

} // namespace

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
    return PathOfNumber(GetFolderOf(path), random(), random());
}

CString GetTemporaryPathOf(const CString& path)
{
    const CString folder = GetFolderOf(path);
    // FNV-1a, 64 bits: http://www.isthe.com/chongo/tech/comp/fnv/
    std::uint64_t hash = 0xCBF29CE484222325;
    for (const char16_t unit : path.View().substr(static_cast<std::size_t>(folder.GetLength())))
        hash = (hash ^ unit) * 0x100000001B3;
    return PathOfNumber(folder, static_cast<std::uint32_t>(hash >> 32), static_cast<std::uint32_t>(hash));
}

} // namespace VyrPlatform
