/// @file
/// Reads tags and durations of music with TagLib.
#pragma once

#include <VyrHost/media/MediaValues.h>
#include <VyrPlatform/files/FileReader.h>

#include <string_view>

namespace VyrHost::Media {

/// The bytes of a piece of music.
class MusicBytes
{
public:
    virtual ~MusicBytes() = default;
    [[nodiscard]] virtual std::uint64_t Size() const = 0;
    /// Reads into `buffer`, starting at `offset`.
    /// @return the number of bytes read; less at the end.
    [[nodiscard]] virtual std::size_t ReadAt(std::uint64_t offset, std::span<std::byte> buffer) const = 0;
};

/// Reads the tags and the duration, if `question` selects them, of MP3, FLAC, Ogg, Opus, M4A, WAV and other files that
/// TagLib recognises by their content. Reads at most 64 MiB of the file, in blocks of at most 32 MiB.
void ReadMusic(const MusicBytes& bytes, const MediaQuestion& question, MediaValues& values);

} // namespace VyrHost::Media
