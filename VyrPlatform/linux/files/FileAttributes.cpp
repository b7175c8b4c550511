// The read-only state of a file on Linux.
#include <VyrPlatform/files/FileAttributes.h>

#include "ExtendedAttributes.h"
#include "FileStatus.h"

namespace VyrPlatform::FileAttributes {

bool IsReadOnly(const CString& path)
{
    constexpr std::uint32_t readOnly = 0x1;
    const NativePath nativePath(path);
    struct statx status;
    if (!AskStatus(nativePath, 0, STATX_MODE, status))
        return false;
    return !(status.stx_mode & S_IWUSR) || (ExtendedAttributes::GetAttributes(nativePath).value_or(0) & readOnly);
}

} // namespace VyrPlatform::FileAttributes
