// Sizes, dates and tags of pictures.
#include <VyrHost/media/MediaValues.h>

#include <tests/support/PictureBuilder.h>
#include <tests/support/ScratchFolder.h>

#include <gtest/gtest.h>

#include <string>

using namespace VyrHost::Media;
using namespace VyrTests;

namespace {

constexpr std::uint16_t byte = 1;
constexpr std::uint16_t shortNumber = 3;
constexpr std::uint16_t rational = 5;
constexpr std::uint16_t undefined = 7;
constexpr std::uint16_t signedRational = 10;

Bytes Little(std::uint64_t value, std::size_t width)
{
    return Number(value, width, Endian::Little);
}

TiffEntry Short(std::uint16_t tag, std::uint16_t value)
{
    return {tag, shortNumber, 1, Little(value, 2)};
}

TiffEntry Fraction(std::uint16_t tag, std::uint32_t above, std::uint32_t below, std::uint16_t type = rational)
{
    return {tag, type, 1, Little(above, 4) + Little(below, 4)};
}

MediaValues ReadAll(const Bytes& picture)
{
    const ScratchFolder folder;
    MediaQuestion question{.size = true, .exifDates = true, .xmpDate = true};
    question.exif.set();
    return ReadMedia(folder.WriteFile(u"picture", picture), question);
}

std::string SizeOf(const Bytes& picture)
{
    const MediaValues values = ReadAll(picture);
    return std::to_string(values.width) + "x" + std::to_string(values.height);
}

/// The text of the tag `name` in a picture whose Exif directory has `entry`.
CString TagOf(std::u16string_view name, const TiffEntry& entry)
{
    TiffParts parts;
    parts.exif.push_back(entry);
    const auto tag = FindExifTag(name);
    return tag ? ReadAll(BuildJpeg(ExifSegment(BuildTiff(parts)))).Exif(*tag) : CString(u"no such tag");
}

CString ImageTagOf(std::u16string_view name, const TiffEntry& entry)
{
    TiffParts parts;
    parts.image.push_back(entry);
    return ReadAll(BuildTiff(parts)).Exif(FindExifTag(name).value());
}

Bytes Packet(std::string_view inside)
{
    return "<x:xmpmeta xmlns:x='adobe:ns:meta/'><rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'>"
           "<rdf:Description rdf:about='' xmlns:xmp=\"http://ns.adobe.com/xap/1.0/\" "
           "xmlns:dc='http://purl.org/dc/elements/1.1/' xmlns:photoshop='http://ns.adobe.com/photoshop/1.0/' " +
           Bytes(inside) + "</rdf:Description></rdf:RDF></x:xmpmeta>";
}

Bytes JpegWithPacket(std::string_view packet)
{
    return BuildJpeg(JpegSegment(0xE1, Bytes("http://ns.adobe.com/xap/1.0/\0", 29) + Bytes(packet)));
}

CString Shown(const std::optional<PictureDate>& date)
{
    if (!date)
        return {};
    const COleDateTime& at = date->dateTime;
    CString text;
    text.Format(u"%d-%d-%d %d:%d:%d", at.GetYear(), at.GetMonth(), at.GetDay(), at.GetHour(), at.GetMinute(),
                at.GetSecond());
    return text;
}

} // namespace

