// The ends of journals, which are read without what stands between them.
#include <VyrHost/batch/JournalFolder.h>

#include <gtest/gtest.h>
#include <tests/support/Describe.h>
#include <tests/support/ScratchFolder.h>

#include <string>

using namespace VyrHost::Batch;
using namespace VyrHost::Model;

namespace {

class JournalEnds : public testing::Test
{
protected:
    JournalEnds() { EXPECT_EQ(m_folder.Lock(), u""); }

    /// A journal whose heading and checkpoints are of these lengths at least.
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
