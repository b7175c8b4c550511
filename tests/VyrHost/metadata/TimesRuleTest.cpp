// New times of files: typed, from the file, and shifted.
#include <VyrHost/metadata/Times.h>

#include <VyrHost/text/Errors.h>
#include <VyrPlatform/text/Encoding.h>

#include <tests/support/Describe.h>
#include <tests/support/FileMoments.h>
#include <tests/support/PictureBuilder.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/TimeZone.h>

#include <gtest/gtest.h>

#include <iterator>
#include <string>

using namespace VyrHost::Metadata;
using namespace VyrTests;
using VyrHost::Text::UsageError;
using VyrPlatform::FileTicks;

namespace FileTimes = VyrPlatform::FileTimes;

namespace {

Amounts Step(const char16_t* text)
{
    return ParseAmounts(text, "--shift");
}

class Times : public testing::Test
{
protected:
    Times() { Stamp(COleDateTime(2020, 5, 6, 7, 8, 9), 1'234'567); }

    void Stamp(const COleDateTime& modified, FileTicks fraction = 0) const
    {
        StampFile(m_path, FileTimes::FromLocal(modified).value_or(0) + fraction,
                  FileTimes::FromLocal(COleDateTime(2021, 1, 2, 3, 4, 5)).value_or(0));
    }

    void Set(FileDate date, const char16_t* source)
    {
        m_settings.sources[static_cast<std::size_t>(date)] = ParseTimeSource(source, "--set-modified");
    }

    /// The result for the file as "old => new", or why there is none; then the change is applied and undone.
    std::string Propose(std::size_t index = 0) const
    {
        VyrHost::Model::Entry entry;
        entry.kind = VyrPlatform::FileSystem::Kind::File;
        entry.name = m_names.Intern(m_name);
        const Proposal proposal = TimesRule(m_settings).Propose(m_path, entry, index);
        if (!proposal.change)
            return VyrPlatform::Encoding::ToUtf8(proposal.refusal);
        ExpectRoundTrip(*proposal.change);
        return VyrPlatform::Encoding::ToUtf8(
            CString::Join({proposal.change->ShownBefore(), u" => ", proposal.change->ShownAfter()}));
    }

    /// The exact new time; 0, and the test fails, where not one time would be changed.
    FileTicks TimeProposed() const
    {
        VyrHost::Model::Entry entry;
        entry.name = m_names.Intern(m_name);
        const Proposal proposal = TimesRule(m_settings).Propose(m_path, entry, 0);
        const auto* const change = dynamic_cast<const TimesChange*>(proposal.change.get());
        if (change && change->Steps().size() == 1)
            return change->Steps().front().after;
        ADD_FAILURE() << VyrPlatform::Encoding::ToUtf8(proposal.refusal);
        return 0;
    }

    Proposal ProposeModifiedAndAccessed(const char16_t* typed)
    {
        Set(FileDate::Modified, typed);
        Set(FileDate::Accessed, typed);
        return TimesRule(m_settings).Propose(m_path, VyrHost::Model::Entry(), 0);
    }

    void ExpectRoundTrip(const VyrHost::Model::Change& change) const
    {
        using VyrHost::Model::ChangeState;
        const auto again = TimesChange::Read(change.Before(), change.After());
        ASSERT_TRUE(again);
        EXPECT_EQ(again->Before(), change.Before());
        EXPECT_EQ(again->After(), change.After());
        const auto before = FileTimes::GetModified(m_path);
        EXPECT_EQ(again->Look(m_path).state, ChangeState::Before);
        EXPECT_EQ(again->Apply(m_path), 0U);
        EXPECT_EQ(again->Look(m_path).state, ChangeState::After);
        EXPECT_EQ(again->Undo(m_path), 0U);
        EXPECT_EQ(again->Look(m_path).state, ChangeState::Before);
        EXPECT_EQ(FileTimes::GetModified(m_path), before);
    }

    ScratchFolder m_folder;
    CString m_name = u"a.txt";
    CString m_path = m_folder.WriteFile(u"a.txt", "x");
    TimesSettings m_settings;
    mutable VyrHost::Model::NamePool m_names;
};

} // namespace

TEST_F(Times, TypedTimeIsSet)
{
    Set(FileDate::Modified, u"2024-01-05 10:30");
    EXPECT_EQ(Propose(), "modified 2020-05-06 07:08:09 => modified 2024-01-05 10:30:00");
}

