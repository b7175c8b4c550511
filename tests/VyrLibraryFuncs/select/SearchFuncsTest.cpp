// Date-time and size ranges around every bound.
#include <VyrLibraryFuncs/select/SearchFuncs.h>

#include <tests/support/DebugCapture.h>
#include <tests/support/Describe.h>
#include <tests/support/FileMoments.h>
#include <tests/support/FixedClock.h>
#include <tests/support/PictureBuilder.h>
#include <tests/support/ScratchFolder.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>
#include <vector>

using VyrLibraryFuncs::SearchFuncs;
using VyrTests::FixedClock;
using VyrTests::ScratchFolder;

namespace {

/// Puts all settings back that a test changes.
class KeptSettings
{
public:
    KeptSettings() = default;
    KeptSettings(const KeptSettings&) = delete;
    KeptSettings& operator=(const KeptSettings&) = delete;
    ~KeptSettings()
    {
        SearchFuncs::SetSearchClosed(m_closed);
        SearchFuncs::SetDateTimeSearch(m_dateTimeSearch);
        SearchFuncs::SetDateTimeTarget(m_dateTimeTarget);
        SearchFuncs::SetDateTimeRange(m_dateTimeRange);
        SearchFuncs::SetDateTimeFromDateTime(m_from);
        SearchFuncs::SetDateTimeToDateTime(m_to);
        SearchFuncs::SetSizeSearch(m_sizeSearch);
        SearchFuncs::SetSizeTarget(m_sizeTarget);
        SearchFuncs::SetSizeRange(m_sizeRange);
        SearchFuncs::SetSizeFromSize(m_fromSize);
        SearchFuncs::SetSizeToSize(m_toSize);
    }

private:
    int m_closed = SearchFuncs::GetSearchClosed();
    int m_dateTimeSearch = SearchFuncs::GetDateTimeSearch();
    int m_dateTimeTarget = SearchFuncs::GetDateTimeTarget();
    int m_dateTimeRange = SearchFuncs::GetDateTimeRange();
    COleDateTime m_from = SearchFuncs::GetDateTimeFromDateTime();
    COleDateTime m_to = SearchFuncs::GetDateTimeToDateTime();
    int m_sizeSearch = SearchFuncs::GetSizeSearch();
    int m_sizeTarget = SearchFuncs::GetSizeTarget();
    int m_sizeRange = SearchFuncs::GetSizeRange();
    std::int64_t m_fromSize = SearchFuncs::GetSizeFromSize();
    std::int64_t m_toSize = SearchFuncs::GetSizeToSize();
};

class SearchCriteria : public testing::Test
{
private:
    KeptSettings m_kept;
};

using SearchDateTimes = SearchCriteria;
using SearchSizes = SearchCriteria;
using SearchFiles = SearchCriteria;

COleDateTime Day(int year, int month, int day, int hour = 0, int minute = 0, int second = 0)
{
    return COleDateTime(year, month, day, hour, minute, second);
}

COleDateTime WithStatus(COleDateTime dateTime, COleDateTime::DateTimeStatus status)
{
    dateTime.SetStatus(status);
    return dateTime;
}

int IsInRange(int range, const COleDateTime& value)
{
    SearchFuncs::SetDateTimeRange(range);
    return SearchFuncs::IsMatchDateTime(value);
}

int IsInSizeRange(int range, std::int64_t size)
{
    SearchFuncs::SetSizeRange(range);
    return SearchFuncs::IsMatchSize(size);
}

/// A range: its first and its last second, and the seconds around it.
struct Span
{
    int range;
    COleDateTime first;
    COleDateTime last;
    COleDateTime before;
    COleDateTime after;
};

void ExpectSpans(const COleDateTime& now, const std::vector<Span>& spans)
{
    const FixedClock clock(now);
    for (const Span& span : spans) {
        EXPECT_EQ(IsInRange(span.range, span.first), 1) << span.range;
        EXPECT_EQ(IsInRange(span.range, span.last), 1) << span.range;
        EXPECT_EQ(IsInRange(span.range, span.before), 0) << span.range;
        EXPECT_EQ(IsInRange(span.range, span.after), 0) << span.range;
    }
}

} // namespace

