// The kinds of files, by their content.
#include <VyrHost/media/ContentKind.h>

#include <tests/support/CompoundDocument.h>
#include <tests/support/MediaBuilder.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/ZipArchives.h>

#include <gtest/gtest.h>

#include <set>
#include <string>

using namespace VyrHost::Media;
using namespace VyrTests;
using namespace std::string_literals;

namespace {

struct Sample
{
    std::u16string_view extension;
    Bytes bytes;
};

std::u16string_view ExtensionOf(const Bytes& bytes)
{
    VyrLibraryUtils::Pictures::MemorySource source(bytes);
    const ContentKind* const kind = KindOfContent(source);
    return kind == nullptr ? u"" : kind->extension;
}

/// `mark` at `offset` among zeros.
Bytes At(std::size_t offset, const Bytes& mark, std::size_t size = 0)
{
    Bytes bytes(std::max(size, offset + mark.size()), '\0');
    return bytes.replace(offset, mark.size(), mark);
}

Bytes Branded(std::string_view brand)
{
    return BuildMp4({}, brand);
}

Bytes OpenDocument(const std::string& type)
{
    return BuildArchive({{"mimetype", type}, {"content.xml", "<x/>"}});
}

Bytes Office(const std::string& member)
{
    return BuildArchive({{"[Content_Types].xml", "<x/>"}, {member, "<x/>"}});
}

Bytes Compound(const std::u16string& stream)
{
    CompoundDocument document;
    document.streams[stream] = std::string(5000, 'x');
    return document.Bytes();
}

Bytes Ogg(const Bytes& packet)
{
    return "OggS\0"s + Bytes(21, '\0') + "\x01"s + "\x1E"s + packet + Bytes(100, '\0');
}

Bytes Asf(bool hasPictures)
{
    const Bytes pictures("\xC0\xEF\x19\xBC\x4D\x5B\xCF\x11\xA8\xFD\x00\x80\x5F\x5C\x44\x2B", 16);
    return "\x30\x26\xB2\x75\x8E\x66\xCF\x11\xA6\xD9\x00\xAA\x00\x62\xCE\x6C"s + Bytes(100, '\0') +
           (hasPictures ? pictures : Bytes());
}

/// A raw picture of that maker, with a link to further directories.
Bytes Raw(std::string_view maker, bool isDng = false)
{
    TiffParts parts;
    parts.image = {AsciiEntry(0x010F, maker), {0x014A, 4, 1, Number(8, 4, Endian::Little)}};
    if (isDng)
        parts.image.push_back({0xC612, 1, 4, "\x01\x04\0\0"s});
    return BuildTiff(parts);
}

Bytes Packets(std::size_t first, std::size_t size)
{
    Bytes bytes(first + 5 * size, '\0');
    for (std::size_t at = first; at < bytes.size(); at += size)
        bytes[at] = '\x47';
    return bytes;
}

Bytes AdtsFrames()
{
    // Of 32 bytes.
    const Bytes frame = "\xFF\xF1\x50\x80\x04\x1F\xFC"s + Bytes(25, '\0');
    return frame + frame + frame;
}

Bytes Bitmap()
{
    return "BM"s + Bytes(12, '\0') + Number(40, 4, Endian::Little) + Bytes(36, '\0');
}

const std::vector<Sample>& Samples()
{
    static const std::vector<Sample> samples{
        {u"jpg", BuildJpeg("", 64)},
        {u"png", BuildPng("")},
        {u"gif", "GIF89a"s + Bytes(20, '\0')},
        {u"gif", "GIF87a"s + Bytes(20, '\0')},
        {u"bmp", Bitmap()},
        {u"tif", BuildTiff(PictureFacts{})},
        {u"tif", BuildTiff(PictureFacts{.endian = Endian::Big})},
        {u"tif", "II+\0\x08\0\0\0"s},
        {u"webp", BuildWebP("")},
        {u"heic", Branded("heic")},
        {u"heic", Box("ftyp", "mif1\0\0\0\0mif1heic"s)},
        {u"avif", Branded("avif")},
        {u"avif", Box("ftyp", "mif1\0\0\0\0mif1avif"s)},
        {u"jxl", BuildJpegXl("")},
        {u"jxl", "\xFF\x0A"s + Bytes(20, '\0')},
        {u"jp2", Box("jP  ", "\r\n\x87\n") + Box("ftyp", "jp2 ")},
        {u"j2c", "\xFF\x4F\xFF\x51"s + Bytes(40, '\0')},
        {u"psd", "8BPS\0\1"s + Bytes(20, '\0')},
        {u"xcf", "gimp xcf file\0"s},
        {u"ico", "\0\0\1\0\1\0\x10\x10\0\0\1\0\x20\0"s + Bytes(20, '\0')},
        {u"svg", "<svg xmlns='http://www.w3.org/2000/svg'/>"},
        {u"svg", "\xEF\xBB\xBF<?xml version='1.0'?>\n<!-- a -->\n<!DOCTYPE svg PUBLIC 'x'>\n<svg/>"},
        {u"exr", "\x76\x2F\x31\x01\x02\0\0\0"s},
        {u"dds", "DDS \x7C\0\0\0"s},
        {u"emf", At(40, " EMF\0\0\1\0"s)},
        {u"cr2", "II*\0\x10\0\0\0CR\2\0"s + Bytes(40, '\0')},
        {u"cr3", Branded("crx ")},
        {u"dng", Raw("Adobe", true)},
        {u"nef", Raw("NIKON CORPORATION")},
        {u"arw", Raw("SONY")},
        {u"pef", Raw("PENTAX Corporation")},
        {u"tif", Raw("Scanner")},
        {u"orf", "IIRO\x08\0\0\0"s + Bytes(40, '\0')},
        {u"orf", "MMOR\0\0\0\x08"s + Bytes(40, '\0')},
        {u"rw2", "IIU\0\x08\0\0\0"s + Bytes(40, '\0')},
        {u"raf", BuildRaf(BuildJpeg("", 64))},
        {u"mp4", Branded("isom")},
        {u"mp4", Branded("mp42")},
        {u"mov", Branded("qt  ")},
        {u"mov", Box("wide", "") + Box("mdat", "x") + Box("moov", "")},
        {u"m4v", Branded("M4V ")},
        {u"f4v", Branded("f4v ")},
        {u"3gp", Branded("3gp5")},
        {u"3g2", Branded("3g2a")},
        {u"mkv", BuildMatroska({}, "matroska")},
        {u"webm", BuildMatroska({}, "webm")},
        {u"avi", BuildAvi(1, 8, 8)},
        {u"wmv", Asf(true)},
        {u"flv", "FLV\1\5\0\0\0\x09"s},
        {u"mpg", "\0\0\1\xBA\x44"s},
        {u"mpg", "\0\0\1\xB3\x14"s},
        {u"ts", Packets(0, 188)},
        {u"mts", Packets(4, 192)},
        {u"ogv", Ogg("\x80theora")},
        {u"mp3", BuildMp3("")},
        {u"mp3", BuildMp3(Id3Tag({}))},
        {u"flac", BuildFlac({}, 1)},
        {u"ogg", Ogg("\1vorbis")},
        {u"oga", Ogg("\x7F"
                     "FLAC")},
        {u"opus", Ogg("OpusHead")},
        {u"spx", Ogg("Speex   ")},
        {u"m4a", Branded("M4A ")},
        {u"m4b", Branded("M4B ")},
        {u"wav", BuildWav()},
        {u"aiff", "FORM\0\0\0\4AIFF"s},
        {u"aiff", "FORM\0\0\0\4AIFC"s},
        {u"wma", Asf(false)},
        {u"aac", AdtsFrames()},
        {u"ape", "MAC \x96\x0F"s},
        {u"wv", "wvpk"s + Bytes(28, '\0')},
        {u"mid", "MThd\0\0\0\6\0\1\0\1"s},
        {u"amr", "#!AMR\n"},
        {u"au", ".snd\0\0\0\x18"s},
        {u"pdf", "%PDF-1.7\n"},
        {u"ps", "%!PS-Adobe-3.0\n"},
        {u"eps", "%!PS-Adobe-3.0 EPSF-3.0\n"},
        {u"eps", "\xC5\xD0\xD3\xC6"s + Bytes(26, '\0')},
        {u"rtf", "{\\rtf1\\ansi}"},
        {u"html", "<!DOCTYPE HTML>\n<html></html>"},
        {u"html", "  <HTML><body>"},
        {u"docx", Office("word/document.xml")},
        // Without its directory.
        {u"docx", Office("word/document.xml").substr(0, 150)},
        {u"xlsx", Office("xl/workbook.xml")},
        {u"pptx", Office("ppt/presentation.xml")},
        {u"vsdx", Office("visio/document.xml")},
        {u"odt", OpenDocument("application/vnd.oasis.opendocument.text")},
        {u"ott", OpenDocument("application/vnd.oasis.opendocument.text-template")},
        {u"ods", OpenDocument("application/vnd.oasis.opendocument.spreadsheet")},
        {u"odp", OpenDocument("application/vnd.oasis.opendocument.presentation")},
        {u"odg", OpenDocument("application/vnd.oasis.opendocument.graphics")},
        {u"epub", OpenDocument("application/epub+zip")},
        {u"doc", Compound(u"WordDocument")},
        {u"xls", Compound(u"Workbook")},
        {u"xls", Compound(u"WORKBOOK")},
        {u"ppt", Compound(u"PowerPoint Document")},
        {u"msg", Compound(u"__properties_version1.0")},
        {u"vsd", Compound(u"VisioDocument")},
        {u"pub", Compound(u"Quill")},
        {u"djvu", "AT&TFORM\0\0\0\4DJVU"s},
        {u"mobi", At(60, "BOOKMOBI", 100)},
        {u"chm", "ITSF\3\0\0\0"s},
        {u"zip", BuildArchive({{"a.txt", "a"}})},
        {u"jar", BuildArchive({{"META-INF/MANIFEST.MF", "a"}, {"a.class", "a"}})},
        {u"apk", BuildArchive({{"META-INF/MANIFEST.MF", "a"}, {"AndroidManifest.xml", "a"}})},
        {u"gz", "\x1F\x8B\x08\0"s},
        {u"bz2", "BZh9\x31\x41\x59\x26\x53\x59"s},
        {u"xz", "\xFD"
                "7zXZ\0"s},
        {u"zst", "\x28\xB5\x2F\xFD\0"s},
        {u"lz4", "\x04\x22\x4D\x18"s},
        {u"7z", "7z\xBC\xAF\x27\x1C\0\4"s},
        {u"rar", "Rar!\x1A\x07\0"s},
        {u"tar", At(257, "ustar\0"s + "00", 512)},
        {u"cab", "MSCF\0\0\0\0"s},
        {u"iso", At(32769, "CD001", 34816)},
        {u"deb", "!<arch>\ndebian-binary   "},
        {u"rpm", "\xED\xAB\xEE\xDB\3\0"s},
    };
    return samples;
}

} // namespace

