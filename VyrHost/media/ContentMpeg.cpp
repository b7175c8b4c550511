#include <VyrHost/media/ContentReaders.h>

#include <array>
#include <cstdint>
#include <string>

namespace VyrHost::Media {

namespace {

using namespace VyrLibraryUtils::Pictures;

std::uint32_t HeadAt(const ByteView& file, std::uint64_t offset)
{
    ByteCursor cursor(file.From(offset), ByteOrder::Big);
    return cursor.U32();
}

/// The size in bytes of the layer III frame with the header `head`; 0 if it is not one.
std::uint32_t SoundFrameSize(std::uint32_t head)
{
    constexpr std::array<std::uint32_t, 16> first{0, 32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320, 0};
    constexpr std::array<std::uint32_t, 16> second{0, 8, 16, 24, 32, 40, 48, 56, 64, 80, 96, 112, 128, 144, 160, 0};
    constexpr std::array<std::uint32_t, 4> rates{44100, 48000, 32000, 0};
    constexpr std::uint32_t sync = 0xFFE00000;
    const std::uint32_t version = head >> 19 & 3;
    const std::uint32_t layer = head >> 17 & 3;
    const std::uint32_t rate = rates[head >> 10 & 3];
    const bool isFirst = version == 3;
    const std::uint32_t kilobits = (isFirst ? first : second)[head >> 12 & 0xF];
    if ((head & sync) != sync || version == 1 || layer != 1 || rate == 0 || kilobits == 0)
        return 0;
    const std::uint32_t padding = head >> 9 & 1;
    // Versions 2 and 2.5 have half and a quarter of the rate.
    if (isFirst)
        return 144000 * kilobits / rate + padding;
    return 72000 * kilobits / (rate / (version == 2 ? 2 : 4)) + padding;
}

/// The size of the ADTS frame at `offset`; 0 if there is none.
std::uint32_t AdtsFrameSize(const ByteView& file, std::uint64_t offset)
{
    constexpr std::uint32_t mask = 0xFFF60000;
    constexpr std::uint32_t sync = 0xFFF00000;
    constexpr std::uint32_t head = 7;
    if ((HeadAt(file, offset) & mask) != sync)
        return 0;
    const std::uint32_t size = HeadAt(file, offset + 3) >> 13 & 0x1FFF;
    return size > head ? size : 0;
}

bool HasSoundFrames(const ByteView& file)
{
    const std::uint32_t size = SoundFrameSize(HeadAt(file, 0));
    return size > 0 && (size >= file.Size() || SoundFrameSize(HeadAt(file, size)) > 0);
}

bool HasAdtsFrames(const ByteView& file)
{
    const std::uint32_t size = AdtsFrameSize(file, 0);
    return size > 0 && (size >= file.Size() || AdtsFrameSize(file, size) > 0);
}

/// Whether packets of `size` bytes, whose sync byte is at `first`, follow one another.
bool HasPackets(const ByteView& file, std::uint64_t first, std::uint64_t size)
{
    constexpr int count = 4;
    for (int packet = 0; packet < count; ++packet)
        if (!file.From(first + static_cast<std::uint64_t>(packet) * size).StartsWith("\x47"))
            return false;
    return true;
}

} // namespace

std::u16string_view KindOfMpeg(const ByteView& file)
{
    if (file.StartsWith("ID3") || HasSoundFrames(file))
        return u"mp3";
    if (HasAdtsFrames(file))
        return u"aac";
    if (HasPackets(file, 0, 188))
        return u"ts";
    return HasPackets(file, 4, 192) ? u"mts" : u"";
}

} // namespace VyrHost::Media
