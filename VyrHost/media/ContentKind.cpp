// The table of kinds, and the first bytes that identify them.
#include <VyrHost/media/ContentKind.h>

#include <VyrHost/media/ContentReaders.h>
#include <VyrHost/media/Movie.h>
#include <VyrHost/media/OpenFile.h>
#include <VyrLibraryUtils/pictures/ByteView.h>

#include <algorithm>
#include <iterator>

namespace VyrHost::Media {

namespace {

using namespace std::string_view_literals;
using namespace VyrLibraryUtils::Pictures;

constexpr ContentKind kinds[] = {
    // Pictures.
    {u"jpg", u"jpeg jpe jfif jps mpo thm"},
    {u"png", u"apng"},
    {u"gif", u""},
    {u"bmp", u"dib"},
    // Raw pictures of many makers look like any other.
    {u"tif", u"tiff 3fr arw dcr dng erf fff gpr iiq k25 kdc mef mos nef nrw pef ptx raw sr2 srf srw"},
    {u"webp", u""},
    {u"heic", u"heif hif"},
    {u"avif", u"avifs"},
    {u"jxl", u""},
    {u"jp2", u"jpf jpx j2k"},
    {u"j2c", u"j2k jpc"},
    {u"psd", u"psb"},
    {u"xcf", u""},
    {u"ico", u""},
    {u"svg", u""},
    {u"exr", u""},
    {u"dds", u""},
    {u"emf", u""},
    {u"cr2", u""},
    {u"cr3", u""},
    {u"dng", u""},
    {u"nef", u"nrw"},
    {u"arw", u"sr2"},
    {u"pef", u""},
    {u"orf", u""},
    {u"rw2", u"rwl"},
    {u"raf", u""},
    // Films.
    {u"mp4", u"m4v m4a m4b mp4v lrv insv"},
    {u"mov", u"qt"},
    {u"m4v", u"mp4"},
    {u"f4v", u""},
    {u"3gp", u""},
    {u"3g2", u""},
    {u"mkv", u"mka mks"},
    {u"webm", u"weba"},
    {u"avi", u"divx"},
    {u"wmv", u"asf"},
    {u"flv", u""},
    {u"mpg", u"mpeg vob m2p mpe"},
    {u"ts", u"m2t mpegts"},
    {u"mts", u"m2ts"},
    {u"ogv", u"ogg ogm"},
    // Music.
    {u"mp3", u""},
    {u"flac", u"fla"},
    {u"ogg", u"oga"},
    {u"oga", u"ogg"},
    {u"opus", u"ogg"},
    {u"spx", u"ogg"},
    {u"m4a", u"m4b m4p m4r mp4"},
    {u"m4b", u"m4a mp4"},
    {u"wav", u"wave bwf"},
    {u"aiff", u"aif aifc"},
    {u"wma", u"asf"},
    {u"aac", u"adts"},
    {u"ape", u""},
    {u"wv", u""},
    {u"mid", u"midi kar"},
    {u"amr", u""},
    {u"au", u"snd"},
    // Documents.
    {u"pdf", u"ai"},
    {u"ps", u"pfa"},
    {u"eps", u"epsf ai"},
    {u"rtf", u"doc"},
    {u"html", u"htm xhtml shtml"},
    {u"docx", u"docm dotx dotm"},
    {u"xlsx", u"xlsm xlsb xltx xltm"},
    {u"pptx", u"pptm ppsx ppsm potx potm"},
    {u"vsdx", u"vsdm vstx"},
    {u"odt", u""},
    {u"ott", u""},
    {u"ods", u""},
    {u"odp", u""},
    {u"odg", u""},
    {u"epub", u""},
    {u"doc", u"dot"},
    {u"xls", u"xlt"},
    {u"ppt", u"pps pot"},
    {u"msg", u"oft"},
    {u"vsd", u"vst vss"},
    {u"pub", u""},
    {u"djvu", u"djv"},
    {u"mobi", u"azw prc azw3"},
    {u"chm", u""},
    // Archives.
    {u"zip", u"cbz kmz kra key numbers pages sketch whl xpi zipx"},
    {u"jar", u"ear war apk"},
    {u"apk", u""},
    {u"gz", u"tgz svgz emz"},
    {u"bz2", u"tbz tbz2"},
    {u"xz", u"txz"},
    {u"zst", u"tzst"},
    {u"lz4", u""},
    {u"7z", u"cb7"},
    {u"rar", u"cbr"},
    {u"tar", u"cbt ova"},
    {u"cab", u""},
    {u"iso", u""},
    {u"deb", u"udeb"},
    {u"rpm", u""},
};

/// Bytes at an offset that identify a kind.
struct Mark
{
    std::uint64_t offset;
    std::string_view bytes;
    std::u16string_view extension;
};

/// The longer ones come first where one begins as another does.
constexpr Mark marks[] = {
    {0, "\xFF\xD8\xFF"sv, u"jpg"},
    {0, "\x89PNG\r\n\x1A\n"sv, u"png"},
    // TIFF with 64-bit offsets.
    {0, "II+\0"sv, u"tif"},
    {0, "MM\0+"sv, u"tif"},
    {0, "GIF87a"sv, u"gif"},
    {0, "GIF89a"sv, u"gif"},
    {0, "\0\0\0\x0CJXL \r\n\x87\n"sv, u"jxl"},
    {0, "\xFF\x0A"sv, u"jxl"},
    {0, "\0\0\0\x0CjP  \r\n\x87\n"sv, u"jp2"},
    {0, "\xFF\x4F\xFF\x51"sv, u"j2c"},
    {0, "8BPS\0"sv, u"psd"},
    {0, "gimp xcf "sv, u"xcf"},
    {0, "\x76\x2F\x31\x01"sv, u"exr"},
    {0, "DDS \x7C\0\0\0"sv, u"dds"},
    {40, " EMF\0\0\x01\0"sv, u"emf"},
    {0, "IIRO"sv, u"orf"},
    {0, "IIRS"sv, u"orf"},
    {0, "MMOR"sv, u"orf"},
    {0, "IIU\0"sv, u"rw2"},
    {0, "FUJIFILMCCD-RAW "sv, u"raf"},
    {0, "FLV\x01"sv, u"flv"},
    {0, "\0\0\x01\xBA"sv, u"mpg"},
    {0, "\0\0\x01\xB3"sv, u"mpg"},
    {0, "fLaC"sv, u"flac"},
    {0, "MAC "sv, u"ape"},
    {0, "wvpk"sv, u"wv"},
    {0, "MThd\0\0\0\x06"sv, u"mid"},
    {0, "#!AMR"sv, u"amr"},
    {0, ".snd\0"sv, u"au"},
    {0, "%PDF-"sv, u"pdf"},
    {0, "{\\rtf"sv, u"rtf"},
    {0, "AT&TFORM"sv, u"djvu"},
    {60, "BOOKMOBI"sv, u"mobi"},
    {0, "ITSF\x03\0\0\0"sv, u"chm"},
    {0, "\x1F\x8B\x08"sv, u"gz"},
    {0,
     "\xFD"
     "7zXZ\0"sv,
     u"xz"},
    {0, "\x28\xB5\x2F\xFD"sv, u"zst"},
    {0, "\x04\x22\x4D\x18"sv, u"lz4"},
    {0, "7z\xBC\xAF\x27\x1C"sv, u"7z"},
    {0, "Rar!\x1A\x07"sv, u"rar"},
    {257, "ustar"sv, u"tar"},
    {0, "MSCF\0\0\0\0"sv, u"cab"},
    {32769, "CD001"sv, u"iso"},
    {0, "!<arch>\ndebian-binary"sv, u"deb"},
    {0, "\xED\xAB\xEE\xDB"sv, u"rpm"},
};

std::u16string_view KindOfMark(const ByteView& file)
{
    const auto* const found = std::find_if(std::begin(marks), std::end(marks), [&file](const Mark& mark) {
        return file.From(mark.offset).StartsWith(mark.bytes);
    });
    return found == std::end(marks) ? std::u16string_view() : found->extension;
}

bool IsBitmap(const ByteView& file)
{
    constexpr std::uint64_t headerField = 14;
    constexpr std::uint32_t headerSizes[] = {12, 40, 52, 56, 64, 108, 124};
    ByteCursor cursor(file.From(headerField), ByteOrder::Little);
    return file.StartsWith("BM") &&
           std::find(std::begin(headerSizes), std::end(headerSizes), cursor.U32()) != std::end(headerSizes);
}

/// Icons have a count and, for the first picture, a byte that is always 0.
bool IsIcon(const ByteView& file)
{
    constexpr std::uint64_t countField = 4;
    constexpr std::uint64_t zeroField = 9;
    constexpr std::uint16_t mostPictures = 256;
    ByteCursor count(file.From(countField), ByteOrder::Little);
    const std::uint16_t pictures = count.U16();
    return file.StartsWith("\0\0\x01\0"sv) && pictures > 0 && pictures <= mostPictures &&
           file.From(zeroField).StartsWith("\0"sv);
}

bool IsBzip2(const ByteView& file)
{
    constexpr std::uint64_t blockField = 4;
    return file.StartsWith("BZh") && file.From(blockField).StartsWith("\x31\x41\x59\x26\x53\x59");
}

bool IsAiff(const ByteView& file)
{
    constexpr std::uint64_t formField = 8;
    const std::string_view form = file.Fetch(formField, 4);
    return (form == "AIFF" || form == "AIFC") && file.StartsWith("FORM");
}

std::u16string_view ExtensionOf(ByteSource& source)
{
    const ByteView file(source);
    if (file.StartsWith("II*\0"sv) || file.StartsWith("MM\0*"sv))
        return KindOfTiff(source);
    if (file.StartsWith("PK\x03\x04"))
        return KindOfZip(file);
    if (file.StartsWith("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1"))
        return KindOfCompound(file);
    if (file.StartsWith("RIFF"))
        return KindOfRiff(file);
    if (file.StartsWith("OggS"))
        return KindOfOgg(file);
    if (IsMatroska(file))
        return KindOfMatroska(file);
    if (file.StartsWith("\x30\x26\xB2\x75\x8E\x66\xCF\x11"))
        return KindOfAsf(file);
    if (IsIsoMedia(file))
        return KindOfIsoMedia(file);
    if (const auto extension = KindOfMark(file); !extension.empty())
        return extension;
    if (IsBitmap(file))
        return u"bmp";
    if (IsIcon(file))
        return u"ico";
    if (IsBzip2(file))
        return u"bz2";
    if (IsAiff(file))
        return u"aiff";
    if (const auto extension = KindOfMpeg(file); !extension.empty())
        return extension;
    return KindOfText(file);
}

char16_t Small(char16_t unit)
{
    return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + (u'a' - u'A')) : unit;
}

bool IsSame(std::u16string_view known, std::u16string_view given)
{
    return std::equal(known.begin(), known.end(), given.begin(), given.end(),
                      [](char16_t left, char16_t right) { return left == Small(right); });
}

} // namespace

bool ContentKind::MayHave(std::u16string_view suffix) const
{
    if (IsSame(extension, suffix))
        return true;
    for (std::u16string_view rest = others; !rest.empty();) {
        const std::size_t end = std::min(rest.find(u' '), rest.size());
        if (IsSame(rest.substr(0, end), suffix))
            return true;
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return false;
}

std::span<const ContentKind> ContentKinds()
{
    return kinds;
}

const ContentKind* KindOfContent(ByteSource& file)
{
    const std::u16string_view extension = ExtensionOf(file);
    const auto* const found = std::find_if(std::begin(kinds), std::end(kinds), [extension](const ContentKind& kind) {
        return kind.extension == extension;
    });
    return found == std::end(kinds) ? nullptr : found;
}

FileKind KindOf(const CString& path)
{
    OpenFile file(path);
    if (!file.IsOpen())
        return {nullptr, file.ErrorFor(path)};
    return {KindOfContent(file.Source()), 0};
}

} // namespace VyrHost::Media
