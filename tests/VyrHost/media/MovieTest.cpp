// The dates, sizes and durations of films.
#include <VyrHost/media/MediaValues.h>

#include <tests/support/MediaBuilder.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/TimeZone.h>

#include <gtest/gtest.h>

#include <string>

using namespace VyrHost::Media;
using namespace VyrTests;

namespace {

/// 5 January 2024 10:30:00 UTC, from 1904 and from 2001 (`date -u -d … +%s` and the epochs' own).
constexpr std::uint64_t from1904 = 1704450600ULL + 2082844800ULL;
constexpr std::uint64_t from2001 = 1704450600ULL - 978307200ULL;
/// The same as a file time.
constexpr VyrPlatform::FileTicks instant = 133489242000000000;

MediaValues ReadAll(const Bytes& film)
{
    const ScratchFolder folder;
    return ReadMedia(folder.WriteFile(u"film", film),
                     {.size = true, .duration = true, .tags = true, .videoCreated = true});
}

/// A box of QuickTime's metadata, which in MP4 has a version and flags. `count` is what it says to be the number of
/// keys.
Bytes Metadata(const MusicTags& tags, std::uint32_t count, bool isMp4 = false)
{
    Bytes keys = Number(0, 4, Endian::Big) + Number(count, 4, Endian::Big);
    Bytes values;
    std::uint32_t number = 0;
    for (const auto& [key, value] : tags) {
        keys += Number(8 + key.size(), 4, Endian::Big) + "mdta" + key;
        const Bytes data = Number(1, 4, Endian::Big) + Number(0, 4, Endian::Big) + value;
        values += Box(Number(++number, 4, Endian::Big), Box("data", data));
    }
    const Bytes handler = Box("hdlr", Bytes(8, '\0') + "mdta" + Bytes(12, '\0'));
    return Box("meta", Bytes(isMp4 ? 4 : 0, '\0') + handler + Box("keys", keys) + Box("ilst", values));
}

/// A film in boxes of which only the head says something.
Bytes Film(const Bytes& header)
{
    return Box("ftyp", "isom") + Box("moov", header);
}

} // namespace

TEST(Movies, Mp4TellsItsDateSizeAndDuration)
{
    for (const bool isMovieLast : {false, true}) {
        const MediaValues values = ReadAll(BuildMp4({.created = from1904}, "isom", isMovieLast));
        EXPECT_EQ(values.videoCreated, instant);
        EXPECT_EQ(values.width, 320U);
        EXPECT_EQ(values.height, 240U);
        EXPECT_EQ(values.duration, 2500U);
    }
}

TEST(Movies, AFilmWithoutTheBoxOfBrandsIsRead)
{
    const Bytes film = Box("wide", "") + Box("mdat", "data") + Box("moov", MovieHeader({.created = from1904}));
    EXPECT_EQ(ReadAll(film).videoCreated, instant);
}

TEST(Movies, ADateOf0IsNone)
{
    EXPECT_EQ(ReadAll(BuildMp4({.created = 0})).videoCreated, std::nullopt);
    EXPECT_EQ(ReadAll(Film(MovieHeader({.created = 0}, 1))).videoCreated, std::nullopt);
}

TEST(Movies, ADateBefore1970CountsFrom1970)
{
    EXPECT_EQ(ReadAll(BuildMp4({.created = 1704450600})).videoCreated, instant);
}

TEST(Movies, DatesAfter2040AreRead)
{
    // 6 February 2040 06:28:15 is the last that 32 bits hold; 6 June 2106 needs 64.
    EXPECT_EQ(ReadAll(BuildMp4({.created = 0xFFFFFFFF})).videoCreated,
              instant + (0xFFFFFFFFLL - static_cast<std::int64_t>(from1904)) * 10'000'000);
    constexpr std::uint64_t in2106 = 4305139200ULL + 2082844800ULL;
    EXPECT_EQ(ReadAll(Film(MovieHeader({.created = in2106}, 1))).videoCreated,
              instant + (4305139200LL - 1704450600LL) * 10'000'000);
}

TEST(Movies, DatesBeyondTheCalendarAreNone)
{
    for (const std::uint64_t created : {UINT64_MAX, UINT64_MAX / 2, std::uint64_t{1} << 50, std::uint64_t{1} << 39})
        EXPECT_EQ(ReadAll(Film(MovieHeader({.created = created}, 1))).videoCreated, std::nullopt) << created;
}

