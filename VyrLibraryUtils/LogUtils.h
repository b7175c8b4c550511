/// @file
/// Gives texts for log lines.
#pragma once

#include <VyrLibraryUtils/Export.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>

namespace VyrLibraryUtils {

/// Logging.
class VYR_UTILS_API LogUtils
{
public:
    LogUtils();
    ~LogUtils();
    LogUtils& operator=(const LogUtils&);

    /// The system's message for its error `code`, without a line end; empty for an unknown one.
    static CString GetLastErrorMessage(std::uint32_t code);
};

} // namespace VyrLibraryUtils
