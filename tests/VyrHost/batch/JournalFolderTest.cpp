// Reading only the beginning and the end of journals; keeping and locking them.
#include <VyrHost/batch/JournalFolder.h>

#include <gtest/gtest.h>
#include <tests/support/Describe.h>
#include <tests/support/ScratchFolder.h>

#include <VyrPlatform/files/FileTimes.h>
#include <VyrPlatform/time/Clock.h>

#include <memory>
#include <string>
#include <vector>

using namespace VyrHost::Batch;
using namespace VyrHost::Model;

namespace {

class JournalEnds : public testing::Test
{
protected:
    JournalEnds() { EXPECT_EQ(m_folder.Lock(), u""); }

    /// A journal whose heading and checkpoints have at least these lengths.
    JournalFile Begin(int headingLength, PlanIndex checkpointRanges)
    {
        Journal journal;
        journal.heading.entries = 2 * checkpointRanges;
        journal.heading.firstFrom = CString(u'x', headingLength);
        journal.plan.entries.resize(2 * checkpointRanges);
        journal.states.resize(2 * checkpointRanges);
        JournalFile file;
        EXPECT_EQ(m_folder.Begin(journal, file), 0u);
        Checkpoint checkpoint;
        for (PlanIndex range = 0; range < checkpointRanges; ++range)
            checkpoint.entriesBefore.push_back(2 * range);
        EXPECT_EQ(m_folder.Append(file, WriteCheckpoint(Checkpoint(), journal.check)), 0u);
        EXPECT_EQ(m_folder.Append(file, WriteCheckpoint(checkpoint, journal.check)), 0u);
        return file;
    }

    const VyrTests::ScratchFolder m_scratch;
    JournalFolder m_folder{SystemFiles(), m_scratch.Path(u"journal")};
};

} // namespace

