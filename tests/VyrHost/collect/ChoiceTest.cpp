// Choosing files by names, dates and sizes, around every bound.
#include <VyrHost/collect/Choice.h>

#include <VyrHost/collect/CollectEntries.h>
#include <VyrHost/text/Errors.h>

#include <tests/support/Describe.h>
#include <tests/support/FileMoments.h>
#include <tests/support/FixedClock.h>
#include <tests/support/Links.h>
#include <tests/support/PictureBuilder.h>
#include <tests/support/ScratchFolder.h>

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

using namespace VyrHost::Collect;
using namespace VyrTests;
using VyrHost::Text::UsageError;

namespace {

using Range = VyrLibraryFuncs::SearchFuncs::DateTimeRange;
using Sizes = VyrLibraryFuncs::SearchFuncs::SizeRange;

constexpr std::int64_t unlimited = std::numeric_limits<std::int64_t>::max();

/// "from .. to" of a custom range; the number of any other range.
std::string DatesOf(std::u16string_view text)
{
    const DateRange range = ParseDateRange(text, "--modified");
    if (range.kind != Range::Custom)
        return std::to_string(static_cast<int>(range.kind));
    return Describe(range.from) + " .. " + Describe(range.to);
}

/// The message of a call that is refused.
template <class Call>
std::string ErrorOf(Call call)
{
    try {
        call();
    } catch (const UsageError& error) {
        return error.what();
    }
    return "taken";
}

std::string DateError(std::u16string_view text)
{
    return ErrorOf([text] { static_cast<void>(ParseDateRange(text, "--modified")); });
}

std::string SizeError(std::u16string_view text)
{
    return ErrorOf([text] { static_cast<void>(ParseSizeSpan(text, "--size")); });
}

void ExpectSizes(std::u16string_view text, std::int64_t from, std::int64_t to)
{
    const SizeSpan span = ParseSizeSpan(text, "--size");
    EXPECT_EQ(span.kind, Sizes::Custom);
    EXPECT_EQ(span.from, from) << VyrPlatform::Encoding::ToUtf8(text);
    EXPECT_EQ(span.to, to) << VyrPlatform::Encoding::ToUtf8(text);
}

bool Meets(const char16_t* condition, const char16_t* name, bool matchCase = false)
{
    return NameConditions({condition}, matchCase, "--include").MeetsAny(name);
}

class Choosing : public testing::Test
{
protected:
    /// The names that are chosen, in their order, and behind a bar how many were left out and not entered.
    [[nodiscard]] std::string Chosen(const ChoiceTexts& texts, Pick pick = Pick::Files) const
    {
        SourceSettings settings;
        settings.paths = {m_folder.Path()};
        settings.recursive = true;
        settings.pick = pick;
        settings.choice = Choice(texts);
        return Describe(CollectEntries(settings));
    }

    [[nodiscard]] static std::string Describe(const CollectedEntries& collected)
    {
        std::string names;
        for (const VyrHost::Model::Entry& entry : collected.list.entries)
            names += VyrPlatform::Encoding::ToUtf8(entry.name.View()) + ' ';
        return names + "| " + std::to_string(collected.leftOut) + ' ' + std::to_string(collected.notEntered);
    }

    ScratchFolder m_folder;
};

} // namespace

TEST(ChoosingDates, WordsAreTheRangesOfTheLibrary)
{
    const char16_t* const words[] = {u"today",      u"yesterday",  u"this-week", u"last-week",
                                     u"this-month", u"last-month", u"this-year", u"last-year"};
    int number = 0;
    for (const char16_t* const word : words)
        EXPECT_EQ(DatesOf(word), std::to_string(++number));
}

TEST(ChoosingDates, BareDateReachesFromItsFirstToItsLastSecond)
{
    EXPECT_EQ(DatesOf(u"2024-01-05..2024-01-06"), "2024-01-05 00:00:00 .. 2024-01-06 23:59:59");
    EXPECT_EQ(DatesOf(u"2024-01-05..2024-01-05"), "2024-01-05 00:00:00 .. 2024-01-05 23:59:59");
    EXPECT_EQ(DatesOf(u"2024-01-05 10:00 .. 2024-01-05 10:00"), "2024-01-05 10:00:00 .. 2024-01-05 10:00:00");
    EXPECT_EQ(DatesOf(u"2024-01-05T10:00:01..2024-01-06 00:00"), "2024-01-05 10:00:01 .. 2024-01-06 00:00:00");
}

TEST(ChoosingDates, EitherEndMayBeLeftOut)
{
    EXPECT_EQ(DatesOf(u"2024-01-05.."), "2024-01-05 00:00:00 .. null");
    EXPECT_EQ(DatesOf(u"..2024-01-05"), "null .. 2024-01-05 23:59:59");
}

