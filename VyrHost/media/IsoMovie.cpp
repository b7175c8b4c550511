// Reads the movie box of MP4 and QuickTime files.
#include <VyrHost/media/Movie.h>

#include <VyrHost/media/Instants.h>
#include <VyrHost/media/IsoBoxes.h>
#include <VyrHost/media/IsoFragments.h>
#include <VyrLibraryUtils/pictures/FourCc.h>
#include <VyrPlatform/time/Epochs.h>

#include <algorithm>
#include <array>
#include <iterator>

namespace VyrHost::Media {

namespace {

using namespace VyrLibraryUtils::Pictures;
using VyrPlatform::secondsToUnixEpoch;

std::optional<VyrPlatform::FileTicks> CreationTime(std::uint64_t seconds)
{
    constexpr std::uint64_t from1904To1970 = secondsToUnixEpoch - secondsTo1904;
    // Beyond any year that is told.
    constexpr std::uint64_t mostSeconds = std::uint64_t{1} << 40;
    if (seconds == 0 || seconds > mostSeconds)
        return std::nullopt;
    const std::int64_t origin = seconds < from1904To1970 ? secondsToUnixEpoch : secondsTo1904;
    return InstantOf(origin + static_cast<std::int64_t>(seconds));
}

/// The size of the pictures in a track's sample descriptions.
bool ReadSampleSize(const ByteView& media, Movie& movie)
{
    const auto information = FindBox(media, FourCc("minf"));
    const auto table = information ? FindBox(*information, FourCc("stbl")) : std::nullopt;
    const auto descriptions = table ? FindBox(*table, FourCc("stsd")) : std::nullopt;
    if (!descriptions)
        return false;
    constexpr std::uint64_t countAndFlags = 8;
    constexpr std::uint64_t boxHeader = 8;
    constexpr std::uint64_t beforeSize = 24;
    ByteCursor cursor(descriptions->From(countAndFlags + boxHeader + beforeSize), ByteOrder::Big);
    const std::uint32_t width = cursor.U16();
    const std::uint32_t height = cursor.U16();
    if (cursor.Failed() || width == 0 || height == 0)
        return false;
    movie.width = width;
    movie.height = height;
    return true;
}

/// The size in a track's header, whose numbers have 16 binary places.
void ReadShownSize(const ByteView& track, Movie& movie)
{
    const auto header = FindBox(track, FourCc("tkhd"));
    if (!header)
        return;
    ByteCursor cursor(*header, ByteOrder::Big);
    constexpr std::uint64_t toSize = 72;
    constexpr std::uint64_t longerBy = 12;
    cursor.Skip(TakeIsLong(cursor) ? toSize + longerBy : toSize);
    movie.width = cursor.U32() >> 16;
    movie.height = cursor.U32() >> 16;
}

void ReadTrack(const ByteView& track, Movie& movie)
{
    const auto media = FindBox(track, FourCc("mdia"));
    const auto handler = media ? FindBox(*media, FourCc("hdlr")) : std::nullopt;
    constexpr std::uint64_t typeField = 8;
    if (movie.width == 0 && handler && handler->From(typeField).StartsWith("vide") && !ReadSampleSize(*media, movie))
        ReadShownSize(track, movie);
}

/// The units per second, which other boxes need.
std::uint32_t ReadMovieHeader(const ByteView& header, Movie& movie)
{
    ByteCursor cursor(header, ByteOrder::Big);
    const std::size_t width = TakeIsLong(cursor) ? 8 : 4;
    movie.created = CreationTime(cursor.Unsigned(width));
    cursor.Skip(width);
    const std::uint32_t unitsPerSecond = cursor.U32();
    movie.duration = Milliseconds(cursor.Unsigned(width), unitsPerSecond);
    return unitsPerSecond;
}

/// The duration of a film in fragments.
void ReadExtension(const ByteView& extension, std::uint32_t unitsPerSecond, Movie& movie)
{
    const auto header = FindBox(extension, FourCc("mehd"));
    if (!header)
        return;
    ByteCursor cursor(*header, ByteOrder::Big);
    movie.duration = Milliseconds(cursor.Unsigned(TakeIsLong(cursor) ? 8 : 4), unitsPerSecond);
}

/// What QuickTime keeps among the user's data: a length, a language, the text. Source: Apple, QuickTime File Format,
/// "User Data Text Strings".
void ReadUserData(const ByteView& userData, Movie& movie)
{
    struct Known
    {
        std::uint32_t type;
        std::string Movie::*text;
    };
    // "(c)nam" and its like, in Mac Roman.
    constexpr Known known[] = {
        {0xA96E616D, &Movie::title}, {0xA9415254, &Movie::artist}, {0xA9616C62, &Movie::album},
        {0xA967656E, &Movie::genre}, {0xA9646179, &Movie::year},
    };
    ForEachBox(userData, [&](const IsoBox& box) {
        const auto* const found = std::ranges::find(known, box.type, &Known::type);
        if (found == std::end(known))
            return true;
        ByteCursor cursor(box.content, ByteOrder::Big);
        const std::uint16_t length = cursor.U16();
        cursor.Skip(2);
        movie.*(found->text) = cursor.Take(length).Copy(length);
        return true;
    });
}

void ReadMovieBox(const ByteView& content, Movie& movie)
{
    std::uint32_t unitsPerSecond = 0;
    ForEachBox(content, [&](const IsoBox& box) {
        if (box.type == FourCc("mvhd"))
            unitsPerSecond = ReadMovieHeader(box.content, movie);
        else if (box.type == FourCc("trak"))
            ReadTrack(box.content, movie);
        else if (box.type == FourCc("udta"))
            ReadUserData(box.content, movie);
        else if (box.type == FourCc("mvex") && !movie.duration)
            ReadExtension(box.content, unitsPerSecond, movie);
        return true;
    });
}

/// The largest of the sizes that a picture's properties tell: that of the whole, not of its tiles.
void ReadPictureBox(const ByteView& meta, Movie& movie)
{
    constexpr std::uint64_t versionAndFlags = 4;
    const auto properties = FindBox(meta.From(versionAndFlags), FourCc("iprp"));
    const auto container = properties ? FindBox(*properties, FourCc("ipco")) : std::nullopt;
    if (!container)
        return;
    ForEachBox(*container, [&movie](const IsoBox& box) {
        if (box.type != FourCc("ispe"))
            return true;
        ByteCursor cursor(box.content.From(versionAndFlags), ByteOrder::Big);
        const std::uint32_t width = cursor.U32();
        const std::uint32_t height = cursor.U32();
        if (std::uint64_t{width} * height > std::uint64_t{movie.width} * movie.height) {
            movie.width = width;
            movie.height = height;
        }
        return true;
    });
}

} // namespace

bool IsIsoMedia(const ByteView& bytes)
{
    // Old films have no ftyp.
    constexpr std::array<std::uint32_t, 7> first{FourCc("ftyp"), FourCc("moov"), FourCc("mdat"), FourCc("wide"),
                                                 FourCc("free"), FourCc("skip"), FourCc("pnot")};
    ByteCursor cursor(bytes, ByteOrder::Big);
    cursor.Skip(4);
    return std::find(first.begin(), first.end(), cursor.U32()) != first.end();
}

Movie ReadIsoMovie(const ByteView& file, bool asksForDuration)
{
    Movie movie;
    std::optional<IsoFragments> fragments;
    ForEachBox(file, [&](const IsoBox& box) {
        if (!IsFourCc(box.type))
            return false;
        if (box.type == FourCc("meta")) {
            ReadPictureBox(box.content, movie);
        } else if (box.type == FourCc("moov")) {
            ReadMovieBox(box.content, movie);
            if (movie.duration || !asksForDuration || !FindBox(box.content, FourCc("mvex")))
                return false;
            fragments.emplace(box.content);
        } else if (box.type == FourCc("moof") && fragments) {
            return fragments->Add(box.content);
        }
        return true;
    });
    if (fragments)
        movie.duration = fragments->Duration();
    return movie;
}

} // namespace VyrHost::Media
