// The one rule for the size of a box.
#include <VyrLibraryUtils/pictures/IsoBox.h>

namespace VyrLibraryUtils::Pictures {

std::optional<IsoBox> NextBox(ByteCursor& cursor)
{
    constexpr std::uint64_t shortHeader = 8;
    constexpr std::uint64_t longHeader = 16;
    std::uint64_t size = cursor.U32();
    const std::uint32_t type = cursor.U32();
    const bool isLong = size == 1;
    if (isLong)
        size = cursor.Unsigned(8);
    const std::uint64_t header = isLong ? longHeader : shortHeader;
    if (!isLong && size == 0)
        size = header + cursor.Remaining();
    if (cursor.Failed() || size < header)
        return std::nullopt;
    return IsoBox{type, cursor.Take(size - header)};
}

} // namespace VyrLibraryUtils::Pictures
