// Skips the chunks of a PNG up to the one with the Exif tags.
#include <VyrLibraryUtils/pictures/Png.h>

#include <VyrLibraryUtils/pictures/Exif.h>
#include <VyrLibraryUtils/pictures/FourCc.h>
#include <VyrLibraryUtils/pictures/Inflate.h>

namespace VyrLibraryUtils::Pictures {
namespace {

constexpr std::uint64_t signatureSize = 8;
constexpr std::uint64_t checksumSize = 4;
/// The keywords, with the NUL that ends them.
constexpr std::string_view exifKeyword("Raw profile type exif\0", 22);
constexpr std::string_view appKeyword("Raw profile type APP1\0", 22);
/// The keyword, no packing, and neither a language nor a translation.
constexpr std::string_view xmpKeyword("XML:com.adobe.xmp\0\0\0\0\0", 22);
static_assert(exifKeyword.size() == appKeyword.size());
/// Two digits make one byte.
constexpr std::size_t longestProfile = 2 * longestExif;
/// A few kilobytes can unpack to megabytes: this bounds the work on a hostile file.
constexpr int mostPackedProfiles = 4;

int HexDigit(char digit)
{
    if (digit >= '0' && digit <= '9')
        return digit - '0';
    if (digit >= 'a' && digit <= 'f')
        return digit - 'a' + 10;
    return digit >= 'A' && digit <= 'F' ? digit - 'A' + 10 : -1;
}

void SkipLine(std::string_view& text)
{
    const std::size_t end = text.find('\n');
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
}

/// The bytes of a raw profile: a blank line, a name, a count, then hexadecimal digits in lines.
std::string RawProfile(std::string_view text)
{
    for (int line = 0; line < 3; ++line)
        SkipLine(text);
    std::string bytes;
    int high = -1;
    for (const char character : text) {
        const int digit = HexDigit(character);
        if (digit < 0)
            continue;
        if (high >= 0)
            bytes += static_cast<char>(high << 4 | digit);
        high = high < 0 ? digit : -1;
    }
    return bytes;
}

/// Whether the keyword of a text chunk tells that it is a profile which may hold Exif.
bool IsProfile(const ByteView& chunk)
{
    return chunk.StartsWith(exifKeyword) || chunk.StartsWith(appKeyword);
}

std::string ReadProfile(std::string_view text, PictureTag tag)
{
    const std::string profile = RawProfile(text);
    MemorySource source(profile);
    return ReadExif(ByteView(source), tag);
}

/// The chunks of one picture, read for one tag.
class PngReader
{
public:
    PngReader(const ByteView& png, PictureTag tag) : m_cursor(png.From(signatureSize), ByteOrder::Big), m_tag(tag) {}

    std::string Read()
    {
        std::string text;
        while (text.empty() && !m_cursor.Failed()) {
            const std::uint32_t length = m_cursor.U32();
            const std::uint32_t type = m_cursor.U32();
            if (!IsFourCc(type) || type == FourCc("IEND"))
                break;
            text = ReadChunk(type, m_cursor.Take(length));
            m_cursor.Skip(checksumSize);
        }
        return text;
    }

private:
    std::string ReadChunk(std::uint32_t type, const ByteView& chunk)
    {
        if (m_tag == PictureTag::Xmp)
            return type == FourCc("iTXt") && chunk.StartsWith(xmpKeyword)
                       ? chunk.From(xmpKeyword.size()).Copy(longestXmp)
                       : std::string();
        if (type == FourCc("eXIf"))
            return ReadExif(chunk, m_tag);
        if (type == FourCc("tEXt") && IsProfile(chunk))
            return ReadProfile(chunk.From(exifKeyword.size()).Copy(longestProfile), m_tag);
        if (type == FourCc("zTXt") && IsProfile(chunk) && m_packedLeft-- > 0)
            return ReadProfile(Inflate(chunk.From(exifKeyword.size() + 1).Copy(longestProfile), longestProfile), m_tag);
        return {};
    }

    ByteCursor m_cursor;
    PictureTag m_tag;
    int m_packedLeft = mostPackedProfiles;
};

} // namespace

std::string ReadPng(const ByteView& png, PictureTag tag)
{
    return PngReader(png, tag).Read();
}

} // namespace VyrLibraryUtils::Pictures
