// Counters of templates.
#include <VyrHost/rename/Counter.h>

#include <VyrPlatform/text/Encoding.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace VyrHost::Rename;
using testing::HasSubstr;

namespace {

/// The counter that `option` makes of "#", as wide as `width`, at `place` of its list.
std::string Counted(std::u16string_view option, std::size_t width, std::int64_t place)
{
    CounterForm form;
    if (const char* const fault = ParseCounter(option, width, form))
        return fault;
    const auto text = WriteCounter(form.start + form.step * place, form);
    return text ? VyrPlatform::Encoding::ToUtf8(*text) : "none";
}

} // namespace

TEST(Counter, CountsFromItsStartInItsSteps)
{
    EXPECT_EQ(Counted(u"", 1, 0), "1");
    EXPECT_EQ(Counted(u"", 3, 11), "012");
    EXPECT_EQ(Counted(u"start 5 step 2", 3, 2), "009");
    EXPECT_EQ(Counted(u" step -3  start 1 ", 3, 2), "-005");
    EXPECT_EQ(Counted(u"start 0", 2, 0), "00");
    EXPECT_EQ(Counted(u"start 2147483647 step 2147483647", 1, 2'000'000'000), "4294967296147483647");
}

TEST(Counter, IsWrittenInOtherStyles)
{
    EXPECT_EQ(Counted(u"hex start 254", 1, 1), "ff");
    EXPECT_EQ(Counted(u"hex", 4, 30), "001f");
    EXPECT_EQ(Counted(u"letters", 1, 0), "a");
    EXPECT_EQ(Counted(u"letters", 1, 25), "z");
    EXPECT_EQ(Counted(u"letters", 1, 26), "aa");
    EXPECT_EQ(Counted(u"letters", 1, 26 + 26 * 26), "aaa");
    EXPECT_EQ(Counted(u"letters start 0", 1, 0), "none");
    EXPECT_EQ(Counted(u"roman start 1994", 1, 0), "MCMXCIV");
    EXPECT_EQ(Counted(u"roman start 3999", 1, 0), "MMMCMXCIX");
    EXPECT_EQ(Counted(u"roman start 3999", 1, 1), "none");
    EXPECT_EQ(Counted(u"roman start 0", 1, 0), "none");
}

TEST(Counter, StartsAnewForWhatItIsAskedTo)
{
    CounterForm form;
    EXPECT_EQ(ParseCounter(u"per day", 1, form), nullptr);
    EXPECT_EQ(form.scope, CounterScope::Day);
    EXPECT_EQ(ParseCounter(u"start 2 per folder", 1, form), nullptr);
    EXPECT_EQ(form.scope, CounterScope::Folder);
    EXPECT_EQ(ParseCounter(u"per name hex", 1, form), nullptr);
    EXPECT_EQ(form.scope, CounterScope::Name);
}

TEST(Counter, RefusesWordsThatMakeNoSense)
{
    EXPECT_THAT(Counted(u"from 5", 1, 0), HasSubstr("a counter knows start N"));
    EXPECT_THAT(Counted(u"start", 1, 0), HasSubstr("a whole number follows"));
    EXPECT_THAT(Counted(u"start 2147483648", 1, 0), HasSubstr("a whole number follows"));
    EXPECT_THAT(Counted(u"step 1.5", 1, 0), HasSubstr("a whole number follows"));
    EXPECT_THAT(Counted(u"per year", 1, 0), HasSubstr("folder, day or name follows per"));
    EXPECT_THAT(Counted(u"start 1 start 2", 1, 0), HasSubstr("twice"));
    EXPECT_THAT(Counted(u"roman hex", 1, 0), HasSubstr("either roman or letters or hex"));
    EXPECT_THAT(Counted(u"roman", 2, 0), HasSubstr("have no width"));
    EXPECT_THAT(Counted(u"", 256, 0), HasSubstr("more than 255 digits"));
}

TEST(KeyedCounts, CountEachGroupOnceForItsKey)
{
    KeyedCounts counts;
    EXPECT_EQ(counts.PlaceOf(0, u"a"), 0);
    EXPECT_EQ(counts.PlaceOf(0, u"a"), 0);
    EXPECT_EQ(counts.PlaceOf(1, u"a"), 1);
    EXPECT_EQ(counts.PlaceOf(2, u"b"), 0);
    // The group turns out to have another key: the place among the old ones is free again.
    EXPECT_EQ(counts.PlaceOf(2, u"a"), 2);
    EXPECT_EQ(counts.PlaceOf(3, u"b"), 0);
    EXPECT_EQ(counts.PlaceOf(4, u"a"), 3);
}