TEST(Movies, ImpossibleDurationsAreNone)
{
    EXPECT_EQ(ReadAll(Film(MovieHeader({.unitsPerSecond = 0}))).duration, std::nullopt);
    EXPECT_EQ(ReadAll(Film(MovieHeader({.duration = 0xFFFFFFFF}))).duration, std::nullopt);
    EXPECT_EQ(ReadAll(Film(MovieHeader({.duration = UINT64_MAX}, 1))).duration, std::nullopt);
}

TEST(Movies, AFragmentedFilmTellsItsDurationInItsExtension)
{
    const Bytes extension = Box("mvex", Box("mehd", Number(0, 4, Endian::Big) + Number(900, 4, Endian::Big)));
    EXPECT_EQ(ReadAll(Film(MovieHeader({.duration = 0}) + extension)).duration, 1500U);
}

TEST(Movies, AHeicTellsTheSizeOfItsLargestPicture)
{
    const auto size = [](std::uint32_t width, std::uint32_t height) {
        return Box("ispe", Bytes(4, '\0') + Number(width, 4, Endian::Big) + Number(height, 4, Endian::Big));
    };
    const Bytes meta = Bytes(4, '\0') + Box("iprp", Box("ipco", size(512, 512) + size(4032, 3024) + size(320, 240)));
    const MediaValues values = ReadAll(Box("ftyp", "heic") + Box("meta", meta));
    EXPECT_EQ(values.width, 4032U);
    EXPECT_EQ(values.height, 3024U);
}

TEST(Movies, AFragmentedFilmWithoutAnExtensionLastsAsLongAsItsSamples)
{
    const auto big = [](std::uint64_t value) {
        return Number(value, 4, Endian::Big);
    };
    const auto track = [&](std::uint64_t id, std::uint64_t unitsPerSecond) {
        return Box("trak", Box("tkhd", big(0) + big(0) + big(0) + big(id)) +
                               Box("mdia", Box("mdhd", big(0) + big(0) + big(0) + big(unitsPerSecond))));
    };
    const auto usual = [&](std::uint64_t id, std::uint64_t duration) {
        return Box("trex", big(0) + big(id) + big(1) + big(duration) + big(0) + big(0));
    };
    const auto part = [&](const Bytes& header, const Bytes& run) {
        return Box("moof", Box("mfhd", big(0) + big(1)) + Box("traf", Box("tfhd", header) + Box("trun", run)));
    };
    const Bytes head =
        Film(MovieHeader({.duration = 0}) + track(1, 600) + track(2, 1000) + Box("mvex", usual(1, 60) + usual(2, 10)));
    // Ten samples as long as the track says, and five as long as the fragment says.
    const Bytes fragments = part(big(0) + big(1), big(0) + big(10)) + Box("mdat", "data") +
                            part(big(8) + big(1) + big(30), big(0) + big(5));
    EXPECT_EQ(ReadAll(head + fragments).duration, 1250U);
    // Samples that tell themselves how long they last, with their sizes, behind an offset.
    const Bytes told = part(big(0) + big(2),
                            big(0x301) + big(3) + big(99) + big(500) + big(7) + big(400) + big(7) + big(600) + big(7));
    EXPECT_EQ(ReadAll(head + fragments + told).duration, 1500U);
    // One that is cut off, or of another track, adds nothing that is not there.
    EXPECT_EQ(ReadAll(head + told + part(big(0) + big(2), big(0x100) + big(UINT32_MAX) + big(10))).duration, 1510U);
    EXPECT_EQ(ReadAll(head + part(big(0) + big(3), big(0) + big(10))).duration, std::nullopt);
    EXPECT_EQ(ReadAll(head).duration, std::nullopt);
}

