// Damaged journals: each is refused, or gives exactly what was written.
#include <VyrHost/batch/JournalText.h>

#include <gtest/gtest.h>
#include <tests/VyrHost/batch/SampleJournal.h>
#include <tests/support/Describe.h>
#include <tests/support/ProcessMemory.h>

#include <algorithm>
#include <ctime>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using namespace VyrHost::Batch;
using namespace VyrTests;

std::vector<std::string> LinesOf(const std::string& text)
{
    std::vector<std::string> lines;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = text.find('\n', start) + 1;
        lines.push_back(text.substr(start, end - start));
        start = end;
    }
    return lines;
}

std::string Joined(const std::vector<std::string>& parts)
{
    std::string text;
    for (const std::string& part : parts)
        text += part;
    return text;
}

TEST(JournalDamage, IsNoticedWhereAnyBitIsFlipped)
{
    const std::string text = TextOf(MakeJournal());
    const Journal expected = MustRead(text);
    std::size_t harmless = 0;
    for (std::size_t bit = 0; bit < text.size() * 8; ++bit) {
        std::string damaged = text;
        damaged[bit / 8] = static_cast<char>(damaged[bit / 8] ^ (1 << bit % 8));
        if (IsRefused(damaged))
            continue;
        ++harmless;
        ExpectSame(MustRead(damaged), expected);
        EXPECT_EQ(MustRead(damaged).check, expected.check);
    }
    // Only the letters of the two checksums may be capitals instead of small.
    EXPECT_LE(harmless, 16u);
}

TEST(JournalDamage, OfACheckpointLeavesTheLastWholeOne)
{
    std::uint32_t check = 0;
    const Journal journal = MakeJournal();
    const std::string plan = TextOf(journal, check);
    const Checkpoint first = CheckpointAt({0, 3}, {1});
    Checkpoint last = CheckpointAt({0, 1, 2, 4});
    last.isBackward = true;
    last.wasStopped = true;
    last.foldersMade = {2};
    const std::string text = plan + WriteCheckpoint(first, check) + WriteCheckpoint(last, check);
    const std::size_t startOfLast = plan.size() + WriteCheckpoint(first, check).size();
    std::size_t lastOfAll = 0;
    for (std::size_t bit = plan.size() * 8; bit < text.size() * 8; ++bit) {
        std::string damaged = text;
        damaged[bit / 8] = static_cast<char>(damaged[bit / 8] ^ (1 << bit % 8));
        const Journal read = MustRead(damaged);
        ASSERT_TRUE(read.checkpoint) << bit;
        // With a damaged first checkpoint the last one still counts; with a damaged last one the first counts, unless
        // nothing was changed.
        const bool isLast = read.checkpoint->isBackward;
        EXPECT_TRUE(isLast || bit / 8 >= startOfLast) << bit;
        ExpectSame(read.checkpoint, isLast ? last : first);
        lastOfAll += isLast && bit / 8 >= startOfLast;
        const std::optional<CheckpointOutline> outline =
            ReadLastCheckpoint(FindCheckpoints(damaged), journal.plan.entries.size());
        ASSERT_TRUE(outline) << bit;
        EXPECT_EQ(outline->isBackward, isLast) << bit;
        EXPECT_EQ(outline->entriesBefore, read.checkpoint->entriesBefore.size()) << bit;
        EXPECT_EQ(outline->entriesTemporary, read.checkpoint->entriesTemporary.size()) << bit;
    }
    // The letters of its checksum, and the empty line before it.
    EXPECT_LE(lastOfAll, 16u);
}