TEST_F(Times, OtherPartOfADateOrATimeIsThatOfTheFile)
{
    Set(FileDate::Modified, u"2024-01-05");
    EXPECT_EQ(Propose(), "modified 2020-05-06 07:08:09 => modified 2024-01-05 07:08:09");
    Set(FileDate::Modified, u"10:30");
    EXPECT_EQ(Propose(), "modified 2020-05-06 07:08:09 => modified 2020-05-06 10:30:00");
    m_settings = {};
    Set(FileDate::Accessed, u"10:30");
    EXPECT_EQ(Propose(), "accessed 2021-01-02 03:04:05 => accessed 2021-01-02 10:30:00");
}

TEST_F(Times, TimeOfDayOfTheFileIsKeptWithItsFraction)
{
    const FileTicks fraction = FileTimes::GetModified(m_path).value_or(0) % 10'000'000;
    ASSERT_NE(fraction, 0);
    Set(FileDate::Modified, u"2022-02-02");
    EXPECT_EQ(TimeProposed(), *FileTimes::FromLocal(COleDateTime(2022, 2, 2, 7, 8, 9)) + fraction);
    m_name = u"IMG-20240105-WA0001.jpg";
    Set(FileDate::Modified, u"from:name");
    EXPECT_EQ(TimeProposed(), *FileTimes::FromLocal(COleDateTime(2024, 1, 5, 7, 8, 9)) + fraction);
    Set(FileDate::Modified, u"10:30");
    EXPECT_EQ(TimeProposed(), *FileTimes::FromLocal(COleDateTime(2020, 5, 6, 10, 30, 0)));
}

TEST_F(Times, AnotherTimeOfTheFileIsTakenWithItsFraction)
{
    Set(FileDate::Accessed, u"from:modified");
    EXPECT_EQ(Propose(), "accessed 2021-01-02 03:04:05 => accessed 2020-05-06 07:08:09");
    EXPECT_EQ(TimeProposed(), FileTimes::GetModified(m_path));
}

TEST_F(Times, FileThatHasTheTimeAlreadyIsUnchanged)
{
    Set(FileDate::Modified, u"from:modified");
    EXPECT_EQ(Propose(), "");
}

TEST_F(Times, DateInTheNameIsTaken)
{
    Set(FileDate::Modified, u"from:name");
    EXPECT_EQ(Propose(), "its name holds no date");
    m_name = u"IMG_20240105_103000.jpg";
    EXPECT_EQ(Propose(), "modified 2020-05-06 07:08:09 => modified 2024-01-05 10:30:00");
    m_name = u"IMG-20240105-WA0001.jpg";
    EXPECT_EQ(Propose(), "modified 2020-05-06 07:08:09 => modified 2024-01-05 07:08:09");
    m_name = u"2024-02-30.jpg";
    EXPECT_EQ(Propose(), "the date in its name does not exist");
    m_name = u"IMG_20240105_253000.jpg";
    EXPECT_EQ(Propose(), "the time in its name does not exist");
}

TEST_F(Times, MomentOfThePictureIsTaken)
{
    Set(FileDate::Modified, u"from:picture");
    EXPECT_EQ(Propose(), "it does not say when a picture was taken");
    PictureFacts facts;
    facts.dateTimeOriginal = "2019:03:04 05:06:07";
    m_path = m_folder.WriteFile(u"b.jpg", BuildJpeg(facts));
    Stamp(COleDateTime(2020, 5, 6, 7, 8, 9));
    EXPECT_EQ(Propose(), "modified 2020-05-06 07:08:09 => modified 2019-03-04 05:06:07");
}

TEST_F(Times, ShiftAppliesToTheLastChangeByDefault)
{
    m_settings.shift = Step(u"1h30m");
    EXPECT_EQ(Propose(), "modified 2020-05-06 07:08:09 => modified 2020-05-06 08:38:09");
    m_settings.shift = Step(u"-1y2mo3d4h5m6s");
    EXPECT_EQ(Propose(), "modified 2020-05-06 07:08:09 => modified 2019-03-03 03:03:03");
    Set(FileDate::Accessed, u"from:accessed");
    m_settings.shift = Step(u"+1d");
    EXPECT_EQ(Propose(), "accessed 2021-01-02 03:04:05 => accessed 2021-01-03 03:04:05");
}