TEST(ContentKinds, ContentTellsTheExtension)
{
    for (const Sample& sample : Samples())
        EXPECT_EQ(CString(ExtensionOf(sample.bytes)), CString(sample.extension));
}

TEST(ContentKinds, EveryKindIsTried)
{
    std::set<std::u16string_view> tried;
    for (const Sample& sample : Samples())
        tried.insert(sample.extension);
    EXPECT_EQ(tried.size(), ContentKinds().size());
    EXPECT_GE(tried.size(), 60U);
}

TEST(ContentKinds, OtherContentIsNotKnown)
{
    for (const Bytes& bytes : {Bytes(), Bytes("x"), Bytes("A plain text.\n"), Bytes(40000, '\0'),
                               Bytes("\x7F"
                                     "ELF\2\1\1"),
                               Bytes("<?xml version='1.0'?><x/>"), Bytes("BM and more text that is no picture"),
                               Bytes("RIFF\0\0\0\0XXXX", 12), Bytes("OggS"), Compound(u"Contents")})
        EXPECT_EQ(CString(ExtensionOf(bytes)), CString());
}

TEST(ContentKinds, FilesThatAreCutOffOrDamagedDoNoHarm)
{
    std::set<std::u16string_view> known{u""};
    for (const ContentKind& kind : ContentKinds())
        known.insert(kind.extension);
    for (const Sample& sample : Samples()) {
        const std::size_t most = std::min<std::size_t>(sample.bytes.size(), 300);
        for (std::size_t at = 0; at < most; ++at) {
            EXPECT_TRUE(known.contains(ExtensionOf(sample.bytes.substr(0, at))));
            Bytes damaged = sample.bytes;
            damaged[at] = static_cast<char>(damaged[at] ^ 0xFF);
            EXPECT_TRUE(known.contains(ExtensionOf(damaged)));
        }
    }
}

