// The published operations: files in, texts out.
#include <VyrLibraryUtils/ImageUtils.h>
#include <tests/support/PictureBuilder.h>
#include <tests/support/ScratchFolder.h>

#include <gtest/gtest.h>

namespace {

using namespace VyrTests;
using VyrLibraryUtils::ImageUtils;

TEST(ImageUtils, ReadsTheFilesOfEveryFormat)
{
    const ScratchFolder folder;
    for (const FormatSample& sample : BuildEveryFormat({})) {
        const CString path = folder.WriteFile(u"picture", sample.bytes);
        EXPECT_EQ(ImageUtils::GetPropertyTagExifDTOrig(path), u"2024:07:19 18:45:03") << sample.fileName;
        EXPECT_EQ(ImageUtils::GetEquipMake(path), u"Testmaker") << sample.fileName;
        EXPECT_EQ(ImageUtils::GetEquipModel(path), u"Model 1") << sample.fileName;
    }
}

TEST(ImageUtils, ReadsTagsFarBehindTheBeginning)
{
    const ScratchFolder folder;
    TiffParts parts = TiffPartsOf({});
    parts.afterHeader = Bytes(3'000'000, 'x');
    const CString path = folder.WriteFile(u"far.tif", BuildTiff(parts));
    EXPECT_EQ(ImageUtils::GetPropertyTagExifDTOrig(path), u"2024:07:19 18:45:03");
    EXPECT_EQ(ImageUtils::GetEquipModel(path), u"Model 1");
}

TEST(ImageUtils, ReadsTagsAcrossTheEndOfTheFirstRead)
{
    const ScratchFolder folder;
    for (std::size_t before = 3700; before < 4200; ++before) {
        TiffParts parts = TiffPartsOf({});
        parts.afterHeader = Bytes(before, 'x');
        CString name;
        name.Format(u"%d.tif", before);
        const CString path = folder.WriteFile(name, BuildTiff(parts));
        ASSERT_EQ(ImageUtils::GetPropertyTagExifDTOrig(path), u"2024:07:19 18:45:03") << before;
        ASSERT_EQ(ImageUtils::GetEquipMake(path), u"Testmaker") << before;
    }
}

TEST(ImageUtils, Utf8AndLatin1TextsAreBothRead)
{
    const ScratchFolder folder;
    const CString utf8 =
        folder.WriteFile(u"utf8.jpg", BuildJpeg(PictureFacts{"", "M\xC3\xBCller", "\xE6\x9C\xAA\xE4\xBE\x86"}));
    EXPECT_EQ(ImageUtils::GetEquipMake(utf8), u"Müller");
    EXPECT_EQ(ImageUtils::GetEquipModel(utf8), u"未來");
    const CString latin1 = folder.WriteFile(u"latin1.jpg", BuildJpeg(PictureFacts{"", "M\xFCller", "\xC3(\x80\xFF"}));
    EXPECT_EQ(ImageUtils::GetEquipMake(latin1), u"Müller");
    EXPECT_EQ(ImageUtils::GetEquipModel(latin1), u"\u00C3(\u0080\u00FF");
}

TEST(ImageUtils, OtherFilesGiveEmptyTexts)
{
    const ScratchFolder folder;
    for (const CString& path : {CString(), folder.Path(), folder.Path(u"missing.jpg"), folder.WriteFile(u"empty.jpg"),
                                folder.WriteFile(u"text.jpg", "no picture at all")}) {
        EXPECT_TRUE(ImageUtils::GetPropertyTagExifDTOrig(path).IsEmpty());
        EXPECT_TRUE(ImageUtils::GetEquipMake(path).IsEmpty());
        EXPECT_TRUE(ImageUtils::GetEquipModel(path).IsEmpty());
    }
}

} // namespace
