// How often and how much of a file is read, counted by the system.
#include <VyrLibraryUtils/ImageUtils.h>
#include <tests/support/PictureBuilder.h>
#include <tests/support/ScratchFolder.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <fstream>
#include <string>

namespace {

using namespace VyrTests;
using VyrLibraryUtils::ImageUtils;

struct ReadCount
{
    std::uint64_t calls = 0;
    std::uint64_t bytes = 0;
};

/// The bytes that this process has read so far, including this reading.
ReadCount ReadsSoFar()
{
    ReadCount count;
    std::ifstream counters("/proc/self/io");
    for (std::string name; counters >> name;) {
        std::uint64_t value = 0;
        counters >> value;
        if (name == "rchar:")
            count.bytes = value;
        else if (name == "syscr:")
            count.calls = value;
    }
    return count;
}

/// The bytes that are read for the date of `path`; those of the counting itself are subtracted.
ReadCount ReadsForDate(const CString& path, std::u16string_view expected)
{
    const ReadCount start = ReadsSoFar();
    const ReadCount before = ReadsSoFar();
    EXPECT_EQ(ImageUtils::GetPropertyTagExifDTOrig(path), expected);
    const ReadCount after = ReadsSoFar();
    return {after.calls - before.calls - (before.calls - start.calls),
            after.bytes - before.bytes - (before.bytes - start.bytes)};
}

TEST(ReadCount, AJpegTakesOneReadOfLessThan64KiB)
{
    const ScratchFolder folder;
    const CString path = folder.WriteFile(u"picture.jpg", BuildJpeg(PictureFacts{}, 500'000));
    const ReadCount count = ReadsForDate(path, u"2024:07:19 18:45:03");
    EXPECT_EQ(count.calls, 1u);
    EXPECT_LE(count.bytes, 65536u);
}

TEST(ReadCount, ATiffWithDirectoriesAtItsEndTakesTwoReads)
{
    const ScratchFolder folder;
    TiffParts parts = TiffPartsOf({});
    parts.afterHeader = Bytes(3'000'000, 'x');
    const CString path = folder.WriteFile(u"far.tif", BuildTiff(parts));
    const ReadCount count = ReadsForDate(path, u"2024:07:19 18:45:03");
    EXPECT_EQ(count.calls, 2u);
    EXPECT_LE(count.bytes, 8192u);
}

TEST(ReadCount, AHeifWithItsItemAtItsEndTakesTwoReads)
{
    const ScratchFolder folder;
    // As phones write it: the tables first, then megabytes of picture, then the item.
    const CString path = folder.WriteFile(
        u"picture.heic",
        BuildHeif({.item = Number(3'000'000, 4, Endian::Big) + Bytes(3'000'000, 'x') + BuildTiff(PictureFacts{})}));
    EXPECT_EQ(ReadsForDate(path, u"2024:07:19 18:45:03").calls, 2u);
}

TEST(ReadCount, AFileOfAnotherFormatTakesOneRead)
{
    const ScratchFolder folder;
    const CString path = folder.WriteFile(u"text.jpg", Bytes(3'000'000, 'x'));
    EXPECT_EQ(ReadsForDate(path, u"").calls, 1u);
}

} // namespace
