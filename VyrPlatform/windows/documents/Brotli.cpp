// Windows has no Brotli library: nothing is unpacked here.
#include <VyrPlatform/documents/Brotli.h>

namespace VyrPlatform::Brotli {

bool IsAvailable() noexcept
{
    return false;
}

std::string Unpack(std::string_view, std::size_t)
{
    return {};
}

} // namespace VyrPlatform::Brotli
