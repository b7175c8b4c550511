// Conditions on names, and the search in a list.
#include <VyrLibraryFuncs/select/FilterFuncs.h>

#include <VyrPlatform/process/MessageQueue.h>
#include <tests/VyrLibraryFuncs/PrivateOperations.h>
#include <tests/support/EmptiedQueue.h>
#include <tests/support/MessagePosting.h>
#include <tests/support/ScratchFolder.h>

#include <gtest/gtest.h>

#include <limits>
#include <vector>

using VyrLibraryFuncs::FilterFuncs;
using VyrLibraryFuncs::PrivateOperations;
using VyrTests::EmptiedQueue;
using VyrTests::MessagePosting;
using VyrTests::ScratchFolder;

namespace {

constexpr int include = 0;
constexpr int exclude = 1;
constexpr int equals = 0;
constexpr int contains = 1;
constexpr int beginsWith = 2;
constexpr int endsWith = 3;

FilterFuncs::FILTERITEM Condition(int condition, const CString& text, int matchCase = 0, int enabled = 1)
{
    FilterFuncs::FILTERITEM item;
    item.enabled = enabled;
    item.text = text;
    item.condition = condition;
    item.matchCase = matchCase;
    return item;
}

int IsMatch(const CString& name, int condition, const CString& text, int matchCase = 0)
{
    return PrivateOperations::IsMatchCondition(name, Condition(condition, text, matchCase));
}

} // namespace

TEST(FilterCondition, EqualsTakesTheWholeName)
{
    EXPECT_EQ(IsMatch(u"a.jpg", equals, u"a.jpg"), 1);
    EXPECT_EQ(IsMatch(u"a.jpg", equals, u"A.JPG"), 1);
    EXPECT_EQ(IsMatch(u"a.jpg", equals, u"A.JPG", 1), 0);
    EXPECT_EQ(IsMatch(u"a.jpg", equals, u"a.jp"), 0);
}

TEST(FilterCondition, ContainsFindsTheTextAnywhere)
{
    EXPECT_EQ(IsMatch(u"holiday.jpg", contains, u"LIDAY"), 1);
    EXPECT_EQ(IsMatch(u"holiday.jpg", contains, u"hol"), 1);
    EXPECT_EQ(IsMatch(u"holiday.jpg", contains, u"jpg"), 1);
    EXPECT_EQ(IsMatch(u"holiday.jpg", contains, u"jpgs"), 0);
    EXPECT_EQ(IsMatch(u"holiday.jpg", contains, u"Liday", 1), 0);
}

TEST(FilterCondition, BeginsWithMatchesOnlyTheStart)
{
    EXPECT_EQ(IsMatch(u"abcabc", beginsWith, u"ABC"), 1);
    EXPECT_EQ(IsMatch(u"xabcabc", beginsWith, u"abc"), 0);
    EXPECT_EQ(IsMatch(u"ab", beginsWith, u"abc"), 0);
}

TEST(FilterCondition, EndsWithMatchesOnlyTheEnd)
{
    EXPECT_EQ(IsMatch(u"photo.jpg", endsWith, u".JPG"), 1);
    EXPECT_EQ(IsMatch(u"photo.jpg", endsWith, u".JPG", 1), 0);
    EXPECT_EQ(IsMatch(u"aaa", endsWith, u"aa"), 1) << "an earlier place of the text does not count";
    EXPECT_EQ(IsMatch(u"photo.jpg.bak", endsWith, u".jpg"), 0);
    EXPECT_EQ(IsMatch(u"jpg", endsWith, u".jpg"), 0) << "the name is shorter than the text";
}

TEST(FilterCondition, EmptyTextEqualsAnEmptyNameAndIsPartOfEveryName)
{
    for (const int condition : {equals, contains, beginsWith, endsWith})
        EXPECT_EQ(IsMatch(u"", condition, u""), 1) << condition;
    EXPECT_EQ(IsMatch(u"a", equals, u""), 0);
    for (const int condition : {contains, beginsWith, endsWith})
        EXPECT_EQ(IsMatch(u"a", condition, u""), 1) << condition;
}

