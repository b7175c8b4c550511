// Journals as text: everything comes back, and nothing that is damaged is taken for whole.
#include <VyrHost/journal/JournalText.h>

#include <VyrHost/journal/Checksum.h>
#include <VyrHost/journal/JournalName.h>
#include <VyrHost/plan/Planner.h>

#include <VyrPlatform/FileSystem.h>

#include <gmock/gmock.h>
#include <tests/support/Describe.h>

#include <random>
#include <string>

namespace {

using namespace VyrHost;
using VyrPlatform::FileState;
using VyrPlatform::NameFolding;
using VyrPlatform::FileSystem::Kind;

TEST(Checksum, IsTheUsualCrc32)
{
    // The check value of the catalogues of checksums.
    EXPECT_EQ(Checksum(0, "123456789"), 0xCBF43926u);
    EXPECT_EQ(Checksum(0, ""), 0u);
}

TEST(Checksum, IsTheSameInPieces)
{
    const std::string text = "the quick brown fox jumps over the lazy dog";
    for (std::size_t cut = 0; cut <= text.size(); ++cut)
        EXPECT_EQ(Checksum(Checksum(0, text.substr(0, cut)), text.substr(cut)), Checksum(0, text));
}

std::string Written(const CString& name)
{
    std::string text;
    AppendJournalName(text, name);
    return text;
}

TEST(JournalName, StandsAsItIsInUtf8)
{
    EXPECT_EQ(Written(u"holiday 01.jpg"), "holiday 01.jpg");
    EXPECT_EQ(Written(u"\u00E9t\u00E9 \U0001F600"), "\u00E9t\u00E9 \U0001F600");
}

TEST(JournalName, EscapesWhatWouldNotComeBack)
{
    EXPECT_EQ(Written(u"a\tb\nc\\d\x7F"), "a\\u0009b\\u000ac\\u005cd\\u007f");
    EXPECT_EQ(Written(CString(u'\xDC80', 1)), "\\udc80");
    EXPECT_EQ(Written(CString(u"x") + CString(u'\xD83D', 1)), "x\\ud83d");
}

TEST(JournalName, ComesBackUnitByUnit)
{
    std::mt19937 random(1);
    const char16_t units[] = {u'a', u'\\', u'u', u'\n', 0, 0x7F, 0xE9, 0xD83D, 0xDE00, 0xDC80, 0xFFFD, 0xFFFF};
    for (int round = 0; round < 20'000; ++round) {
        CString name;
        for (unsigned length = random() % 8; length > 0; --length)
            name += units[random() % std::size(units)];
        const std::string text = Written(name);
        EXPECT_EQ(text.find_first_of("\t\n"), text.npos);
        EXPECT_EQ(ReadJournalName(text), name);
    }
}

TEST(JournalName, RefusesBrokenEscapes)
{
    for (const char* text : {"\\", "\\u", "\\u12", "\\x0041", "a\\u00g1", "\\u+041"})
        EXPECT_EQ(ReadJournalName(text), std::nullopt) << text;
}

CString Full(const CString& name)
{
    return (VyrPlatform::FileSystem::Separator() == u'/' ? CString(u"/") : CString(u"C:\\")) + name;
}

CString In(const CString& folder, const CString& name)
{
    return CString::Join({folder, std::u16string(1, VyrPlatform::FileSystem::Separator()), name});
}

/// A batch with all that a journal can hold.
Journal MakeJournal()
{
    RenameList list;
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
                       .entries = result.plan.entries.size(),
                       .firstFrom = list.renames[0].from.Path(),
                       .firstTo = list.renames[0].to.Path()};
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

void ExpectSame(const Journal& journal, const Journal& expected)
{
    EXPECT_EQ(journal.heading.number, expected.heading.number);
    EXPECT_EQ(journal.heading.token, expected.heading.token);
    EXPECT_EQ(journal.heading.started, expected.heading.started);
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

Journal MustRead(const std::string& text)
{
    CString problem;
    std::optional<Journal> journal = ReadJournal(text, problem);
    EXPECT_TRUE(journal) << text;
    EXPECT_TRUE(problem.IsEmpty());
    return journal.value_or(Journal());
}

TEST(JournalText, ComesBackWhole)
{
    const Journal journal = MakeJournal();
    const Journal read = MustRead(TextOf(journal));
    ExpectSame(read, journal);
    EXPECT_FALSE(read.mark);
}

TEST(JournalText, HoldsMoreStepsThanALine)
{
    RenameList list;
    for (int index = 0; index < 2500; ++index) {
        CString name;
        name.Format(u"%d", index);
        list.Add(Full(name), Full(name + u"x"), Kind::File);
    }
    Journal journal;
    journal.plan = PlanRenames(list, [](const CString&) { return NameFolding::None; }).plan;
    journal.states.resize(2500);
    EXPECT_EQ(MustRead(TextOf(journal)).plan.steps, journal.plan.steps);
}

TEST(JournalText, GivesItsHeadingFromItsFirstLines)
{
    const std::string text = TextOf(MakeJournal());
    const std::size_t end = text.find('\n', text.find('\n') + 1) + 1;
    CString problem;
    const std::optional<JournalHeading> heading = ReadHeading(text.substr(0, end), problem);
    ASSERT_TRUE(heading);
    EXPECT_EQ(heading->number, 7u);
    EXPECT_EQ(heading->started, u"2024/05/06 07:08:09");
    EXPECT_EQ(heading->entries, 5u);
    EXPECT_FALSE(ReadHeading(text.substr(0, end - 1), problem));
    for (std::size_t length = 0; length < text.size(); ++length)
        EXPECT_EQ(HasHeading(std::string_view(text).substr(0, length)), length >= end) << length;
    EXPECT_FALSE(problem.IsEmpty());
}

JournalMark Mark(const std::vector<PlanIndex>& before, const std::vector<PlanIndex>& aside = {})
{
    JournalMark mark;
    mark.entriesBefore = before;
    mark.entriesAside = aside;
    return mark;
}

TEST(JournalText, KeepsTheLastMark)
{
    const Journal journal = MakeJournal();
    std::uint32_t check = 0;
    std::string text = TextOf(journal, check);
    text += WriteMark(Mark({0}, {1}), check);
    JournalMark last = Mark({0, 1, 2, 4});
    last.isBackward = true;
    last.wasStopped = true;
    last.foldersMade = {2};
    text += WriteMark(last, check);
    const Journal read = MustRead(text);
    ASSERT_TRUE(read.mark);
    EXPECT_TRUE(read.mark->isBackward);
    EXPECT_TRUE(read.mark->wasStopped);
    EXPECT_THAT(read.mark->entriesBefore, testing::ElementsAre(0, 1, 2, 4));
    EXPECT_THAT(read.mark->entriesAside, testing::IsEmpty());
    EXPECT_THAT(read.mark->foldersMade, testing::ElementsAre(2));
    EXPECT_EQ(read.check, check);
}

TEST(JournalText, OverlooksAMarkThatWasCutOff)
{
    const Journal journal = MakeJournal();
    std::uint32_t check = 0;
    std::string text = TextOf(journal, check);
    const std::string first = WriteMark(Mark({3}), check);
    const std::string second = WriteMark(Mark({4}), check);
    for (std::size_t length = 0; length + 1 < second.size(); ++length) {
        const std::string cut = text + first + second.substr(0, length);
        ASSERT_TRUE(MustRead(cut).mark);
        EXPECT_THAT(MustRead(cut).mark->entriesBefore, testing::ElementsAre(3));
        // What is appended next counts again.
        EXPECT_THAT(MustRead(cut + second).mark->entriesBefore, testing::ElementsAre(4));
    }
}

TEST(JournalText, GivesItsLastMarkFromItsEnd)
{
    std::uint32_t check = 0;
    const std::string plan = TextOf(MakeJournal(), check);
    EXPECT_FALSE(ReadLastMark(FindMarks(plan), 5));
    JournalMark mark = Mark({0, 1, 2, 4}, {3});
    mark.wasStopped = true;
    const std::string marks = WriteMark(Mark({1}), check) + WriteMark(mark, check);
    const std::string text = plan + marks;
    const std::size_t end = text.find("\nend\t");
    for (std::size_t start = 0; start < text.size(); ++start) {
        const std::optional<MarkOutline> read = ReadLastMark(FindMarks(std::string_view(text).substr(start)), 5);
        EXPECT_EQ(read.has_value(), start <= end) << start;
        if (!read)
            continue;
        EXPECT_FALSE(read->isBackward);
        EXPECT_TRUE(read->wasStopped);
        EXPECT_EQ(read->entriesBefore, 4u);
        EXPECT_EQ(read->entriesAside, 1u);
    }
    // A part of the last one does not count.
    for (std::size_t cut = 1; cut < 10; ++cut)
        EXPECT_EQ(ReadLastMark(FindMarks(text.substr(0, text.size() - cut)), 5)->entriesBefore, 1u);
}

TEST(JournalText, GivesNoLastMarkThatCannotBe)
{
    std::uint32_t check = 0;
    const std::string plan = TextOf(MakeJournal(), check);
    const auto isGiven = [&](const JournalMark& mark, std::size_t entries) {
        const std::string text = plan + WriteMark(mark, check);
        return ReadLastMark(FindMarks(text), entries).has_value();
    };
    EXPECT_TRUE(isGiven(Mark({0, 1, 2, 3, 4}), 5));
    EXPECT_FALSE(isGiven(Mark({0, 1, 2, 3, 4}), 4));
    EXPECT_FALSE(isGiven(Mark({0, 1, 2}, {0, 1, 2}), 5));
    EXPECT_FALSE(isGiven(Mark({1, 0}), 5));
    // Billions of entries are counted, not kept.
    std::string text = "\nend\t00000000\nmark\tf\te\t0-4294967293\t\t";
    const std::string content = text.substr(text.find("mark"));
    char digits[16];
    std::snprintf(digits, sizeof(digits), "\t%08x\n", Checksum(0, content));
    const std::optional<MarkOutline> read = ReadLastMark(FindMarks(text + digits), 4294967294);
    ASSERT_TRUE(read);
    EXPECT_EQ(read->entriesBefore, 4294967294u);
}

TEST(JournalText, IsNotReadWhenAnyByteIsChanged)
{
    const std::string text = TextOf(MakeJournal());
    for (std::size_t at = 0; at < text.size(); ++at) {
        std::string damaged = text;
        damaged[at] = static_cast<char>(damaged[at] ^ 1);
        CString problem;
        EXPECT_FALSE(ReadJournal(damaged, problem)) << at;
        EXPECT_FALSE(problem.IsEmpty());
    }
}

TEST(JournalText, IsNotReadWhenItIsCutOff)
{
    const std::string text = TextOf(MakeJournal());
    for (std::size_t length = 0; length < text.size(); ++length) {
        CString problem;
        EXPECT_FALSE(ReadJournal(text.substr(0, length), problem)) << length;
        EXPECT_FALSE(problem.IsEmpty());
    }
}

TEST(JournalText, IsNotReadWhenALineIsMissingOrTwice)
{
    const std::string text = TextOf(MakeJournal());
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = text.find('\n', start) + 1;
        const std::string line = text.substr(start, end - start);
        CString problem;
        EXPECT_FALSE(ReadJournal(text.substr(0, start) + text.substr(end), problem)) << line;
        // Behind the last line there are marks, which may be cut off.
        if (end < text.size()) {
            EXPECT_FALSE(ReadJournal(text.substr(0, end) + line + text.substr(end), problem)) << line;
        }
        start = end;
    }
}

/// Writes `journal`, which has a fault that the checks do not show.
void ExpectRefused(const Journal& journal)
{
    CString problem;
    EXPECT_FALSE(ReadJournal(TextOf(journal), problem));
    EXPECT_FALSE(problem.IsEmpty());
}

TEST(JournalText, RefusesNamesThatLeaveTheirFolder)
{
    const std::u16string separator(1, VyrPlatform::FileSystem::Separator());
    const CString names[] = {u"",
                             u".",
                             u"..",
                             CString(separator + u"x"),
                             CString(u"x" + separator + u"y"),
                             CString(std::u16string_view(u"x\0y", 3))};
    for (const CString& name : names) {
        Journal journal = MakeJournal();
        journal.plan.entries[0].to.name = journal.plan.texts->Keep(name);
        ExpectRefused(journal);
        journal = MakeJournal();
        journal.plan.entries[0].from.name = journal.plan.texts->Keep(name);
        ExpectRefused(journal);
        journal = MakeJournal();
        for (PlanFolder& folder : journal.plan.folders)
            if (folder.isNew)
                folder.place.name = journal.plan.texts->Keep(name);
        ExpectRefused(journal);
        journal = MakeJournal();
        journal.plan.folders[0].place.name = journal.plan.texts->Keep(name + u"x");
        ExpectRefused(journal);
    }
}

TEST(JournalText, RefusesIndexesOutOfRange)
{
    const auto change = [](auto member) {
        Journal journal = MakeJournal();
        member(journal) = 1000;
        ExpectRefused(journal);
    };
    change([](Journal & journal) -> auto& { return journal.plan.folders[1].place.folder; });
    change([](Journal & journal) -> auto& { return journal.plan.entries[0].from.folder; });
    change([](Journal & journal) -> auto& { return journal.plan.entries[0].to.folder; });
    change([](Journal & journal) -> auto& { return journal.plan.entries[0].folder; });
    change([](Journal & journal) -> auto& { return journal.plan.entries[0].waitsFor; });
    change([](Journal & journal) -> auto& { return journal.plan.steps[0].subject; });
}

TEST(JournalText, RefusesStepsThatAreNotComplete)
{
    Journal journal = MakeJournal();
    journal.plan.steps.pop_back();
    ExpectRefused(journal);
    journal = MakeJournal();
    journal.plan.steps.push_back(journal.plan.steps.back());
    ExpectRefused(journal);
    journal = MakeJournal();
    std::erase_if(journal.plan.steps, [](const PlanStep& step) { return step.action == PlanStep::Action::MakeFolder; });
    ExpectRefused(journal);
}

TEST(JournalText, RefusesAFolderThatWouldEndUpInsideItself)
{
    Journal journal = MakeJournal();
    for (PlanEntry& entry : journal.plan.entries)
        if (entry.folder != none)
            entry.to.folder = entry.folder;
    ExpectRefused(journal);
}

TEST(JournalText, SaysWhatAnUnknownVersionIs)
{
    for (const char* text : {"vyr-journal\t1\t12345678\n", "vyr-journal\t3\n"}) {
        CString problem;
        EXPECT_FALSE(ReadJournal(text, problem));
        EXPECT_GE(problem.Find(u"version"), 0);
        EXPECT_FALSE(ReadHeading(text, problem));
        EXPECT_GE(problem.Find(u"version"), 0);
    }
}

/// `text` up to its end, with `line` in the place of its lines of steps, and with the check that belongs to it.
std::string WithSteps(const std::string& text, const std::string& line)
{
    std::string changed = text.substr(0, text.find("\nsteps") + 1) + line + "\nend";
    char digits[16];
    std::snprintf(digits, sizeof(digits), "\t%08x\n", Checksum(0, changed));
    return changed + digits;
}

TEST(JournalText, WritesStepsThatFollowEachOtherAsARange)
{
    RenameList list;
    for (const char16_t* name : {u"a", u"b", u"c", u"d"})
        list.Add(Full(name), Full(CString(name) + u"x"), Kind::File);
    Journal journal;
    journal.plan = PlanRenames(list, [](const CString&) { return NameFolding::None; }).plan;
    journal.states.resize(4);
    journal.heading.entries = 4;
    const std::string text = TextOf(journal);
    EXPECT_NE(text.find("\nsteps\tr0-3\nend\t"), text.npos) << text;
    EXPECT_EQ(MustRead(WithSteps(text, "steps\tr0-3")).plan.steps, journal.plan.steps);
    EXPECT_EQ(MustRead(WithSteps(text, "steps\tr0\tr1-1\nsteps\tr2-3")).plan.steps, journal.plan.steps);
    std::swap(journal.plan.steps[0], journal.plan.steps[3]);
    EXPECT_NE(TextOf(journal).find("\nsteps\tr3\tr1-2\tr0\nend\t"), text.npos);
}

TEST(JournalText, IsNotReadWhenItsRangesOfStepsCannotBe)
{
    RenameList list;
    list.Add(Full(u"a"), Full(u"b"), Kind::File);
    list.Add(Full(u"c"), Full(u"d"), Kind::File);
    Journal journal;
    journal.plan = PlanRenames(list, [](const CString&) { return NameFolding::None; }).plan;
    journal.states.resize(2);
    const std::string text = TextOf(journal);
    CString problem;
    EXPECT_TRUE(ReadJournal(WithSteps(text, "steps\tr0-1"), problem));
    for (const char* line :
         {"steps\tr1-0", "steps\tr0-2", "steps\tr0-1\tr1", "steps\tr0-", "steps\tr-1", "steps\tr0-1-1", "steps\t0-1",
          "steps\tr0-4294967295", "steps\tr0-4294967296", "steps\tr0"}) {
        problem = {};
        EXPECT_FALSE(ReadJournal(WithSteps(text, line), problem)) << line;
        EXPECT_FALSE(problem.IsEmpty()) << line;
    }
}

TEST(JournalText, IsNotReadWhenItSpeaksOfMoreStepsThanItsEntriesCanHave)
{
    std::string text = "vyr-journal\t2\nbatch\t1\t2\t\t0\t0\t4294967294\t\t";
    char digits[16];
    std::snprintf(digits, sizeof(digits), "\t%08x\n", Checksum(0, text));
    text += digits;
    CString problem;
    EXPECT_FALSE(ReadJournal(text + "steps\tr0-4294967293\nend\t00000000\n", problem));
    EXPECT_GE(problem.Find(u"too many steps"), 0);
}

TEST(JournalText, ComesInPiecesThatMakeTheWhole)
{
    RenameList list;
    for (int index = 0; index < 5000; ++index) {
        CString name;
        name.Format(u"%d", index);
        list.Add(Full(name), Full(name + u"x"), Kind::File);
    }
    Journal journal;
    journal.plan = PlanRenames(list, [](const CString&) { return NameFolding::None; }).plan;
    journal.states.resize(5000);
    journal.heading.entries = 5000;
    std::string text;
    std::size_t longest = 0;
    const std::uint32_t check = WriteJournal(journal, [&](std::string_view piece) {
        longest = std::max(longest, piece.size());
        text += piece;
    });
    EXPECT_GT(text.size(), 150'000u);
    EXPECT_LT(longest, 80'000u);
    const Journal read = MustRead(text);
    ExpectSame(read, journal);
    EXPECT_EQ(read.check, check);
    EXPECT_EQ(check, Checksum(0, text.substr(0, text.rfind('\t'))));
}

} // namespace
