#include <VyrHost/collect/Choice.h>

#include <gtest/gtest.h>

#include <string>

using VyrHost::Collect::MatchesPattern;

TEST(Wildcard, MatchesTheWholeName)
{
    EXPECT_TRUE(MatchesPattern(u"*.jpg", u"a.jpg"));
    EXPECT_TRUE(MatchesPattern(u"*.jpg", u".jpg"));
    EXPECT_TRUE(MatchesPattern(u"a*b*c", u"aXbbXc"));
    EXPECT_TRUE(MatchesPattern(u"a?c", u"abc"));
    EXPECT_TRUE(MatchesPattern(u"*", u""));
    EXPECT_TRUE(MatchesPattern(u"", u""));
    EXPECT_FALSE(MatchesPattern(u"*.jpg", u"a.jpge"));
    EXPECT_FALSE(MatchesPattern(u"a?c", u"ac"));
    EXPECT_FALSE(MatchesPattern(u"?", u""));
    EXPECT_FALSE(MatchesPattern(u"*.JPG", u"a.jpg"));
}

TEST(Wildcard, IsQuickWithManyStars)
{
    std::u16string pattern;
    for (int star = 0; star < 100; ++star)
        pattern += u"*a";
    const std::u16string name(20000, u'a');
    EXPECT_FALSE(MatchesPattern(pattern + u"b", name));
    EXPECT_TRUE(MatchesPattern(pattern, name));
}