TEST(FilterCondition, UnknownConditionMatchesNothing)
{
    for (const int condition : {4, -1, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
        EXPECT_EQ(IsMatch(u"a", condition, u"a"), 0) << condition;
}

TEST(FilterCondition, LettersOutsideAsciiAreLowerCasedToo)
{
    EXPECT_EQ(IsMatch(u"CAFÉ ÖL.TXT", beginsWith, u"café ö"), 1);
    EXPECT_EQ(IsMatch(u"ΑΒΓ", equals, u"αβγ"), 1);
    EXPECT_EQ(IsMatch(u"CAFÉ", equals, u"café", 1), 0);
}

TEST(FilterCondition, WildcardsAreOrdinaryCharacters)
{
    EXPECT_EQ(IsMatch(u"photo.jpg", equals, u"*.jpg"), 0);
    EXPECT_EQ(IsMatch(u"[1]?.jpg", contains, u"]?"), 1);
}

TEST(FilterNames, IncludeKeepsNamesThatMatchACondition)
{
    const std::vector items{Condition(endsWith, u".jpg"), Condition(beginsWith, u"img")};
    EXPECT_EQ(FilterFuncs::IsMatchName(u"a.jpg", include, items), 1);
    EXPECT_EQ(FilterFuncs::IsMatchName(u"IMG_1.png", include, items), 1);
    EXPECT_EQ(FilterFuncs::IsMatchName(u"b.png", include, items), 0);
}

TEST(FilterNames, ExcludeKeepsNamesThatMatchNone)
{
    const std::vector items{Condition(endsWith, u".jpg"), Condition(beginsWith, u"img")};
    EXPECT_EQ(FilterFuncs::IsMatchName(u"a.jpg", exclude, items), 0);
    EXPECT_EQ(FilterFuncs::IsMatchName(u"b.png", exclude, items), 1);
}

TEST(FilterNames, OtherModesKeepEverything)
{
    for (const int mode : {2, -1, std::numeric_limits<int>::max()})
        EXPECT_EQ(FilterFuncs::IsMatchName(u"a", mode, {Condition(equals, u"b")}), 1) << mode;
}

TEST(FilterNames, WithoutAnEnabledConditionIncludeDropsAndExcludeKeeps)
{
    const std::vector<FilterFuncs::FILTERITEM> none;
    const std::vector disabled{Condition(equals, u"a", 0, 0)};
    for (const auto& items : {none, disabled}) {
        EXPECT_EQ(FilterFuncs::IsMatchName(u"a", include, items), 0);
        EXPECT_EQ(FilterFuncs::IsMatchName(u"a", exclude, items), 1);
    }
}

TEST(FilterNames, FilterValueIsNotRead)
{
    FilterFuncs::FILTERITEM item = Condition(equals, u"a");
    for (const int value : {0, 7, -1}) {
        item.filterValue = value;
        EXPECT_EQ(FilterFuncs::IsMatchName(u"a", include, {item}), 1) << value;
    }
}

TEST(FilterNames, EmptyNameIsKeptByEveryFilter)
{
    EXPECT_EQ(FilterFuncs::IsMatchName(u"", include, {}), 1);
    EXPECT_EQ(FilterFuncs::IsMatchName(u"", include, {Condition(equals, u"a")}), 1);
    EXPECT_EQ(FilterFuncs::IsMatchName(u"", exclude, {Condition(equals, u"")}), 1);
}

TEST(FilterNames, StopEndsTheConditionsBeforeTheNextIsTried)
{
    const EmptiedQueue emptied;
    const MessagePosting queue;
    queue.PostStop();
    EXPECT_EQ(FilterFuncs::IsMatchName(u"a", include, {Condition(equals, u"a")}), 0);
    queue.PostStop();
    EXPECT_EQ(FilterFuncs::IsMatchName(u"a", exclude, {Condition(equals, u"a")}), 1);
}

TEST(FilterNames, EachConditionDrainsOneMessageAlsoADisabledOne)
{
    const EmptiedQueue emptied;
    const MessagePosting queue;
    int done = 0;
    for (int i = 0; i < 5; ++i)
        queue.PostWork([&done] { ++done; });
    const std::vector items{Condition(equals, u"x"), Condition(equals, u"a", 0, 0), Condition(equals, u"a"),
                            Condition(equals, u"y")};
    EXPECT_EQ(FilterFuncs::IsMatchName(u"a", include, items), 1);
    EXPECT_EQ(done, 3) << "the condition that matches is the last one tried";
}

TEST(FilterPaths, ConditionsAreHeldAgainstTheNameWithItsExtension)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"folder.old/photo.jpg", "x");
    EXPECT_EQ(FilterFuncs::IsMatch(path, include, {Condition(equals, u"photo.jpg", 1)}), 1);
    EXPECT_EQ(FilterFuncs::IsMatch(path, include, {Condition(contains, u"folder")}), 0) << "the folder does not count";
    EXPECT_EQ(FilterFuncs::IsMatch(path, exclude, {Condition(endsWith, u".jpg")}), 0);
}

