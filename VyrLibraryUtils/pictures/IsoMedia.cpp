// Finds the Exif item of a HEIC or AVIF picture by its tables, and the tag boxes of a CR3.
#include <VyrLibraryUtils/pictures/IsoMedia.h>

#include <VyrLibraryUtils/pictures/Exif.h>
#include <VyrLibraryUtils/pictures/FourCc.h>
#include <VyrLibraryUtils/pictures/IsoBox.h>
#include <VyrLibraryUtils/pictures/Tiff.h>

#include <optional>
#include <utility>

namespace VyrLibraryUtils::Pictures {
namespace {

/// The identifier of boxes that hold a packet of XMP. Source: Adobe, XMP storage in files, section 1.2.7.1.
constexpr std::string_view xmpUuid("\xBE\x7A\xCF\xCB\x97\xA9\x42\xE8\x9C\x71\x99\x94\x91\xE3\xAF\xAC", 16);

/// A version and flags come first in many boxes.
std::uint8_t TakeVersion(ByteCursor& box)
{
    const std::uint8_t version = box.U8();
    box.Skip(3);
    return version;
}

/// The id of the item that an item-info entry describes, when it is of `wanted` type.
std::optional<std::uint32_t> ItemOf(const ByteView& entry, std::uint32_t wanted)
{
    ByteCursor cursor(entry, ByteOrder::Big);
    const std::uint8_t version = TakeVersion(cursor);
    // Earlier versions know no item types.
    if (version != 2 && version != 3)
        return std::nullopt;
    const std::uint32_t id = version == 2 ? cursor.U16() : cursor.U32();
    const std::uint16_t protection = cursor.U16();
    const std::uint32_t type = cursor.U32();
    if (cursor.Failed() || protection != 0 || type != wanted)
        return std::nullopt;
    return id;
}

std::optional<std::uint32_t> FindItem(const ByteView& itemInfo, std::uint32_t type)
{
    ByteCursor cursor(itemInfo, ByteOrder::Big);
    const std::size_t countSize = TakeVersion(cursor) == 0 ? 2 : 4;
    cursor.Skip(countSize);
    while (const std::optional<IsoBox> entry = NextBox(cursor))
        if (entry->type == FourCc("infe"))
            if (const std::optional<std::uint32_t> id = ItemOf(entry->content, type))
                return id;
    return std::nullopt;
}

/// The pieces of items, as the item-location box names them.
class ItemLocations
{
public:
    /// `box`: the content of the item-location box; `file` and `itemData`: what its offsets count from.
    ItemLocations(const ByteView& box, const ByteView& file, const ByteView& itemData)
        : m_cursor(box, ByteOrder::Big), m_file(file), m_itemData(itemData), m_version(TakeVersion(m_cursor)),
          m_widths(m_cursor.U16())
    {}

    /// The text of `tag` in the item `id`: an Exif item, or the packet of XMP itself.
    std::string ReadItem(std::uint32_t id, PictureTag tag);

private:
    struct Item
    {
        std::uint32_t id;
        std::uint8_t constructionMethod;
        std::uint16_t dataReference;
        std::uint64_t baseOffset;
        std::uint16_t extentCount;
    };

    [[nodiscard]] std::size_t OffsetWidth() const { return m_widths >> 12; }
    [[nodiscard]] std::size_t LengthWidth() const { return m_widths >> 8 & 0xF; }
    [[nodiscard]] std::size_t BaseOffsetWidth() const { return m_widths >> 4 & 0xF; }
    [[nodiscard]] std::size_t IndexWidth() const { return m_version == 0 ? 0 : m_widths & 0xF; }
    [[nodiscard]] bool WidthsAreSound() const
    {
        return OffsetWidth() <= 8 && LengthWidth() <= 8 && BaseOffsetWidth() <= 8 && IndexWidth() <= 8;
    }

    Item NextItem();
    std::optional<ByteView> NextExtent(const ByteView& origin);
    std::string Join(const Item& item, const ByteView& origin);

