/// @file
/// Walks the boxes of MP4 and QuickTime files.
#pragma once

#include <VyrLibraryUtils/pictures/ByteView.h>
#include <VyrLibraryUtils/pictures/IsoBox.h>

#include <cstdint>
#include <optional>

namespace VyrHost::Media {

/// Passes each box of `boxes` to `use`, until that returns false.
template <class Use>
void ForEachBox(const VyrLibraryUtils::Pictures::ByteView& boxes, Use use)
{
    using namespace VyrLibraryUtils::Pictures;
    // More boxes than a sound file has on one level; bounds the search in a file of empty boxes.
    constexpr int mostBoxes = 10000;
    ByteCursor cursor(boxes, ByteOrder::Big);
    for (int left = mostBoxes; left > 0; --left) {
        const std::optional<IsoBox> box = NextBox(cursor);
        if (!box || !use(*box))
            return;
    }
}

/// The content of the first box of that type.
[[nodiscard]] inline std::optional<VyrLibraryUtils::Pictures::ByteView>
FindBox(const VyrLibraryUtils::Pictures::ByteView& boxes, std::uint32_t type)
{
    std::optional<VyrLibraryUtils::Pictures::ByteView> found;
    ForEachBox(boxes, [&found, type](const VyrLibraryUtils::Pictures::IsoBox& box) {
        if (box.type == type)
            found = box.content;
        return !found;
    });
    return found;
}

/// Whether the box at the cursor has 64-bit numbers. Skips its flags.
[[nodiscard]] inline bool TakeIsLong(VyrLibraryUtils::Pictures::ByteCursor& box)
{
    const bool isLong = box.U8() == 1;
    box.Skip(3);
    return isLong;
}

/// `duration` in milliseconds; nothing for 0, and for an unknown or impossible one.
[[nodiscard]] inline std::optional<std::uint64_t> Milliseconds(std::uint64_t duration, std::uint32_t unitsPerSecond)
{
    // All ones stand for an unknown duration.
    if (duration == 0 || duration == UINT32_MAX || duration > UINT64_MAX / 1000 || unitsPerSecond == 0)
        return std::nullopt;
    const std::uint64_t whole = duration / unitsPerSecond;
    const std::uint64_t rest = duration % unitsPerSecond;
    return whole * 1000 + (rest * 1000 + unitsPerSecond / 2) / unitsPerSecond;
}

} // namespace VyrHost::Media
