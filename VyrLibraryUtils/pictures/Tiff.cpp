// Finds one tag in a TIFF structure. Every count and offset is checked before it is used.
#include <VyrLibraryUtils/pictures/Tiff.h>

#include <VyrLibraryUtils/pictures/Jpeg.h>

#include <algorithm>
#include <optional>

namespace VyrLibraryUtils::Pictures {
namespace {

constexpr std::uint16_t exifDirectoryLink = 0x8769;
/// How many bytes the thumbnail has; PictureTag::Thumbnail says where it stands.
constexpr std::uint16_t thumbnailLength = 0x0202;
constexpr std::size_t entrySize = 12;
/// The longest text that is copied, in bytes: longer than real ones, and harmless from a hostile file.
constexpr std::size_t longestText = 65535;

enum class ValueType : std::uint16_t
{
    Ascii = 2,
    Short = 3,
    Long = 4,
    Undefined = 7,
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
    /// The first entry of `tag` in the Exif directory that the directory at `offset` links to.
    [[nodiscard]] std::optional<Entry> FindInExifDirectory(std::uint32_t offset, std::uint16_t tag) const;
    /// The offset of the directory that `entry` links to; 0 when there is none.
    [[nodiscard]] std::uint32_t LinkedDirectory(const Entry& entry) const;
    [[nodiscard]] std::string Text(const Entry& entry) const;
    /// The thumbnail that the directory behind the one at `offset` refers to.
    [[nodiscard]] std::string Thumbnail(std::uint32_t offset) const;

private:
    [[nodiscard]] std::uint32_t Number(std::string_view bytes, std::size_t place, std::size_t width) const
    {
        return static_cast<std::uint32_t>(ToUnsigned(bytes.substr(place, width), m_order));
    }
    [[nodiscard]] std::string Bytes(const Entry& entry) const;
    /// The offset of the directory behind the one at `offset`; 0 when there is none.
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

std::optional<Entry> TiffReader::FindInExifDirectory(std::uint32_t offset, std::uint16_t tag) const
{
    const std::optional<Entry> link = Find(offset, exifDirectoryLink);
    const std::uint32_t linked = link ? LinkedDirectory(*link) : 0;
    return linked == 0 || linked == offset ? std::nullopt : Find(linked, tag);
}

std::string TiffReader::Bytes(const Entry& entry) const
{
    const std::uint64_t offset = entry.count <= 4 ? entry.valueField : entry.valueOrOffset;
    const ByteView value = m_tiff.Part(offset, entry.count);
    return value.Size() == entry.count ? value.Copy(longestText) : std::string();
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
        return entry.count == 1 ? std::to_string(ToUnsigned(m_tiff.Fetch(entry.valueField, 2), m_order)) : "";
    case ValueType::Long:
        return entry.count == 1 ? std::to_string(entry.valueOrOffset) : "";
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
    const ByteView bytes = m_tiff.Part(LongIn(next, static_cast<std::uint16_t>(PictureTag::Thumbnail)), length);
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
    const bool isDate = tag == PictureTag::DateTimeOriginal;

    const std::uint32_t directory = reader.FirstDirectoryOffset();
    if (tag == PictureTag::Thumbnail)
        return reader.Thumbnail(directory);
    std::optional<Entry> entry;
    if (isDate && first == FirstDirectory::Image)
        entry = reader.FindInExifDirectory(directory, static_cast<std::uint16_t>(tag));
    // Some programs write the date into the first directory.
    if (!entry)
        entry = reader.Find(directory, static_cast<std::uint16_t>(tag));
    const std::string text = entry ? TrimmedText(reader.Text(*entry)) : std::string();
    return isDate && IsBlankDate(text) ? std::string() : text;
}

} // namespace VyrLibraryUtils::Pictures