TEST(ContentKinds, SeveralExtensionsMaySuitAKind)
{
    const Bytes jpeg = BuildJpeg("", 64);
    VyrLibraryUtils::Pictures::MemorySource source(jpeg);
    const ContentKind* const kind = KindOfContent(source);
    ASSERT_NE(kind, nullptr);
    for (const char16_t* const suffix : {u"jpg", u"JPG", u"Jpeg", u"jpe", u"thm"})
        EXPECT_TRUE(kind->MayHave(suffix));
    for (const char16_t* const suffix : {u"", u"png", u"jp", u"jpeg jpe", u"jpgx"})
        EXPECT_FALSE(kind->MayHave(suffix));
}

TEST(ContentKinds, RawPicturesAndFontsThatLookLikeOtherKindsAreRightAsTheyAre)
{
    const auto mayHave = [](const Bytes& bytes, const char16_t* suffix) {
        VyrLibraryUtils::Pictures::MemorySource source(bytes);
        const ContentKind* const kind = KindOfContent(source);
        return kind && kind->MayHave(suffix);
    };
    for (const char16_t* const suffix : {u"TIFF", u"iiq", u"3FR", u"srw", u"nef"})
        EXPECT_TRUE(mayHave(BuildTiff(PictureFacts{}), suffix));
    EXPECT_FALSE(mayHave(BuildTiff(PictureFacts{}), u"cr2")) << "one has a mark of its own";
    EXPECT_TRUE(mayHave("%!PS-AdobeFont-1.0: Sample\n", u"pfa"));
}

TEST(ContentKinds, FilesThatCannotBeReadGiveTheSystemsCode)
{
    const ScratchFolder folder;
    EXPECT_NE(KindOf(folder.Path(u"missing")).error, 0U);
    EXPECT_EQ(KindOf(folder.Path()).error, 0U);
    EXPECT_EQ(KindOf(folder.Path()).kind, nullptr);
}
