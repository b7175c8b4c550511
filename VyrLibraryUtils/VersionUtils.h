/// @file
/// Reads the version of the running program.
#pragma once

#include <VyrLibraryUtils/Export.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>

namespace VyrLibraryUtils {

/// The version of the running program: on Windows from its version resource, on Linux from the note that the build
/// adds. A program without one gives 0 and empty texts.
class VYR_UTILS_API VersionUtils
{
public:
    VersionUtils();
    ~VersionUtils();
    VersionUtils& operator=(const VersionUtils&);

    /// The first number of the file version.
    static std::int32_t GetFileMajorVersion();
    /// The second number.
    static std::int32_t GetFileMinorVersion();
    /// The third number.
    static std::int32_t GetFileRevisionVersion();
    /// The fourth number.
    static std::int32_t GetFileBuildVersion();
    /// The product's name.
    static CString GetProductName();
    /// The product's version as text.
    static CString GetStringProductVersion();
};

} // namespace VyrLibraryUtils