TEST(FilterPaths, FileIsDroppedByAnEmptyIncludeListAndKeptByAnEmptyExcludeList)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a", "x");
    EXPECT_EQ(FilterFuncs::IsMatch(path, include, {}), 0);
    EXPECT_EQ(FilterFuncs::IsMatch(path, exclude, {}), 1);
}

TEST(FilterPaths, MissingPathIsKeptInBothModes)
{
    const ScratchFolder scratch;
    const CString path = scratch.Path(u"missing");
    EXPECT_EQ(FilterFuncs::IsMatch(path, include, {Condition(equals, u"other")}), 1);
    EXPECT_EQ(FilterFuncs::IsMatch(path, exclude, {Condition(equals, u"missing")}), 1);
    EXPECT_EQ(FilterFuncs::IsMatch(u"", include, {}), 1);
}

TEST(FilterPaths, FolderIsHeldAgainstItsWholeName)
{
    const ScratchFolder scratch;
    const CString path = scratch.MakeFolder(u"2024.summer");
    EXPECT_EQ(FilterFuncs::IsMatch(path, include, {Condition(equals, u"2024.SUMMER")}), 1);
}

TEST(FilterAlreadyAdded, FindsATextInAnyCase)
{
    EXPECT_EQ(FilterFuncs::IsAlreadyAdded(u"ABC", {u"x", u"abc"}), 1);
    EXPECT_EQ(FilterFuncs::IsAlreadyAdded(u"straße é", {u"STRAßE É"}), 1);
    EXPECT_EQ(FilterFuncs::IsAlreadyAdded(u"ABC", {u"abcd", u"ab"}), 0);
    EXPECT_EQ(FilterFuncs::IsAlreadyAdded(u"", {u"a", u""}), 1);
    EXPECT_EQ(FilterFuncs::IsAlreadyAdded(u"a", {}), 0);
}

TEST(FilterAlreadyAdded, StopEndsTheSearch)
{
    const EmptiedQueue emptied;
    const MessagePosting queue;
    queue.PostStop();
    EXPECT_EQ(FilterFuncs::IsAlreadyAdded(u"a", {u"a"}), 0);
    EXPECT_EQ(FilterFuncs::IsAlreadyAdded(u"a", {u"a"}), 1) << "the stop was told";
}

TEST(FilterAlreadyAdded, EachElementDrainsOneMessage)
{
    const EmptiedQueue emptied;
    const MessagePosting queue;
    int done = 0;
    for (int i = 0; i < 5; ++i)
        queue.PostWork([&done] { ++done; });
    EXPECT_EQ(FilterFuncs::IsAlreadyAdded(u"c", {u"a", u"b", u"c", u"d"}), 1);
    EXPECT_EQ(done, 3);
}
