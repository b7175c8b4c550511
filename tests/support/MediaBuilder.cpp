#include <tests/support/MediaBuilder.h>

#include <bit>

namespace VyrTests {

namespace {

Bytes Big(std::uint64_t value, std::size_t width)
{
    return Number(value, width, Endian::Big);
}

Bytes Little(std::uint64_t value, std::size_t width)
{
    return Number(value, width, Endian::Little);
}

Bytes HandlerBox(std::string_view kind)
{
    return Box("hdlr", Bytes(8, '\0') + Bytes(kind) + Bytes(13, '\0'));
}

/// Four sizes of seven bits each.
Bytes SynchSafe(std::size_t size)
{
    Bytes bytes;
    for (int shift = 21; shift >= 0; shift -= 7)
        bytes += static_cast<char>(size >> shift & 0x7F);
    return bytes;
}

Bytes VorbisComment(const MusicTags& tags)
{
    Bytes comment = Little(4, 4) + "test" + Little(tags.size(), 4);
    for (const auto& [name, value] : tags)
        comment += Little(name.size() + 1 + value.size(), 4) + name + "=" + value;
    return comment;
}

Bytes FlacBlock(std::uint8_t type, std::string_view content)
{
    return Big(type, 1) + Big(content.size(), 3) + Bytes(content);
}

} // namespace

Bytes MovieHeader(const FilmFacts& facts, std::uint8_t version)
{
    const std::size_t width = version == 1 ? 8 : 4;
    return Box("mvhd", Big(version, 1) + Big(0, 3) + Big(facts.created, width) + Big(facts.created, width) +
                           Big(facts.unitsPerSecond, 4) + Big(facts.duration, width) + Bytes(80, '\0'));
}

Bytes PictureTrack(std::uint32_t width, std::uint32_t height)
{
    const Bytes sample = Box("avc1", Bytes(24, '\0') + Big(width, 2) + Big(height, 2) + Bytes(50, '\0'));
    const Bytes descriptions = Box("stsd", Big(0, 4) + Big(1, 4) + sample);
    const Bytes media = HandlerBox("vide") + Box("minf", Box("stbl", descriptions));
    const Bytes header =
        Box("tkhd", Bytes(76, '\0') + Big(std::uint64_t{width} << 16, 4) + Big(std::uint64_t{height} << 16, 4));
    return Box("trak", header + Box("mdia", media));
}

Bytes BuildMp4(const FilmFacts& facts, std::string_view brand, bool isMovieLast)
{
    const Bytes movie = Box("moov", MovieHeader(facts) + PictureTrack(facts.width, facts.height));
    const Bytes data = Box("mdat", Bytes(5000, 'x'));
    const Bytes type = Box("ftyp", Bytes(brand) + Big(0, 4) + Bytes(brand));
    return isMovieLast ? type + data + movie : type + movie + data;
}

Bytes EbmlElement(std::string_view id, std::string_view content)
{
    return Bytes(id) + Big(0x0100000000000000 | content.size(), 8) + Bytes(content);
}

Bytes EbmlHead(std::string_view type)
{
    return EbmlElement("\x1A\x45\xDF\xA3", EbmlElement("\x42\x86", "\x01") + EbmlElement("\x42\x82", type));
}

Bytes MatroskaInfo(const FilmFacts& facts, std::string_view title)
{
    const auto milliseconds = static_cast<double>(facts.duration * 1000) / facts.unitsPerSecond;
    Bytes info = EbmlElement("\x2A\xD7\xB1", Big(1'000'000, 3));
    info += EbmlElement("\x44\x89", Big(std::bit_cast<std::uint64_t>(milliseconds), 8));
    if (facts.created != 0)
        info += EbmlElement("\x44\x61", Big(facts.created * 1'000'000'000, 8));
    if (!title.empty())
        info += EbmlElement("\x7B\xA9", title);
    return EbmlElement("\x15\x49\xA9\x66", info);
}

Bytes MatroskaTracks(const FilmFacts& facts)
{
    const Bytes video = EbmlElement("\xB0", Big(facts.width, 2)) + EbmlElement("\xBA", Big(facts.height, 2));
    const Bytes sound = EbmlElement("\xAE", EbmlElement("\x83", "\x02"));
    return EbmlElement("\x16\x54\xAE\x6B", sound + EbmlElement("\xAE", EbmlElement("\xE0", video)));
}

Bytes BuildMatroska(const FilmFacts& facts, std::string_view type, std::string_view title)
{
    const Bytes cluster = EbmlElement("\x1F\x43\xB6\x75", Bytes(2000, 'x'));
    return EbmlHead(type) +
           EbmlElement("\x18\x53\x80\x67", MatroskaInfo(facts, title) + MatroskaTracks(facts) + cluster);
}

Bytes RiffList(std::string_view form, std::string_view content)
{
    return RiffChunk("LIST", Bytes(form) + Bytes(content));
}

Bytes BuildAvi(std::uint32_t pictures, std::uint32_t width, std::uint32_t height, std::string_view headers,
               std::string_view information)
{
    const Bytes size = Little(width, 4) + Little(height, 4);
    const Bytes main = RiffChunk("avih", Little(40000, 4) + Bytes(12, '\0') + Little(pictures, 4) + Bytes(12, '\0') +
                                             size + Bytes(16, '\0'));
    const Bytes stream = RiffChunk("strh", "vidsMJPG" + Bytes(12, '\0') + Little(1, 4) + Little(25, 4) +
                                               Bytes(4, '\0') + Little(pictures, 4) + Bytes(20, '\0'));
    const Bytes format = RiffChunk("strf", Little(40, 4) + size + Bytes(28, '\0'));
    const Bytes lists = RiffList("hdrl", main + RiffList("strl", stream + format) + Bytes(headers)) +
                        RiffList("INFO", information) + RiffList("movi", Bytes(2000, 'x'));
    return "RIFF" + Little(lists.size() + 4, 4) + "AVI " + lists;
}

Bytes Id3Tag(const MusicTags& tags)
{
    constexpr char utf8 = 3;
    Bytes frames;
    for (const auto& [name, value] : tags)
        frames += name + SynchSafe(value.size() + 1) + Bytes(2, '\0') + utf8 + value;
    return "ID3" + Bytes("\x04\0\0", 3) + SynchSafe(frames.size()) + frames;
}

Bytes BuildMp3(std::string_view tag, std::size_t frames)
{
    // 128 kbit/s at 44,100 Hz.
    const Bytes frame = Bytes("\xFF\xFB\x90\x00", 4) + Bytes(413, '\0');
    Bytes music(tag);
    for (std::size_t count = 0; count < frames; ++count)
        music += frame;
    return music;
}

Bytes BuildFlac(const MusicTags& tags, std::uint64_t samples)
{
    constexpr std::uint64_t rate = 44100;
    constexpr std::uint64_t bitsLessOne = 15;
    const Bytes info = Big(4096, 2) + Big(4096, 2) + Bytes(6, '\0') + Big(rate << 44 | bitsLessOne << 36 | samples, 8) +
                       Bytes(16, '\0');
    constexpr std::uint8_t last = 0x80;
    return "fLaC" + FlacBlock(0, info) + FlacBlock(last | 4, VorbisComment(tags));
}

Bytes BuildWav(std::string_view information)
{
    constexpr std::uint32_t rate = 8000;
    const Bytes format = Little(1, 2) + Little(1, 2) + Little(rate, 4) + Little(rate, 4) + Little(1, 2) + Little(8, 2);
    const Bytes list = information.empty() ? Bytes() : RiffList("INFO", information);
    const Bytes chunks = RiffChunk("fmt ", format) + list + RiffChunk("data", Bytes(rate, '\x80'));
    return "RIFF" + Little(chunks.size() + 4, 4) + "WAVE" + chunks;
}

} // namespace VyrTests
