// HEIC, HEIF, AVIF and CR3: every way to describe the position of the Exif item, and every possible size of a box.
#include "Facts.h"

#include <tests/support/PictureBuilder.h>

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace {

using namespace VyrTests;

const Bytes Tiff = BuildTiff(PictureFacts{});
const Bytes Item = ExifItem(Tiff);
const Bytes FileType = Box("ftyp", Bytes("heic\0\0\0\0mif1heic", 16));

Bytes Big(std::uint64_t value, std::size_t width)
{
    return Number(value, width, Endian::Big);
}

/// A meta box around `boxes`.
Bytes Meta(std::string_view boxes)
{
    return Box("meta", Bytes(4, '\0') + Bytes(boxes));
}

/// An iinf box that names item `id` as `type`.
Bytes ItemInfo(std::uint16_t id, std::string_view type)
{
    const Bytes entry = Box("infe", Bytes("\2\0\0\0", 4) + Big(id, 2) + Big(0, 2) + Bytes(type) + '\0');
    return Box("iinf", Bytes(4, '\0') + Big(1, 2) + entry);
}

/// An iloc box of version 1 with 4-byte numbers and one extent, for item 1 in the meta box's own data.
Bytes ItemLocation(std::uint32_t offset, std::uint32_t length, std::uint16_t method = 1, std::uint16_t reference = 0)
{
    return Box("iloc", Bytes("\1\0\0\0\x44\0", 6) + Big(1, 2) + Big(1, 2) + Big(method, 2) + Big(reference, 2) +
                           Big(1, 2) + Big(offset, 4) + Big(length, 4));
}

TEST(IsoMedia, EveryVersionOfTheTablesIsRead)
{
    constexpr std::uint8_t locationVersions[] = {0, 1, 2};
    constexpr std::uint8_t entryVersions[] = {2, 3};
    for (const std::uint8_t location : locationVersions)
        for (const std::uint8_t entry : entryVersions)
            EXPECT_EQ(FactsOf(BuildHeif({.item = Item, .locationVersion = location, .entryVersion = entry})),
                      BuiltFacts);
}

TEST(IsoMedia, EveryWidthOfTheTablesNumbersIsRead)
{
    constexpr std::size_t widths[] = {0, 4, 8};
    for (const std::size_t number : {std::size_t{4}, std::size_t{8}})
        for (const std::size_t base : widths)
            for (const std::size_t index : widths) {
                HeifParts parts{.item = Item, .pieces = 2};
                parts.offsetWidth = number;
                parts.lengthWidth = 12 - number;
                parts.baseWidth = base;
                parts.indexWidth = index;
                EXPECT_EQ(FactsOf(BuildHeif(parts)), BuiltFacts);
            }
}

TEST(IsoMedia, ItemIdsOfThirtyTwoBitsAreRead)
{
    const HeifParts parts{.item = Item, .locationVersion = 2, .entryVersion = 3, .itemId = 0x12345678};
    EXPECT_EQ(FactsOf(BuildHeif(parts)), BuiltFacts);
}

TEST(IsoMedia, ItemsInPiecesAreJoined)
{
    constexpr std::size_t counts[] = {2, 3, 7, 100};
    for (const std::size_t pieces : counts) {
        EXPECT_EQ(FactsOf(BuildHeif({.item = Item, .pieces = pieces})), BuiltFacts);
        EXPECT_EQ(FactsOf(BuildHeif({.item = Item, .pieces = pieces, .constructionMethod = 1})), BuiltFacts);
    }
}

TEST(IsoMedia, ItemsInTheMetaBoxAreRead)
{
    EXPECT_EQ(FactsOf(BuildHeif({.item = Item, .constructionMethod = 1})), BuiltFacts);
}

TEST(IsoMedia, TheDistanceToTheStructureIsFollowed)
{
    EXPECT_EQ(FactsOf(BuildHeif({.item = Big(0, 4) + Tiff})), BuiltFacts);
    EXPECT_EQ(FactsOf(BuildHeif({.item = Big(10, 4) + "0123456789" + Tiff})), BuiltFacts);
    EXPECT_EQ(FactsOf(BuildHeif({.item = Big(10, 4) + "0123" + Bytes("Exif\0\0", 6) + Tiff})), BuiltFacts);
    EXPECT_EQ(FactsOf(BuildHeif({.item = Big(0xFFFFFFFF, 4) + Tiff})), NoFacts);
}

TEST(IsoMedia, AnItemWithoutTheDistanceIsRead)
{
    EXPECT_EQ(FactsOf(BuildHeif({.item = Tiff})), BuiltFacts);
    EXPECT_EQ(FactsOf(BuildHeif({.item = Bytes("Exif\0\0", 6) + Tiff})), BuiltFacts);
}

TEST(IsoMedia, OtherItemsDoNotCount)
{
    const Bytes data = Box("idat", Item);
    const auto size = static_cast<std::uint32_t>(Item.size());
    EXPECT_EQ(FactsOf(FileType + Meta(ItemInfo(1, "Exif") + ItemLocation(0, size) + data)), BuiltFacts);
    EXPECT_EQ(FactsOf(FileType + Meta(ItemInfo(1, "mime") + ItemLocation(0, size) + data)), NoFacts);
    EXPECT_EQ(FactsOf(FileType + Meta(ItemInfo(2, "Exif") + ItemLocation(0, size) + data)), NoFacts);
    EXPECT_EQ(FactsOf(FileType + Meta(ItemInfo(1, "Exif") + ItemLocation(0, size, 2) + data)), NoFacts);
    EXPECT_EQ(FactsOf(FileType + Meta(ItemInfo(1, "Exif") + ItemLocation(0, size, 1, 1) + data)), NoFacts);
}

TEST(IsoMedia, TheOrderOfTheTablesDoesNotMatter)
{
    const auto size = static_cast<std::uint32_t>(Item.size());
    EXPECT_EQ(FactsOf(FileType + Meta(Box("idat", Item) + ItemLocation(0, size) + ItemInfo(1, "Exif"))), BuiltFacts);
}

TEST(IsoMedia, MissingTablesAreEmpty)
{
    const auto size = static_cast<std::uint32_t>(Item.size());
    EXPECT_EQ(FactsOf(FileType + Meta("")), NoFacts);
    EXPECT_EQ(FactsOf(FileType + Meta(ItemInfo(1, "Exif"))), NoFacts);
    EXPECT_EQ(FactsOf(FileType + Meta(ItemInfo(1, "Exif") + ItemLocation(0, size))), NoFacts);
    EXPECT_EQ(FactsOf(FileType), NoFacts);
}

TEST(IsoMedia, ALengthOfZeroIsAllTheRest)
{
    EXPECT_EQ(FactsOf(FileType + Meta(ItemInfo(1, "Exif") + ItemLocation(0, 0) + Box("idat", Item))), BuiltFacts);
}

TEST(IsoMedia, PiecesOutsideTheFileDoNotCount)
{
    const Bytes data = Box("idat", Item);
    for (const std::uint32_t offset : {0x7FFFFFFFu, 0xFFFFFFFFu})
        EXPECT_EQ(FactsOf(FileType + Meta(ItemInfo(1, "Exif") + ItemLocation(offset, 100) + data)), NoFacts);
    EXPECT_EQ(FactsOf(FileType + Meta(ItemInfo(1, "Exif") + ItemLocation(0, 0xFFFFFFFF) + data)), NoFacts);
}

TEST(IsoMedia, OffsetsThatOverflowDoNotCount)
{
    // Base and offset are as large as possible: their sum must not wrap around into the file.
    const Bytes location = Box("iloc", Bytes("\1\0\0\0\x88\x80", 6) + Big(1, 2) + Big(1, 2) + Big(1, 2) + Big(0, 2) +
                                           Big(0xFFFFFFFFFFFFFFFF, 8) + Big(1, 2) + Big(1, 8) + Big(1000, 8));
    EXPECT_EQ(FactsOf(FileType + Meta(ItemInfo(1, "Exif") + location + Box("idat", Item))), NoFacts);
}

TEST(IsoMedia, HugeCountsOfItemsAndPiecesEnd)
{
    // All widths are 0: an item takes eight bytes, however many pieces it claims.
    const Bytes item = Big(7, 2) + Big(1, 2) + Big(0, 2) + Big(0xFFFF, 2);
    const Bytes wanted = Big(1, 2) + Big(1, 2) + Big(0, 2) + Big(0xFFFF, 2);
    const Bytes items = Big(0xFFFF, 2) + item + item + wanted;
    const Bytes location = Box("iloc", Bytes("\1\0\0\0\0\0", 6) + items);
    EXPECT_EQ(FactsOf(FileType + Meta(ItemInfo(1, "Exif") + location + Box("idat", Item))), BuiltFacts);

    const Bytes endless = Box("iloc", Bytes("\2\0\0\0\0\0", 6) + Big(0xFFFFFFFF, 4));
    EXPECT_EQ(FactsOf(FileType + Meta(ItemInfo(1, "Exif") + endless + Box("idat", Item))), NoFacts);
}

TEST(IsoMedia, WidthsThatCannotBeAreRefused)
{
    for (const char* const widths : {"\x90\x44", "\x4F\x44", "\x44\x94", "\x44\x4F"}) {
        const Bytes location = Box("iloc", Bytes("\1\0\0\0", 4) + Bytes(widths, 2) + Big(1, 2) + Bytes(100, '\1'));
        EXPECT_EQ(FactsOf(FileType + Meta(ItemInfo(0x0101, "Exif") + location + Box("idat", Item))), NoFacts);
    }
}

TEST(IsoMedia, BoxesOfEverySizeFormAreRead)
{
    const auto size = static_cast<std::uint32_t>(Item.size());
    const Bytes tables = Bytes(4, '\0') + ItemInfo(1, "Exif") + ItemLocation(0, size);
    EXPECT_EQ(FactsOf(FileType + LongBox("free", "x") + LongBox("meta", tables + LongBox("idat", Item))), BuiltFacts);
    EXPECT_EQ(FactsOf(FileType + OpenBox("meta", tables + OpenBox("idat", Item))), BuiltFacts);
    EXPECT_EQ(FactsOf(FileType + OpenBox("mdat", Box("meta", tables + Box("idat", Item)))), NoFacts);
}

TEST(IsoMedia, BoxesOfImpossibleSizeEndTheFile)
{
    const auto size = static_cast<std::uint32_t>(Item.size());
    const Bytes meta = Meta(ItemInfo(1, "Exif") + ItemLocation(0, size) + Box("idat", Item));
    for (const std::uint32_t impossible : {2u, 7u})
        EXPECT_EQ(FactsOf(FileType + Big(impossible, 4) + "free" + meta), NoFacts);
    EXPECT_EQ(FactsOf(FileType + Big(1, 4) + "free" + Big(15, 8) + meta), NoFacts);
    EXPECT_EQ(FactsOf(FileType + Big(1, 4) + "free" + Big(0xFFFFFFFFFFFFFFFF, 8) + meta), NoFacts);
    EXPECT_EQ(FactsOf(FileType + Big(8, 4) + "free" + meta), BuiltFacts);
}

TEST(IsoMedia, Cr3GivesItsThreeTags)
{
    for (const Endian endian : {Endian::Little, Endian::Big})
        EXPECT_EQ(FactsOf(BuildCr3({.endian = endian})), BuiltFacts);
    EXPECT_EQ(FactsOf(BuildCr3({"", "", ""})), NoFacts);
}

TEST(IsoMedia, APictureThatIsAFilmTooIsReadInEitherOrder)
{
    const auto size = static_cast<std::uint32_t>(Item.size());
    const Bytes meta = Meta(ItemInfo(1, "Exif") + ItemLocation(0, size) + Box("idat", Item));
    const Bytes movie = Box("moov", Box("mvhd", "header"));
    EXPECT_EQ(FactsOf(FileType + movie + meta), BuiltFacts);
    EXPECT_EQ(FactsOf(FileType + meta + movie), BuiltFacts);
}

TEST(IsoMedia, AnItemThatManyMetaBoxesNameIsReadOnce)
{
    /// Counts the requested bytes.
    class CountingSource final : public VyrLibraryUtils::Pictures::ByteSource
    {
    public:
        explicit CountingSource(std::string_view bytes) : ByteSource(bytes.size()), m_bytes(bytes) {}
        std::string_view Fetch(std::uint64_t offset, std::size_t count) override
        {
            fetched += count;
            return Holds(offset, count) ? m_bytes.substr(static_cast<std::size_t>(offset), count) : std::string_view();
        }
        std::size_t fetched = 0;

    private:
        std::string_view m_bytes;
    };
    // A directory as long as one can be, without a tag that is looked for.
    constexpr std::size_t entries = 65535;
    const Bytes tiff = Bytes("II*\0\x08\0\0\0\xFF\xFF", 10) + Bytes(12 * entries, '\1');
    Bytes metas;
    for (int i = 0; i < 100; ++i)
        metas += Meta(ItemInfo(1, "Exif") + ItemLocation(static_cast<std::uint32_t>(FileType.size() + 8),
                                                         static_cast<std::uint32_t>(tiff.size()), 0));
    const Bytes picture = FileType + Box("mdat", tiff) + metas;
    CountingSource source(picture);
    using VyrLibraryUtils::Pictures::PictureTag;
    EXPECT_EQ(VyrLibraryUtils::Pictures::ReadPicture(source, PictureTag::Make), "");
    EXPECT_GT(source.fetched, 12 * entries);
    EXPECT_LT(source.fetched, 2 * 12 * entries);
}

TEST(IsoMedia, FilmsAreEmpty)
{
    const Bytes fileType = Box("ftyp", Bytes("qt  \0\0\0\0qt  ", 12));
    EXPECT_EQ(FactsOf(fileType + Box("wide", "") + Box("mdat", Bytes(1000, 'x')) + Box("moov", Box("mvhd", "header"))),
              NoFacts);
    EXPECT_EQ(FactsOf(fileType + Box("moov", Box("uuid", "0123456789abcdef" + Box("CMT1", Tiff)))), NoFacts);
}

TEST(IsoMedia, EveryBeginningIsRightOrEmpty)
{
    ExpectEveryBeginningIsRightOrEmpty(BuildHeif({.item = Item}), BuiltFacts);
    ExpectEveryBeginningIsRightOrEmpty(BuildHeif({.item = Item, .pieces = 4}), BuiltFacts);
    ExpectEveryBeginningIsRightOrEmpty(BuildHeif({.item = Item, .constructionMethod = 1}), BuiltFacts);
    ExpectEveryBeginningIsRightOrEmpty(BuildCr3({}), BuiltFacts);
}

} // namespace
