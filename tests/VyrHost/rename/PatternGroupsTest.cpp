// What the groups of a match are for whoever asks for them.
#include <VyrHost/rename/PatternGroups.h>

#include <gtest/gtest.h>
#include <tests/support/Describe.h>

using namespace VyrHost::Rename;

TEST(PatternGroups, TellsTheTextOfAGroupByNumberAndName)
{
    const std::vector<GroupName> names = {{u"year", 1}, {u"day", 3}};
    PatternGroups groups;
    groups.Set(u"on 2024-05", {{3, 7}, {3, 4}, {8, 2}, {PatternGroups::noPlace, 0}}, names);
    EXPECT_EQ(groups.Find(0), u"2024-05");
    EXPECT_EQ(groups.Find(2), u"05");
    EXPECT_EQ(groups.Find(u"year"), u"2024");
    // One that took no part is empty, one that is not there is nothing.
    EXPECT_EQ(groups.Find(u"day"), u"");
    EXPECT_EQ(groups.Find(4), std::nullopt);
    EXPECT_EQ(groups.Find(u"month"), std::nullopt);
}

TEST(PatternGroups, TellsTheFirstThatTookPartOfSeveralWithOneName)
{
    const std::vector<GroupName> names = {{u"n", 1}, {u"n", 2}, {u"n", 3}};
    PatternGroups groups;
    groups.Set(u"abc", {{0, 3}, {PatternGroups::noPlace, 0}, {1, 1}, {2, 1}}, names);
    EXPECT_EQ(groups.Find(u"n"), u"b");
}

TEST(PatternGroups, HasNoneBeforeAMatch)
{
    PatternGroups groups;
    EXPECT_FALSE(groups.HasMatched());
    EXPECT_EQ(groups.Find(0), std::nullopt);
    EXPECT_EQ(groups.Find(u"n"), std::nullopt);
}
