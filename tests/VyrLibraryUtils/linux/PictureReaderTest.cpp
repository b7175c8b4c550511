// Real pictures of the corpus: thumbnails and sizes as another reader tells them.
#include <VyrLibraryUtils/pictures/Picture.h>
#include <VyrLibraryUtils/pictures/PictureSize.h>

#include <tests/support/ChildProcess.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

namespace {

using VyrLibraryUtils::Pictures::PictureTag;
using VyrLibraryUtils::Pictures::ReadPictureBytes;
using VyrLibraryUtils::Pictures::ReadPictureSizeOf;

std::string ReadBytes(const std::filesystem::path& path)
{
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

class PictureReader : public testing::Test
{
protected:
    void SetUp() override
    {
        const char* const folder = std::getenv("VYR_CORPUS");
        if (!folder)
            GTEST_SKIP() << "VYR_CORPUS names no folder of pictures";
        m_pictures = std::filesystem::path(folder) / "pictures";
    }

    std::string Ask(std::vector<CString> arguments) const
    {
        arguments.push_back(VyrTests::FromStdPath(m_pictures));
        return VyrTests::RunProgram({u"/usr/bin/exiftool", std::move(arguments)}).output;
    }

    std::filesystem::path m_pictures;
};

} // namespace

TEST_F(PictureReader, ThumbnailsAreThoseOfAnotherReader)
{
    const VyrTests::ScratchFolder folder;
    Ask({u"-q", u"-q", u"-b", u"-IFD1:ThumbnailImage", u"-W", CString::Join({folder.Path(), u"/%f.%e"})});
    std::size_t thumbnails = 0;
    for (const auto& entry : std::filesystem::directory_iterator(m_pictures)) {
        const std::string ours = ReadPictureBytes(ReadBytes(entry.path()), PictureTag::Thumbnail);
        const std::string theirs = ReadBytes(VyrTests::ToStdPath(folder.Path()) / entry.path().filename());
        // The other reader also gives what is no JPEG or larger than ours may be.
        const bool isExpected = theirs.starts_with("\xFF\xD8\xFF") && theirs.size() <= 65536;
        EXPECT_EQ(ours, isExpected ? theirs : "") << entry.path().filename();
        thumbnails += ours.empty() ? 0U : 1U;
    }
    EXPECT_GT(thumbnails, 0U);
    RecordProperty("thumbnails", static_cast<int>(thumbnails));
}

TEST_F(PictureReader, SizesAreThoseOfAnotherReader)
{
    std::istringstream lines(Ask({u"-q", u"-q", u"-f", u"-p", u"$FileName|$FileType|$ImageWidth|$ImageHeight"}));
    std::size_t sizes = 0;
    for (std::string line; std::getline(lines, line);) {
        std::istringstream fields(line);
        std::string name;
        std::string type;
        std::string width;
        std::string height;
        std::getline(fields, name, '|');
        std::getline(fields, type, '|');
        std::getline(fields, width, '|');
        std::getline(fields, height, '|');
        if (type != "JPEG" && type != "PNG" && type != "GIF" && !type.ends_with("WEBP") && type != "BMP")
            continue;
        // Of damaged pictures the other reader tells half a size, or none.
        if (width == "0" || width == "-" || height == "0" || height == "-")
            continue;
        const auto size = ReadPictureSizeOf(ReadBytes(m_pictures / name));
        EXPECT_EQ(size ? std::to_string(size->width) : "-", width) << line;
        EXPECT_EQ(size ? std::to_string(size->height) : "-", height) << line;
        sizes += size ? 1U : 0U;
    }
    EXPECT_GT(sizes, 50U);
}