TEST(ChoosingDates, WrongRangeIsRefusedWithTheReason)
{
    EXPECT_EQ(DateError(u"2024-01-06..2024-01-05"),
              "--modified '2024-01-06..2024-01-05': the range begins after its end");
    EXPECT_NE(DateError(u"..").find("a bound is missing"), std::string::npos);
    EXPECT_NE(DateError(u"2024-02-30..").find("FROM and TO are dates"), std::string::npos);
    EXPECT_NE(DateError(u"10:30..").find("FROM and TO are dates"), std::string::npos);
    for (const char16_t* const text : {u"", u"Today", u"tomorrow", u"2024-01-05"})
        EXPECT_NE(DateError(text).find("last-year or FROM..TO is expected"), std::string::npos) << DateError(text);
}

TEST(ChoosingSizes, WordsAreTheRangesOfTheLibrary)
{
    const char16_t* const words[] = {u"empty", u"tiny", u"small", u"medium", u"large", u"huge", u"giant"};
    int number = 0;
    for (const char16_t* const word : words)
        EXPECT_EQ(static_cast<int>(ParseSizeSpan(word, "--size").kind), ++number);
}

TEST(ChoosingSizes, UnitsArePowersOf1024)
{
    ExpectSizes(u"0..500", 0, 500);
    ExpectSizes(u"1KB..1MB", 1024, 1 << 20);
    ExpectSizes(u"1 k .. 2 MiB", 1024, 2 << 20);
    ExpectSizes(u"1.5GB..2tb", 1610612736, std::int64_t{2} << 40);
    ExpectSizes(u"0.5KB..0.75 KB", 512, 768);
    ExpectSizes(u"0.001KB..", 1, unlimited);
    ExpectSizes(u"3B..", 3, unlimited);
    ExpectSizes(u"..3G", 0, std::int64_t{3} << 30);
}

TEST(ChoosingSizes, WrongRangeIsRefusedWithTheReason)
{
    EXPECT_EQ(SizeError(u"2MB..1MB"), "--size '2MB..1MB': the range begins after its end");
    for (const char16_t* const text : {u"-1..", u"x..", u"1XB..", u"1.KB..", u".5KB..", u"1,5KB..", u"1Bi..",
                                       u"9999999999999999999..", u"99999999999999TB..", u"1.2345678KB.."})
        EXPECT_NE(SizeError(text).find("FROM and TO are sizes"), std::string::npos) << SizeError(text);
    EXPECT_NE(SizeError(u"..").find("a bound is missing"), std::string::npos);
    EXPECT_NE(SizeError(u"10MB").find("FROM..TO is expected"), std::string::npos);
}

TEST(ChoosingSizes, PartOfAByteIsRefused)
{
    for (const char16_t* const text : {u"1.9..", u"..1.5B", u"0.5 b..1KB", u"2.0.."})
        EXPECT_NE(SizeError(text).find("there is no part of a byte"), std::string::npos) << SizeError(text);
}

TEST(ChoosingNames, WildcardsMatchWholeNames)
{
    EXPECT_TRUE(Meets(u"*.jpg", u"A.JPG"));
    EXPECT_FALSE(Meets(u"*.jpg", u"A.JPG", true));
    EXPECT_FALSE(Meets(u"a", u"ab"));
    EXPECT_TRUE(Meets(u"a?", u"ab"));
    EXPECT_TRUE(Meets(u"ÄB", u"äb"));
}

TEST(ChoosingNames, TextsAreFoundAsTheirWordSays)
{
    EXPECT_TRUE(Meets(u"contains:b*", u"AB*C"));
    EXPECT_FALSE(Meets(u"contains:b*", u"abc")) << "a wildcard is a character here";
    EXPECT_TRUE(Meets(u"begins:IMG", u"img_1.png"));
    EXPECT_FALSE(Meets(u"begins:IMG", u"img_1.png", true));
    EXPECT_TRUE(Meets(u"ends:.jpg", u"a.JPG"));
    EXPECT_TRUE(Meets(u"equals:contains:x", u"contains:x"));
    EXPECT_FALSE(Meets(u"equals:a", u"ab"));
}

TEST(ChoosingNames, NormalFormOfANameIsIgnored)
{
    EXPECT_TRUE(Meets(u"caf\u00e9*", u"cafe\u0301.txt"));
    EXPECT_TRUE(Meets(u"contains:e\u0301", u"caf\u00e9.txt"));
}

TEST(ChoosingNames, EmptyConditionIsRefused)
{
    for (const char16_t* const text : {u"", u"contains:", u"equals:"})
        EXPECT_NE(ErrorOf([text] { NameConditions({text}, false, "--exclude"); }).find("--exclude"), std::string::npos);
}

TEST_F(Choosing, ExcludedFolderIsNotEntered)
{
    for (const char16_t* const name : {u"a.jpg", u"keep/b.jpg", u"Cache/c.jpg", u"keep/cache/d.jpg"})
        m_folder.WriteFile(name);
    ChoiceTexts texts;
    texts.exclude = {u"cache"};
    EXPECT_EQ(Chosen(texts), "a.jpg b.jpg | 0 2");
    EXPECT_EQ(Chosen(texts, Pick::All), "a.jpg keep b.jpg | 2 2");
}

