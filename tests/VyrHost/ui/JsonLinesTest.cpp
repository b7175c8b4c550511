#include <VyrHost/ui/Output.h>

#include <gtest/gtest.h>

using namespace VyrHost::Ui;

namespace {

std::string Json(std::u16string_view text)
{
    std::string line;
    AppendJsonText(line, text);
    return line;
}

} // namespace

TEST(JsonText, EscapesWhatJsonAndTerminalsRead)
{
    EXPECT_EQ(Json(u"a\"b\\c/d"), R"("a\"b\\c/d")");
    EXPECT_EQ(Json(u"a\n\x1b\x7f\x9b"), R"("a\u000a\u001b\u007f\u009b")");
    EXPECT_EQ(Json(std::u16string_view(u"\0", 1)), R"("\u0000")");
    EXPECT_EQ(Json(u""), R"("")");
}

TEST(JsonText, IsUtf8WithEscapesForLoneSurrogates)
{
    EXPECT_EQ(Json(u"é日\U0001F600"), "\"\xC3\xA9\xE6\x97\xA5\xF0\x9F\x98\x80\"");
    EXPECT_EQ(Json(u"a\xDCFF"), R"("a\udcff")");
    EXPECT_EQ(Json(u"\xD83D"), R"("\ud83d")");
    EXPECT_EQ(Json(u"\xD83D\xD83D\xDE00"), "\"\\ud83d\xF0\x9F\x98\x80\"");
    EXPECT_EQ(Json(u"\xDE00\xD83D"), R"("\ude00\ud83d")");
}
