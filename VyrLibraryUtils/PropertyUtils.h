/// @file
/// Tells the kind of a document.
#pragma once

#include <VyrLibraryUtils/Export.h>
#include <VyrPlatform/text/CString.h>

namespace VyrLibraryUtils {

/// Document kinds.
class VYR_UTILS_API PropertyUtils
{
public:
    PropertyUtils();
    ~PropertyUtils();
    PropertyUtils& operator=(const PropertyUtils&);

    /// 1 when the file at `path` is a compound document: the signature D0 CF 11 E0 A1 B1 1A E1 and a header whose byte
    /// order, version and sector sizes are sound. Else 0. (Source: [MS-CFB] 2.2.)
    static int IsOLE2Document(CString path);
};

} // namespace VyrLibraryUtils
