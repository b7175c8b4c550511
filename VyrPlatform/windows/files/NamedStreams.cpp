// The mark of a download on Windows: an alternate stream of the file.
#include <VyrPlatform/files/NamedStreams.h>

#include "LongPath.h"

#include <windows.h>

namespace VyrPlatform::NamedStreams {

std::uint32_t DeleteZoneMark(const CString& path)
{
    return DeleteFileW(LongPath(path, u":Zone.Identifier").Get()) ? 0 : GetLastError();
}

} // namespace VyrPlatform::NamedStreams
