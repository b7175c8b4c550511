// The TIFF structure: both byte orders, the forms that a value can take, and every damage to counts and offsets.
#include "Facts.h"

#include <tests/support/PictureBuilder.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <string>

namespace {

using namespace VyrTests;
using namespace std::string_view_literals;

constexpr Endian BothOrders[] = {Endian::Little, Endian::Big};

/// The make that a TIFF says whose tag Make is `entry`.
std::string MakeFrom(const TiffEntry& entry, Endian endian = Endian::Little)
{
    TiffParts parts = TiffPartsOf({.make = "", .endian = endian});
    parts.image.push_back(entry);
    return FactsOf(BuildTiff(parts)).make;
}

TiffEntry MakeEntry(std::uint16_t type, std::string_view value)
{
    return {0x010F, type, static_cast<std::uint32_t>(value.size()), Bytes(value)};
}

std::string DateFrom(const std::string& date)
{
    return FactsOf(BuildTiff(PictureFacts{.dateTimeOriginal = date})).dateTimeOriginal;
}

/// The position of `tag`'s entry in a TIFF of the given byte order.
std::size_t EntryOf(const Bytes& tiff, std::uint16_t tag, std::uint16_t type, Endian endian)
{
    return tiff.find(Number(tag, 2, endian) + Number(type, 2, endian));
}

TEST(Tiff, GivesAllThreeTagsInBothByteOrders)
{
    for (const Endian endian : BothOrders)
        EXPECT_EQ(FactsOf(BuildTiff(PictureFacts{.endian = endian})), BuiltFacts);
}

TEST(Tiff, MissingTagsAreEmptyBesideAnyOthers)
{
    for (const Endian endian : BothOrders)
        EXPECT_EQ(FactsOf(BuildTiff(PictureFacts{"", "", "", endian})), NoFacts);
}

TEST(Tiff, DateInTheFirstDirectoryCountsWhereTheExifDirectoryHasNone)
{
    constexpr std::uint16_t dateTag = 0x9003;
    for (const Endian endian : BothOrders) {
        TiffParts parts = TiffPartsOf({.dateTimeOriginal = "", .endian = endian});
        parts.image.push_back(AsciiEntry(dateTag, "2001:02:03 04:05:06"));
        EXPECT_EQ(FactsOf(BuildTiff(parts)).dateTimeOriginal, "2001:02:03 04:05:06");
        parts.exif.clear();
        EXPECT_EQ(FactsOf(BuildTiff(parts)).dateTimeOriginal, "2001:02:03 04:05:06") << "no Exif directory at all";

        TiffParts both = TiffPartsOf({.endian = endian});
        both.image.push_back(AsciiEntry(dateTag, "2001:02:03 04:05:06"));
        EXPECT_EQ(FactsOf(BuildTiff(both)).dateTimeOriginal, BuiltFacts.dateTimeOriginal);

        TiffParts blank = TiffPartsOf({.dateTimeOriginal = "0000:00:00 00:00:00", .endian = endian});
        blank.image.push_back(AsciiEntry(dateTag, "2001:02:03 04:05:06"));
        EXPECT_EQ(FactsOf(BuildTiff(blank)).dateTimeOriginal, "") << "the Exif directory has the tag";
    }
}

TEST(Tiff, MakerAndModelInTheExifDirectoryDoNotCount)
{
    TiffParts parts = TiffPartsOf({});
    std::swap(parts.image, parts.exif);
    EXPECT_EQ(FactsOf(BuildTiff(parts)).make, "");
    EXPECT_EQ(FactsOf(BuildTiff(parts)).model, "");
}

TEST(Tiff, TextsOfUpToFourBytesAreInTheEntry)
{
    for (const Endian endian : BothOrders) {
        const PictureFacts facts{"", "A", "XYZ", endian};
        EXPECT_EQ(FactsOf(BuildTiff(facts)), (Facts{"", "A", "XYZ"}));
    }
}

TEST(Tiff, TrailingBlanksAndNulsAreCut)
{
    EXPECT_EQ(MakeFrom(MakeEntry(2, "Maker  \0\0\0"sv)), "Maker");
    EXPECT_EQ(MakeFrom(MakeEntry(2, "Maker\0rest\0"sv)), "Maker");
    EXPECT_EQ(MakeFrom(MakeEntry(2, "Maker"sv)), "Maker");
    EXPECT_EQ(MakeFrom(MakeEntry(2, "  A maker"sv)), "  A maker");
}

TEST(Tiff, BlankTextsAreEmpty)
{
    EXPECT_EQ(MakeFrom(MakeEntry(2, "       \0"sv)), "");
    EXPECT_EQ(MakeFrom(MakeEntry(2, "\0\0\0\0\0\0\0\0\0"sv)), "");
    EXPECT_EQ(MakeFrom(MakeEntry(2, ""sv)), "");
}

TEST(Tiff, BlankAndZeroDatesAreEmpty)
{
    EXPECT_EQ(DateFrom("0000:00:00 00:00:00"), "");
    EXPECT_EQ(DateFrom("    :  :     :  :  "), "");
    EXPECT_EQ(DateFrom("                   "), "");
    EXPECT_EQ(DateFrom(std::string(19, '\0')), "");
}

TEST(Tiff, DatesAreUnchanged)
{
    EXPECT_EQ(DateFrom("2004:02:30 99:99:99"), "2004:02:30 99:99:99");
    EXPECT_EQ(DateFrom("2004-02-03T04:05:06"), "2004-02-03T04:05:06");
    EXPECT_EQ(DateFrom("2000:00:00 00:00:00"), "2000:00:00 00:00:00");
}

TEST(Tiff, TextsWithAnotherTypeAreTakenWhereTheyAreTexts)
{
    EXPECT_EQ(MakeFrom(MakeEntry(7, "Undefined maker"sv)), "Undefined maker");
    EXPECT_EQ(MakeFrom(MakeEntry(129, "M\xC3\xBCller"sv)), "M\xC3\xBCller");
    EXPECT_EQ(MakeFrom(MakeEntry(1, "Bytes"sv)), "");
    EXPECT_EQ(MakeFrom(MakeEntry(12, "8 bytes."sv)), "");
    EXPECT_EQ(MakeFrom(MakeEntry(0, "Nothing"sv)), "");
}

TEST(Tiff, ANumberInPlaceOfATextIsGivenInDecimal)
{
    for (const Endian endian : BothOrders) {
        EXPECT_EQ(MakeFrom({0x010F, 3, 1, Number(12336, 2, endian)}, endian), "12336");
        EXPECT_EQ(MakeFrom({0x010F, 4, 1, Number(4000000000, 4, endian)}, endian), "4000000000");
        EXPECT_EQ(MakeFrom({0x010F, 3, 2, Number(12336, 2, endian) + Number(1, 2, endian)}, endian), "");
    }
}

TEST(Tiff, LongTextsAreCutAtTheirLimit)
{
    EXPECT_EQ(MakeFrom(AsciiEntry(0x010F, std::string(60000, 'x'))), std::string(60000, 'x'));
    EXPECT_EQ(MakeFrom(AsciiEntry(0x010F, std::string(100000, 'x'))), std::string(65535, 'x'));
}

TEST(Tiff, TheFirstOfTwoEntriesOfOneTagCounts)
{
    TiffParts parts = TiffPartsOf({});
    parts.image.push_back(AsciiEntry(0x010F, "Second"));
    EXPECT_EQ(FactsOf(BuildTiff(parts)), BuiltFacts);
}

TEST(Tiff, EntriesOutOfOrderAreFound)
{
    const Bytes tiff = BuildTiff(PictureFacts{});
    const std::size_t make = EntryOf(tiff, 0x010F, 2, Endian::Little);
    const std::size_t model = EntryOf(tiff, 0x0110, 2, Endian::Little);
    const Bytes turned =
        tiff.substr(0, make) + tiff.substr(model, 12) + tiff.substr(make, 12) + tiff.substr(model + 12);
    EXPECT_EQ(FactsOf(turned), BuiltFacts);
}

TEST(Tiff, EveryBeginningIsRightOrEmpty)
{
    for (const Endian endian : BothOrders)
        ExpectEveryBeginningIsRightOrEmpty(BuildTiff(PictureFacts{.endian = endian}), BuiltFacts);
}

TEST(Tiff, EveryLinkIntoTheFileEndsWithoutHarm)
{
    for (const Endian endian : BothOrders) {
        const Bytes tiff = BuildTiff(PictureFacts{.endian = endian});
        const std::size_t link = EntryOf(tiff, 0x8769, 4, endian) + 8;
        for (std::uint32_t offset = 0; offset < tiff.size() + 20; ++offset) {
            Bytes first = tiff;
            first.replace(4, 4, Number(offset, 4, endian));
            Bytes second = tiff;
            second.replace(link, 4, Number(offset, 4, endian));
            EXPECT_LE(FactsOf(first).make.size(), tiff.size());
            EXPECT_EQ(FactsOf(second).make, BuiltFacts.make);
        }
    }
}

TEST(Tiff, ADirectoryThatLinksToItselfIsReadOnce)
{
    TiffParts parts = TiffPartsOf({});
    parts.image.push_back(AsciiEntry(0x9003, "2024:07:19 18:45:03"));
    Bytes tiff = BuildTiff(parts);
    tiff.replace(EntryOf(tiff, 0x8769, 4, Endian::Little) + 8, 4, Number(8, 4, Endian::Little));
    EXPECT_EQ(FactsOf(tiff), BuiltFacts);
}

TEST(Tiff, DirectoriesThatLinkInACycleEnd)
{
    for (const Endian endian : BothOrders) {
        TiffParts parts = TiffPartsOf({.dateTimeOriginal = "", .endian = endian});
        // The Exif directory links back to the first, and so does the chain of directories behind it.
        parts.exif.push_back({0x8769, 4, 1, Number(8, 4, endian)});
        Bytes tiff = BuildTiff(parts);
        const std::size_t chain = 8 + 2 + 12 * (parts.image.size() + 1);
        tiff.replace(chain, 4, Number(8, 4, endian));
        EXPECT_EQ(FactsOf(tiff), (Facts{"", "Testmaker", "Model 1"}));
    }
}

TEST(Tiff, AMissingOrWrongLinkGivesNoDate)
{
    const auto dateWithLink = [](const TiffEntry& link) {
        TiffParts parts = TiffPartsOf({});
        parts.exif.clear();
        parts.image.push_back(link);
        return FactsOf(BuildTiff(parts)).dateTimeOriginal;
    };
    EXPECT_EQ(dateWithLink({0x8769, 4, 1, Number(0, 4, Endian::Little)}), "");
    EXPECT_EQ(dateWithLink({0x8769, 4, 1, Number(0xFFFFFFFF, 4, Endian::Little)}), "");
    EXPECT_EQ(dateWithLink({0x8769, 4, 2, Number(8, 4, Endian::Little) + Number(8, 4, Endian::Little)}), "");
    EXPECT_EQ(dateWithLink({0x8769, 2, 4, "abc\0"}), "");
}

TEST(Tiff, ALinkOfTheDirectoryTypeCounts)
{
    Bytes tiff = BuildTiff(PictureFacts{});
    tiff.replace(EntryOf(tiff, 0x8769, 4, Endian::Little) + 2, 2, Number(13, 2, Endian::Little));
    EXPECT_EQ(FactsOf(tiff), BuiltFacts);
}

TEST(Tiff, HugeCountsAndOffsetsAreRefused)
{
    const std::uint32_t hugeNumbers[] = {0x7FFFFFFF, 0x80000000, 0xFFFFFFF0, 0xFFFFFFFF, 100000};
    for (const Endian endian : BothOrders) {
        const Bytes tiff = BuildTiff(PictureFacts{.endian = endian});
        const std::size_t make = EntryOf(tiff, 0x010F, 2, endian);
        for (const std::uint32_t huge : hugeNumbers) {
            Bytes count = tiff;
            count.replace(make + 4, 4, Number(huge, 4, endian));
            EXPECT_EQ(FactsOf(count).make, "");
            Bytes offset = tiff;
            offset.replace(make + 8, 4, Number(huge, 4, endian));
            EXPECT_EQ(FactsOf(offset).make, "");
            Bytes first = tiff;
            first.replace(4, 4, Number(huge, 4, endian));
            EXPECT_EQ(FactsOf(first), NoFacts);
        }
        Bytes entries = tiff;
        entries.replace(8, 2, "\xFF\xFF");
        EXPECT_EQ(FactsOf(entries), NoFacts);
    }
}

TEST(Tiff, AValueMayEndWithTheFileButNotBehindIt)
{
    TiffParts parts;
    parts.image = {MakeEntry(2, "At the end")};
    const Bytes tiff = BuildTiff(parts);
    ASSERT_TRUE(tiff.ends_with("At the end"));
    EXPECT_EQ(FactsOf(tiff).make, "At the end");
    Bytes longer = tiff;
    longer.replace(EntryOf(tiff, 0x010F, 2, Endian::Little) + 4, 4, Number(11, 4, Endian::Little));
    EXPECT_EQ(FactsOf(longer).make, "");
}

TEST(Tiff, OnlyTheKnownSignaturesAreRead)
{
    const auto factsWith = [](Endian endian, std::string_view signature) {
        TiffParts parts = TiffPartsOf({.endian = endian});
        parts.signature = signature;
        return FactsOf(BuildTiff(parts));
    };
    EXPECT_EQ(factsWith(Endian::Little, "IIRO"), BuiltFacts);
    EXPECT_EQ(factsWith(Endian::Little, "IIRS"), BuiltFacts);
    EXPECT_EQ(factsWith(Endian::Big, "MMOR"), BuiltFacts);
    EXPECT_EQ(factsWith(Endian::Little, "IIU\0"sv), BuiltFacts);
    EXPECT_EQ(factsWith(Endian::Big, "MM*\0"sv), NoFacts);
    EXPECT_EQ(factsWith(Endian::Little, "II\0*"sv), NoFacts);
    EXPECT_EQ(factsWith(Endian::Little, "II+\0"sv), NoFacts);
    EXPECT_EQ(factsWith(Endian::Little, "IM*\0"sv), NoFacts);
}

} // namespace
