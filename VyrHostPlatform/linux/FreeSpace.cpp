// Free space on Linux, and the file systems that can share storage between files.
#include <VyrHostPlatform/FreeSpace.h>

#include <VyrPlatform/linux/files/NativePath.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <sys/vfs.h>

namespace VyrHostPlatform {

namespace {

using VyrPlatform::NativePath;

/// The numbers in statfs (statfs(2), the kernel's magic.h) of file systems on which copies cannot share storage: ext2
/// to ext4, tmpfs, vfat, exfat, f2fs.
constexpr std::array<std::uint32_t, 5> copiesTakeSpace{0xEF53, 0x01021994, 0x4D44, 0x2011BAB0, 0xF2F52010};

bool IsOneFileSystem(const struct statfs& left, const struct statfs& right)
{
    return std::memcmp(&left.f_fsid, &right.f_fsid, sizeof(left.f_fsid)) == 0;
}

} // namespace

std::optional<std::uint64_t> GetSpaceForCopies(const CString& from, const CString& to)
{
    struct statfs source;
    struct statfs target;
    if (statfs(NativePath(from).Get(), &source) != 0 || statfs(NativePath(to).Get(), &target) != 0)
        return std::nullopt;
    const auto number = static_cast<std::uint32_t>(target.f_type);
    const bool takesSpace = std::find(copiesTakeSpace.begin(), copiesTakeSpace.end(), number) != copiesTakeSpace.end();
    // A file system without own blocks does not count them.
    if (target.f_blocks == 0 || (!takesSpace && IsOneFileSystem(source, target)))
        return std::nullopt;
    return std::uint64_t{target.f_bavail} * static_cast<std::uint64_t>(target.f_bsize);
}

} // namespace VyrHostPlatform
