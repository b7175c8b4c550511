// Random changes of times, attributes and marks, applied and undone, and cut off at each write: afterwards all is as
// before, read by the system's own calls.
#include <VyrHost/batch/Batches.h>
#include <VyrHost/collect/CollectEntries.h>
#include <VyrHost/metadata/Attributes.h>
#include <VyrHost/metadata/Changes.h>
#include <VyrHost/metadata/Marks.h>
#include <VyrHost/metadata/Times.h>

#include <tests/VyrHost/batch/BatchScene.h>
#include <tests/VyrHost/batch/CutOffScene.h>
#include <tests/VyrHost/batch/FaultyFiles.h>
#include <tests/support/Describe.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>
#include <tests/support/TreeState.h>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <vector>

using namespace VyrHost;
using namespace VyrTests;

namespace {

class RandomChanges : public testing::Test
{
protected:
    std::uint32_t Below(std::uint32_t limit) { return static_cast<std::uint32_t>(m_random()) % limit; }

    void MakeFiles()
    {
        for (int number = 0; number < 12; ++number) {
            CString name;
            name.Format(u"%s/file %d.txt", std::u16string_view(number % 3 == 0 ? u"sub" : u"."), number);
            const std::string path = ToStdPath(m_files.WriteFile(name, std::string(Below(50), 'x')));
            if (Below(2) == 0)
                SetAttribute(path, "user.DOSATTRIB", Below(2) == 0 ? "0x22" : std::string("0x2\0", 4));
            if (Below(3) == 0)
                SetAttribute(path, "user.xdg.origin.url", "https://example.org/");
            if (Below(3) == 0)
                SetAttribute(path, "user.DosStream.Zone.Identifier:$DATA", "[ZoneTransfer]\r\nZoneId=3\r\n");
            if (Below(4) == 0) {
                std::ofstream(path + ":Zone.Identifier") << "[ZoneTransfer]\r\nZoneId=4\r\n";
                Stamp(path + ":Zone.Identifier");
            }
            Stamp(path);
        }
    }

    void Stamp(const std::string& path)
    {
        const struct timespec times[] = {{1'600'000'000 + Below(1'000'000), Below(1'000'000'000)},
                                         {1'500'000'000 + Below(1'000'000), Below(1'000'000'000)}};
        ASSERT_EQ(utimensat(AT_FDCWD, path.c_str(), times, 0), 0);
        constexpr mode_t modes[] = {0644, 0600, 0664, 0444, 0755};
        ASSERT_EQ(chmod(path.c_str(), modes[Below(5)]), 0);
    }

    static void SetAttribute(const std::string& path, const char* name, const std::string& value)
    {
        ASSERT_EQ(setxattr(path.c_str(), name, value.data(), value.size(), 0), 0);
    }

    std::unique_ptr<Metadata::ChangeRule> RandomRule()
    {
        if (Below(4) == 0)
            return std::make_unique<Metadata::MarkRule>();
        if (Below(2) == 0) {
            constexpr std::uint32_t bits[] = {0x1, 0x2, 0x4, 0x20, 0x100, 0x2000};
            std::uint32_t set = 0;
            std::uint32_t clear = 0;
            for (const std::uint32_t bit : bits) {
                const std::uint32_t choice = Below(3);
                set |= choice == 0 ? bit : 0;
                clear |= choice == 1 ? bit : 0;
            }
            return std::make_unique<Metadata::AttributesRule>(set, clear);
        }
        const char16_t* const sources[] = {u"2024-01-05 10:30", u"10:30:01",      u"2001-02-03",
                                           u"from:accessed",    u"from:modified", u"from:created"};
        Metadata::TimesSettings settings;
        for (auto& source : settings.sources)
            if (Below(2) == 0)
                source = Metadata::ParseTimeSource(sources[Below(6)], "--set-modified");
        if (Below(2) == 0)
            settings.shift = Metadata::ParseAmounts(Below(2) == 0 ? u"1d2h" : u"-3mo", "--shift");
        if (Below(2) == 0)
            settings.stagger = Metadata::ParseAmounts(u"90s", "--stagger");
        return std::make_unique<Metadata::TimesRule>(settings);
    }

    /// A change of randomly chosen files.
    Batch::NewBatch RandomBatch()
    {
        Collect::ChoiceTexts texts;
        texts.exclude = {u"*:Zone.Identifier"};
        if (Below(2) == 0)
            texts.include = {u"*1*", u"*2.txt", u"sub"};
        Collect::SourceSettings sources;
        sources.paths = {m_files.Path()};
        sources.recursive = true;
        // Listing a folder may change the time of its last access.
        const std::unique_ptr<Metadata::ChangeRule> rule = RandomRule();
        const bool areTimes = dynamic_cast<const Metadata::TimesRule*>(rule.get()) != nullptr;
        sources.pick = areTimes ? Collect::Pick::Files : Collect::Pick::All;
        sources.choice = Collect::Choice(texts);
        const Collect::CollectedEntries collected = Collect::CollectEntries(sources);
        std::vector<std::size_t> entries;
        return Metadata::MakeBatch(u"test", collected.list,
                                   Metadata::ProposeChanges(*rule, collected.list, [](std::size_t) {}), entries);
    }

    static Batch::BatchSettings Settings(const CString& journal)
    {
        Batch::BatchSettings settings = SettingsIn(journal);
        settings.kinds = Metadata::Kinds();
        return settings;
    }

    std::map<std::string, std::string> Now() const { return TreeState(m_files.Path()); }

    ScratchFolder m_files;
    ScratchFolder m_journal;
    std::mt19937 m_random{20240105};
};