TEST_F(SearchDateTimes, EachRangeReachesFromItsFirstToItsLastSecond)
{
    // 21 February 2024 was a Wednesday.
    ExpectSpans(Day(2024, 2, 21, 15, 4, 5),
                {{1, Day(2024, 2, 21), Day(2024, 2, 21, 23, 59, 59), Day(2024, 2, 20, 23, 59, 59), Day(2024, 2, 22)},
                 {2, Day(2024, 2, 20), Day(2024, 2, 20, 23, 59, 59), Day(2024, 2, 19, 23, 59, 59), Day(2024, 2, 21)},
                 {3, Day(2024, 2, 18), Day(2024, 2, 24, 23, 59, 59), Day(2024, 2, 17, 23, 59, 59), Day(2024, 2, 25)},
                 {4, Day(2024, 2, 11), Day(2024, 2, 17, 23, 59, 59), Day(2024, 2, 10, 23, 59, 59), Day(2024, 2, 18)},
                 {5, Day(2024, 2, 1), Day(2024, 2, 29, 23, 59, 59), Day(2024, 1, 31, 23, 59, 59), Day(2024, 3, 1)},
                 {6, Day(2024, 1, 1), Day(2024, 1, 31, 23, 59, 59), Day(2023, 12, 31, 23, 59, 59), Day(2024, 2, 1)},
                 {7, Day(2024, 1, 1), Day(2024, 12, 31, 23, 59, 59), Day(2023, 12, 31, 23, 59, 59), Day(2025, 1, 1)},
                 {8, Day(2023, 1, 1), Day(2023, 12, 31, 23, 59, 59), Day(2022, 12, 31, 23, 59, 59), Day(2024, 1, 1)}});
}

TEST_F(SearchDateTimes, RangesReachAcrossTheTurnOfTheYear)
{
    // 1 January 2024 was a Monday.
    ExpectSpans(Day(2024, 1, 1),
                {{2, Day(2023, 12, 31), Day(2023, 12, 31, 23, 59, 59), Day(2023, 12, 30, 23, 59, 59), Day(2024, 1, 1)},
                 {3, Day(2023, 12, 31), Day(2024, 1, 6, 23, 59, 59), Day(2023, 12, 30, 23, 59, 59), Day(2024, 1, 7)},
                 {6, Day(2023, 12, 1), Day(2023, 12, 31, 23, 59, 59), Day(2023, 11, 30, 23, 59, 59), Day(2024, 1, 1)},
                 {8, Day(2023, 1, 1), Day(2023, 12, 31, 23, 59, 59), Day(2022, 12, 31, 23, 59, 59), Day(2024, 1, 1)}});
}

TEST_F(SearchDateTimes, WeekBeginsOnSundayAlsoOnASundayAndOnASaturday)
{
    // 18 February 2024 was a Sunday.
    ExpectSpans(Day(2024, 2, 18, 12),
                {{3, Day(2024, 2, 18), Day(2024, 2, 24, 23, 59, 59), Day(2024, 2, 17, 23, 59, 59), Day(2024, 2, 25)},
                 {4, Day(2024, 2, 11), Day(2024, 2, 17, 23, 59, 59), Day(2024, 2, 10, 23, 59, 59), Day(2024, 2, 18)}});
    ExpectSpans(Day(2024, 2, 24, 12),
                {{3, Day(2024, 2, 18), Day(2024, 2, 24, 23, 59, 59), Day(2024, 2, 17, 23, 59, 59), Day(2024, 2, 25)},
                 {4, Day(2024, 2, 11), Day(2024, 2, 17, 23, 59, 59), Day(2024, 2, 10, 23, 59, 59), Day(2024, 2, 18)}});
}

TEST_F(SearchDateTimes, LastMonthOfALongerMonthsEndIsTheShorterMonth)
{
    ExpectSpans(Day(2024, 3, 31),
                {{6, Day(2024, 2, 1), Day(2024, 2, 29, 23, 59, 59), Day(2024, 1, 31, 23, 59, 59), Day(2024, 3, 1)}});
}