TEST_F(Times, StepsCountByTheIndexInTheList)
{
    Set(FileDate::Modified, u"2024-01-31 23:59:00");
    m_settings.stagger = Step(u"1m");
    EXPECT_EQ(Propose(0), "modified 2020-05-06 07:08:09 => modified 2024-01-31 23:59:00");
    EXPECT_EQ(Propose(3), "modified 2020-05-06 07:08:09 => modified 2024-02-01 00:02:00");
    m_settings.start = COleDateTime(2000, 1, 1, 0, 0, 0);
    m_settings.shift = Step(u"1d");
    EXPECT_EQ(Propose(2), "modified 2020-05-06 07:08:09 => modified 2000-01-02 00:02:00");
}

TEST_F(Times, TimesOutOfTheCalendarAreRefused)
{
    const std::string refusal = "the new time is outside the calendar's range";
    for (const char16_t* const shift : {u"9000y", u"9000y1h", u"-700y", u"-700y1s"}) {
        m_settings.shift = Step(shift);
        EXPECT_EQ(Propose(), refusal) << VyrPlatform::Encoding::ToUtf8(shift);
    }
    m_settings.shift = Step(u"-500y");
    EXPECT_EQ(Propose(), "a file's time begins in 1601");
    m_settings = {};
    m_settings.stagger = Step(u"1000000s");
    EXPECT_EQ(Propose(1'000'000), refusal) << "no number wraps";
    m_settings.stagger = Step(u"1000000h");
    EXPECT_EQ(Propose(100), refusal);
}

TEST_F(Times, TypedTimesAreLocalInSummerAndInWinter)
{
    for (const char* const name : {"Europe/Berlin", "America/New_York", "Australia/Lord_Howe"}) {
        const TimeZone zone(name);
        if (!zone.IsSet())
            GTEST_SKIP() << zone.WhyNot();
        for (const char16_t* const typed : {u"2024-01-15 12:00:01", u"2024-07-15 12:00:01", u"1990-07-15 23:59:59"}) {
            m_settings = {};
            Set(FileDate::Modified, typed);
            VyrHost::Model::Entry entry;
            const Proposal proposal = TimesRule(m_settings).Propose(m_path, entry, 0);
            ASSERT_TRUE(proposal.change);
            EXPECT_EQ(proposal.change->Apply(m_path), 0U);
            const auto ticks = FileTimes::GetModified(m_path);
            ASSERT_TRUE(ticks);
            EXPECT_EQ(Shown(*ticks), typed) << name;
            EXPECT_EQ(proposal.change->Undo(m_path), 0U);
        }
    }
}

TEST(TimesTexts, OldTimesAreShifted)
{
    const COleDateTime old(1850, 2, 1, 12, 0, 0);
    EXPECT_EQ(Shown(Shifted(old, Step(u"-1d1s")).value_or(COleDateTime())), u"1850-01-31 11:59:59");
    EXPECT_EQ(Shown(Shifted(old, Step(u"100y")).value_or(COleDateTime())), u"1950-02-01 12:00:00");
}

TEST_F(Times, HourThatClocksSkipIsRefused)
{
    const TimeZone zone("Europe/Berlin");
    if (!zone.IsSet())
        GTEST_SKIP() << zone.WhyNot();
    Stamp(COleDateTime(2020, 5, 6, 7, 8, 9));
    Set(FileDate::Modified, u"2024-03-31 02:30");
    EXPECT_EQ(Propose(), "clocks leave 2024-03-31 02:30:00 out");
    Set(FileDate::Modified, u"2024-03-30 02:30");
    m_settings.shift = Step(u"1d");
    EXPECT_EQ(Propose(), "clocks leave 2024-03-31 02:30:00 out");
    Set(FileDate::Modified, u"2024-03-31 01:30");
    m_settings.shift = Step(u"1h");
    EXPECT_EQ(Propose(), "clocks leave 2024-03-31 02:30:00 out");
    m_settings.shift = Step(u"2h");
    EXPECT_EQ(Propose(), "modified 2020-05-06 07:08:09 => modified 2024-03-31 03:30:00");
}