TEST_F(Choosing, IncludeChoosesEntriesAndEntersEveryFolder)
{
    for (const char16_t* const name : {u"a.jpg", u"b.png", u"c.txt", u"d/e.JPG", u"d/f.txt"})
        m_folder.WriteFile(name);
    ChoiceTexts texts;
    texts.include = {u"*.jpg", u"ends:.png"};
    EXPECT_EQ(Chosen(texts), "a.jpg b.png e.JPG | 2 0");
    texts.exclude = {u"begins:a"};
    EXPECT_EQ(Chosen(texts), "b.png e.JPG | 3 0");
    texts.matchCase = true;
    EXPECT_EQ(Chosen(texts), "b.png | 4 0");
}

TEST_F(Choosing, ConditionsApplyToNamedEntries)
{
    m_folder.WriteFile(u"a.jpg");
    m_folder.WriteFile(u"b.txt");
    m_folder.WriteFile(u"skip/c.jpg");
    ChoiceTexts texts;
    texts.include = {u"*.jpg"};
    texts.exclude = {u"skip"};
    SourceSettings settings;
    settings.choice = Choice(texts);
    settings.paths = {m_folder.Path(u"b.txt"), m_folder.Path(u"a.jpg"), m_folder.Path(u"none.txt")};
    EXPECT_EQ(Describe(CollectEntries(settings)), "a.jpg none.txt | 1 0") << "what is missing is told, not left out";
    settings.paths = {m_folder.Path(u"skip")};
    settings.recursive = true;
    EXPECT_EQ(Describe(CollectEntries(settings)), "| 0 1");
    settings.paths = {m_folder.Path(u"skip/.")};
    EXPECT_EQ(Describe(CollectEntries(settings)), "c.jpg | 0 0") << "the path itself ends in no name";
}

TEST_F(Choosing, DatesAreThoseOfTheTarget)
{
    const CString old = m_folder.WriteFile(u"old", "x");
    m_folder.WriteFile(u"new", "x");
    PictureFacts facts;
    facts.dateTimeOriginal = "2019:03:04 05:06:07";
    m_folder.WriteFile(u"picture.jpg", BuildJpeg(facts));
    StampFile(old, ToFileTicks(COleDateTime(2020, 5, 6, 23, 59, 59)), ToFileTicks(COleDateTime(2021, 1, 1, 0, 0, 0)));
    ChoiceTexts texts;
    texts.dateTarget = ChoiceDate::Modified;
    texts.dates = u"2020-05-06..2020-05-06";
    EXPECT_EQ(Chosen(texts), "old | 2 0");
    texts.dates = u"..2020-05-06 23:59:58";
    EXPECT_EQ(Chosen(texts), "| 3 0");
    texts.dateTarget = ChoiceDate::PictureTaken;
    texts.dates = u"2019-03-04..";
    EXPECT_EQ(Chosen(texts), "picture.jpg | 2 0");
    const FixedClock clock(COleDateTime(2020, 5, 7, 0, 0, 1));
    texts.dateTarget = ChoiceDate::Modified;
    texts.dates = u"yesterday";
    EXPECT_EQ(Chosen(texts), "old | 2 0");
}

TEST_F(Choosing, FoldersHaveNoSize)
{
    m_folder.WriteFile(u"empty");
    m_folder.WriteFile(u"ten", "0123456789");
    m_folder.WriteFile(u"folder/eleven", "01234567890");
    ChoiceTexts texts;
    texts.sizes = u"..10";
    EXPECT_EQ(Chosen(texts, Pick::All), "empty ten | 2 0");
    texts.sizes = u"empty";
    EXPECT_EQ(Chosen(texts, Pick::All), "empty | 3 0");
    texts.sizes = u"11..";
    EXPECT_EQ(Chosen(texts), "eleven | 2 0");
}

TEST_F(Choosing, LinkThatLeadsNowhereHasNoDateAndNoSize)
{
    m_folder.WriteFile(u"empty");
    if (const std::string why = MakeLink(m_folder.Path(u"nothing"), m_folder.Path(u"dangling")); !why.empty())
        GTEST_SKIP() << why;
    ChoiceTexts texts;
    texts.sizes = u"empty";
    EXPECT_EQ(Chosen(texts, Pick::All), "empty | 1 0");
    texts.sizes.reset();
    for (const ChoiceDate target : {ChoiceDate::Modified, ChoiceDate::Created}) {
        texts.dateTarget = target;
        for (const char16_t* const dates : {u"..2000-01-01", u"1601-01-01.."}) {
            texts.dates = dates;
            EXPECT_EQ(Chosen(texts, Pick::All).find("dangling"), std::string::npos);
        }
    }
}

TEST_F(Choosing, WithoutCriteriaEverythingIsChosen)
{
    m_folder.WriteFile(u"ten", "0123456789");
    ChoiceTexts texts;
    texts.sizes = u"empty";
    EXPECT_EQ(Chosen(texts), "| 1 0");
    EXPECT_EQ(Chosen(ChoiceTexts()), "ten | 0 0") << "whatever an earlier choice asked for";
}
