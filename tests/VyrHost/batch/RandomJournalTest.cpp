// Journals of random batches with names of all kinds are read back as they were written.
#include <VyrHost/batch/JournalText.h>

#include <VyrHost/model/RenamePlan.h>
#include <VyrHost/rename/Planner.h>

#include <VyrPlatform/files/FileSystem.h>

#include <gtest/gtest.h>
#include <tests/VyrHost/batch/SampleJournal.h>
#include <tests/support/Describe.h>

#include <algorithm>
#include <limits>
#include <optional>
#include <random>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace {

using namespace VyrHost::Batch;
using namespace VyrHost::Model;
using namespace VyrHost::Rename;
using namespace VyrTests;
using VyrHostPlatform::NameFolding;
using VyrPlatform::FileState;
using VyrPlatform::FileSystem::Kind;

/// A random tree, its renames (alone, in chains and in cycles, with new folders), file states, and checkpoints.
class RandomBatch
{
public:
    explicit RandomBatch(unsigned seed) : m_random(seed) {}

    Journal Make()
    {
        Grow();
        PathRenames list = Rename();
        const NameFolding folding = Chance(2) ? NameFolding::None : NameFolding::CaseAndForm;
        Journal journal;
        journal.plan = PlanRenames(list, [folding](const CString&) { return folding; }).plan;
        journal.heading = {.number = static_cast<std::uint32_t>(Number()),
                           .token = Number(),
                           .started = u"1999/12/31 23:59:59",
                           .command = u"rename",
                           .folder = u"/a\tb",
                           .entries = journal.plan.entries.size(),
                           .firstFrom = list.renames.front().from,
                           .firstTo = list.renames.front().to};
        for (const PlanEntry& entry : journal.plan.entries)
            journal.states.push_back(State(entry.kind));
        return journal;
    }

    Checkpoint MakeCheckpoint(const RenamePlan& plan)
    {
        Checkpoint checkpoint;
        checkpoint.isBackward = Chance(2);
        checkpoint.wasStopped = Chance(2);
        for (PlanIndex entry = 0; entry < plan.entries.size(); ++entry) {
            const std::size_t where = Below(3);
            if (where < 2)
                (where == 0 ? checkpoint.entriesBefore : checkpoint.entriesTemporary).push_back(entry);
        }
        for (PlanIndex folder = 0; folder < plan.folders.size(); ++folder)
            if (plan.folders[folder].isNew && Chance(2))
                checkpoint.foldersMade.push_back(folder);
        return checkpoint;
    }

    [[nodiscard]] std::size_t Below(std::size_t bound) { return m_random() % bound; }
    [[nodiscard]] bool Chance(std::size_t oneIn) { return Below(oneIn) == 0; }

private:
    struct Item
    {
        CString path;
        Kind kind;
    };

    [[nodiscard]] std::uint64_t Number() { return Chance(4) ? ~std::uint64_t{0} : m_random() >> Below(64); }

    [[nodiscard]] CString Name()
    {
        constexpr char16_t units[] = {u'a',   u'b',   u'A',   u'.',   u' ',   u'~',   u'\\',  u'u',   u'\t',
                                      u'\n',  u'\r',  0x01,   0x1F,   0x7F,   0x85,   0xE9,   0x301,  0x2028,
                                      0xD800, 0xDBFF, 0xDC00, 0xDFFF, 0xD83D, 0xDE00, 0xFEFF, 0xFFFE, 0xFFFF};
        CString name;
        for (std::size_t length = 1 + Below(6); length > 0;) {
            const char16_t unit = units[Below(std::size(units))];
            if (VyrPlatform::FileSystem::IsSeparator(unit))
                continue;
            name += unit;
            --length;
        }
        return name == u"." || name == u".." ? name + u"x" : name;
    }
    [[nodiscard]] CString FreePath(const std::vector<CString>& folders)
    {
        while (true) {
            const CString& folder = folders[Below(folders.size())];
            CString path = folder.IsEmpty() ? Full(Name()) : In(folder, Name());
            if (m_taken.insert(path).second)
                return path;
        }
    }

    void Grow()
    {
        for (std::size_t count = 1 + Below(30); count > 0; --count) {
            m_items.push_back({FreePath(m_folders), Chance(4) ? Kind::Folder : Chance(8) ? Kind::Other : Kind::File});
            if (m_items.back().kind == Kind::Folder)
                m_folders.push_back(m_items.back().path);
        }
        std::shuffle(m_items.begin(), m_items.end(), m_random);
    }

    PathRenames Rename()
    {
        PathRenames list;
        std::vector<CString> folders = m_folders;
        for (std::size_t count = Below(3); count > 0; --count) {
            list.newFolders.push_back(FreePath(folders));
            folders.push_back(list.newFolders.back());
        }
        for (std::size_t start = 0; start < m_items.size();) {
            const std::size_t end = std::min(m_items.size(), start + 1 + Below(5));
            // The last goes to a free path, or to the old path of the first.
            const CString last = end - start == 1 || Chance(2) ? FreePath(folders) : m_items[start].path;
            for (std::size_t item = start; item < end; ++item)
                list.Add(m_items[item].path, item + 1 < end ? m_items[item + 1].path : last, m_items[item].kind);
            start = end;
        }
        return list;
    }