TEST_F(SearchDateTimes, CustomRangeIncludesBothBounds)
{
    SearchFuncs::SetDateTimeFromDateTime(Day(2024, 1, 10, 8));
    SearchFuncs::SetDateTimeToDateTime(Day(2024, 1, 20, 9));
    EXPECT_EQ(IsInRange(0, Day(2024, 1, 10, 8)), 1);
    EXPECT_EQ(IsInRange(0, Day(2024, 1, 20, 9)), 1);
    EXPECT_EQ(IsInRange(0, Day(2024, 1, 10, 7, 59, 59)), 0);
    EXPECT_EQ(IsInRange(0, Day(2024, 1, 20, 9, 0, 1)), 0);
}

TEST_F(SearchDateTimes, CustomRangeWithANullBoundIsOpenThere)
{
    const COleDateTime none = WithStatus(COleDateTime(), COleDateTime::null);
    SearchFuncs::SetDateTimeFromDateTime(none);
    SearchFuncs::SetDateTimeToDateTime(Day(2024, 1, 20));
    EXPECT_EQ(IsInRange(0, Day(1950, 1, 1)), 1);
    EXPECT_EQ(IsInRange(0, Day(1850, 1, 1)), 1) << "before the zero date-time too";
    EXPECT_EQ(IsInRange(0, Day(2024, 1, 20)), 1);
    EXPECT_EQ(IsInRange(0, Day(2024, 1, 20, 0, 0, 1)), 0);

    SearchFuncs::SetDateTimeFromDateTime(Day(2024, 1, 10));
    SearchFuncs::SetDateTimeToDateTime(none);
    EXPECT_EQ(IsInRange(0, Day(9000, 1, 1)), 1);
    EXPECT_EQ(IsInRange(0, Day(2024, 1, 10)), 1);
    EXPECT_EQ(IsInRange(0, Day(2024, 1, 9, 23, 59, 59)), 0);

    SearchFuncs::SetDateTimeFromDateTime(none);
    EXPECT_EQ(IsInRange(0, Day(2024, 1, 10)), 0) << "both bounds are null";
}

TEST_F(SearchDateTimes, CustomRangeFromAfterToMatchesNothing)
{
    SearchFuncs::SetDateTimeFromDateTime(Day(2024, 1, 20));
    SearchFuncs::SetDateTimeToDateTime(Day(2024, 1, 10));
    for (const int day : {9, 10, 15, 20, 21})
        EXPECT_EQ(IsInRange(0, Day(2024, 1, day)), 0) << day;
}

TEST_F(SearchDateTimes, InvalidValueIsInNoRange)
{
    const FixedClock clock(Day(2024, 2, 21));
    SearchFuncs::SetDateTimeFromDateTime(COleDateTime());
    SearchFuncs::SetDateTimeToDateTime(Day(9999, 12, 31));
    for (int range = 0; range <= 8; ++range)
        EXPECT_EQ(IsInRange(range, WithStatus(Day(2024, 2, 21), COleDateTime::invalid)), 0) << range;
}

TEST_F(SearchDateTimes, NullValueIsOfNoDayMonthOrYear)
{
    const FixedClock clock(Day(1899, 12, 30));
    for (const int range : {1, 5, 7})
        EXPECT_EQ(IsInRange(range, WithStatus(COleDateTime(), COleDateTime::null)), 0) << range;
    EXPECT_EQ(IsInRange(3, WithStatus(COleDateTime(), COleDateTime::null)), 1) << "its count of days is compared";
}

TEST_F(SearchDateTimes, DateTimesWithoutACalendarYearAreOfTheSameYear)
{
    const FixedClock clock(WithStatus(COleDateTime(), COleDateTime::null));
    COleDateTime beyond;
    beyond.m_dt = 1e9;
    for (const int range : {7, 8}) {
        EXPECT_EQ(IsInRange(range, beyond), 1) << range;
        EXPECT_EQ(IsInRange(range, WithStatus(COleDateTime(), COleDateTime::null)), 1) << range;
        EXPECT_EQ(IsInRange(range, Day(2024, 2, 21)), 0) << range;
    }
}

TEST_F(SearchDateTimes, UnknownRangeMatchesNothing)
{
    const FixedClock clock(Day(2024, 2, 21));
    for (const int range : {9, -1, std::numeric_limits<int>::max()})
        EXPECT_EQ(IsInRange(range, Day(2024, 2, 21)), 0) << range;
}

