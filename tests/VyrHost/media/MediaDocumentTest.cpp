// docs/media.md holds the tables that the program has.
#include <VyrHost/media/ContentKind.h>
#include <VyrHost/media/ExifTags.h>

#include <VyrPlatform/text/Encoding.h>

#include <gmock/gmock.h>

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

using testing::ElementsAreArray;

namespace {

std::string Utf8(std::u16string_view text)
{
    return VyrPlatform::Encoding::ToUtf8(text);
}

/// The words between backquotes at the front of each row below `heading`.
std::vector<std::string> FirstCells(const std::string& heading)
{
    std::ifstream file(std::string(VYR_SOURCE_FOLDER) + "/docs/media.md");
    std::vector<std::string> cells;
    bool isBelow = false;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with("## "))
            isBelow = line == "## " + heading;
        if (isBelow && line.starts_with("| `"))
            cells.push_back(line.substr(3, line.find('`', 3) - 3));
    }
    return cells;
}

} // namespace

TEST(MediaDocument, HasEveryTag)
{
    std::vector<std::string> names;
    for (const std::u16string_view name : VyrHost::Media::ExifTagNames())
        names.push_back(Utf8(name));
    EXPECT_THAT(FirstCells("Tags of pictures"), ElementsAreArray(names));
}

TEST(MediaDocument, HasEveryKind)
{
    std::vector<std::string> extensions;
    for (const VyrHost::Media::ContentKind& kind : VyrHost::Media::ContentKinds())
        extensions.push_back(Utf8(kind.extension));
    EXPECT_THAT(FirstCells("Kinds of content"), ElementsAreArray(extensions));
}
