// The order of texts in locales that sort in the same way and in locales that do not.
#include <VyrLibraryUtils/CompareUtils.h>

#include <tests/support/Describe.h>
#include <tests/support/UserLocale.h>

#include <gtest/gtest.h>

using VyrLibraryUtils::CompareUtils;
using VyrTests::UserLocale;

namespace {

constexpr const char16_t* locales[] = {u"C", u"en_US", u"de_DE", u"tr_TR", u"az", u"ja_JP"};

int Sign(int order)
{
    return order < 0 ? -1 : order > 0 ? 1 : 0;
}

int Compare(const CString& left, const CString& right, int descending = 0)
{
    return Sign(CompareUtils::CompareText(left, right, descending, 0, 1024));
}

TEST(CompareUtils, SortsByTheUsersCollation)
{
    struct
    {
        const char16_t* left;
        const char16_t* right;
        int order;
    } const cases[] = {
        {u"a", u"B", -1},  {u"B", u"a", 1},      {u"a", u"a", 0},  {u"", u"", 0},    {u"", u"a", -1},
        {u"a", u"ab", -1}, {u"{1}", u"{2}", -1}, {u"1", u"a", -1}, {u"a", u"A", -1},
    };
    for (const char16_t* const name : locales) {
        const UserLocale locale(name);
        for (const auto& expected : cases) {
            SCOPED_TRACE(testing::PrintToString(CString::Join({name, u": ", expected.left, u" ", expected.right})));
            EXPECT_EQ(Compare(expected.left, expected.right), expected.order);
            EXPECT_EQ(Compare(expected.right, expected.left), -expected.order);
        }
    }
}

TEST(CompareUtils, FollowsTheLocaleWhereTheyDiffer)
{
    {
        const UserLocale german(u"de_DE");
        EXPECT_EQ(Compare(u"\u00E4", u"z"), -1);
    }
    {
        const UserLocale swedish(u"sv_SE");
        EXPECT_EQ(Compare(u"\u00E4", u"z"), 1);
    }
}

TEST(CompareUtils, ReversesTheSignForAnyNonZeroNumber)
{
    const UserLocale locale(u"C");
    for (const int descending : {1, -1, 2, 1 << 30}) {
        EXPECT_EQ(Compare(u"a", u"b", descending), 1);
        EXPECT_EQ(Compare(u"b", u"a", descending), -1);
        EXPECT_EQ(Compare(u"a", u"a", descending), 0);
    }
}

TEST(CompareUtils, TakesEveryLocaleNumberForTheUsersLocale)
{
    const UserLocale locale(u"C");
    for (const std::uint32_t number : {0U, 1024U, 1031U, 0xFFFFFFFFU})
        EXPECT_EQ(Sign(CompareUtils::CompareText(u"a", u"B", 0, 0, number)), -1);
}

} // namespace