TEST(PictureValues, NumbersAreShownAsExiftoolShowsThem)
{
    EXPECT_EQ(TagOf(u"ExposureTime", Fraction(0x829A, 1, 250)), CString(u"1/250"));
    EXPECT_EQ(TagOf(u"ExposureTime", Fraction(0x829A, 10, 10)), CString(u"1"));
    EXPECT_EQ(TagOf(u"ExposureTime", Fraction(0x829A, 5, 10)), CString(u"0.5"));
    EXPECT_EQ(TagOf(u"FNumber", Fraction(0x829D, 28, 10)), CString(u"2.8"));
    EXPECT_EQ(TagOf(u"FNumber", Fraction(0x829D, 8, 1)), CString(u"8.0"));
    EXPECT_EQ(TagOf(u"FNumber", Fraction(0x829D, 95, 100)), CString(u"0.95"));
    EXPECT_EQ(TagOf(u"ISO", Short(0x8827, 400)), CString(u"400"));
    EXPECT_EQ(TagOf(u"FocalLength", Fraction(0x920A, 500, 10)), CString(u"50.0 mm"));
    EXPECT_EQ(TagOf(u"FocalLengthIn35mmFormat", Short(0xA405, 75)), CString(u"75 mm"));
    EXPECT_EQ(TagOf(u"ApertureValue", Fraction(0x9202, 3, 1)), CString(u"2.8"));
    EXPECT_EQ(TagOf(u"ShutterSpeedValue", Fraction(0x9201, 6, 1, signedRational)), CString(u"1/64"));
    EXPECT_EQ(TagOf(u"SubjectDistance", Fraction(0x9206, 5, 2)), CString(u"2.5 m"));
}

TEST(PictureValues, CompensationsAreHalvesThirdsAndDecimals)
{
    const auto shown = [](int above, int below) {
        return TagOf(u"ExposureCompensation", Fraction(0x9204, static_cast<std::uint32_t>(above),
                                                       static_cast<std::uint32_t>(below), signedRational));
    };
    EXPECT_EQ(shown(0, 1), CString(u"0"));
    EXPECT_EQ(shown(2, 1), CString(u"+2"));
    EXPECT_EQ(shown(-1, 2), CString(u"-1/2"));
    EXPECT_EQ(shown(1, 3), CString(u"+1/3"));
    EXPECT_EQ(shown(-2, 3), CString(u"-2/3"));
    EXPECT_EQ(shown(1, 10), CString(u"+0.1"));
}

TEST(PictureValues, SettingsAreWords)
{
    EXPECT_EQ(TagOf(u"MeteringMode", Short(0x9207, 5)), CString(u"Multi-segment"));
    EXPECT_EQ(TagOf(u"MeteringMode", Short(0x9207, 200)), CString());
    EXPECT_EQ(TagOf(u"ExposureProgram", Short(0x8822, 3)), CString(u"Aperture-priority AE"));
    EXPECT_EQ(ImageTagOf(u"Orientation", Short(0x0112, 6)), CString(u"Rotate 90 CW"));
}

TEST(PictureValues, ALensIsARange)
{
    const auto fractions = [](std::initializer_list<std::uint32_t> numbers) {
        Bytes value;
        for (const std::uint32_t number : numbers)
            value += Little(number, 4) + Little(number == 0 ? 0 : 10, 4);
        return TiffEntry{0xA432, rational, 4, value};
    };
    EXPECT_EQ(TagOf(u"LensInfo", fractions({240, 700, 28, 28})), CString(u"24-70mm f/2.8"));
    EXPECT_EQ(TagOf(u"LensInfo", fractions({500, 500, 18, 18})), CString(u"50mm f/1.8"));
    EXPECT_EQ(TagOf(u"LensInfo", fractions({240, 700, 0, 0})), CString(u"24-70mm f/?"));
}

TEST(PictureValues, FractionsOver0AreNoNumbers)
{
    EXPECT_EQ(TagOf(u"ExposureTime", Fraction(0x829A, 1, 0)), CString());
    EXPECT_EQ(TagOf(u"FNumber", Fraction(0x829D, 0, 0)), CString());
}

TEST(PictureValues, TextsOfWindowsAndCommentsAreRead)
{
    const Bytes wide("P\0r\0\xFC\0f\0\0\0", 10);
    EXPECT_EQ(ImageTagOf(u"XPTitle", {0x9C9B, byte, 10, wide}), CString(u"Pr\u00FCf"));
    const auto comment = [](const Bytes& value) {
        return TagOf(u"UserComment", {0x9286, undefined, static_cast<std::uint32_t>(value.size()), value});
    };
    EXPECT_EQ(comment(Bytes("ASCII\0\0\0Hello", 13)), CString(u"Hello"));
    EXPECT_EQ(comment(Bytes("UNICODE\0H\0i\0", 12)), CString(u"Hi"));
    EXPECT_EQ(comment(Bytes("UNICODE\0\0H\0i", 12)), CString(u"Hi"));
    EXPECT_EQ(comment(Bytes(8, '\0')), CString());
}