    ByteCursor m_cursor;
    ByteView m_file;
    ByteView m_itemData;
    std::uint8_t m_version;
    std::uint16_t m_widths;
};

ItemLocations::Item ItemLocations::NextItem()
{
    Item item{};
    item.id = m_version < 2 ? m_cursor.U16() : m_cursor.U32();
    item.constructionMethod = m_version == 0 ? std::uint8_t{0} : static_cast<std::uint8_t>(m_cursor.U16() & 0xF);
    item.dataReference = m_cursor.U16();
    item.baseOffset = m_cursor.Unsigned(BaseOffsetWidth());
    item.extentCount = m_cursor.U16();
    return item;
}

/// The piece of `origin` that the extent at the cursor names; a length of 0 means "to the end". Nothing when the piece
/// is not complete: the next piece would be joined to the wrong bytes.
std::optional<ByteView> ItemLocations::NextExtent(const ByteView& origin)
{
    m_cursor.Skip(IndexWidth());
    const std::uint64_t offset = m_cursor.Unsigned(OffsetWidth());
    const std::uint64_t length = m_cursor.Unsigned(LengthWidth());
    const ByteView extent = origin.Part(offset, length == 0 ? origin.Size() : length);
    if (m_cursor.Failed() || extent.Size() < length)
        return std::nullopt;
    return extent;
}

std::string ItemLocations::Join(const Item& item, const ByteView& origin)
{
    std::string joined;
    for (std::uint16_t left = item.extentCount; left > 0 && joined.size() < longestExif; --left) {
        const std::optional<ByteView> extent = NextExtent(origin);
        if (!extent)
            return {};
        joined += extent->Copy(longestExif - joined.size());
    }
    return joined;
}

std::string ReadItemIn(const ByteView& item, PictureTag tag)
{
    return tag == PictureTag::Xmp ? item.Copy(longestXmp) : ReadExifItem(item, tag);
}

std::string ItemLocations::ReadItem(std::uint32_t id, PictureTag tag)
{
    if (m_version > 2 || !WidthsAreSound())
        return {};
    const std::uint64_t extentSize = IndexWidth() + OffsetWidth() + LengthWidth();
    for (std::uint32_t left = m_version < 2 ? m_cursor.U16() : m_cursor.U32(); left > 0 && !m_cursor.Failed(); --left) {
        const Item item = NextItem();
        if (item.id != id) {
            m_cursor.Skip(item.extentCount * extentSize);
            continue;
        }
        // Other methods build an item from items; other references are other files.
        if (item.constructionMethod > 1 || item.dataReference != 0)
            return {};
        const ByteView origin = (item.constructionMethod == 1 ? m_itemData : m_file).From(item.baseOffset);
        if (item.extentCount == 1) {
            const std::optional<ByteView> extent = NextExtent(origin);
            return extent ? ReadItemIn(*extent, tag) : std::string();
        }
        const std::string joined = Join(item, origin);
        MemorySource source(joined);
        return ReadItemIn(ByteView(source), tag);
    }
    return {};
}

std::string ReadMeta(const ByteView& meta, const ByteView& file, PictureTag tag)
{
    ByteCursor cursor(meta, ByteOrder::Big);
    TakeVersion(cursor);
    const ByteView nothing = meta.Part(0, 0);
    ByteView itemInfo = nothing;
    ByteView itemLocation = nothing;
    ByteView itemData = nothing;
    while (const std::optional<IsoBox> box = NextBox(cursor)) {
        if (box->type == FourCc("iinf"))
            itemInfo = box->content;
        else if (box->type == FourCc("iloc"))
            itemLocation = box->content;
        else if (box->type == FourCc("idat"))
            itemData = box->content;
    }
    // XMP packets are the only MIME items in practice.
    const std::optional<std::uint32_t> item =
        FindItem(itemInfo, tag == PictureTag::Xmp ? FourCc("mime") : FourCc("Exif"));
    return item ? ItemLocations(itemLocation, file, itemData).ReadItem(*item, tag) : std::string();
}

/// CR3 keeps each directory as a TIFF structure of its own.
std::string ReadCanonTags(const ByteView& boxes, PictureTag tag)
{
    std::uint32_t type = FourCc("CMT1");
    if (IsOfPlace(tag))
        type = FourCc("CMT4");
    else if (IsInExif(tag))
        type = FourCc("CMT2");
    ByteCursor cursor(boxes, ByteOrder::Big);
    while (const std::optional<IsoBox> box = NextBox(cursor))
        if (box->type == type)
            return ReadTiff(box->content, tag, FirstDirectory::Linked);
    return {};
}

std::string ReadMovie(const ByteView& movie, PictureTag tag)
{
    constexpr std::string_view canon("\x85\xC0\xB6\x87\x82\x0F\x11\xE0\x81\x11\xF4\xCE\x46\x2B\x6A\x48", 16);
    ByteCursor cursor(movie, ByteOrder::Big);
    while (const std::optional<IsoBox> box = NextBox(cursor))
        if (box->type == FourCc("uuid") && box->content.StartsWith(canon))
            return ReadCanonTags(box->content.From(canon.size()), tag);
    return {};
}

} // namespace

std::string ReadIsoMedia(const ByteView& media, PictureTag tag)
{
    ByteCursor cursor(media, ByteOrder::Big);
    std::string text;
    // A file has at most one meta box. A hostile file could name one large item in many.
    bool isMetaLeft = true;
    while (const std::optional<IsoBox> box = NextBox(cursor)) {
        if (box->type == FourCc("meta") && std::exchange(isMetaLeft, false))
            text = ReadMeta(box->content, media, tag);
        else if (box->type == FourCc("moov"))
            text = ReadMovie(box->content, tag);
        else if (tag == PictureTag::Xmp && box->type == FourCc("uuid") && box->content.StartsWith(xmpUuid))
            text = box->content.From(xmpUuid.size()).Copy(longestXmp);
        if (!text.empty())
            break;
    }
    return text;
}

} // namespace VyrLibraryUtils::Pictures