TEST(JournalDamage, BehindTheEndOfThePlanAffectsOnlyTheCheckpoint)
{
    std::uint32_t check = 0;
    const std::string plan = TextOf(MakeJournal(), check);
    const std::string checkpoint = WriteCheckpoint(CheckpointAt({1}), check);
    const std::string zeros(5000, '\0');
    for (const std::string& garbage : {zeros, std::string("mark\n"), std::string(5000, '\n'), std::string("\xFF\xFE"),
                                       std::string("mark\tf\te\t0\t\t\t00000000\n"), plan}) {
        ExpectSame(MustRead(plan + checkpoint + garbage).checkpoint, CheckpointAt({1}));
        ExpectSame(MustRead(plan + garbage + checkpoint).checkpoint, CheckpointAt({1}));
        EXPECT_FALSE(MustRead(plan + garbage).checkpoint);
    }
}

TEST(JournalDamage, IsNoticedWhereTheTextIsCutOff)
{
    const std::string text = TextOf(MakeJournal());
    for (std::size_t length = 0; length < text.size(); ++length)
        EXPECT_TRUE(IsRefused(text.substr(0, length))) << length;
}

TEST(JournalDamage, IsNoticedWhereALineIsMissingOrTwice)
{
    const std::vector<std::string> lines = LinesOf(TextOf(MakeJournal()));
    for (std::size_t place = 0; place < lines.size(); ++place) {
        std::vector<std::string> damaged = lines;
        damaged.insert(damaged.begin() + static_cast<std::ptrdiff_t>(place), lines[place]);
        // Checkpoints follow the last line, and may be cut off.
        EXPECT_EQ(IsRefused(Joined(damaged)), place + 1 < lines.size()) << lines[place];
        damaged = lines;
        damaged.erase(damaged.begin() + static_cast<std::ptrdiff_t>(place));
        EXPECT_TRUE(IsRefused(Joined(damaged))) << lines[place];
    }
}

TEST(JournalDamage, IsNoticedWhereTwoLinesAreSwapped)
{
    const std::vector<std::string> lines = LinesOf(TextOf(MakeJournal()));
    ASSERT_EQ(std::count_if(lines.begin(), lines.end(), [](const auto& line) { return line.starts_with("rename\t"); }),
              5);
    for (std::size_t first = 0; first < lines.size(); ++first)
        for (std::size_t second = first + 1; second < lines.size(); ++second) {
            std::vector<std::string> damaged = lines;
            std::swap(damaged[first], damaged[second]);
            EXPECT_TRUE(IsRefused(Joined(damaged))) << lines[first] << lines[second];
        }
}