TEST_F(SearchSizes, RangesMeetWithoutAGap)
{
    struct Range
    {
        int range;
        std::int64_t first;
        std::int64_t last;
    };
    constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();
    for (const Range& range :
         {Range{1, 0, 0}, Range{2, 1, 16384}, Range{3, 16385, 1048576}, Range{4, 1048577, 134217728},
          Range{5, 134217729, 1073741824}, Range{6, 1073741825, 4294967296}, Range{7, 4294967297, largest}}) {
        EXPECT_EQ(IsInSizeRange(range.range, range.first), 1) << range.range;
        EXPECT_EQ(IsInSizeRange(range.range, range.last), 1) << range.range;
        EXPECT_EQ(IsInSizeRange(range.range, range.first - 1), 0) << range.range;
        if (range.last < largest) {
            EXPECT_EQ(IsInSizeRange(range.range, range.last + 1), 0) << range.range;
        }
    }
}

TEST_F(SearchSizes, SizeThatWasNotComputedHasARangeOfItsOwn)
{
    EXPECT_EQ(IsInSizeRange(8, -1), 1);
    EXPECT_EQ(IsInSizeRange(8, 0), 0);
    EXPECT_EQ(IsInSizeRange(8, -2), 0);
    for (int range = 1; range <= 7; ++range)
        EXPECT_EQ(IsInSizeRange(range, -1), 0) << range;
}

TEST_F(SearchSizes, CustomRangeIsSigned)
{
    SearchFuncs::SetSizeFromSize(-1);
    SearchFuncs::SetSizeToSize(10);
    EXPECT_EQ(IsInSizeRange(0, -1), 1);
    EXPECT_EQ(IsInSizeRange(0, 10), 1);
    EXPECT_EQ(IsInSizeRange(0, 11), 0);
    EXPECT_EQ(IsInSizeRange(0, -2), 0);
}

TEST_F(SearchSizes, UnknownRangeMatchesNothing)
{
    for (const int range : {9, -1, std::numeric_limits<int>::max()})
        EXPECT_EQ(IsInSizeRange(range, 0), 0) << range;
}

TEST_F(SearchFiles, WithoutACriterionInForceEveryPathMatches)
{
    const ScratchFolder scratch;
    EXPECT_EQ(SearchFuncs::IsMatch(scratch.WriteFile(u"a", "x"), 0), 1);
    EXPECT_EQ(SearchFuncs::IsMatch(scratch.MakeFolder(u"folder"), 0), 1);
    SearchFuncs::ITEM item;
    item.dateTime.SetStatus(COleDateTime::invalid);
    EXPECT_EQ(SearchFuncs::IsMatch(item), 1);
}

TEST_F(SearchFiles, MissingPathMatchesAsAWholeAndNoSingleCriterion)
{
    const ScratchFolder scratch;
    const CString missing = scratch.Path(u"missing");
    SearchFuncs::SetDateTimeSearch(1);
    SearchFuncs::SetDateTimeRange(-1);
    SearchFuncs::SetSizeSearch(1);
    SearchFuncs::SetSizeRange(-1);
    EXPECT_EQ(SearchFuncs::IsMatch(missing, 0), 1);
    SearchFuncs::SetSizeRange(8);
    EXPECT_EQ(SearchFuncs::IsMatchSize(missing, 0), 0);
    SearchFuncs::SetDateTimeFromDateTime(COleDateTime());
    SearchFuncs::SetDateTimeToDateTime(Day(9999, 1, 1));
    SearchFuncs::SetDateTimeRange(0);
    EXPECT_EQ(SearchFuncs::IsMatchDateTime(missing), 0);
}

TEST_F(SearchFiles, BothCriteriaMustBeMetWhereBothAreInForce)
{
    SearchFuncs::SetDateTimeSearch(-1);
    SearchFuncs::SetDateTimeFromDateTime(Day(2024, 1, 1));
    SearchFuncs::SetDateTimeToDateTime(Day(2024, 12, 31));
    SearchFuncs::SetSizeSearch(7);
    SearchFuncs::SetSizeFromSize(10);
    SearchFuncs::SetSizeToSize(20);
    SearchFuncs::ITEM item;
    item.dateTime = Day(2024, 6, 1);
    item.size = 15;
    EXPECT_EQ(SearchFuncs::IsMatch(item), 1);
    item.size = 21;
    EXPECT_EQ(SearchFuncs::IsMatch(item), 0);
    item.size = 15;
    item.dateTime = Day(2025, 6, 1);
    EXPECT_EQ(SearchFuncs::IsMatch(item), 0);
    SearchFuncs::SetDateTimeSearch(0);
    EXPECT_EQ(SearchFuncs::IsMatch(item), 1);
}

