/// @file
/// The duration of films in fragments that do not tell it in front.
#pragma once

#include <VyrLibraryUtils/pictures/ByteView.h>

#include <cstdint>
#include <map>
#include <optional>

namespace VyrHost::Media {

/// Adds up how long the samples of each track last. Source: ISO/IEC 14496-12, sections 8.8.3, 8.8.7 and 8.8.8.
class IsoFragments
{
public:
    /// `movieBox` tells of the tracks.
    explicit IsoFragments(const VyrLibraryUtils::Pictures::ByteView& movieBox);

    /// Adds a fragment, by the content of its box.
    /// @return false where there were so many samples that no more are to be added.
    [[nodiscard]] bool Add(const VyrLibraryUtils::Pictures::ByteView& fragment);

    /// Of the longest track, in milliseconds.
    [[nodiscard]] std::optional<std::uint64_t> Duration() const;

private:
    struct Track
    {
        std::uint32_t unitsPerSecond = 0;
        /// Of a sample, where a fragment does not tell.
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