TEST_F(Times, ShiftAndStepsPassThroughTimesThatClocksSkip)
{
    const TimeZone zone("Europe/Berlin");
    if (!zone.IsSet())
        GTEST_SKIP() << zone.WhyNot();
    const std::string old = "modified 2020-05-06 07:08:09 => modified ";
    Stamp(COleDateTime(2020, 5, 6, 7, 8, 9));
    Set(FileDate::Modified, u"2024-03-31 01:30");
    m_settings.shift = Step(u"1y1h");
    EXPECT_EQ(Propose(), old + "2025-03-31 02:30:00") << "the hour alone would be skipped";
    m_settings.shift.reset();
    m_settings.start = COleDateTime(2024, 3, 31, 1, 0, 0);
    m_settings.stagger = Step(u"30m");
    const std::string expected[] = {old + "2024-03-31 01:00:00",
                                    old + "2024-03-31 01:30:00",
                                    "clocks leave 2024-03-31 02:00:00 out",
                                    "clocks leave 2024-03-31 02:30:00 out",
                                    old + "2024-03-31 03:00:00",
                                    old + "2024-03-31 03:30:00",
                                    old + "2024-03-31 04:00:00"};
    for (std::size_t index = 0; index < std::size(expected); ++index)
        EXPECT_EQ(Propose(index), expected[index]) << index;
}

