// Tokens and dates that come from the content of pictures, films, music and documents.
#include "RuleChain.h"

#include <VyrHost/rename/RuleTexts.h>
#include <VyrHost/text/Errors.h>
#include <VyrPlatform/documents/DocumentProperties.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <tests/support/ComThread.h>
#include <tests/support/CompoundDocument.h>
#include <tests/support/Describe.h>
#include <tests/support/PictureBuilder.h>
#include <tests/support/ScratchFolder.h>

#include <string>

using namespace VyrHost::Rename;
using namespace VyrTests;
using testing::HasSubstr;
using VyrHost::Model::DateSource;
using VyrHost::Text::UsageError;

namespace {

Bytes BigEndian(std::uint32_t number)
{
    return Number(number, 4, Endian::Big);
}

/// A film of 3,723.5 seconds that was made on 2024-01-05 at 10:30:00 UTC.
Bytes BuildFilm()
{
    constexpr std::uint32_t secondsSince1904 = 3'787'295'400;
    const Bytes header = BigEndian(0) + BigEndian(secondsSince1904) + BigEndian(secondsSince1904) + BigEndian(1000) +
                         BigEndian(3'723'500) + Bytes(80, '\0');
    return Box("ftyp", "isom" + BigEndian(512) + "isom") + Box("moov", Box("mvhd", header)) + Box("mdat", "film");
}

Bytes Frame(std::string_view id, std::string_view text)
{
    return Bytes(id) + BigEndian(static_cast<std::uint32_t>(text.size() + 1)) + Bytes(3, '\0') + Bytes(text);
}

/// An MP3 with tags of ID3 version 2.3. Source: id3.org, ID3 tag version 2.3.0.
Bytes BuildMusic(std::string_view artist)
{
    const Bytes frames = Frame("TIT2", "Song: one/two") + Frame("TPE1", artist) + Frame("TALB", "Album") +
                         Frame("TRCK", "7/12") + Frame("TPOS", "2/3") + Frame("TYER", "1999") + Frame("TCON", "Folk");
    Bytes size;
    for (int shift = 21; shift >= 0; shift -= 7)
        size += static_cast<char>(frames.size() >> shift & 0x7F);
    Bytes sound;
    for (int frame = 0; frame < 50; ++frame)
        sound += Bytes("\xFF\xFB\x90\x00", 4) + Bytes(413, '\0');
    return Bytes("ID3\x03\x00\x00", 6) + size + frames + sound;
}

class ContentTokens : public testing::Test
{
protected:
    [[nodiscard]] CString Named(const CString& text, const CString& name, const CString& extension,
                                const TemplateSettings& settings = {}) const
    {
        Subject subject = FileSubject(name, extension);
        subject.path = m_folder.Path(name + extension);
        const CString path = Apply(NameRules(text, settings), subject);
        return path == u"!" ? path : path.Mid(3);
    }

    ScratchFolder m_folder;
};

std::string ErrorOf(const CString& text)
{
    try {
        (void)NameRules(text, {});
    } catch (const UsageError& error) {
        return error.what();
    }
    return {};
}

TemplateSettings DatesFrom(DateSource source)
{
    TemplateSettings settings;
    settings.dates.sources = {source};
    settings.dates.clock = ZoneClock(0);
    return settings;
}

} // namespace

TEST_F(ContentTokens, TellTheSizeOfPictures)
{
    m_folder.WriteFile(u"p.png", BuildPng({}));
    EXPECT_EQ(Named(u"<Width>x<Height>", u"p", u".png"), u"1x1.png");
    m_folder.WriteFile(u"t.txt", "text");
    EXPECT_EQ(Named(u"<Width>", u"t", u".txt"), u"!");
    EXPECT_EQ(Named(u"<Width?0>", u"t", u".txt"), u"0.txt");
}

TEST_F(ContentTokens, TellTheDurationAndTheDateOfFilms)
{
    m_folder.WriteFile(u"f.mp4", BuildFilm());
    EXPECT_EQ(Named(u"<Duration>", u"f", u".mp4"), u"01.02.03.mp4");
    EXPECT_EQ(Named(u"<Duration:s>", u"f", u".mp4"), u"3723.mp4");
    EXPECT_EQ(Named(u"<Date:yyyy-MM-dd HH.mm.ss>", u"f", u".mp4", DatesFrom(DateSource::Video)),
              u"2024-01-05 10.30.00.mp4");
    EXPECT_EQ(Named(u"<Duration>", u"missing", u".mp4"), u"!");
    EXPECT_THAT(ErrorOf(u"<Duration:h>"), HasSubstr("only s, for seconds, may follow"));
}

TEST_F(ContentTokens, TellTheTagsOfMusic)
{
    m_folder.WriteFile(u"m.mp3", BuildMusic("Somebody"));
    EXPECT_EQ(Named(u"<Artist> - <Album> - <Track:###> <Title>", u"m", u".mp3"),
              u"Somebody - Album - 007 Song_ one_two.mp3");
    EXPECT_EQ(Named(u"<Disc> <Track> <Year> <Genre>", u"m", u".mp3"), u"2 7 1999 Folk.mp3");
    m_folder.WriteFile(u"n.mp3", BuildMusic(""));
    EXPECT_EQ(Named(u"<Artist>", u"n", u".mp3"), u"!");
    EXPECT_EQ(Named(u"<Artist?Unknown>", u"n", u".mp3"), u"Unknown.mp3");
    EXPECT_THAT(ErrorOf(u"<Track:00>"), HasSubstr("as many # as it has digits"));
}

