/// @file
/// Compares texts.
#pragma once

#include <VyrLibraryUtils/Export.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>

namespace VyrLibraryUtils {

/// Comparison.
class VYR_UTILS_API CompareUtils
{
public:
    CompareUtils();
    ~CompareUtils();
    CompareUtils& operator=(const CompareUtils&);

    /// Compares under the collation of the user's locale.
    /// @param descending non-zero reverses the sign of the result.
    /// @param flags not read; the system passes 0.
    /// @param locale not read: every value means the user's locale, as 1024 does.
    /// @return negative, zero or positive as `left` sorts before, with or after `right`.
    static int CompareText(CString left, CString right, int descending, std::uint32_t flags, std::uint32_t locale);
};

} // namespace VyrLibraryUtils
