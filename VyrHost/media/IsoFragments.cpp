#include <VyrHost/media/IsoFragments.h>

#include <VyrHost/media/IsoBoxes.h>
#include <VyrLibraryUtils/pictures/FourCc.h>

#include <algorithm>

namespace VyrHost::Media {

using namespace VyrLibraryUtils::Pictures;

namespace {

/// Ten hours of film; bounds the time for a file that lies.
constexpr int mostSamples = 2'000'000;

/// The number after the two times of a header: the id of a track (tkhd), its units per second (mdhd).
std::uint32_t NumberBehindTimes(const std::optional<ByteView>& header)
{
    if (!header)
        return 0;
    ByteCursor cursor(*header, ByteOrder::Big);
    cursor.Skip(TakeIsLong(cursor) ? 16 : 8);
    return cursor.U32();
}

} // namespace

IsoFragments::IsoFragments(const ByteView& movieBox) : m_samplesLeft(mostSamples)
{
    ForEachBox(movieBox, [this](const IsoBox& box) {
        if (box.type == FourCc("trak"))
            AddTrack(box.content);
        return true;
    });
    const auto extension = FindBox(movieBox, FourCc("mvex"));
    if (!extension)
        return;
    ForEachBox(*extension, [this](const IsoBox& box) {
        if (box.type != FourCc("trex"))
            return true;
        ByteCursor cursor(box.content.From(4), ByteOrder::Big);
        const auto track = m_tracks.find(cursor.U32());
        cursor.Skip(4);
        if (track != m_tracks.end())
            track->second.usualDuration = cursor.U32();
        return true;
    });
}

void IsoFragments::AddTrack(const ByteView& track)
{
    const auto media = FindBox(track, FourCc("mdia"));
    const std::uint32_t id = NumberBehindTimes(FindBox(track, FourCc("tkhd")));
    if (media)
        m_tracks[id].unitsPerSecond = NumberBehindTimes(FindBox(*media, FourCc("mdhd")));
}

bool IsoFragments::Add(const ByteView& fragment)
{
    ForEachBox(fragment, [this](const IsoBox& box) {
        if (box.type == FourCc("traf"))
            AddPart(box.content);
        return m_samplesLeft > 0;
    });
    return m_samplesLeft > 0;
}

void IsoFragments::AddPart(const ByteView& part)
{
    constexpr std::uint32_t hasOffset = 0x1;
    constexpr std::uint32_t hasDescription = 0x2;
    constexpr std::uint32_t hasDuration = 0x8;
    const auto header = FindBox(part, FourCc("tfhd"));
    if (!header)
        return;
    ByteCursor cursor(*header, ByteOrder::Big);
    const std::uint32_t flags = cursor.U32();
    const auto track = m_tracks.find(cursor.U32());
    if (track == m_tracks.end())
        return;
    cursor.Skip(((flags & hasOffset) != 0 ? 8U : 0U) + ((flags & hasDescription) != 0 ? 4U : 0U));
    const std::uint32_t usual = (flags & hasDuration) != 0 ? cursor.U32() : track->second.usualDuration;
    ForEachBox(part, [&](const IsoBox& box) {
        if (box.type == FourCc("trun"))
            track->second.duration += DurationOfRun(box.content, usual);
        return m_samplesLeft > 0;
    });
}

std::uint64_t IsoFragments::DurationOfRun(const ByteView& run, std::uint32_t usualDuration)
{
    constexpr std::uint32_t hasOffset = 0x1;
    constexpr std::uint32_t hasFirstFlags = 0x4;
    constexpr std::uint32_t hasDuration = 0x100;
    // The size, the flags and the offset of each sample.
    constexpr std::uint32_t others[] = {0x200, 0x400, 0x800};
    ByteCursor cursor(run, ByteOrder::Big);
    const std::uint32_t flags = cursor.U32();
    const std::uint64_t count = cursor.U32();
    // Samples of the usual duration need not be read one by one.
    if ((flags & hasDuration) == 0) {
        --m_samplesLeft;
        return count * usualDuration;
    }
    cursor.Skip(((flags & hasOffset) != 0 ? 4U : 0U) + ((flags & hasFirstFlags) != 0 ? 4U : 0U));
    const auto behind = 4 * static_cast<std::uint64_t>(std::ranges::count_if(
                                others, [flags](std::uint32_t one) { return (flags & one) != 0; }));
    std::uint64_t duration = 0;
    for (std::uint64_t sample = 0; sample < count && m_samplesLeft > 0 && !cursor.Failed(); ++sample) {
        --m_samplesLeft;
        duration += cursor.U32();
        cursor.Skip(behind);
    }
    return duration;
}

std::optional<std::uint64_t> IsoFragments::Duration() const
{
    std::optional<std::uint64_t> longest;
    for (const auto& [id, track] : m_tracks)
        longest = std::max(longest, Milliseconds(track.duration, track.unitsPerSecond));
    return longest;
}

} // namespace VyrHost::Media