TEST(Movies, AQuickTimeFilmTellsItsTags)
{
    const auto text = [](const char* type, const Bytes& value) {
        return Box(type, Number(value.size(), 2, Endian::Big) + Number(0, 2, Endian::Big) + value);
    };
    const Bytes data = text("\xA9nam", "T\xC3\xAFtle") +
                       text("\xA9"
                            "ART",
                            "Artist") +
                       text("\xA9"
                            "alb",
                            "Album") +
                       text("\xA9gen", "Genre") +
                       text("\xA9"
                            "day",
                            "2019-05-06");
    const MediaValues values = ReadAll(Box("ftyp", "qt  ") + Box("moov", MovieHeader({}) + Box("udta", data)));
    EXPECT_EQ(values.title, CString(u"T\u00EFtle"));
    EXPECT_EQ(values.artist, CString(u"Artist"));
    EXPECT_EQ(values.album, CString(u"Album"));
    EXPECT_EQ(values.genre, CString(u"Genre"));
    EXPECT_EQ(values.year, 2019U);
}

TEST(Movies, AFilmTellsTheKeysOfItsMetadata)
{
    const MusicTags tags = {{"com.apple.quicktime.software", "17.1"},
                            {"com.apple.quicktime.title", "T\xC3\xAFtle"},
                            {"com.apple.quicktime.artist", "Artist"},
                            {"album", "Album"},
                            {"genre", "Jazz"},
                            {"date", "2019-05-06"},
                            {"track", "3/12"},
                            {"title", "Other"},
                            {"com.apple.quicktime.creationdate", "2024-01-05T12:30:00+0200"}};
    const Bytes header = MovieHeader({.created = from1904 + 999});
    const auto count = static_cast<std::uint32_t>(tags.size());
    for (const Bytes& head : {header + Metadata(tags, count), header + Metadata(tags, count, true),
                              header + Box("udta", Metadata(tags, count, true))}) {
        const MediaValues values = ReadAll(Film(head));
        EXPECT_EQ(values.title, CString(u"T\u00EFtle"));
        EXPECT_EQ(values.artist, CString(u"Artist"));
        EXPECT_EQ(values.album, CString(u"Album"));
        EXPECT_EQ(values.genre, CString(u"Jazz"));
        EXPECT_EQ(values.year, 2019U);
        EXPECT_EQ(values.track, 3U);
        EXPECT_EQ(values.videoCreated, instant);
    }
}

TEST(Movies, ACreationDateWithoutItsOffsetOrOfNoDayLeavesThatOfTheHeader)
{
    for (const char* const date : {"2024-01-05T12:30:00", "2024-02-30T12:30:00Z", "", "yesterday"}) {
        const Bytes metadata = Metadata({{"creationdate", date}}, 1);
        EXPECT_EQ(ReadAll(Film(MovieHeader({.created = from1904}) + metadata)).videoCreated, instant) << date;
    }
}

TEST(Movies, TheUsersDataComeBeforeTheKeys)
{
    const Bytes title = Box("\xA9nam", Number(5, 2, Endian::Big) + Number(0, 2, Endian::Big) + "First");
    for (const Bytes& head : {Box("udta", title) + Metadata({{"title", "Second"}}, 1),
                              Metadata({{"title", "Second"}}, 1) + Box("udta", title)})
        EXPECT_EQ(ReadAll(Film(MovieHeader({}) + head)).title, CString(u"First"));
}

TEST(Movies, KeysThatAreCutOffOrLieAboutTheirNumberTellWhatIsThere)
{
    const MusicTags tags = {{"title", "Title"}, {"artist", "Artist"}};
    EXPECT_EQ(ReadAll(Film(MovieHeader({}) + Metadata(tags, 1))).artist, CString());
    for (const std::uint32_t count : {2U, 3U, 20000U, UINT32_MAX}) {
        const MediaValues values = ReadAll(Film(MovieHeader({}) + Metadata(tags, count)));
        EXPECT_EQ(values.title, CString(u"Title")) << count;
        EXPECT_EQ(values.artist, CString(u"Artist")) << count;
    }
    const Bytes film = Film(MovieHeader({}) + Metadata(tags, 2));
    for (std::size_t size = 0; size < film.size(); ++size)
        EXPECT_LE(ReadAll(film.substr(0, size)).title.GetLength(), 5) << size;
    for (std::size_t at = 0; at < film.size(); ++at) {
        Bytes lying = film;
        lying[at] = '\xFF';
        EXPECT_LE(ReadAll(lying).title.GetLength(), 4096) << at;
    }
    // Another handler's keys are no names, and another type's values no UTF-8.
    const std::size_t handler = film.find("mdta");
    EXPECT_EQ(ReadAll(Bytes(film).replace(handler, 4, "mdir")).title, CString());
    const std::size_t type = film.find("data") + 7;
    EXPECT_EQ(ReadAll(Bytes(film).replace(type, 1, "\x15")).title, CString());
}