TEST_F(JournalEnds, AreReadWhateverTheirLengths)
{
    for (const int headingLength : {0, 3000, 4096, 20'000, 100'000})
        for (const PlanIndex checkpointRanges : {0u, 1u, 2000u, 30'000u}) {
            const JournalFile file = Begin(headingLength, checkpointRanges);
            std::uint32_t error = 1;
            const std::optional<std::string> beginning = m_folder.ReadBeginning(file, error);
            ASSERT_TRUE(beginning);
            EXPECT_EQ(error, 0u);
            CString problem;
            const std::optional<JournalHeading> heading = ReadHeading(*beginning, problem);
            ASSERT_TRUE(heading) << headingLength;
            EXPECT_EQ(heading->firstFrom.GetLength(), headingLength);
            const std::optional<CheckpointOutline> checkpoint =
                ReadLastCheckpoint(m_folder.ReadCheckpoints(file), 2 * checkpointRanges);
            ASSERT_TRUE(checkpoint) << checkpointRanges;
            EXPECT_EQ(checkpoint->entriesBefore, checkpointRanges);
        }
}

TEST_F(JournalEnds, AreAShortPartOfALongJournal)
{
    const JournalFile file = Begin(100, 30'000);
    std::uint32_t error = 0;
    const std::string whole = m_folder.Read(file, error).value_or("");
    EXPECT_GT(whole.size(), 1'000'000u);
    EXPECT_LT(m_folder.ReadBeginning(file, error).value_or(whole).size(), 10'000u);
    EXPECT_LT(m_folder.ReadCheckpoints(file).size(), whole.size() / 4);
}

TEST_F(JournalEnds, AreEmptyWhereThereIsNoJournal)
{
    JournalFile file;
    file.path = m_scratch.Path(u"missing");
    std::uint32_t error = 0;
    EXPECT_EQ(m_folder.ReadBeginning(file, error), std::nullopt);
    EXPECT_NE(error, 0u);
    EXPECT_EQ(m_folder.ReadCheckpoints(file), "");
}

namespace {

/// A folder of journals with limits of how many are kept, and how long.
class JournalKept : public testing::Test
{
protected:
    void Begin(BatchPhase phase, const JournalKeeping& keeping) const
    {
        JournalFolder folder(SystemFiles(), m_scratch.Path(u"journal"), keeping);
        ASSERT_EQ(folder.Lock(), u"");
        Journal journal;
        JournalFile file;
        ASSERT_EQ(folder.Begin(journal, file), 0u);
        ASSERT_EQ(folder.SetPhase(file, phase), 0u);
    }

    /// Sets the time of the last work on a batch to `days` ago.
    void Age(std::uint32_t number, int days) const
    {
        constexpr VyrPlatform::FileTicks ticksPerDay = VyrPlatform::FileTicks{24} * 60 * 60 * 10'000'000;
        const auto now = VyrPlatform::FileTimes::FromLocal(VyrPlatform::Clock::Now());
        for (const JournalFile& file : JournalFolder(SystemFiles(), m_scratch.Path(u"journal")).List())
            if (file.number == number) {
                ASSERT_EQ(VyrPlatform::FileTimes::SetModified(file.path, now.value_or(0) - days * ticksPerDay), 0u);
            }
    }

    [[nodiscard]] std::vector<std::uint32_t> Numbers() const
    {
        std::vector<std::uint32_t> numbers;
        for (const JournalFile& file : JournalFolder(SystemFiles(), m_scratch.Path(u"journal")).List())
            numbers.push_back(file.number);
        return numbers;
    }

    const VyrTests::ScratchFolder m_scratch;
};

} // namespace

TEST_F(JournalKept, AreTheLatest)
{
    for (int round = 0; round < 6; ++round)
        Begin(round % 2 ? BatchPhase::Applied : BatchPhase::Undone, {.batches = 3, .days = 90});
    EXPECT_EQ(Numbers(), (std::vector<std::uint32_t>{4, 5, 6}));
}

TEST_F(JournalKept, AreTheLastTwoHundredOfNinetyDaysByDefault)
{
    EXPECT_EQ(JournalKeeping().batches, 200u);
    EXPECT_EQ(JournalKeeping().days, 90);
    for (int round = 0; round < 3; ++round)
        Begin(BatchPhase::Applied, {});
    Age(1, 91);
    Age(2, 89);
    Begin(BatchPhase::Applied, {});
    EXPECT_EQ(Numbers(), (std::vector<std::uint32_t>{2, 3, 4}));
}

TEST_F(JournalKept, AreThoseOfTheLastDays)
{
    for (int round = 0; round < 4; ++round)
        Begin(BatchPhase::Applied, {});
    Age(1, 91);
    Age(2, 29);
    Age(3, 31);
    Begin(BatchPhase::Applied, {.batches = 200, .days = 30});
    EXPECT_EQ(Numbers(), (std::vector<std::uint32_t>{2, 4, 5}));
}

TEST_F(JournalKept, AreUnfinishedOnesOfAnyAge)
{
    Begin(BatchPhase::Applying, {});
    Begin(BatchPhase::Undoing, {});
    Begin(BatchPhase::Applied, {});
    for (const std::uint32_t number : {1u, 2u, 3u})
        Age(number, 1000);
    Begin(BatchPhase::Applied, {.batches = 1, .days = 1});
    EXPECT_EQ(Numbers(), (std::vector<std::uint32_t>{1, 2, 4}));
}

TEST(JournalLock, IsTakenWhenTheOtherProgramReleasesIt)
{
    const VyrTests::ScratchFolder scratch;
    auto other = std::make_unique<JournalFolder>(SystemFiles(), scratch.Path(u"journal"));
    ASSERT_EQ(other->Lock(), u"");
    JournalFolder folder(SystemFiles(), scratch.Path(u"journal"));
    int waits = 0;
    EXPECT_EQ(folder.Lock([&] {
        if (++waits == 3)
            other.reset();
        return true;
    }),
              u"");
    EXPECT_EQ(waits, 3);
}

TEST(JournalLock, FailsWhenTheWaitEnds)
{
    const VyrTests::ScratchFolder scratch;
    JournalFolder other(SystemFiles(), scratch.Path(u"journal"));
    ASSERT_EQ(other.Lock(), u"");
    JournalFolder folder(SystemFiles(), scratch.Path(u"journal"));
    int waits = 0;
    EXPECT_EQ(folder.Lock([&waits] { return ++waits < 3; }), u"another vyr is still at work; try again later");
    EXPECT_EQ(waits, 3);
    EXPECT_EQ(folder.Lock(), u"another vyr is still at work; try again later");
}
