// The tags and durations of music.
#include <VyrHost/media/MediaValues.h>

#include <tests/support/MediaBuilder.h>
#include <tests/support/ScratchFolder.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

using namespace VyrHost::Media;
using namespace VyrTests;

namespace {

MediaValues ReadAll(const Bytes& music)
{
    const ScratchFolder folder;
    return ReadMedia(folder.WriteFile(u"music", music), {.duration = true, .tags = true});
}

MediaValues ReadMp3(const MusicTags& tags)
{
    return ReadAll(BuildMp3(Id3Tag(tags)));
}

/// An ID3v1 tag, which has 30 bytes for a text.
Bytes OldTag(std::string title)
{
    title.resize(30);
    return "TAG" + title + Bytes(94, '\0') + '\x11';
}

} // namespace

TEST(Music, Mp3TellsItsTags)
{
    const MediaValues values = ReadMp3({{"TIT2", "Title"},
                                        {"TPE1", "Artist"},
                                        {"TALB", "Album"},
                                        {"TRCK", "3/12"},
                                        {"TPOS", "2/2"},
                                        {"TDRC", "2019-05-06"},
                                        {"TCON", "17"}});
    EXPECT_EQ(values.title, CString(u"Title"));
    EXPECT_EQ(values.artist, CString(u"Artist"));
    EXPECT_EQ(values.album, CString(u"Album"));
    EXPECT_EQ(values.track, 3U);
    EXPECT_EQ(values.disc, 2U);
    EXPECT_EQ(values.year, 2019U);
    EXPECT_EQ(values.genre, CString(u"Rock"));
}

TEST(Music, Mp3TellsItsDuration)
{
    // 50 frames of 1152 samples at 44,100 a second, to the millisecond that the rate of bits gives.
    EXPECT_NEAR(static_cast<double>(ReadMp3({}).duration.value_or(0)), 50 * 1152 / 44.1, 5);
}

TEST(Music, FlacTellsItsTagsAndDuration)
{
    const MediaValues values = ReadAll(BuildFlac({{"TITLE", "Title"},
                                                  {"ARTIST", "Artist"},
                                                  {"ALBUM", "Album"},
                                                  {"TRACKNUMBER", "3"},
                                                  {"DISCNUMBER", "2"},
                                                  {"DATE", "2019-05-06"},
                                                  {"GENRE", "Jazz"}},
                                                 44100 * 7));
    EXPECT_EQ(values.title, CString(u"Title"));
    EXPECT_EQ(values.artist, CString(u"Artist"));
    EXPECT_EQ(values.album, CString(u"Album"));
    EXPECT_EQ(values.track, 3U);
    EXPECT_EQ(values.disc, 2U);
    EXPECT_EQ(values.year, 2019U);
    EXPECT_EQ(values.genre, CString(u"Jazz"));
    EXPECT_EQ(values.duration, 7000U);
}

TEST(Music, WavTellsItsTagsAndDuration)
{
    const MediaValues values =
        ReadAll(BuildWav(RiffChunk("INAM", "Title") + RiffChunk("IPRT", "3") + RiffChunk("ICRD", "2019-05-06")));
    EXPECT_EQ(values.title, CString(u"Title"));
    EXPECT_EQ(values.track, 3U);
    EXPECT_EQ(values.year, 2019U);
    EXPECT_EQ(values.duration, 1000U);
}

TEST(Music, NumbersThatNoTrackHasAreNone)
{
    for (const char* const number : {"-3", "99999999999", "", "x", "A2"}) {
        EXPECT_EQ(ReadMp3({{"TRCK", number}}).track, 0U) << number;
        EXPECT_EQ(ReadAll(BuildFlac({{"TRACKNUMBER", number}}, 1)).track, 0U) << number;
    }
    EXPECT_EQ(ReadMp3({{"TRCK", " 3/12"}}).track, 3U);
    EXPECT_EQ(ReadMp3({{"TDRC", "-3"}}).year, 0U);
    EXPECT_EQ(ReadAll(BuildFlac({{"DATE", "20190506"}}, 1)).year, 2019U);
}

TEST(Music, SeveralArtistsStandBesideOneAnother)
{
    EXPECT_EQ(ReadAll(BuildFlac({{"ARTIST", "One"}, {"ARTIST", "Two"}}, 1)).artist, CString(u"One, Two"));
    EXPECT_EQ(ReadMp3({{"TPE1", std::string("One\0Two", 7)}}).artist, CString(u"One, Two"));
}

TEST(Music, AnOldTagCountsWhereThereIsNoOther)
{
    EXPECT_EQ(ReadAll(BuildMp3("") + OldTag("Old title")).title, CString(u"Old title"));
    EXPECT_EQ(ReadAll(BuildMp3(Id3Tag({{"TIT2", "New title"}})) + OldTag("Old title")).title, CString(u"New title"));
}

TEST(Music, TagsOfEveryScriptComeThrough)
{
    const std::pair<const char*, const char16_t*> texts[] = {
        {"\xD0\x9F\xD1\x80\xD0\xB8", u"\u041F\u0440\u0438"},
        {"\xE6\x97\xA5\xE6\x9C\xAC", u"\u65E5\u672C"},
        {"\xD8\xB9\xD8\xB1\xD8\xA8", u"\u0639\u0631\u0628"},
        {"\xE0\xA4\xB9\xE0\xA4\xBF", u"\u0939\u093F"},
        {"\xF0\x9F\x8E\xB5", u"\U0001F3B5"},
    };
    for (const auto& [bytes, text] : texts) {
        EXPECT_EQ(ReadMp3({{"TIT2", bytes}}).title, CString(text));
        EXPECT_EQ(ReadAll(BuildFlac({{"TITLE", bytes}}, 1)).title, CString(text));
    }
}

TEST(Music, TextsAreCleanAndOfBoundedLength)
{
    EXPECT_EQ(ReadMp3({{"TIT2", " a\tb\r\n\x01 c "}}).title, CString(u"a b c"));
    EXPECT_EQ(ReadMp3({{"TIT2", std::string(100000, 'x')}}).title, CString(u'x', 4096));
    // No half of a pair is left where the text is cut.
    std::string notes = "x";
    for (int count = 0; count < 30000; ++count)
        notes += "\xF0\x9F\x8E\xB5";
    EXPECT_EQ(ReadMp3({{"TIT2", notes}}).title.GetLength(), 4095);
}

TEST(Music, MusicThatIsCutOffOrLiesAboutSizesTellsWhatIsThere)
{
    const Bytes pieces[] = {BuildMp3(Id3Tag({{"TIT2", "Title"}, {"TPE1", "Artist"}})),
                            BuildFlac({{"TITLE", "Title"}}, 44100), BuildWav()};
    for (const Bytes& music : pieces) {
        for (std::size_t size = 0; size < 200; size += 5)
            EXPECT_LE(ReadAll(music.substr(0, size)).title.GetLength(), 5) << size;
        for (std::size_t at = 0; at < std::min<std::size_t>(music.size(), 100); ++at) {
            Bytes lying = music;
            lying[at] = '\x7F';
            EXPECT_LE(ReadAll(lying).title.GetLength(), 4096) << at;
        }
    }
}

TEST(Music, OtherFilesTellNothing)
{
    const MediaValues values = ReadAll(std::string(10000, 'x'));
    EXPECT_EQ(values.title, CString());
    EXPECT_EQ(values.duration, std::nullopt);
    EXPECT_EQ(values.error, 0U);
}
