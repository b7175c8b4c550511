// A second tool reads the pictures that the tests build, so that builder and reader cannot share a mistake. Only on
// Linux: the bytes are the same on Windows.
#include "../Facts.h"

#include <VyrPlatform/documents/Brotli.h>
#include <tests/support/ChildProcess.h>
#include <tests/support/PictureBuilder.h>
#include <tests/support/ScratchFolder.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <sstream>
#include <string>

namespace {

using namespace VyrTests;

constexpr const char16_t* Exiftool = u"/usr/bin/exiftool";

/// The output of exiftool for every file in `folder`.
std::map<std::string, Facts> AskExiftool(const CString& folder)
{
    const ProgramResult result =
        RunProgram({.program = Exiftool,
                    .arguments = {u"-q", u"-f", u"-T", u"-FileName", u"-ExifIFD:DateTimeOriginal", u"-IFD0:Make",
                                  u"-IFD0:Model", folder}});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    std::map<std::string, Facts> answers;
    std::istringstream lines(result.output);
    for (std::string line; std::getline(lines, line);) {
        std::istringstream fields(line);
        std::string file;
        Facts facts;
        std::getline(fields, file, '\t');
        for (std::string* const text : {&facts.dateTimeOriginal, &facts.make, &facts.model})
            if (std::getline(fields, *text, '\t') && *text == "-")
                text->clear();
        answers[file] = facts;
    }
    return answers;
}

class ExiftoolAgreement : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!std::filesystem::exists(Exiftool))
            GTEST_SKIP() << "exiftool is not installed";
    }

    /// Writes `bytes` as one of the files to ask about.
    void Add(std::string_view name, std::string_view bytes)
    {
        m_folder.WriteFile(std::filesystem::path(name).u16string(), bytes);
        m_pictures[std::string(name)] = bytes;
    }
    void ExpectAgreement()
    {
        const std::map<std::string, Facts> answers = AskExiftool(m_folder.Path());
        EXPECT_EQ(answers.size(), m_pictures.size());
        for (const auto& [file, facts] : answers)
            EXPECT_EQ(FactsOf(m_pictures[file]), facts) << file;
    }

private:
    ScratchFolder m_folder;
    std::map<std::string, Bytes> m_pictures;
};

TEST_F(ExiftoolAgreement, OnEveryFormatInBothByteOrders)
{
    for (const FormatSample& sample : BuildEveryFormat({.endian = Endian::Little}))
        Add("little-" + std::string(sample.fileName), sample.bytes);
    for (const FormatSample& sample : BuildEveryFormat({.endian = Endian::Big}))
        Add("big-" + std::string(sample.fileName), sample.bytes);
    ExpectAgreement();
}

TEST_F(ExiftoolAgreement, OnEveryFormatWithoutATag)
{
    for (const FormatSample& sample : BuildEveryFormat({"", "Only make", ""}))
        Add(sample.fileName, sample.bytes);
    ExpectAgreement();
}

TEST_F(ExiftoolAgreement, OnTheFormsThatATextCanTake)
{
    using namespace std::string_view_literals;
    int number = 0;
    const auto addMake = [this, &number](const TiffEntry& make) {
        TiffParts parts = TiffPartsOf({.make = ""});
        parts.image.push_back(make);
        Add("make" + std::to_string(++number) + ".jpg", BuildJpeg(ExifSegment(BuildTiff(parts))));
    };
    for (const std::string_view text :
         {"Plain"sv, "Plain\0"sv, "Behind the\0NUL"sv, "Blanks   "sv, "Blanks   \0\0\0"sv, "A"sv, "M\xC3\xBCller"sv})
        addMake({0x010F, 2, static_cast<std::uint32_t>(text.size()), Bytes(text)});
    addMake({0x010F, 7, 9, "Undefined"});
    addMake({0x010F, 3, 1, Number(12336, 2, Endian::Little)});
    addMake({0x010F, 4, 1, Number(4000000000, 4, Endian::Little)});
    ExpectAgreement();
}

TEST_F(ExiftoolAgreement, OnSegmentsAroundTheExifSegment)
{
    const Bytes exif = ExifSegment(BuildTiff(PictureFacts{}));
    const Bytes jfif = JpegSegment(0xE0, Bytes("JFIF\0\1\1\0\0\1\0\1\0\0", 14));
    Add("fill.jpg", BuildJpeg(jfif + "\xFF\xFF\xFF" + exif));
    Add("stray.jpg", BuildJpeg(jfif + "stray" + exif));
    Add("behind-data.jpg", BuildJpeg(jfif) + exif);
    Add("raw.jpg", BuildJpeg(JpegSegment(0xE1, BuildTiff(PictureFacts{}))));
    Add("identifier.webp", BuildWebP(RiffChunk("EXIF", Bytes("Exif\0\0", 6) + BuildTiff(PictureFacts{}))));
    Add("identifier.png", BuildPng(PngChunk("eXIf", Bytes("Exif\0\0", 6) + BuildTiff(PictureFacts{}))));
    Add("identifier.jxl", BuildJpegXl(Box("Exif", ExifItem(BuildTiff(PictureFacts{})))));
    ExpectAgreement();
}

TEST(BrotliOnLinux, IsAvailable)
{
    EXPECT_TRUE(VyrPlatform::Brotli::IsAvailable());
}

} // namespace
