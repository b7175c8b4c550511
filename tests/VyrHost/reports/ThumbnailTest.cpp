// Small pictures for the rows of a page.
#include <VyrHost/reports/Thumbnail.h>

#include <tests/support/PictureBuilder.h>
#include <tests/support/ScratchFolder.h>

#include <gtest/gtest.h>

#include <string>

using namespace VyrHost::Reports;
using namespace VyrTests;

namespace {

const std::string dataAddress = "data:image/jpeg;base64,";

/// What the digits stand for, bit by bit.
std::string FromBase64(const std::string& text)
{
    const std::string digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string bytes;
    unsigned bits = 0;
    int count = 0;
    for (const char digit : text) {
        if (digit == '=')
            break;
        bits = bits << 6 | static_cast<unsigned>(digits.find(digit));
        if ((count += 6) >= 8)
            bytes += static_cast<char>(bits >> (count -= 8) & 0xFF);
    }
    return bytes;
}

/// A picture with `small` in its tags, to be turned.
Bytes PictureWith(const Bytes& small)
{
    TiffParts parts;
    parts.image.push_back({0x0112, 3, 1, Number(6, 2, Endian::Little)});
    parts.thumbnail = small;
    return BuildJpeg(ExifSegment(BuildTiff(parts)), 1280);
}

} // namespace

TEST(Thumbnails, EmbeddedOneIsAPartOfThePage)
{
    const ScratchFolder folder;
    for (std::size_t length = 0; length < 3; ++length) {
        const Bytes small = BuildJpeg("", 64) + Bytes(length, '\0');
        const auto thumbnail = ThumbnailOf(folder.WriteFile(u"a.jpg", PictureWith(small)), folder.Path());
        ASSERT_TRUE(thumbnail);
        ASSERT_TRUE(thumbnail->address.starts_with(dataAddress));
        const std::string digits = thumbnail->address.substr(dataAddress.size());
        EXPECT_EQ(digits.size() % 4, 0U);
        EXPECT_EQ(FromBase64(digits), small);
        EXPECT_EQ(thumbnail->size.width, 2048U);
        EXPECT_EQ(thumbnail->size.height, 8U);
        EXPECT_EQ(thumbnail->orientation, 6);
    }
}

TEST(Thumbnails, PictureWithoutOneIsLinked)
{
    const ScratchFolder folder;
    const auto thumbnail = ThumbnailOf(folder.WriteFile(u"a b/c.jpg", BuildJpeg("", 1280)), folder.Path());
    ASSERT_TRUE(thumbnail);
    EXPECT_EQ(thumbnail->address, "./a%20b/c.jpg");
    EXPECT_EQ(thumbnail->size.width, 2048U);
    EXPECT_EQ(thumbnail->size.height, 160U);
    EXPECT_EQ(thumbnail->orientation, 1) << "browsers turn it by its own tags";
    folder.MakeFolder(u"reports");
    EXPECT_EQ(ThumbnailOf(folder.Path(u"a b/c.jpg"), folder.Path(u"reports/"))->address, "./../a%20b/c.jpg");
}

TEST(Thumbnails, WhatBrowsersDoNotShowHasNone)
{
    const ScratchFolder folder;
    EXPECT_FALSE(ThumbnailOf(folder.WriteFile(u"a.txt", "text"), folder.Path()));
    EXPECT_FALSE(ThumbnailOf(folder.WriteFile(u"a.tif", BuildTiff(PictureFacts{})), folder.Path()));
    EXPECT_FALSE(ThumbnailOf(folder.WriteFile(u"empty.jpg", ""), folder.Path()));
    EXPECT_FALSE(ThumbnailOf(folder.Path(u"missing.jpg"), folder.Path()));
    EXPECT_FALSE(ThumbnailOf(folder.Path(), folder.Path()));
}

TEST(RelativeAddress, LeadsFromTheFolderOfThePageToTheFile)
{
    EXPECT_EQ(RelativeAddress(u"/a/b/c.jpg", u"/a/b"), "./c.jpg");
    EXPECT_EQ(RelativeAddress(u"/a/b/c.jpg", u"/a"), "./b/c.jpg");
    EXPECT_EQ(RelativeAddress(u"/a/c.jpg", u"/a/x/y"), "./../../c.jpg");
    EXPECT_EQ(RelativeAddress(u"/c.jpg", u"/"), "./c.jpg");
    EXPECT_EQ(RelativeAddress(u"/ab/c.jpg", u"/a"), "./../ab/c.jpg");
}

TEST(RelativeAddress, HoldsNoNameForMoreThanAName)
{
    EXPECT_EQ(RelativeAddress(u"/a/javascript:x\"<'>&#?%.jpg", u"/a"), "./javascript%3Ax%22%3C%27%3E%26%23%3F%25.jpg");
    EXPECT_EQ(RelativeAddress(u"/a/\u00FC\xDCFF.jpg", u"/a"), "./%C3%BC%FF.jpg") << "a byte that is not UTF-8";
}

TEST(RelativeAddress, IsNoneOnAnotherDrive)
{
    EXPECT_EQ(RelativeAddress(u"D:/a.jpg", u"C:/a"), std::nullopt);
    EXPECT_EQ(RelativeAddress(u"", u"/a"), std::nullopt);
    EXPECT_EQ(RelativeAddress(u"/a", u""), std::nullopt);
}
