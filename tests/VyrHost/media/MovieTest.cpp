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

TEST(Movies, AQuickTimeFilmTellsItsTitle)
{
    const Bytes text = Number(6, 2, Endian::Big) + Number(0, 2, Endian::Big) + "T\xC3\xAFtle";
    const Bytes film = Box("ftyp", "qt  ") + Box("moov", MovieHeader({}) + Box("udta", Box("\xA9nam", text)));
    EXPECT_EQ(ReadAll(film).title, CString(u"T\u00EFtle"));
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