TEST_F(SearchFiles, TargetChoosesTheDateTime)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a.txt", "x");
    VyrTests::StampFile(path, VyrTests::ToFileTicks(Day(2020, 5, 6, 7, 8, 9)), VyrTests::ToFileTicks(Day(2021, 1, 1)));
    SearchFuncs::SetDateTimeFromDateTime(Day(2020, 5, 6, 7, 8, 9));
    SearchFuncs::SetDateTimeToDateTime(Day(2020, 5, 6, 7, 8, 9));
    SearchFuncs::SetDateTimeTarget(0);
    EXPECT_EQ(SearchFuncs::IsMatchDateTime(path), 1);
    SearchFuncs::SetDateTimeTarget(2);
    EXPECT_EQ(SearchFuncs::IsMatchDateTime(path), 0) << "a text tells no moment at which a picture was taken";
    for (const int target : {3, -1}) {
        SearchFuncs::SetDateTimeTarget(target);
        EXPECT_EQ(SearchFuncs::IsMatchDateTime(path), 0) << target;
    }
    SearchFuncs::SetDateTimeFromDateTime(COleDateTime());
    SearchFuncs::SetDateTimeToDateTime(COleDateTime());
    EXPECT_EQ(SearchFuncs::IsMatchDateTime(path), 1) << "any other target is the zero date-time";
}

TEST_F(SearchFiles, CreationTimeIsATarget)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a.txt", "x");
    if (!VyrTests::KeepsCreationTime(path))
        GTEST_SKIP() << "the creation time is not kept here (Wine drops it)";
    VyrTests::StampFile(path, VyrTests::ToFileTicks(Day(2020, 5, 6)), VyrTests::ToFileTicks(Day(2021, 1, 1)));
    SearchFuncs::SetDateTimeFromDateTime(Day(2001, 9, 1));
    SearchFuncs::SetDateTimeToDateTime(Day(2001, 9, 30));
    SearchFuncs::SetDateTimeTarget(1);
    EXPECT_EQ(SearchFuncs::IsMatchDateTime(path), 1);
    SearchFuncs::SetDateTimeTarget(0);
    EXPECT_EQ(SearchFuncs::IsMatchDateTime(path), 0);
}

TEST_F(SearchFiles, MomentOfThePictureIsATarget)
{
    const ScratchFolder scratch;
    VyrTests::PictureFacts facts;
    facts.dateTimeOriginal = "2019:03:04 05:06:07";
    const CString dated = scratch.WriteFile(u"a.jpg", VyrTests::BuildJpeg(facts));
    facts.dateTimeOriginal = "2019:13:04 05:06:07";
    const CString impossible = scratch.WriteFile(u"b.jpg", VyrTests::BuildJpeg(facts));
    SearchFuncs::SetDateTimeTarget(2);
    SearchFuncs::SetDateTimeFromDateTime(Day(2019, 3, 4, 5, 6, 7));
    SearchFuncs::SetDateTimeToDateTime(Day(2019, 3, 4, 5, 6, 7));
    EXPECT_EQ(SearchFuncs::IsMatchDateTime(dated), 1);
    EXPECT_EQ(SearchFuncs::IsMatchDateTime(impossible), 0);
    SearchFuncs::SetDateTimeSearch(1);
    EXPECT_EQ(SearchFuncs::IsMatch(dated, 0), 1);
    EXPECT_EQ(SearchFuncs::IsMatch(impossible, 0), 0);
    SearchFuncs::SetDateTimeTarget(0);
    EXPECT_EQ(SearchFuncs::IsMatch(dated, 0), 0) << "it was modified today";
}