TEST(PictureValues, TagsAreFoundByTheirNamesInAnyCase)
{
    EXPECT_EQ(FindExifTag(u"lensmodel"), FindExifTag(u"LensModel"));
    EXPECT_TRUE(FindExifTag(u"ISO"));
    EXPECT_EQ(FindExifTag(u"NoSuchTag"), std::nullopt);
    EXPECT_EQ(FindExifTag(u""), std::nullopt);
    for (const std::u16string_view name : ExifTagNames())
        EXPECT_EQ(ExifTagNames()[static_cast<std::size_t>(FindExifTag(name).value())], name);
}

TEST(PictureValues, DatesHaveFractionsAndOffsets)
{
    TiffParts parts;
    for (const auto& [tag, text] : {std::pair<std::uint16_t, const char*>{0x9003, "2024:01:05 10:30:00"},
                                    {0x9004, "2024:01:06 11:31:01"},
                                    {0x9291, "05 "},
                                    {0x9292, "123"},
                                    {0x9011, "+02:00"}})
        parts.exif.push_back(AsciiEntry(tag, text));
    const MediaValues values = ReadAll(BuildJpeg(ExifSegment(BuildTiff(parts))));
    EXPECT_EQ(Shown(values.taken), CString(u"2024-1-5 10:30:0"));
    ASSERT_TRUE(values.taken && values.digitized);
    EXPECT_EQ(values.taken->fraction, CString(u"05"));
    // 08:30:00 UTC.
    EXPECT_EQ(values.taken->Instant(), 133489170000000000);
    EXPECT_EQ(Shown(values.digitized), CString(u"2024-1-6 11:31:1"));
    EXPECT_EQ(values.digitized->fraction, CString(u"123"));
    EXPECT_EQ(values.digitized->Instant(), std::nullopt);
}

TEST(PictureValues, BlankAndImpossibleDatesAreNone)
{
    for (const char* const date : {"0000:00:00 00:00:00", "    :  :     :  :  ", "2024:02:30 10:00:00",
                                   "2024:01:05 25:00:00", "2024", "", "2024:01:05 10"}) {
        TiffParts parts;
        parts.exif.push_back(AsciiEntry(0x9004, date));
        EXPECT_EQ(ReadAll(BuildTiff(parts)).digitized, std::nullopt) << date;
    }
}

TEST(PictureValues, TheDateOfXmpIsAnAttributeOrAnElement)
{
    for (const char* const inside :
         {"xmp:CreateDate='2024-01-05T10:30:00.25+02:00'>", "xmp:CreateDate = \"2024-01-05T10:30:00.25+02:00\">",
          "><xmp:CreateDate>2024-01-05T10:30:00.25+02:00</xmp:CreateDate>",
          "photoshop:DateCreated='2024-01-05T10:30:00.25+02:00'>"}) {
        const MediaValues values = ReadAll(JpegWithPacket(Packet(inside)));
        EXPECT_EQ(Shown(values.xmpCreated), CString(u"2024-1-5 10:30:0")) << inside;
        ASSERT_TRUE(values.xmpCreated);
        EXPECT_EQ(values.xmpCreated->fraction, CString(u"25"));
        EXPECT_EQ(values.xmpCreated->minutesAhead, 120);
    }
    EXPECT_EQ(Shown(ReadAll(JpegWithPacket(Packet("xmp:CreateDate='2024-01-05'>"))).xmpCreated),
              CString(u"2024-1-5 0:0:0"));
}

