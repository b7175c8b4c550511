// Reads the movie box of MP4 and QuickTime files.
#include <VyrHost/media/Movie.h>

#include <VyrHost/media/Instants.h>
#include <VyrHost/media/IsoBoxes.h>
#include <VyrHost/media/IsoFragments.h>
#include <VyrHost/media/PictureDates.h>
#include <VyrLibraryUtils/pictures/FourCc.h>
#include <VyrPlatform/time/Epochs.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>
#include <vector>

namespace VyrHost::Media {

namespace {

using namespace VyrLibraryUtils::Pictures;
using VyrPlatform::secondsToUnixEpoch;

std::optional<VyrPlatform::FileTicks> CreationTime(std::uint64_t seconds)
{
    constexpr std::uint64_t from1904To1970 = secondsToUnixEpoch - secondsTo1904;
    // Later than any real date.
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

/// The text that a key of QuickTime's metadata stands for; null for an unused key. Apple's keys begin with its name,
/// those of ffmpeg do not.
std::string Movie::*TextOfKey(std::string_view key)
{
    struct Known
    {
        std::string_view key;
        std::string Movie::*text;
    };
    constexpr Known known[] = {
        {"title", &Movie::title}, {"artist", &Movie::artist}, {"album", &Movie::album},
        {"genre", &Movie::genre}, {"year", &Movie::year},     {"date", &Movie::year},
        {"track", &Movie::track}, {"disc", &Movie::disc},     {"creationdate", &Movie::creationDate},
    };
    constexpr std::string_view apple = "com.apple.quicktime.";
    key.remove_prefix(key.starts_with(apple) ? apple.size() : 0);
    const auto* const found = std::ranges::find(known, key, &Known::key);
    return found == std::end(known) ? nullptr : found->text;
}

/// The texts that the keys stand for, in order.
std::vector<std::string Movie::*> ReadKeys(const ByteView& keys)
{
    constexpr std::uint64_t versionAndFlags = 4;
    constexpr std::uint32_t sizeAndSpace = 8;
    constexpr std::size_t longestKey = 64;
    constexpr std::uint32_t mostKeys = 10000;
    std::vector<std::string Movie::*> texts;
    ByteCursor cursor(keys.From(versionAndFlags), ByteOrder::Big);
    for (std::uint32_t left = std::min(cursor.U32(), mostKeys); left > 0; --left) {
        const std::uint32_t size = cursor.U32();
        const bool isName = cursor.U32() == FourCc("mdta");
        if (cursor.Failed() || size < sizeAndSpace)
            break;
        const std::string key = cursor.Take(size - sizeAndSpace).Copy(longestKey);
        texts.push_back(isName ? TextOfKey(key) : nullptr);
    }
    return texts;
}

/// QuickTime's metadata: values by the numbers of their keys, from 1 on. The first text of each kind counts. Source:
/// Apple, QuickTime File Format, "Metadata".
void ReadMetadata(const ByteView& meta, Movie& movie)
{
    // In MP4 the box begins with a version and flags, in QuickTime not.
    constexpr std::uint64_t versionAndFlags = 4;
    constexpr std::uint64_t typeField = 8;
    const ByteView boxes = meta.From(versionAndFlags).StartsWith("hdlr") ? meta : meta.From(versionAndFlags);
    const auto handler = FindBox(boxes, FourCc("hdlr"));
    const auto keys = FindBox(boxes, FourCc("keys"));
    const auto values = FindBox(boxes, FourCc("ilst"));
    if (!handler || !handler->From(typeField).StartsWith("mdta") || !keys || !values)
        return;
    const std::vector<std::string Movie::*> texts = ReadKeys(*keys);
    ForEachBox(*values, [&](const IsoBox& box) {
        if (box.type == 0 || box.type > texts.size() || texts[box.type - 1] == nullptr)
            return true;
        std::string& text = movie.*texts[box.type - 1];
        const auto data = FindBox(box.content, FourCc("data"));
        constexpr std::uint32_t utf8 = 1;
        if (!text.empty() || !data || ByteCursor(*data, ByteOrder::Big).U32() != utf8)
            return true;
        constexpr std::uint64_t typeAndLocale = 8;
        text = data->From(typeAndLocale).Copy(UINT16_MAX);
        return true;
    });
}

/// QuickTime's user data: a length, a language, the text. Source: Apple, QuickTime File Format, "User Data Text
/// Strings".
void ReadUserData(const ByteView& userData, Movie& movie)
{
    struct Known
    {
        std::uint32_t type;
        std::string Movie::*text;
    };
    // "(c)nam" and the like, in Mac Roman.
    constexpr Known known[] = {
        {0xA96E616D, &Movie::title}, {0xA9415254, &Movie::artist}, {0xA9616C62, &Movie::album},
        {0xA967656E, &Movie::genre}, {0xA9646179, &Movie::year},
    };
    ForEachBox(userData, [&](const IsoBox& box) {
        if (box.type == FourCc("meta"))
            ReadMetadata(box.content, movie);
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
        else if (box.type == FourCc("meta"))
            ReadMetadata(box.content, movie);
        else if (box.type == FourCc("mvex") && !movie.duration)
            ReadExtension(box.content, unitsPerSecond, movie);
        return true;
    });
    const auto date = ParsePictureDate(movie.creationDate);
    if (const auto instant = date ? date->Instant() : std::nullopt)
        movie.created = instant;
}

/// The largest of the sizes in a picture's properties: that of the whole picture, not of its tiles.
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
