// Compound documents are recognised by their header.
#include <VyrLibraryUtils/PropertyUtils.h>

#include <tests/support/ScratchFolder.h>

#include <gtest/gtest.h>

#include <string>

using VyrLibraryUtils::PropertyUtils;
using VyrTests::ScratchFolder;

namespace {

/// A header with version `major` and sectors of 2 to the power `sectorShift` bytes, and one sector behind it.
std::string Header(char major, char sectorShift)
{
    std::string bytes("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1", 8);
    bytes.resize(512);
    bytes[24] = 0x3E;
    bytes[26] = major;
    bytes[28] = '\xFE';
    bytes[29] = '\xFF';
    bytes[30] = sectorShift;
    bytes[32] = 6;
    return bytes + std::string(std::size_t{1} << sectorShift, '\0');
}

int IsDocument(const std::string& bytes)
{
    const ScratchFolder scratch;
    return PropertyUtils::IsOLE2Document(scratch.WriteFile(u"a.doc", bytes));
}

TEST(PropertyUtils, KnowsBothVersionsOfCompoundDocuments)
{
    EXPECT_EQ(IsDocument(Header(3, 9)), 1);
    EXPECT_EQ(IsDocument(Header(4, 12)), 1);
}

TEST(PropertyUtils, RefusesEveryDamagedByteOfTheSignatureAndTheSizes)
{
    for (const std::size_t at : {0U, 1U, 2U, 3U, 4U, 5U, 6U, 7U, 26U, 27U, 28U, 29U, 30U, 31U, 32U, 33U}) {
        std::string bytes = Header(3, 9);
        bytes[at] = static_cast<char>(bytes[at] ^ 0x40);
        EXPECT_EQ(IsDocument(bytes), 0) << at;
    }
    EXPECT_EQ(IsDocument(Header(3, 12)), 0);
    EXPECT_EQ(IsDocument(Header(4, 9)), 0);
}

TEST(PropertyUtils, RefusesEveryHeaderThatIsCutShort)
{
    const std::string whole = Header(3, 9);
    for (const std::size_t length : {0U, 1U, 8U, 33U, 34U, 511U})
        EXPECT_EQ(IsDocument(whole.substr(0, length)), 0) << length;
    EXPECT_EQ(IsDocument(whole.substr(0, 512)), 1);
}

TEST(PropertyUtils, RefusesOtherFilesFoldersAndMissingFiles)
{
    const ScratchFolder scratch;
    EXPECT_EQ(PropertyUtils::IsOLE2Document(scratch.WriteFile(u"a.docx", "PK\x03\x04" + std::string(1000, 'x'))), 0);
    EXPECT_EQ(PropertyUtils::IsOLE2Document(scratch.Path()), 0);
    EXPECT_EQ(PropertyUtils::IsOLE2Document(scratch.Path(u"missing")), 0);
    EXPECT_EQ(PropertyUtils::IsOLE2Document(u""), 0);
}

} // namespace