TEST(PictureValues, EveryFormatKeepsAPacket)
{
    const Bytes packet = Packet("xmp:CreateDate='2024-01-05T10:30:00Z'>");
    TiffParts tiff;
    tiff.image.push_back({700, byte, static_cast<std::uint32_t>(packet.size()), packet});
    const Bytes pictures[] = {
        JpegWithPacket(packet),
        BuildTiff(tiff),
        BuildPng(PngChunk("iTXt", Bytes("XML:com.adobe.xmp\0\0\0\0\0", 22) + packet)),
        BuildWebP(RiffChunk("XMP ", packet)),
        BuildJpegXl(Box("xml ", packet)),
        packet,
        Box("ftyp", "crx ") + Box("uuid", "\xBE\x7A\xCF\xCB\x97\xA9\x42\xE8\x9C\x71\x99\x94\x91\xE3\xAF\xAC" + packet)};
    for (const Bytes& picture : pictures)
        EXPECT_EQ(Shown(ReadAll(picture).xmpCreated), CString(u"2024-1-5 10:30:0"));
}

TEST(PictureValues, ASidecarTellsTheDateWhereThePictureDoesNot)
{
    const Bytes packet = Packet("xmp:CreateDate='2024-01-05T10:30:00'>");
    for (const char16_t* const name : {u"a.xmp", u"a.raw.xmp"}) {
        const ScratchFolder folder;
        const CString path = folder.WriteFile(u"a.raw", "no picture");
        EXPECT_EQ(ReadMedia(path, {.xmpDate = true}).xmpCreated, std::nullopt);
        folder.WriteFile(name, packet);
        EXPECT_EQ(Shown(ReadMedia(path, {.xmpDate = true}).xmpCreated), CString(u"2024-1-5 10:30:0"));
    }
}

TEST(PictureValues, PropertiesOfXmpAreTextsAndLists)
{
    const Bytes packet = Packet(
        "photoshop:City='K&#xF6;ln &amp; Bonn'><dc:creator><rdf:Seq><rdf:li>One</rdf:li><rdf:li>Two</rdf:li></rdf:Seq>"
        "</dc:creator><dc:title><rdf:Alt><rdf:li xml:lang='x-default'>Title</rdf:li><rdf:li "
        "xml:lang='de'>Titel</rdf:li>"
        "</rdf:Alt></dc:title><dc:subject/>");
    const MediaValues values = ReadAll(JpegWithPacket(packet));
    EXPECT_EQ(values.Exif(*FindExifTag(u"City")), CString(u"K\u00F6ln & Bonn"));
    EXPECT_EQ(values.Exif(*FindExifTag(u"Creator")), CString(u"One, Two"));
    EXPECT_EQ(values.Exif(*FindExifTag(u"Title")), CString(u"Title"));
    EXPECT_EQ(values.Exif(*FindExifTag(u"Subject")), CString());
    EXPECT_EQ(values.Exif(*FindExifTag(u"Country")), CString());
}

TEST(PictureValues, PacketsThatAreCutOffTellWhatIsThere)
{
    const Bytes packet = Packet("xmp:CreateDate='2024-01-05T10:30:00Z'><dc:creator><rdf:Seq><rdf:li>One</rdf:li>");
    for (std::size_t size = 0; size < packet.size(); ++size) {
        const CString date = Shown(ReadAll(JpegWithPacket(packet.substr(0, size))).xmpCreated);
        EXPECT_TRUE(date.IsEmpty() || date == CString(u"2024-1-5 10:30:0") || date == CString(u"2024-1-5 0:0:0") ||
                    date == CString(u"2024-1-5 10:30:0"))
            << size;
    }
}

TEST(PictureValues, APacketOfUnfinishedPartsIsReadInBoundedTime)
{
    for (const char* const part : {"<rdf:li>", "<dc:creator>", "xmlns:a=", "<dc:creator><rdf:li>", "&#x41", "<x:"}) {
        std::string inside = "><dc:creator>";
        while (inside.size() < 1000000)
            inside += part;
        EXPECT_LE(ReadAll(Packet(inside)).Exif(*FindExifTag(u"Creator")).GetLength(), 4096);
    }
}

