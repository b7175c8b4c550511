// The read-only attribute of a file on Windows.
#include <VyrPlatform/files/FileAttributes.h>

#include "LongPath.h"

#include <windows.h>

namespace VyrPlatform::FileAttributes {

bool IsReadOnly(const CString& path)
{
    const DWORD attributes = GetFileAttributesW(LongPath(path).Get());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY);
}

} // namespace VyrPlatform::FileAttributes
