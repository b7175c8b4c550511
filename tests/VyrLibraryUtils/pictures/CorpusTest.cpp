// Real pictures, intact and damaged: every text is the expected one.
#include <VyrLibraryUtils/ImageUtils.h>
#include <VyrPlatform/text/Encoding.h>
#include <tests/support/StdPath.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace {

using VyrLibraryUtils::ImageUtils;

struct Expectation
{
    std::string file;
    std::string texts[3];
};

/// The lines of `table`: file, date, make and model between tabulators, "-" for none.
std::vector<Expectation> ReadTable(const std::filesystem::path& table)
{
    std::vector<Expectation> expectations;
    std::ifstream stream(table, std::ios::binary);
    for (std::string line; std::getline(stream, line);) {
        Expectation& expectation = expectations.emplace_back();
        std::istringstream fields(line);
        std::getline(fields, expectation.file, '\t');
        for (std::string& text : expectation.texts)
            if (std::getline(fields, text, '\t') && text == "-")
                text.clear();
    }
    return expectations;
}

TEST(Corpus, EveryPictureGivesTheExpectedTexts)
{
    const char* const folder = std::getenv("VYR_CORPUS");
    if (!folder)
        GTEST_SKIP() << "VYR_CORPUS names no folder of pictures";
    const std::filesystem::path corpus(folder);
    const std::vector<Expectation> expectations = ReadTable(corpus / "pictures.expected.tsv");
    ASSERT_FALSE(expectations.empty()) << "no table in " << corpus;
    for (const Expectation& expectation : expectations) {
        const std::filesystem::path file = corpus / "pictures" / expectation.file;
        ASSERT_TRUE(std::filesystem::exists(file)) << file;
        const CString path = VyrTests::FromStdPath(file);
        using VyrPlatform::Encoding::ToUtf8;
        EXPECT_EQ(ToUtf8(ImageUtils::GetPropertyTagExifDTOrig(path)), expectation.texts[0]) << file;
        EXPECT_EQ(ToUtf8(ImageUtils::GetEquipMake(path)), expectation.texts[1]) << file;
        EXPECT_EQ(ToUtf8(ImageUtils::GetEquipModel(path)), expectation.texts[2]) << file;
    }
}

} // namespace
