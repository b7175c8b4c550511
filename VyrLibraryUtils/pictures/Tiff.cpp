// Finds one tag in a TIFF structure. Every count and offset is checked before it is used.
#include <VyrLibraryUtils/pictures/Tiff.h>

#include <VyrLibraryUtils/pictures/Jpeg.h>

#include <algorithm>
#include <optional>

namespace VyrLibraryUtils::Pictures {
namespace {

constexpr std::uint16_t exifDirectoryLink = 0x8769;
constexpr std::uint16_t placeDirectoryLink = 0x8825;
/// The length of the thumbnail in bytes; PictureTag::Thumbnail is its offset.
constexpr std::uint16_t thumbnailLength = 0x0202;
constexpr std::size_t entrySize = 12;
/// The longest text that is copied, in bytes: longer than real ones, and harmless from a hostile file.
constexpr std::size_t longestText = 65535;

enum class ValueType : std::uint16_t
{
    Byte = 1,
    Ascii = 2,
    Short = 3,
    Long = 4,
    Rational = 5,
    Undefined = 7,
    SignedLong = 9,
    SignedRational = 10,
    Directory = 13,
    Utf8 = 129
};

struct Entry
{
    ValueType type;
    std::uint32_t count;
    /// The value itself when it has at most four bytes, else its offset.
    std::uint32_t valueOrOffset;
    /// The position of those four bytes.
    std::uint64_t valueField;
};

class TiffReader
{
public:
    TiffReader(const ByteView& tiff, ByteOrder order) : m_tiff(tiff), m_order(order) {}

    [[nodiscard]] std::uint32_t FirstDirectoryOffset() const
    {
        return static_cast<std::uint32_t>(ToUnsigned(m_tiff.Fetch(4, 4), m_order));
    }
    /// The first entry of `tag` in the directory at `offset`.
    [[nodiscard]] std::optional<Entry> Find(std::uint32_t offset, std::uint16_t tag) const;
    /// The first entry of `tag` in the directory that the entry `link` of the directory at `offset` links to.
    [[nodiscard]] std::optional<Entry> FindBehind(std::uint16_t link, std::uint32_t offset, std::uint16_t tag) const;
    /// The offset of the directory that `entry` links to; 0 when there is none.
    [[nodiscard]] std::uint32_t LinkedDirectory(const Entry& entry) const;
    [[nodiscard]] std::string Text(const Entry& entry) const;
    [[nodiscard]] std::string Bytes(const Entry& entry) const;
    /// The numbers of `entry`, with blanks between them; a fraction is "1/250". Empty where it holds none.
    [[nodiscard]] std::string Numbers(const Entry& entry) const;
    /// The thumbnail that the directory after the one at `offset` refers to.
    [[nodiscard]] std::string Thumbnail(std::uint32_t offset) const;

private:
    [[nodiscard]] std::uint32_t Number(std::string_view bytes, std::size_t place, std::size_t width) const
    {
        return static_cast<std::uint32_t>(ToUnsigned(bytes.substr(place, width), m_order));
    }
    /// The offset of the directory after the one at `offset`; 0 when there is none.
    [[nodiscard]] std::uint32_t NextDirectory(std::uint32_t offset) const;
    /// The number in the entry of `tag` in the directory at `offset`; 0 when there is none.
    [[nodiscard]] std::uint32_t LongIn(std::uint32_t offset, std::uint16_t tag) const;