TEST_F(ContentTokens, CleanOrRefuseTagsThatNoNameCanHold)
{
    m_folder.WriteFile(u"m.mp3", BuildMusic("a/b\\c<Name>|upper?"));
    EXPECT_EQ(Named(u"<Artist>", u"m", u".mp3"), u"a_b_c_Name__upper_.mp3");
    m_folder.WriteFile(u"z.mp3", BuildMusic(std::string("a\0b", 3)));
    EXPECT_EQ(Named(u"<Artist>", u"z", u".mp3").Find(std::u16string_view(u"\0", 1)), -1);
    m_folder.WriteFile(u"l.mp3", BuildMusic(std::string(100'000, 'x')));
    const CString longName = Named(u"<Artist>", u"l", u".mp3");
    EXPECT_TRUE(longName == u"!" || longName.GetLength() <= 4100) << longName.GetLength();
}

TEST_F(ContentTokens, TellTheTagsOfPictures)
{
    TiffParts parts = TiffPartsOf(PictureFacts{});
    std::erase_if(parts.exif, [](const TiffEntry& entry) { return entry.tag == 0x9004; });
    parts.exif.push_back(AsciiEntry(0x9004, "2023:02:03 04:05:06"));
    parts.exif.push_back(AsciiEntry(0x9011, "+02:00"));
    parts.exif.push_back(AsciiEntry(0x9291, "07"));
    parts.exif.push_back(AsciiEntry(0xA434, "Lens 50/1.8"));
    m_folder.WriteFile(u"p.jpg", BuildJpeg(ExifSegment(BuildTiff(parts))));
    EXPECT_EQ(Named(u"<Exif:LensModel>", u"p", u".jpg"), u"Lens 50_1.8.jpg");
    EXPECT_EQ(Named(u"<Exif:Make>, <Make>", u"p", u".jpg"), u"Testmaker, Testmaker.jpg");
    EXPECT_EQ(Named(u"<Exif:Artist>", u"p", u".jpg"), u"!");
    EXPECT_THAT(ErrorOf(u"<Exif:LensMdoel>"), HasSubstr("did you mean <Exif:LensModel>?"));
    EXPECT_THAT(ErrorOf(u"<Exif:isoo>"), HasSubstr("did you mean <Exif:ISO>?"));
    EXPECT_THAT(ErrorOf(u"<Exif>"), HasSubstr("the name of a tag"));

    EXPECT_EQ(Named(u"<Taken:HH.mm.ss.SSS>", u"p", u".jpg"), u"18.45.03.070.jpg");
    EXPECT_EQ(Named(u"<Taken:HH.mm.ss.SSS>", u"p", u".jpg", DatesFrom(DateSource::Modified)), u"16.45.03.070.jpg");
    EXPECT_EQ(Named(u"<Date:yyyy-MM-dd HH.mm.ss>", u"p", u".jpg", DatesFrom(DateSource::Digitized)),
              u"2023-02-03 04.05.06.jpg");
}

TEST_F(ContentTokens, TellTheDateOfASidecar)
{
    m_folder.WriteFile(u"p.jpg", BuildJpeg(PictureFacts{}));
    m_folder.WriteFile(u"p.xmp", "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\"><rdf:RDF "
                                 "xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\"><rdf:Description "
                                 "xmlns:xmp=\"http://ns.adobe.com/xap/1.0/\" "
                                 "xmp:CreateDate=\"2022-02-03T04:05:06.75+01:00\"/></rdf:RDF></x:xmpmeta>");
    EXPECT_EQ(Named(u"<Date:yyyy-MM-dd HH.mm.ss.SSS>", u"p", u".jpg", DatesFrom(DateSource::Xmp)),
              u"2022-02-03 03.05.06.750.jpg");
}

TEST_F(ContentTokens, TellThePropertiesOfDocuments)
{
    const ComThread com;
    namespace Id = VyrPlatform::SummaryId;
    CompoundDocument document;
    document.streams[u"Contents"] = "text";
    document.streams[summaryName] = BuildSummary({{1, StoredCodePage(1252)},
                                                  {Id::title, StoredByteText("A: title")},
                                                  {Id::author, StoredByteText("Somebody")},
                                                  {Id::keywords, StoredByteText("letters; 2024")},
                                                  {Id::created, StoredTime(133'489'242'000'000'000)}});
    m_folder.WriteFile(u"d.doc", document.Bytes());
    EXPECT_EQ(Named(u"<Artist> - <Title> <Year>", u"d", u".doc"), u"Somebody - A_ title 2024.doc");
    EXPECT_EQ(Named(u"<Genre>", u"d", u".doc"), u"letters; 2024.doc");
    EXPECT_EQ(Named(u"<Album>", u"d", u".doc"), u"!");
}

TEST_F(ContentTokens, TellTheDigestOfTheContent)
{
    m_folder.WriteFile(u"a.txt", "abc");
    // FIPS 180-4 gives this digest as its example.
    const CString digest = u"ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad";
    EXPECT_EQ(Named(u"<Hash>", u"a", u".txt"), digest + u".txt");
    EXPECT_EQ(Named(u"<Hash:8|upper>", u"a", u".txt"), u"BA7816BF.txt");
    EXPECT_EQ(Named(u"<Hash:8>", u"missing", u".txt"), u"!");
    EXPECT_THAT(ErrorOf(u"<Hash:65>"), HasSubstr("<Hash:65>: a whole number from 1 to 64 is expected"));
}