void Ignore(std::size_t /*index*/, const Model::Outcome& /*result*/) {}
void IgnoreEntry(const Batch::BatchEntry& /*entry*/) {}
bool Never()
{
    return false;
}

} // namespace

TEST_F(RandomChanges, TreeIsAsBeforeOnceAllAreUndone)
{
    MakeFiles();
    Batch::Batches batches(Batch::SystemFiles(), Settings(m_journal.Path()));
    for (int round = 0; round < 20; ++round) {
        std::vector<std::map<std::string, std::string>> before;
        std::vector<std::uint32_t> numbers;
        for (int batch = 0; batch < 5; ++batch) {
            Batch::NewBatch made = RandomBatch();
            if (made.changes.empty())
                continue;
            const auto tree = Now();
            const Batch::BatchSummary summary = batches.Apply([&made] { return std::move(made); }, Ignore, Never);
            ASSERT_EQ(summary.error, u"");
            if (summary.number == 0) {
                EXPECT_EQ(Now(), tree) << "nothing was done";
                continue;
            }
            before.push_back(tree);
            numbers.push_back(summary.number);
        }
        while (!numbers.empty()) {
            const Batch::BatchSummary undone =
                batches.Reverse(numbers.back(), Batch::Direction::Backward, IgnoreEntry, Never);
            ASSERT_EQ(undone.error, u"");
            EXPECT_EQ(undone.refused + undone.failed, 0U);
            ASSERT_EQ(Now(), before.back()) << "round " << round << ", batch " << numbers.back();
            numbers.pop_back();
            before.pop_back();
        }
    }
}

TEST_F(RandomChanges, CutOffAtEachWriteOfTheJournalTheyAreRecovered)
{
    MakeFiles();
    FaultyFiles files;
    Batch::Batches batches(files, Settings(m_journal.Path()));
    int cutOff = 0;
    for (int round = 0; round < 60; ++round) {
        LetWork(files);
        const auto tree = Now();
        Batch::NewBatch made = RandomBatch();
        if (made.changes.empty())
            continue;
        CutOffAt(files, Below(5), Below(2) == 0 ? Moment::Before : Moment::After);
        const bool isCutOff = IsCutOff([&] { batches.Apply([&made] { return std::move(made); }, Ignore, Never); });
        LetWork(files);
        if (!isCutOff) {
            batches.Reverse(batches.List().front().number, Batch::Direction::Backward, IgnoreEntry, Never);
            continue;
        }
        ++cutOff;
        if (batches.FindCutOff()) {
            EXPECT_EQ(batches.Recover(Batch::Recovery::Undo, IgnoreEntry, Never).error, u"");
        } else if (const auto known = batches.List(); !known.empty() && Batch::CanBeUndone(known.front().state)) {
            EXPECT_EQ(batches.Reverse(known.front().number, Batch::Direction::Backward, IgnoreEntry, Never).error, u"");
        }
        ASSERT_EQ(Now(), tree) << "round " << round;
    }
    EXPECT_GT(cutOff, 10);
}