TEST(JournalDamage, IsNoticedWhereABlockDidNotReachTheDisk)
{
    std::vector<std::string> pieces;
    const Journal journal = LongJournal(20'000);
    WriteJournal(journal, [&pieces](std::string_view piece) { pieces.emplace_back(piece); });
    ASSERT_GT(pieces.size(), 4u);
    ExpectSame(MustRead(Joined(pieces)), journal);
    std::string before;
    for (std::size_t place = 0; place < pieces.size(); ++place) {
        ASSERT_FALSE(pieces[place].empty());
        for (const std::size_t more : {0u, 1u}) {
            const std::string cut = before + pieces[place].substr(0, more);
            EXPECT_TRUE(IsRefused(cut)) << place;
            CString problem;
            EXPECT_EQ(ReadHeading(cut, problem).has_value(), place > 0) << place;
        }
        std::vector<std::string> damaged = pieces;
        damaged[place].clear();
        EXPECT_TRUE(IsRefused(Joined(damaged))) << place;
        damaged[place].assign(pieces[place].size(), '\0');
        EXPECT_TRUE(IsRefused(Joined(damaged))) << place;
        damaged[place] = pieces[place] + pieces[place];
        // Behind the end of the plan there are only checkpoints.
        EXPECT_EQ(IsRefused(Joined(damaged)), place + 1 < pieces.size()) << place;
        damaged[place] = pieces[(place + 1) % pieces.size()];
        EXPECT_TRUE(IsRefused(Joined(damaged))) << place;
        before += pieces[place];
    }
}

/// Runs one test and tells whether it took little time and memory. Reading 2^32 things takes much of both.
class Modesty
{
public:
    ~Modesty()
    {
        EXPECT_LT(static_cast<double>(std::clock() - m_start) / CLOCKS_PER_SEC, 5.0);
        EXPECT_LT(PeakMemory() - m_memory, std::uint64_t{256} << 20);
    }

private:
    std::clock_t m_start = std::clock();
    std::uint64_t m_memory = PeakMemory();
};

std::string HeadingOf(const std::string& folders, const std::string& entries, const std::string& steps)
{
    return WithCheck("vyr-journal\t2\nbatch\t1\t2\t2024/05/06 07:08:09\t" + folders + "\t" + entries + "\t" + steps +
                     "\t/a\t/b");
}

TEST(JournalDamage, OfItsCountsIsNoticedAtOnceAndTakesLittleMemory)
{
    const std::string counts[] = {"0",          "1",          "1000000000",           "4294967294",
                                  "4294967295", "4294967296", "18446744073709551615", "99999999999999999999"};
    const Modesty modesty;
    for (const std::string& folders : counts)
        for (const std::string& entries : counts)
            for (const std::string& steps : counts) {
                if (folders.size() + entries.size() + steps.size() == 3)
                    continue;
                const std::string heading = HeadingOf(folders, entries, steps);
                for (const char* lines :
                     {"", "end", "folder\t-\to\t/\nend", "steps\tr0-4294967293\nend", "steps\tm0-4294967294\nend",
                      "folder\t-\to\t/\nentry\tf\t1\t2\t3\t4\t5\t0\ta\t0\tb\t-\t-\nsteps\tr0\nend"}) {
                    EXPECT_TRUE(IsRefused(heading + lines)) << heading << lines;
                    EXPECT_TRUE(IsRefused(WithCheck(heading + lines))) << heading << lines;
                }
            }
}

TEST(JournalDamage, OfACheckpointWithAValidChecksumIsNoticedAndTakesLittleMemory)
{
    std::uint32_t check = 0;
    const std::string plan = TextOf(MakeJournal(), check);
    const auto checkpointOf = [check](const std::string& fields) {
        const std::string line = "mark\tf\te\t" + fields;
        return line + CheckField(BitwiseCrc(check, line));
    };
    ExpectSame(MustRead(plan + checkpointOf("2-3\t4\t")).checkpoint, CheckpointAt({2, 3}, {4}));
    const Modesty modesty;
    for (const char* fields : {"0-4294967293\t\t", "\t0-4294967293\t", "\t\t0-4294967293", "0-4294967295\t\t",
                               "0-5\t\t", "5\t\t", "0-18446744073709551615\t\t", "3-2\t\t", "2,1\t\t", "-1\t\t",
                               "0-\t\t", "-\t\t", "\t\t1000", "x\t\t", "0\t\t\t", "0\t"}) {
        const std::string checkpoint = checkpointOf(fields);
        EXPECT_TRUE(IsRefused(plan + checkpoint)) << checkpoint;
        EXPECT_TRUE(IsRefused(plan + checkpointOf("2\t\t") + checkpoint)) << checkpoint;
    }
}

TEST(JournalDamage, OfCheckpointsBeforeTheLastIsIgnored)
{
    constexpr std::uint32_t count = 100'000;
    std::uint32_t check = 0;
    std::string text = TextOf(LongJournal(count), check);
    const auto checkpointOf = [check](const std::string& fields) {
        const std::string line = "mark\tf\te\t" + fields;
        return line + CheckField(BitwiseCrc(check, line));
    };
    text += checkpointOf("0-99999999\t\t");
    const std::string ofAll = checkpointOf("0-99999\t\t");
    for (std::uint32_t checkpoint = 0; checkpoint < count; ++checkpoint)
        text += ofAll;
    text += WriteCheckpoint(CheckpointAt({7}), check);
    const Modesty modesty;
    ExpectSame(MustRead(text).checkpoint, CheckpointAt({7}));
    const std::optional<CheckpointOutline> outline = ReadLastCheckpoint(FindCheckpoints(text), count);
    EXPECT_TRUE(outline && outline->entriesBefore == 1);
}

} // namespace
