#include <tests/VyrHost/batch/SampleJournal.h>

#include <VyrHost/rename/Planner.h>

#include <VyrPlatform/files/FileSystem.h>

#include <gtest/gtest.h>
#include <tests/support/Describe.h>

#include <cstdio>
#include <optional>

namespace VyrTests {

using namespace VyrHost::Batch;
using namespace VyrHost::Model;
using namespace VyrHost::Rename;
using VyrHostPlatform::NameFolding;
using VyrPlatform::FileState;
using VyrPlatform::FileSystem::Kind;
using VyrTests::PathRenames;

CString Full(const CString& name)
{
    return (VyrPlatform::FileSystem::Separator() == u'/' ? CString(u"/") : CString(u"C:\\")) + name;
}

CString In(const CString& folder, const CString& name)
{
    return CString::Join({folder, std::u16string(1, VyrPlatform::FileSystem::Separator()), name});
}

Journal MakeJournal()
{
    PathRenames list;
    list.Add(Full(u"a"), Full(u"b"), Kind::File);
    list.Add(Full(u"b"), Full(u"a"), Kind::File);
    list.Add(Full(u"folder"), Full(u"renamed"), Kind::Folder);
    list.Add(In(Full(u"folder"), u"x"), In(Full(u"new"), CString(u'\xDC80', 2) + u"\t"), Kind::File);
    list.Add(Full(u"case"), Full(u"CASE"), Kind::File);
    list.newFolders.push_back(Full(u"new"));
    const PlannerResult result = PlanRenames(list, [](const CString&) { return NameFolding::Case; });
    EXPECT_TRUE(result.refused.empty());
    Journal journal;
    journal.plan = result.plan;
    journal.heading = {.number = 7,
                       .token = 0xFEDCBA9876543210,
                       .started = u"2024/05/06 07:08:09",
                       .command = u"rename",
                       .folder = Full(u""),
                       .entries = result.plan.entries.size(),
                       .firstFrom = list.renames[0].from,
                       .firstTo = list.renames[0].to};
    for (std::uint32_t entry = 0; entry < result.plan.entries.size(); ++entry) {
        FileState state;
        state.kind = entry == 1 ? Kind::Missing : entry == 2 ? Kind::Folder : entry == 4 ? Kind::Other : Kind::File;
        state.identity = {~std::uint64_t{0} - entry, std::uint64_t{1} << 40 | entry};
        state.size = std::int64_t{5} << 40;
        state.modified = -1 - std::int64_t{entry};
        state.links = entry;
        journal.states.push_back(state);
    }
    return journal;
}

Journal PlannedJournal(const PathRenames& list)
{
    const PlannerResult result = PlanRenames(list, [](const CString&) { return NameFolding::None; });
    EXPECT_TRUE(result.refused.empty());
    Journal journal;
    journal.plan = result.plan;
    journal.states.resize(result.plan.entries.size());
    journal.heading.entries = result.plan.entries.size();
    return journal;
}

Journal LongJournal(std::uint32_t count)
{
    PathRenames list;
    for (std::uint32_t index = 0; index < count; ++index) {
        CString name;
        name.Format(u"%u", index);
        list.Add(Full(name), Full(name + u"x"), Kind::File);
    }
    return PlannedJournal(list);
}

std::string TextOf(const Journal& journal, std::uint32_t& check)
{
    std::string text;
    check = WriteJournal(journal, [&text](std::string_view piece) { text += piece; });
    return text;
}

std::string TextOf(const Journal& journal)
{
    std::uint32_t check = 0;
    return TextOf(journal, check);
}

Checkpoint CheckpointAt(const std::vector<PlanIndex>& before, const std::vector<PlanIndex>& aside)
{
    Checkpoint checkpoint;
    checkpoint.entriesBefore = before;
    checkpoint.entriesTemporary = aside;
    return checkpoint;
}

Journal MustRead(std::string_view text)
{
    CString problem;
    std::optional<Journal> journal = ReadJournal(text, problem);
    EXPECT_TRUE(journal) << text.substr(0, 10'000);
    EXPECT_EQ(problem, u"");
    return journal.value_or(Journal());
}

bool IsRefused(std::string_view text)
{
    CString problem;
    const bool isRefused = !ReadJournal(text, problem);
    EXPECT_EQ(problem.IsEmpty(), !isRefused);
    return isRefused;
}

void ExpectSame(const Journal& journal, const Journal& expected)
{
    EXPECT_EQ(journal.heading.number, expected.heading.number);
    EXPECT_EQ(journal.heading.token, expected.heading.token);
    EXPECT_EQ(journal.heading.started, expected.heading.started);
    EXPECT_EQ(journal.heading.command, expected.heading.command);
    EXPECT_EQ(journal.heading.folder, expected.heading.folder);
    EXPECT_EQ(journal.heading.entries, expected.heading.entries);
    EXPECT_EQ(journal.heading.firstFrom, expected.heading.firstFrom);
    EXPECT_EQ(journal.heading.firstTo, expected.heading.firstTo);
    ASSERT_EQ(journal.plan.folders.size(), expected.plan.folders.size());
    for (std::size_t index = 0; index < journal.plan.folders.size(); ++index) {
        const PlanFolder& folder = journal.plan.folders[index];
        EXPECT_EQ(folder.place, expected.plan.folders[index].place);
        EXPECT_EQ(folder.isNew, expected.plan.folders[index].isNew);
        EXPECT_EQ(folder.entry, expected.plan.folders[index].entry);
    }
    ASSERT_EQ(journal.plan.entries.size(), expected.plan.entries.size());
    ASSERT_EQ(journal.states.size(), expected.states.size());
    for (std::size_t index = 0; index < journal.plan.entries.size(); ++index) {
        const PlanEntry& entry = journal.plan.entries[index];
        EXPECT_EQ(entry.from, expected.plan.entries[index].from);
        EXPECT_EQ(entry.to, expected.plan.entries[index].to);
        EXPECT_EQ(entry.folder, expected.plan.entries[index].folder);
        EXPECT_EQ(entry.waitsFor, expected.plan.entries[index].waitsFor);
        const FileState& state = journal.states[index];
        EXPECT_EQ(state.kind, expected.states[index].kind);
        EXPECT_EQ(state.identity, expected.states[index].identity);
        EXPECT_EQ(state.size, expected.states[index].size);
        EXPECT_EQ(state.modified, expected.states[index].modified);
        EXPECT_EQ(state.links, expected.states[index].links);
    }
    EXPECT_EQ(journal.plan.steps, expected.plan.steps);
}

void ExpectSame(const std::optional<Checkpoint>& checkpoint, const std::optional<Checkpoint>& expected)
{
    ASSERT_EQ(checkpoint.has_value(), expected.has_value());
    if (!checkpoint)
        return;
    EXPECT_EQ(checkpoint->isBackward, expected->isBackward);
    EXPECT_EQ(checkpoint->wasStopped, expected->wasStopped);
    EXPECT_EQ(checkpoint->entriesBefore, expected->entriesBefore);
    EXPECT_EQ(checkpoint->entriesTemporary, expected->entriesTemporary);
    EXPECT_EQ(checkpoint->foldersMade, expected->foldersMade);
    EXPECT_EQ(checkpoint->changesBefore, expected->changesBefore);
}

std::uint32_t BitwiseCrc(std::uint32_t before, std::string_view text)
{
    std::uint32_t crc = ~before;
    for (const char byte : text) {
        crc ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc & 1) != 0 ? crc >> 1 ^ 0xEDB88320 : crc >> 1;
    }
    return ~crc;
}

std::string CheckField(std::uint32_t check)
{
    char field[16];
    std::snprintf(field, sizeof(field), "\t%08x\n", static_cast<unsigned>(check));
    return field;
}

std::string WithCheck(const std::string& text)
{
    return text + CheckField(BitwiseCrc(0, text));
}

} // namespace VyrTests
