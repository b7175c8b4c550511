/// @file
/// Tags and durations of music, by TagLib.
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
    /// Reads from `offset` on into `buffer`.
    /// @return how many bytes, fewer at the end.
    [[nodiscard]] virtual std::size_t ReadAt(std::uint64_t offset, std::span<std::byte> buffer) const = 0;
};

/// Reads the tags, and the duration, where `question` asks for them: MP3, FLAC, Ogg, Opus, M4A, WAV and whatever else
/// TagLib knows by its content. At most 64 MiB of the file are read, no block above 32 MiB.
void ReadMusic(const MusicBytes& bytes, const MediaQuestion& question, MediaValues& values);

} // namespace VyrHost::Media
