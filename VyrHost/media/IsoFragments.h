/// @file
/// The duration of fragmented films whose header does not say it.
#pragma once

#include <VyrLibraryUtils/pictures/ByteView.h>

#include <cstdint>
#include <map>
#include <optional>

namespace VyrHost::Media {

/// Adds up the durations of the samples of each track. Source: ISO/IEC 14496-12, sections 8.8.3, 8.8.7 and 8.8.8.
class IsoFragments
{
public:
    /// `movieBox` describes the tracks.
    explicit IsoFragments(const VyrLibraryUtils::Pictures::ByteView& movieBox);

    /// Adds a fragment, given the content of its box.
    /// @return false when the limit of samples is reached: add no more.
    [[nodiscard]] bool Add(const VyrLibraryUtils::Pictures::ByteView& fragment);

    /// The duration of the longest track, in milliseconds.
    [[nodiscard]] std::optional<std::uint64_t> Duration() const;

private:
    struct Track
    {
        std::uint32_t unitsPerSecond = 0;
        /// The duration of a sample if the fragment does not say it.
        std::uint32_t usualDuration = 0;
        std::uint64_t duration = 0;
    };

    void AddTrack(const VyrLibraryUtils::Pictures::ByteView& track);
    void AddPart(const VyrLibraryUtils::Pictures::ByteView& part);
    [[nodiscard]] std::uint64_t DurationOfRun(const VyrLibraryUtils::Pictures::ByteView& run,
                                              std::uint32_t usualDuration);

    /// By their ids.
    std::map<std::uint32_t, Track> m_tracks;
    int m_samplesLeft;
};

} // namespace VyrHost::Media
