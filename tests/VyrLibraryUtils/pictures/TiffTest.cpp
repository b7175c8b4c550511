// The TIFF structure itself: both byte orders, every damage to its counts and offsets.
#include <tests/support/PictureBuilder.h>

#include <VyrLibraryUtils/pictures/Picture.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

namespace {

using namespace VyrTests;
using VyrLibraryUtils::Pictures::PictureTag;
using VyrLibraryUtils::Pictures::ReadPictureBytes;

constexpr Endian BothOrders[] = {Endian::Little, Endian::Big};

TEST(Tiff, GivesAllThreeTagsInBothByteOrders)
{
    for (const Endian endian : BothOrders) {
        const Bytes tiff = BuildTiff(PictureFacts{.endian = endian});
        EXPECT_EQ(ReadPictureBytes(tiff, PictureTag::DateTimeOriginal), "2024:07:19 18:45:03");
        EXPECT_EQ(ReadPictureBytes(tiff, PictureTag::Make), "Testmaker");
        EXPECT_EQ(ReadPictureBytes(tiff, PictureTag::Model), "Model 1");
    }
}

} // namespace
