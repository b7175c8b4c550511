// CRC-32, eight bytes at a time.
#include <VyrHost/journal/Checksum.h>

#include <array>
#include <cstddef>

namespace VyrHost {

namespace {

constexpr std::size_t step = 8;
using Tables = std::array<std::array<std::uint32_t, 256>, step>;

/// The first table takes one byte; each further one takes a byte that has one more byte behind it.
constexpr Tables MakeTables() noexcept
{
    Tables tables{};
    for (std::uint32_t byte = 0; byte < 256; ++byte) {
        std::uint32_t value = byte;
        for (int bit = 0; bit < 8; ++bit)
            value = value & 1 ? value >> 1 ^ 0xEDB88320 : value >> 1;
        tables[0][byte] = value;
    }
    for (std::size_t table = 1; table < step; ++table)
        for (std::size_t byte = 0; byte < 256; ++byte)
            tables[table][byte] = tables[table - 1][byte] >> 8 ^ tables[0][tables[table - 1][byte] & 0xFF];
    return tables;
}

constexpr Tables tables = MakeTables();

std::uint32_t TakeByte(std::uint32_t value, char byte) noexcept
{
    return value >> 8 ^ tables[0][(value ^ static_cast<unsigned char>(byte)) & 0xFF];
}

std::uint32_t TakeStep(std::uint32_t value, const char* bytes) noexcept
{
    std::uint32_t result = 0;
    for (std::size_t index = 0; index < step; ++index) {
        const std::uint32_t mixed = index < sizeof(value) ? value >> (8 * index) : 0;
        result ^= tables[step - 1 - index][(mixed ^ static_cast<unsigned char>(bytes[index])) & 0xFF];
    }
    return result;
}

} // namespace

std::uint32_t Checksum(std::uint32_t before, std::string_view bytes) noexcept
{
    std::uint32_t value = ~before;
    for (; bytes.size() >= step; bytes.remove_prefix(step))
        value = TakeStep(value, bytes.data());
    for (const char byte : bytes)
        value = TakeByte(value, byte);
    return ~value;
}

} // namespace VyrHost
