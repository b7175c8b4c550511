#include <VyrHost/text/NearestWord.h>

#include <gtest/gtest.h>

using namespace VyrHost::Text;

TEST(NearestWord, IsTheOneWithTheFewestTypingErrors)
{
    const std::vector<std::string> words = {"rename", "copy", "move", "undo", "recover"};
    EXPECT_EQ(NearestWord("renmae", words), "rename");
    EXPECT_EQ(NearestWord("rname", words), "rename");
    EXPECT_EQ(NearestWord("renamee", words), "rename");
    EXPECT_EQ(NearestWord("mvoe", words), "move");
    EXPECT_EQ(NearestWord("recovr", words), "recover");
    EXPECT_EQ(NearestWord("rec", words), "recover");
    EXPECT_EQ(NearestWord("cope", words), "copy");
    EXPECT_EQ(NearestWord("RENMAE", words), "rename");
    EXPECT_EQ(NearestWord("isoo", std::vector<std::string>{"Make", "ISO"}), "ISO");
}

TEST(NearestWord, IsEmptyWhereNoWordIsSimilar)
{
    const std::vector<std::string> words = {"rename", "copy", "move", "undo", "recover"};
    EXPECT_EQ(NearestWord("delete", words), "");
    EXPECT_EQ(NearestWord("", words), "");
    EXPECT_EQ(NearestWord("x", words), "");
    EXPECT_EQ(NearestWord(std::string(100'000, 'r'), words), "");
    EXPECT_EQ(NearestWord("rename", {}), "");
}