TEST(Movies, MatroskaAndWebMTellTheSame)
{
    for (const char* const type : {"matroska", "webm"}) {
        const MediaValues values = ReadAll(BuildMatroska({.created = from2001}, type, "T\xC3\xAFtle"));
        EXPECT_EQ(values.videoCreated, instant);
        EXPECT_EQ(values.width, 320U);
        EXPECT_EQ(values.height, 240U);
        EXPECT_EQ(values.duration, 2500U);
        EXPECT_EQ(values.title, CString(u"T\u00EFtle"));
    }
}

TEST(Movies, MatroskaTellsTheTagsOfTheWholeFilm)
{
    const auto tag = [](const Bytes& name, const Bytes& value) {
        return EbmlElement("\x67\xC8", EbmlElement("\x45\xA3", name) + EbmlElement("\x44\x87", value));
    };
    const auto tags = [](const Bytes& targets, const Bytes& simple) {
        return EbmlElement("\x73\x73", EbmlElement("\x63\xC0", targets) + simple);
    };
    const Bytes ofTrack = tags(EbmlElement("\x63\xC5", "\1"), tag("ARTIST", "Of a track"));
    const Bytes ofAll = tags("", tag("Artist", "\xD0\x9F\xD0\xB0") + tag("ALBUM", "Album") + tag("GENRE", "Jazz") +
                                     tag("DATE_RELEASED", "2019-05-06") + tag("PART_NUMBER", "3/12") +
                                     tag("DISC", "2") + tag("TITLE", "Other") + tag("BPS", "1"));
    const Bytes all = EbmlElement("\x12\x54\xC3\x67", ofTrack + ofAll);
    const FilmFacts facts{.created = from2001};
    const Bytes film = EbmlHead("matroska") +
                       EbmlElement("\x18\x53\x80\x67", all + MatroskaInfo(facts, "Title") + MatroskaTracks(facts));
    const MediaValues values = ReadAll(film);
    EXPECT_EQ(values.title, CString(u"Title")) << "the head's own title comes first";
    EXPECT_EQ(values.artist, CString(u"\u041F\u0430"));
    EXPECT_EQ(values.album, CString(u"Album"));
    EXPECT_EQ(values.genre, CString(u"Jazz"));
    EXPECT_EQ(values.year, 2019U);
    EXPECT_EQ(values.track, 3U);
    EXPECT_EQ(values.disc, 2U);
}

TEST(Movies, AviTellsItsTags)
{
    const Bytes tags = RiffChunk("INAM", Bytes("Title\0", 6)) + RiffChunk("IART", "Artist") +
                       RiffChunk("IPRD", "Album") + RiffChunk("IGNR", "Jazz") + RiffChunk("ICRD", "2019") +
                       RiffChunk("ITRK", "3");
    const MediaValues values = ReadAll(BuildAvi(1, 8, 8, "", tags));
    EXPECT_EQ(values.title, CString(u"Title"));
    EXPECT_EQ(values.artist, CString(u"Artist"));
    EXPECT_EQ(values.album, CString(u"Album"));
    EXPECT_EQ(values.genre, CString(u"Jazz"));
    EXPECT_EQ(values.year, 2019U);
    EXPECT_EQ(values.track, 3U);
}

TEST(Movies, WhatMatroskaKeepsBehindItsPicturesIsFoundByItsDirectory)
{
    const FilmFacts facts{.created = from2001};
    const Bytes info = MatroskaInfo(facts, "");
    const Bytes cluster = EbmlElement("\x1F\x43\xB6\x75", Bytes(3000, 'x'));
    const auto directory = [](std::size_t position) {
        return EbmlElement("\x11\x4D\x9B\x74",
                           EbmlElement("\x4D\xBB", EbmlElement("\x53\xAB", "\x15\x49\xA9\x66") +
                                                       EbmlElement("\x53\xAC", Number(position, 8, Endian::Big))));
    };
    const std::size_t before = directory(0).size() + cluster.size();
    const Bytes film = EbmlHead("matroska") + EbmlElement("\x18\x53\x80\x67", directory(before) + cluster + info);
    EXPECT_EQ(ReadAll(film).videoCreated, instant);
}

