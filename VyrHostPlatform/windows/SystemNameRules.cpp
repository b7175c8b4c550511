// Names on Windows: up to 255 code units, and every fault an error.
#include <VyrHostPlatform/common/SystemNameRules.h>

namespace VyrHostPlatform::SystemNameRules {

bool IsError(NameFault) noexcept
{
    return true;
}

bool IsForbidden(char16_t unit) noexcept
{
    return unit == u'/' || unit == u'\\' || unit == 0;
}

bool IsTooLong(std::u16string_view name)
{
    constexpr std::size_t mostUnits = 255;
    return name.size() > mostUnits;
}

} // namespace VyrHostPlatform::SystemNameRules
