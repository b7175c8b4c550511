// CRC-32, as zlib computes it.
#include <VyrHost/batch/Checksum.h>

#include <zlib.h>

namespace VyrHost::Batch {

std::uint32_t Checksum(std::uint32_t before, std::string_view bytes) noexcept
{
    // For a null pointer zlib would start anew.
    if (bytes.empty())
        return before;
    return static_cast<std::uint32_t>(
        crc32_z(before, reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size()));
}

} // namespace VyrHost::Batch
