// Names on Linux: up to 255 bytes of anything but a slash and NUL.
#include <VyrHostPlatform/common/SystemNameRules.h>

#include <VyrPlatform/text/Encoding.h>

namespace VyrHostPlatform::SystemNameRules {

using namespace VyrPlatform;

bool IsError(NameFault) noexcept
{
    return false;
}

bool IsForbidden(char16_t unit) noexcept
{
    return unit == u'/' || unit == 0;
}

bool IsTooLong(std::u16string_view name)
{
    constexpr std::size_t MostBytes = 255;
    constexpr std::size_t MostBytesOfUnit = 3;
    return name.size() * MostBytesOfUnit > MostBytes && Encoding::ToNameBytes(name).size() > MostBytes;
}

} // namespace VyrHostPlatform::SystemNameRules
