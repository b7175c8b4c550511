// Full paths of Windows, as the system words them.
#include <VyrPlatform/FullPath.h>

#include "LongPath.h"

namespace VyrPlatform {

CString GetFullPath(const CString& path)
{
    const CString full = MakeFullPath(path);
    // The separator of a root ("C:\", "\\server\share\") is part of its name.
    const bool hasSeparator = full.GetLength() > 3 && full[full.GetLength() - 1] == u'\\';
    return hasSeparator ? full.Left(full.GetLength() - 1) : full;
}

} // namespace VyrPlatform
