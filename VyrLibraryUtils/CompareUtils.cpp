#include <VyrLibraryUtils/CompareUtils.h>
#include <VyrPlatform/text/Locale.h>

namespace VyrLibraryUtils {

CompareUtils::CompareUtils() = default;
CompareUtils::~CompareUtils() = default;
CompareUtils& CompareUtils::operator=(const CompareUtils&) = default;

int CompareUtils::CompareText(CString left, CString right, int descending, std::uint32_t /*flags*/,
                              std::uint32_t /*locale*/)
{
    return descending ? VyrPlatform::Locale::Compare(right, left) : VyrPlatform::Locale::Compare(left, right);
}

} // namespace VyrLibraryUtils