    [[nodiscard]] FileState State(Kind kind)
    {
        FileState state;
        state.kind = Chance(5) ? Kind::Missing : kind;
        state.identity = {Number(), Number()};
        state.size = static_cast<std::int64_t>(Number() >> 1);
        state.modified = Chance(8) ? std::numeric_limits<std::int64_t>::min() : static_cast<std::int64_t>(Number());
        state.links = static_cast<std::uint32_t>(Number());
        return state;
    }

    std::mt19937_64 m_random;
    std::vector<CString> m_folders{u""};
    std::vector<Item> m_items;
    std::set<CString> m_taken;
};

/// Counts how much of what a plan can hold occurred in the batches.
struct Seen
{
    std::size_t entries = 0;
    std::size_t aside = 0;
    std::size_t newFolders = 0;
    std::size_t renamedFolders = 0;
    std::size_t waiting = 0;

    void Count(const RenamePlan& plan)
    {
        entries += plan.entries.size();
        for (const PlanStep& step : plan.steps)
            aside += step.action == PlanStep::Action::UseTemporaryName;
        for (const PlanFolder& folder : plan.folders) {
            newFolders += folder.isNew;
            renamedFolders += folder.entry != none;
        }
        for (const PlanEntry& entry : plan.entries)
            waiting += entry.waitsFor != none;
    }
};

TEST(RandomJournal, IsReadBackAsItWasWritten)
{
    Seen seen;
    for (unsigned seed = 0; seed < 3000 && !HasFailure(); ++seed) {
        RandomBatch batch(seed);
        const Journal journal = batch.Make();
        ASSERT_EQ(FindPlanFault(journal.plan), u"") << seed;
        seen.Count(journal.plan);
        std::uint32_t check = 0;
        const std::string plan = TextOf(journal, check);
        std::string text = plan;
        std::optional<Checkpoint> checkpoint;
        for (std::size_t count = batch.Below(4); count > 0; --count) {
            checkpoint = batch.MakeCheckpoint(journal.plan);
            text += WriteCheckpoint(*checkpoint, check);
        }
        const Journal read = MustRead(text);
        SCOPED_TRACE(text);
        ExpectSame(read, journal);
        ExpectSame(read.checkpoint, checkpoint);
        EXPECT_EQ(read.check, check);
        EXPECT_EQ(FindPlanFault(read.plan), u"");
        EXPECT_EQ(TextOf(read), plan);
        ASSERT_EQ(read.plan.entries.size(), journal.plan.entries.size());
        for (std::size_t entry = 0; entry < journal.plan.entries.size(); ++entry)
            EXPECT_EQ(PathBefore(read.plan, read.plan.entries[entry].from.folder),
                      PathBefore(journal.plan, journal.plan.entries[entry].from.folder));
    }
    // Otherwise the batches would test too little.
    EXPECT_GT(seen.entries, 20'000u);
    EXPECT_GT(seen.aside, 1000u);
    EXPECT_GT(seen.newFolders, 1000u);
    EXPECT_GT(seen.renamedFolders, 1000u);
    EXPECT_GT(seen.waiting, 5000u);
}

/// Renames whose names contain each code unit that a name can have, alone and between others.
PathRenames ListOfEveryUnit()
{
    PathRenames list;
    for (unsigned number = 1; number <= 0xFFFF; ++number) {
        const CString unit(static_cast<char16_t>(number), 1);
        if (VyrPlatform::FileSystem::IsSeparator(static_cast<char16_t>(number)))
            continue;
        list.Add(Full(u"before" + unit + u"after"), Full(u"<" + unit + u">"), Kind::File);
        if (unit != u".")
            list.Add(In(Full(u"from"), unit), In(Full(u"to"), unit), Kind::File);
    }
    return list;
}

std::u16string_view NameIn(std::u16string_view path)
{
    return path.substr(path.rfind(VyrPlatform::FileSystem::Separator()) + 1);
}

TEST(RandomJournal, KeepsNamesOfEveryUnit)
{
    const PathRenames list = ListOfEveryUnit();
    const Journal journal = PlannedJournal(list);
    ASSERT_GT(journal.plan.entries.size(), 131'000u);
    const Journal read = MustRead(TextOf(journal));
    ExpectSame(read, journal);
    ASSERT_EQ(read.plan.entries.size(), list.renames.size());
    for (std::size_t entry = 0; entry < list.renames.size(); ++entry) {
        ASSERT_EQ(read.plan.entries[entry].from.name.View(), NameIn(list.renames[entry].from));
        ASSERT_EQ(read.plan.entries[entry].to.name.View(), NameIn(list.renames[entry].to));
    }
}

} // namespace
