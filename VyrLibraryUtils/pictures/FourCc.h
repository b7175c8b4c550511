/// @file
/// The names of four characters that several formats give to their parts.
#pragma once

#include <cstdint>

namespace VyrLibraryUtils::Pictures {

/// The 32-bit big-endian number that stands for `name` in a file: `"ftyp"` is 0x66747970.
consteval std::uint32_t FourCc(const char (&name)[5])
{
    std::uint32_t number = 0;
    for (int i = 0; i < 4; ++i)
        number = number << 8 | static_cast<unsigned char>(name[i]);
    return number;
}

/// Whether `number` is such a name: four printable ASCII characters. Anything else means that the file is damaged.
constexpr bool IsFourCc(std::uint32_t number)
{
    for (int shift = 0; shift < 32; shift += 8)
        if (const std::uint32_t character = number >> shift & 0xFF; character < 0x20 || character > 0x7E)
            return false;
    return true;
}

} // namespace VyrLibraryUtils::Pictures
