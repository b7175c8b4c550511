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
    constexpr std::size_t mostBytes = 255;
    constexpr std::size_t mostBytesOfUnit = 3;
    return name.size() * mostBytesOfUnit > mostBytes && Encoding::ToNameBytes(name).size() > mostBytes;
}

} // namespace VyrHostPlatform::SystemNameRules