TEST(Movies, AMatroskaOfUnknownSizeIsRead)
{
    const FilmFacts facts{.created = from2001};
    const Bytes film =
        EbmlHead("webm") + Bytes("\x18\x53\x80\x67\xFF", 5) + MatroskaInfo(facts, "") + MatroskaTracks(facts);
    EXPECT_EQ(ReadAll(film).videoCreated, instant);
    EXPECT_EQ(ReadAll(film).width, 320U);
}

TEST(Movies, AviTellsItsSizeAndDuration)
{
    const MediaValues values = ReadAll(BuildAvi(50, 640, 480));
    EXPECT_EQ(values.width, 640U);
    EXPECT_EQ(values.height, 480U);
    EXPECT_EQ(values.duration, 2000U);
    EXPECT_EQ(values.videoCreated, std::nullopt);
}

TEST(Movies, AviTellsItsDateInTheFormsThatCamerasAndProgramsWrite)
{
    const TimeZone utc("UTC");
    for (const char* const date : {"Fri Jan 05 10:30:00 2024\n", "FRI JAN 5 10:30:00 2024", "2024-01-05 10:30:00",
                                   "2024:01:05 10:30:00", "2024/01/05 10:30"}) {
        EXPECT_EQ(ReadAll(BuildAvi(1, 8, 8, RiffChunk("IDIT", date))).videoCreated, instant) << date;
        EXPECT_EQ(ReadAll(BuildAvi(1, 8, 8, "", RiffChunk("ICRD", date))).videoCreated, instant) << date;
    }
    for (const char* const date :
         {"", "2024", "2024-13-01", "Fri Xyz 05 10:30:00 2024", "Fri Jan 05 10:30:00 202", "0000:00:00 00:00:00"})
        EXPECT_EQ(ReadAll(BuildAvi(1, 8, 8, RiffChunk("IDIT", date))).videoCreated, std::nullopt) << date;
}

TEST(Movies, AnAviOfAnImpossibleLengthHasTheDurationOfItsMainHeader)
{
    const Bytes stream = RiffChunk("strh", "vidsMJPG" + Bytes(12, '\0') + Number(UINT32_MAX, 4, Endian::Little) +
                                               Number(1, 4, Endian::Little) + Bytes(4, '\0') +
                                               Number(UINT32_MAX, 4, Endian::Little) + Bytes(20, '\0'));
    const Bytes film = BuildAvi(50, 640, 480);
    const std::size_t place = film.find("strh");
    EXPECT_EQ(ReadAll(Bytes(film).replace(place, stream.size(), stream)).duration, 2000U);
}

TEST(Movies, FilmsThatAreCutOffOrLieAboutSizesTellWhatIsThere)
{
    const Bytes films[] = {BuildMp4({.created = from1904}), BuildMatroska({.created = from2001}, "matroska"),
                           BuildAvi(50, 640, 480, RiffChunk("IDIT", "2024-01-05 10:30:00"))};
    const TimeZone utc("UTC");
    for (const Bytes& film : films) {
        for (std::size_t size = 0; size < 700; size += 13) {
            const MediaValues values = ReadAll(film.substr(0, size));
            EXPECT_TRUE(!values.videoCreated || *values.videoCreated == instant) << size;
        }
        for (std::size_t at = 0; at < 700; at += 7) {
            Bytes lying = film;
            lying[at] = '\xFF';
            EXPECT_LE(ReadAll(lying).title.GetLength(), 4096) << at;
        }
    }
}

TEST(Movies, AFileOfEmptyBoxesOrZerosTellsNothing)
{
    Bytes boxes = Box("ftyp", "isom");
    for (int count = 0; count < 20000; ++count)
        boxes += Box("free", "");
    for (const Bytes& bytes : {boxes, Bytes(100000, '\0'), EbmlHead("webm") + Bytes(100000, '\0')}) {
        const MediaValues values = ReadAll(bytes);
        EXPECT_EQ(values.videoCreated, std::nullopt);
        EXPECT_EQ(values.duration, std::nullopt);
        EXPECT_EQ(values.width, 0U);
    }
}
