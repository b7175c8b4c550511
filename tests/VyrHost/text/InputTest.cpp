#include <VyrHost/text/Input.h>

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

using VyrHost::Text::NameReader;

namespace {

/// The names in `bytes`, which are passed on in pieces of `size` bytes.
std::vector<std::u16string> Read(std::string_view bytes, char end, std::size_t size)
{
    std::vector<std::u16string> names;
    const auto take = [&names](const CString& name) {
        names.emplace_back(name.View());
    };
    NameReader reader(end);
    for (; !bytes.empty(); bytes.remove_prefix(std::min(size, bytes.size())))
        reader.Read(bytes.substr(0, size), take);
    reader.Finish(take);
    return names;
}

} // namespace

TEST(NameReader, GivesTheSameNamesForEachSizeOfThePieces)
{
    using namespace std::string_view_literals;
    const std::vector<std::u16string> expected = {u"a.txt", u"b c", u"\u00e4"};
    for (std::size_t size = 1; size < 16; ++size) {
        EXPECT_EQ(Read("a.txt\n\nb c\n\xc3\xa4"sv, '\n', size), expected);
        EXPECT_EQ(Read("a.txt\0b c\0\xc3\xa4\0"sv, '\0', size), expected);
    }
}

TEST(NameReader, KeepsBytesThatAreNotUtf8AndLineEndsInNames)
{
    using namespace std::string_view_literals;
    EXPECT_EQ(Read("a\nb\xff\0"sv, '\0', 3), std::vector<std::u16string>{u"a\nb\xDCFF"});
}

TEST(NameReader, GivesNoNameWithoutInput)
{
    EXPECT_TRUE(Read("", '\n', 1).empty());
    EXPECT_TRUE(Read("\n\n", '\n', 1).empty());
}