    ByteView m_tiff;
    ByteOrder m_order;
};

std::optional<Entry> TiffReader::Find(std::uint32_t offset, std::uint16_t tag) const
{
    const std::uint64_t first = std::uint64_t{offset} + 2;
    const std::uint64_t count = ToUnsigned(m_tiff.Fetch(offset, 2), m_order);
    // An incomplete directory is damaged; a wrong offset into other data usually looks like one.
    if (m_tiff.From(first).Size() < count * entrySize)
        return std::nullopt;
    const auto high = static_cast<char>(tag >> 8);
    const auto low = static_cast<char>(tag & 0xFF);
    const bool isBig = m_order == ByteOrder::Big;
    const char wanted[] = {isBig ? high : low, isBig ? low : high};
    constexpr std::size_t most = ByteSource::maximumFetch / entrySize;
    for (std::uint64_t done = 0; done < count; done += most) {
        const auto size = static_cast<std::size_t>(std::min<std::uint64_t>(count - done, most) * entrySize);
        const std::string_view entries = m_tiff.Fetch(first + done * entrySize, size);
        for (std::size_t place = 0; place < entries.size(); place += entrySize)
            if (entries[place] == wanted[0] && entries[place + 1] == wanted[1])
                return Entry{static_cast<ValueType>(Number(entries, place + 2, 2)), Number(entries, place + 4, 4),
                             Number(entries, place + 8, 4), first + done * entrySize + place + 8};
    }
    return std::nullopt;
}

std::uint32_t TiffReader::LinkedDirectory(const Entry& entry) const
{
    const bool isLink = (entry.type == ValueType::Long || entry.type == ValueType::Directory) && entry.count == 1;
    return isLink ? entry.valueOrOffset : 0;
}

std::optional<Entry> TiffReader::FindBehind(std::uint16_t link, std::uint32_t offset, std::uint16_t tag) const
{
    const std::optional<Entry> entry = Find(offset, link);
    const std::uint32_t linked = entry ? LinkedDirectory(*entry) : 0;
    return linked == 0 || linked == offset ? std::nullopt : Find(linked, tag);
}

std::string TiffReader::Bytes(const Entry& entry) const
{
    const std::uint64_t offset = entry.count <= 4 ? entry.valueField : entry.valueOrOffset;
    const ByteView value = m_tiff.Part(offset, entry.count);
    return value.Size() == entry.count ? value.Copy(longestText) : std::string();
}

/// The size of a number of that type in bytes; 0 for types without numbers.
std::size_t WidthOf(ValueType type)
{
    switch (type) {
    case ValueType::Byte:
        return 1;
    case ValueType::Short:
        return 2;
    case ValueType::Long:
    case ValueType::SignedLong:
        return 4;
    case ValueType::Rational:
    case ValueType::SignedRational:
        return 8;
    default:
        return 0;
    }
}

std::string TiffReader::Numbers(const Entry& entry) const
{
    // No Exif tag has more.
    constexpr std::uint32_t mostNumbers = 16;
    const std::size_t width = WidthOf(entry.type);
    const bool isSigned = entry.type == ValueType::SignedLong || entry.type == ValueType::SignedRational;
    const auto append = [this, isSigned](std::string& text, std::string_view bytes) {
        const auto number = static_cast<std::uint32_t>(ToUnsigned(bytes, m_order));
        text += isSigned ? std::to_string(static_cast<std::int32_t>(number)) : std::to_string(number);
    };
    if (width == 0 || entry.count == 0 || entry.count > mostNumbers)
        return {};
    const std::size_t size = entry.count * width;
    const std::string_view bytes = m_tiff.Fetch(size <= 4 ? entry.valueField : entry.valueOrOffset, size);
    std::string text;
    for (std::size_t place = 0; place < bytes.size(); place += width) {
        if (place > 0)
            text += ' ';
        const bool isFraction = width == 8;
        append(text, bytes.substr(place, isFraction ? 4 : width));
        if (isFraction)
            append(text += '/', bytes.substr(place + 4, 4));
    }
    return text;
}

std::string TiffReader::Text(const Entry& entry) const
{
    switch (entry.type) {
    case ValueType::Ascii:
    case ValueType::Undefined:
    case ValueType::Utf8:
        return Bytes(entry);
    // The writer took the wrong type; the tag holds a number only.
    case ValueType::Short:
    case ValueType::Long:
        return entry.count == 1 ? Numbers(entry) : std::string();
    default:
        return {};
    }
}

std::uint32_t TiffReader::NextDirectory(std::uint32_t offset) const
{
    const std::uint64_t count = ToUnsigned(m_tiff.Fetch(offset, 2), m_order);
    const std::uint64_t link = std::uint64_t{offset} + 2 + count * entrySize;
    return static_cast<std::uint32_t>(ToUnsigned(m_tiff.Fetch(link, 4), m_order));
}

std::uint32_t TiffReader::LongIn(std::uint32_t offset, std::uint16_t tag) const
{
    const std::optional<Entry> entry = Find(offset, tag);
    return entry && entry->type == ValueType::Long && entry->count == 1 ? entry->valueOrOffset : 0;
}

std::string TiffReader::Thumbnail(std::uint32_t offset) const
{
    const std::uint32_t next = NextDirectory(offset);
    if (next == 0 || next == offset)
        return {};
    const std::uint32_t length = LongIn(next, thumbnailLength);
    const ByteView bytes = m_tiff.Part(LongIn(next, NumberOf(PictureTag::Thumbnail)), length);
    const bool isSound = length <= largestThumbnail && bytes.Size() == length && IsJpeg(bytes);
    return isSound ? bytes.Copy(length) : std::string();
}

std::string TrimmedText(std::string text)
{
    text.resize(std::min(text.find('\0'), text.size()));
    text.resize(text.find_last_not_of(" \t\r\n") + 1);
    return text;
}

/// A camera whose clock was never set writes zeros, or blanks between the colons.
bool IsBlankDate(const std::string& date)
{
    return date.find_first_of("123456789") == std::string::npos;
}

/// If the first directory is itself `Linked`, there is no other.
std::optional<Entry> FindTag(const TiffReader& reader, std::uint32_t directory, PictureTag tag, FirstDirectory first)
{
    const std::uint16_t number = NumberOf(tag);
    if (first == FirstDirectory::Linked)
        return reader.Find(directory, number);
    if (IsOfPlace(tag))
        return reader.FindBehind(placeDirectoryLink, directory, number);
    std::optional<Entry> entry;
    if (IsInExif(tag))
        entry = reader.FindBehind(exifDirectoryLink, directory, number);
    return entry ? entry : reader.Find(directory, number);
}

} // namespace

bool IsTiff(const ByteView& bytes)
{
    using namespace std::string_view_literals;
    constexpr std::string_view signatures[] = {"II*\0"sv, "MM\0*"sv, "IIRO"sv, "IIRS"sv, "MMOR"sv, "IIU\0"sv};
    const std::string_view signature = bytes.Fetch(0, 4);
    return std::find(std::begin(signatures), std::end(signatures), signature) != std::end(signatures);
}

std::string ReadTiff(const ByteView& tiff, PictureTag tag, FirstDirectory first)
{
    if (!IsTiff(tiff))
        return {};
    const TiffReader reader(tiff, tiff.StartsWith("II") ? ByteOrder::Little : ByteOrder::Big);

    const std::uint32_t directory = reader.FirstDirectoryOffset();
    if (tag == PictureTag::Thumbnail)
        return reader.Thumbnail(directory);
    const std::optional<Entry> entry = FindTag(reader, directory, tag, first);
    if (!entry)
        return {};
    if (IsAsBytes(tag))
        return reader.Bytes(*entry);
    if (IsAsNumbers(tag))
        return reader.Numbers(*entry);
    const std::string text = TrimmedText(reader.Text(*entry));
    return tag == PictureTag::DateTimeOriginal && IsBlankDate(text) ? std::string() : text;
}

} // namespace VyrLibraryUtils::Pictures