TEST(PictureValues, SizesOfTiffAreThoseOfTheWholePicture)
{
    TiffParts parts;
    parts.image = {Short(0x0100, 640), Short(0x0101, 480)};
    MediaValues values = ReadAll(BuildTiff(parts));
    EXPECT_EQ(values.width, 640U);
    EXPECT_EQ(values.height, 480U);
    // A raw picture begins with a small preview.
    parts.image.insert(parts.image.begin(), {0x00FE, 4, 1, Little(1, 4)});
    parts.exif = {Short(0xA002, 6000), Short(0xA003, 4000)};
    values = ReadAll(BuildTiff(parts));
    EXPECT_EQ(values.width, 6000U);
    EXPECT_EQ(values.height, 4000U);
}

TEST(PictureValues, SizesOfRawPicturesAreThoseOfTheirOwnFields)
{
    TiffParts orf;
    orf.signature = "IIRO";
    orf.image = {Short(0x0100, 640), Short(0x0101, 480)};
    EXPECT_EQ(SizeOf(BuildTiff(orf)), "640x480");
    // The borders of the sensor.
    TiffParts rw2;
    rw2.signature = Bytes("IIU\0", 4);
    rw2.image = {Short(4, 10), Short(5, 8), Short(6, 490), Short(7, 648)};
    EXPECT_EQ(SizeOf(BuildTiff(rw2)), "640x480");
    rw2.image = {Short(4, 10), Short(5, 8), Short(6, 9), Short(7, 648)};
    EXPECT_EQ(SizeOf(BuildTiff(rw2)), "0x0");
    const Bytes frame("\xFF\xC0\0\x11\x08\0\x08\0\x10", 9);
    EXPECT_EQ(SizeOf(BuildRaf(BuildJpeg(frame + Bytes(10, '\0')))), "16x8");
    EXPECT_EQ(SizeOf(BuildRaf("no JPEG")), "0x0");
}

TEST(PictureValues, SizesOfPsdAreRead)
{
    const Bytes psd = Bytes("8BPS\0\1", 6) + Bytes(8, '\0') + Number(480, 4, Endian::Big) + Number(640, 4, Endian::Big);
    EXPECT_EQ(SizeOf(psd), "640x480");
    EXPECT_EQ(SizeOf(psd.substr(0, 20)), "0x0");
}

TEST(PictureValues, SizesOfJpegXlAreReadFromItsBits)
{
    const auto stream = [](std::uint64_t bits) {
        return "\xFF\x0A" + Little(bits, 8);
    };
    // Eight times one, and twice as wide as high.
    const Bytes small = stream(1 | 7 << 6);
    EXPECT_EQ(SizeOf(small), "16x8");
    // Nine and thirteen bits, without a proportion.
    EXPECT_EQ(SizeOf(stream(478U << 3 | 1U << 15 | std::uint64_t{640} << 17)), "641x479");
    // 16 to 9, of thirteen bits.
    EXPECT_EQ(SizeOf(stream(1U << 1 | 1079U << 3 | 5U << 16)), "1920x1080");
    const Bytes signature("\0\0\0\x0CJXL \r\n\x87\n", 12);
    EXPECT_EQ(SizeOf(signature + Box("Exif", "none") + Box("jxlc", small)), "16x8");
    EXPECT_EQ(SizeOf(signature + Box("jxlp", Bytes(4, '\0') + small)), "16x8");
    EXPECT_EQ(SizeOf(signature + Box("jxlc", "")), "0x0");
}

TEST(PictureValues, AFileThatIsMissingGivesTheSystemsCode)
{
    const ScratchFolder folder;
    EXPECT_NE(ReadMedia(folder.Path(u"missing"), {.size = true}).error, 0U);
    EXPECT_EQ(ReadMedia(folder.Path(), {.size = true}).error, 0U);
}