TEST_F(SearchFiles, FolderHasASizeOnlyOnRequest)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"folder/a", "12345");
    scratch.WriteFile(u"folder/sub/b", "123");
    const CString folder = scratch.Path(u"folder");
    SearchFuncs::SetSizeFromSize(8);
    SearchFuncs::SetSizeToSize(8);
    SearchFuncs::SetSizeRange(0);
    EXPECT_EQ(SearchFuncs::IsMatchSize(folder, 1), 1);
    EXPECT_EQ(SearchFuncs::IsMatchSize(folder, -5), 1);
    EXPECT_EQ(SearchFuncs::IsMatchSize(folder, 0), 0);
    SearchFuncs::SetSizeRange(8);
    EXPECT_EQ(SearchFuncs::IsMatchSize(folder, 0), 1);
    EXPECT_EQ(SearchFuncs::IsMatchSize(folder, 1), 0);
    SearchFuncs::SetSizeSearch(1);
    EXPECT_EQ(SearchFuncs::IsMatch(folder, 1), 1) << "the whole match never computes the size of folders";
}

TEST_F(SearchFiles, EachFileIsToldToTheDebuggerInFivePieces)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a", std::string(1234, 'x'));
    SearchFuncs::SetSizeRange(2);
    const VyrTests::DebugCapture capture;
    EXPECT_EQ(SearchFuncs::IsMatchSize(path, 0), 1);
    EXPECT_EQ(capture.Texts(), (std::vector<CString>{u"FileSize: ", u"1.20 KB", u", FileSize: ", u"1,234", u"\r\n"}));
}

TEST_F(SearchFiles, NoLineIsWrittenForAFolder)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"folder/a", "12345");
    const VyrTests::DebugCapture capture;
    SearchFuncs::IsMatchSize(scratch.Path(u"folder"), 1);
    EXPECT_TRUE(capture.Texts().empty());
}

TEST_F(SearchFiles, NoLineIsWrittenForAGivenSize)
{
    const VyrTests::DebugCapture capture;
    SearchFuncs::IsMatchSize(std::int64_t{5});
    EXPECT_TRUE(capture.Texts().empty());
}

TEST_F(SearchCriteria, EachSettingIsReadBackAsItWasSet)
{
    SearchFuncs::SetSearchClosed(11);
    SearchFuncs::SetDateTimeSearch(12);
    SearchFuncs::SetDateTimeTarget(13);
    SearchFuncs::SetDateTimeRange(14);
    SearchFuncs::SetDateTimeFromDateTime(Day(2001, 2, 3));
    SearchFuncs::SetDateTimeToDateTime(WithStatus(Day(2004, 5, 6), COleDateTime::null));
    SearchFuncs::SetSizeSearch(15);
    SearchFuncs::SetSizeTarget(16);
    SearchFuncs::SetSizeRange(17);
    SearchFuncs::SetSizeFromSize(std::int64_t{1} << 40);
    SearchFuncs::SetSizeToSize(-(std::int64_t{1} << 41));
    EXPECT_EQ(SearchFuncs::GetSearchClosed(), 11);
    EXPECT_EQ(SearchFuncs::GetDateTimeSearch(), 12);
    EXPECT_EQ(SearchFuncs::GetDateTimeTarget(), 13);
    EXPECT_EQ(SearchFuncs::GetDateTimeRange(), 14);
    EXPECT_EQ(VyrTests::Describe(SearchFuncs::GetDateTimeFromDateTime()), "2001-02-03 00:00:00");
    EXPECT_EQ(VyrTests::Describe(SearchFuncs::GetDateTimeToDateTime()), "null");
    EXPECT_EQ(SearchFuncs::GetDateTimeToDateTime().m_dt, Day(2004, 5, 6).m_dt);
    EXPECT_EQ(SearchFuncs::GetSizeSearch(), 15);
    EXPECT_EQ(SearchFuncs::GetSizeTarget(), 16);
    EXPECT_EQ(SearchFuncs::GetSizeRange(), 17);
    EXPECT_EQ(SearchFuncs::GetSizeFromSize(), std::int64_t{1} << 40);
    EXPECT_EQ(SearchFuncs::GetSizeToSize(), -(std::int64_t{1} << 41));
}

TEST_F(SearchCriteria, SettingsThatAreTheHostsOwnChangeNoMatch)
{
    SearchFuncs::SetSearchClosed(1);
    SearchFuncs::SetSizeTarget(3);
    SearchFuncs::SetSizeSearch(1);
    SearchFuncs::SetSizeRange(1);
    SearchFuncs::ITEM item;
    item.size = 0;
    EXPECT_EQ(SearchFuncs::IsMatch(item), 1);
}