TEST_F(Times, HourThatExistsTwiceKeepsTheOffsetOfTheFile)
{
    const TimeZone zone("Europe/Berlin");
    if (!zone.IsSet())
        GTEST_SKIP() << zone.WhyNot();
    constexpr FileTicks second = 10'000'000;
    constexpr FileTicks hour = 3600 * second;
    constexpr FileTicks summer = TicksOfUnixTime(1'729'989'000, 1'234'567); // 2024-10-27 00:30 UTC, 02:30 there
    constexpr FileTicks winter = summer + hour;
    const struct
    {
        const char16_t* shift;
        FileTicks before;
        FileTicks after;
    } shifts[] = {
        {u"1s", summer, summer + second},     {u"1s", winter, winter + second},
        {u"-30m", winter, winter - hour / 2}, {u"-1h", winter + hour, winter},
        {u"1h", summer - hour, summer},       {u"1h", summer, winter + hour}, // counted on the clock
        {u"-1h", winter, summer - hour},                                      // likewise
        {u"-1d", winter, winter - 25 * hour}, {u"-1d", winter + 24 * hour, winter},
    };
    for (const auto& [shift, before, after] : shifts) {
        m_settings.shift = Step(shift);
        StampFile(m_path, before, before);
        EXPECT_EQ(TimeProposed(), after) << VyrPlatform::Encoding::ToUtf8(shift);
    }
    m_settings.shift.reset();
    StampFile(m_path, winter, winter);
    Set(FileDate::Modified, u"2024-10-27");
    EXPECT_EQ(Propose(), "") << "the file has that date";
    Set(FileDate::Modified, u"2024-10-27 02:30:00");
    EXPECT_EQ(TimeProposed(), summer - 1'234'567) << "the first of both, as nothing tells which";
}

TEST_F(Times, MissingFileIsRefusedWithTheSystemsReason)
{
    m_path = m_folder.Path(u"missing");
    Set(FileDate::Modified, u"2024-01-05 10:30");
    EXPECT_NE(Propose(), "");
}

TEST_F(Times, TimesSetByAnotherProgramAreNotUndone)
{
    using VyrHost::Model::ChangeState;
    const Proposal proposal = ProposeModifiedAndAccessed(u"2024-01-05 10:30");
    ASSERT_TRUE(proposal.change);
    const FileTicks before = FileTimes::GetModified(m_path).value_or(0);
    const FileTicks after = FileTimes::FromLocal(COleDateTime(2024, 1, 5, 10, 30, 0)).value_or(0);
    const FileTicks accessed = FileTimes::GetAccessed(m_path).value_or(0);
    EXPECT_EQ(proposal.change->Look(m_path).state, ChangeState::Before);
    StampFile(m_path, after, accessed);
    EXPECT_EQ(proposal.change->Look(m_path).state, ChangeState::Partly);
    EXPECT_EQ(proposal.change->Undo(m_path), 0U);
    EXPECT_EQ(FileTimes::GetModified(m_path), before);
    StampFile(m_path, after + 100 * FileTicks{10'000'000}, accessed);
    EXPECT_EQ(proposal.change->Look(m_path).state, ChangeState::Other);
    StampFile(m_path, after + FileTicks{19'000'000}, after);
    EXPECT_EQ(proposal.change->Look(m_path).state, ChangeState::Other) << "also less than two seconds later";
}

TEST_F(Times, TimeIsTheOneThatWasSetAlsoWhereTheFileSystemCountsInLargerSteps)
{
    using VyrHost::Model::ChangeState;
    constexpr FileTicks second = 10'000'000;
    const FileTicks whole = FileTimes::FromLocal(COleDateTime(2024, 1, 5, 10, 30, 0)).value_or(0);
    const FileTicks set = whole + second + 1'234'567;
    VyrHost::Metadata::TimesChange change(
        std::vector<VyrHost::Metadata::TimeStep>{{FileDate::Modified, whole - second * 100, u"0.000000000", set}});
    // Microseconds, hundredths of a second, seconds, pairs of seconds; the next below and the next above.
    for (const FileTicks stored :
         {set - 7, set + 3, set - 34'567, set + 65'433, whole + second, whole + 2 * second, whole}) {
        StampFile(m_path, stored, stored);
        EXPECT_EQ(change.Look(m_path).state, ChangeState::After) << stored - set;
    }
    for (const FileTicks stored : {set - 1, set + 10'000, whole + second / 2, whole - second, whole + 3 * second}) {
        StampFile(m_path, stored, stored);
        EXPECT_EQ(change.Look(m_path).state, ChangeState::Other) << stored - set;
    }
}

TEST_F(Times, AccessSinceTheyWereSetKeepsNoOtherTimeFromUndo)
{
    using VyrHost::Model::ChangeState;
    const Proposal proposal = ProposeModifiedAndAccessed(u"2024-01-05 10:30");
    ASSERT_TRUE(proposal.change);
    const FileTicks before = FileTimes::GetModified(m_path).value_or(0);
    ASSERT_EQ(proposal.change->Apply(m_path), 0U);
    const FileTicks after = FileTimes::GetModified(m_path).value_or(0);
    const FileTicks accessed = after + 100 * FileTicks{10'000'000};
    StampFile(m_path, after, accessed);
    EXPECT_EQ(proposal.change->Look(m_path).state, ChangeState::After);
    EXPECT_EQ(proposal.change->Look(m_path).left, u"the time of the last access, which has changed since, stays");
    EXPECT_EQ(proposal.change->Undo(m_path), 0U);
    EXPECT_EQ(FileTimes::GetModified(m_path), before);
    EXPECT_EQ(FileTimes::GetAccessed(m_path), accessed);
}

TEST(TimesTexts, SourcesAreReadOrRefused)
{
    EXPECT_EQ(ParseTimeSource(u"from:picture", "--set-created").kind, TimeSource::Kind::Picture);
    for (const char16_t* const text : {u"", u"from:", u"from:Modified", u"yesterday", u"2024-02-30", u"24:00"})
        EXPECT_THROW(static_cast<void>(ParseTimeSource(text, "--set-created")), UsageError);
}

TEST(TimesTexts, AmountsAreReadOrRefused)
{
    EXPECT_EQ(ParseAmounts(u"1y2mo3d4h5m6s", "--shift"), (Amounts{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(ParseAmounts(u"-6mo 1d", "--shift"), (Amounts{0, -6, -1, 0, 0, 0}));
    EXPECT_EQ(ParseAmounts(u"+90s", "--shift"), (Amounts{0, 0, 0, 0, 0, 90}));
    for (const char16_t* const text :
         {u"", u"-", u"1", u"h", u"1x", u"1h1h", u"0s", u"1h ", u"--1h", u"1.5h", u"9999999999s", u"1h-1m"})
        EXPECT_THROW(static_cast<void>(ParseAmounts(text, "--shift")), UsageError)
            << VyrPlatform::Encoding::ToUtf8(text);
}

TEST(TimesTexts, WrongJournalTextsAreRefused)
{
    const CString before = u"modified 132331234567890000 1588741689.123";
    const CString after = u"modified 132331234567890001";
    EXPECT_TRUE(TimesChange::Read(before, after));
    for (const char16_t* const text :
         {u"", u"modified", u"modified 1", u"modified x 1", u"taken 1 1", u";", u"modified 1 1;modified 1 1"})
        EXPECT_FALSE(TimesChange::Read(text, after)) << VyrPlatform::Encoding::ToUtf8(text);
    for (const char16_t* const text : {u"", u"modified", u"created 5", u"modified 0", u"modified -1", u"modified 1 1"})
        EXPECT_FALSE(TimesChange::Read(before, text)) << VyrPlatform::Encoding::ToUtf8(text);
}
