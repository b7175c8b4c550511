// Journals as text: all values are read as they were written, and damaged journals are refused.
#include <VyrHost/batch/JournalLines.h>
#include <VyrHost/batch/JournalText.h>

#include <VyrPlatform/files/FileSystem.h>

#include <gmock/gmock.h>
#include <tests/VyrHost/batch/SampleJournal.h>
#include <tests/support/Describe.h>

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <random>
#include <string>

namespace {

using namespace VyrHost::Batch;
using namespace VyrHost::Model;
using namespace VyrTests;
using VyrPlatform::FileSystem::Kind;

TEST(Checksum, IsTheUsualCrc32)
{
    // The published check value of this checksum.
    EXPECT_EQ(Checksum(0, "123456789"), 0xCBF43926u);
    EXPECT_EQ(Checksum(0, ""), 0u);
}

TEST(Checksum, IsTheSameInPieces)
{
    const std::string text = "the quick brown fox jumps over the lazy dog";
    for (std::size_t cut = 0; cut <= text.size(); ++cut)
        EXPECT_EQ(Checksum(Checksum(0, text.substr(0, cut)), text.substr(cut)), Checksum(0, text));
}

TEST(Checksum, IsWhatItsDefinitionSaysOfAnyBytes)
{
    std::mt19937 random(5);
    for (std::size_t length = 0; length < 600; ++length) {
        std::string text;
        while (text.size() < length)
            text += static_cast<char>(random());
        const auto before = static_cast<std::uint32_t>(length % 3 == 0 ? 0 : random());
        EXPECT_EQ(Checksum(before, text), BitwiseCrc(before, text)) << length;
    }
}

std::string Written(const CString& name)
{
    std::string text;
    AppendJournalName(text, name);
    return text;
}

TEST(JournalName, IsWrittenInUtf8)
{
    EXPECT_EQ(Written(u"holiday 01.jpg"), "holiday 01.jpg");
    EXPECT_EQ(Written(u"\u00E9t\u00E9 \U0001F600"), "\u00E9t\u00E9 \U0001F600");
}

TEST(JournalName, EscapesUnitsThatWouldNotBeReadBack)
{
    EXPECT_EQ(Written(u"a\tb\nc\\d\x7F"), "a\\u0009b\\u000ac\\u005cd\\u007f");
    EXPECT_EQ(Written(CString(u'\xDC80', 1)), "\\udc80");
    EXPECT_EQ(Written(CString(u"x") + CString(u'\xD83D', 1)), "x\\ud83d");
}

TEST(JournalName, IsReadBackUnitByUnit)
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

/// Whether `text` is UTF-8: each character in its shortest form, no surrogates, nothing above the last code point.
bool IsUtf8(std::string_view text)
{
    for (std::size_t at = 0; at < text.size();) {
        const auto byteAt = [&](std::size_t place) {
            return place < text.size() ? static_cast<unsigned char>(text[place]) : 0u;
        };
        const unsigned lead = byteAt(at);
        const std::size_t length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
        std::uint32_t point = length == 1 ? lead : lead & (0x7Fu >> length);
        for (std::size_t place = at + 1; place < at + length; ++place) {
            if ((byteAt(place) & 0xC0) != 0x80)
                return false;
            point = point << 6 | (byteAt(place) & 0x3F);
        }
        const std::uint32_t least[] = {0, 0, 0x80, 0x800, 0x10000};
        if (lead >= 0xF8 || (lead >= 0x80 && lead < 0xC0) || point < least[length] || point > 0x10FFFF ||
            (point >= 0xD800 && point <= 0xDFFF))
            return false;
        at += length;
    }
    return true;
}

TEST(JournalName, WritesEveryUnitAsItIsOrEscaped)
{
    for (unsigned unit = 0; unit <= 0xFFFF; ++unit) {
        const bool isEscaped = unit < 0x20 || unit == 0x7F || unit == u'\\' || (unit >= 0xD800 && unit <= 0xDFFF);
        const CString name = CString::Join({u"x", CString(static_cast<char16_t>(unit), 1), u"y"});
        const std::string text = Written(name);
        char escape[16];
        std::snprintf(escape, sizeof(escape), "\\u%04x", unit);
        EXPECT_EQ(text == std::string("x") + escape + "y", isEscaped) << text;
        EXPECT_EQ(text.find('\\') != text.npos, isEscaped) << text;
        EXPECT_TRUE(IsUtf8(text)) << unit;
        EXPECT_EQ(ReadJournalName(text), name) << unit;
    }
}

TEST(JournalName, RefusesBrokenEscapes)
{
    for (const char* text : {"\\", "\\u", "\\u12", "\\x0041", "a\\u00g1", "\\u+041"})
        EXPECT_EQ(ReadJournalName(text), std::nullopt) << text;
}

/// The root as a path, and as journals write it.
CString Root()
{
    return Full(u"");
}
std::string RootText()
{
    return VyrPlatform::FileSystem::Separator() == u'/' ? "/" : "C:\\u005c";
}
std::string SeparatorText()
{
    return VyrPlatform::FileSystem::Separator() == u'/' ? "/" : "\\u005c";
}

/// The lines after the heading of a journal written by hand; `rename` is the first word of its renames.
std::string HandWrittenPlan(const std::string& rename)
{
    return "folder\t-\to\t" + RootText() + "\nfolder\t0\tn\tn\n" + rename + "\tf\t1\t2\t3\t4\t5\t0\ta\t1\tb\t-\t-\n" +
           rename + "\tf\t6\t7\t8\t-9\t10\t0\tc\t0\td\t-\t2\n" + rename +
           "\tf\t11\t12\t13\t14\t15\t0\td\t0\te\t-\t-\nsteps\tm1\tr0\tr2\tr1\nend";
}

/// A journal written by hand: "a" goes to the new folder "n" as "b", "c" becomes "d", "d" becomes "e".
std::string HandWrittenText()
{
    const std::string heading = "vyr-journal\t3\nbatch\t7\t18364758544493064720\t2024/05/06 07:08:09\trename\t" +
                                RootText() + "\t2\t3\t0\t4\t" + RootText() + "a\t" + RootText() + "n" +
                                SeparatorText() + "b";
    return WithCheck(WithCheck(heading) + HandWrittenPlan("rename"));
}

/// The same in version 2.
std::string HandWrittenTextOfVersionTwo()
{
    const std::string heading = "vyr-journal\t2\nbatch\t7\t18364758544493064720\t2024/05/06 07:08:09\t2\t3\t4\t" +
                                RootText() + "a\t" + RootText() + "n" + SeparatorText() + "b";
    return WithCheck(WithCheck(heading) + HandWrittenPlan("entry"));
}

/// The journal of the same batch.
Journal HandMadeJournal()
{
    PathRenames list;
    list.Add(Full(u"a"), In(Full(u"n"), u"b"), Kind::File);
    list.Add(Full(u"c"), Full(u"d"), Kind::File);
    list.Add(Full(u"d"), Full(u"e"), Kind::File);
    list.newFolders.push_back(Full(u"n"));
    Journal journal = PlannedJournal(list);
    journal.heading = {.number = 7,
                       .token = 0xFEDCBA9876543210,
                       .started = u"2024/05/06 07:08:09",
                       .command = u"rename",
                       .folder = Full(u""),
                       .entries = 3,
                       .firstFrom = Full(u"a"),
                       .firstTo = In(Full(u"n"), u"b")};
    journal.states = {{.kind = Kind::File, .identity = {1, 2}, .size = 3, .modified = 4, .links = 5},
                      {.kind = Kind::File, .identity = {6, 7}, .size = 8, .modified = -9, .links = 10},
                      {.kind = Kind::File, .identity = {11, 12}, .size = 13, .modified = 14, .links = 15}};
    return journal;
}

TEST(JournalText, IsWrittenAsItsFormatSays)
{
    EXPECT_EQ(TextOf(HandMadeJournal()), HandWrittenText());
}

TEST(JournalText, IsReadAsItsFormatSays)
{
    const Journal journal = MustRead(HandWrittenText());
    ExpectSame(journal, HandMadeJournal());
    ASSERT_EQ(journal.plan.folders.size(), 2u);
    ASSERT_EQ(journal.plan.entries.size(), 3u);
    EXPECT_EQ(journal.plan.folders[0].place.name.View(), Root().View());
    EXPECT_EQ(journal.plan.folders[1].place.name.View(), u"n");
    EXPECT_EQ(journal.plan.entries[0].to.name.View(), u"b");
    EXPECT_EQ(journal.plan.entries[0].to.folder, 1u);
    EXPECT_EQ(journal.plan.entries[1].waitsFor, 2u);
    EXPECT_EQ(journal.states[1].modified, -9);
}

TEST(JournalText, IsReadInVersionTwo)
{
    Journal expected = HandMadeJournal();
    expected.heading.command = expected.heading.folder = u"";
    const std::string text = HandWrittenTextOfVersionTwo();
    const Journal journal = MustRead(text);
    ExpectSame(journal, expected);
    Checkpoint undone = CheckpointAt({0, 1, 2});
    undone.isBackward = true;
    ExpectSame(MustRead(text + WriteCheckpoint(CheckpointAt({1}), journal.check)).checkpoint, CheckpointAt({1}));
    const Journal both =
        MustRead(text + WriteCheckpoint(CheckpointAt({1}), journal.check) + WriteCheckpoint(undone, journal.check));
    ExpectSame(both.checkpoint, undone);
    ExpectSame(both.applied, CheckpointAt({1}));
}

TEST(JournalText, IsRefusedWhereItsLinesAreOfAnotherVersion)
{
    std::string text = HandWrittenTextOfVersionTwo();
    EXPECT_TRUE(IsRefused(WithCheck(text.substr(0, text.find("folder\t-")) + HandWrittenPlan("rename"))));
    text = HandWrittenText();
    EXPECT_TRUE(IsRefused(WithCheck(text.substr(0, text.find("folder\t-")) + HandWrittenPlan("entry"))));
}

TEST(JournalText, ContinuesTheChecksumsOfCheckpointsFromThatOfItsEnd)
{
    const std::string text = HandWrittenText();
    const std::uint32_t check = BitwiseCrc(0, text.substr(0, text.rfind('\t')));
    const std::string first = "mark\tf\ts\t0\t1-2\t1";
    const std::string second = "mark\tb\te\t0-2\t\t";
    const std::string firstLine = first + CheckField(BitwiseCrc(check, first));
    const std::string secondLine = second + CheckField(BitwiseCrc(check, second));
    Checkpoint firstCheckpoint = CheckpointAt({0}, {1, 2});
    firstCheckpoint.wasStopped = true;
    firstCheckpoint.foldersMade = {1};
    Checkpoint secondCheckpoint = CheckpointAt({0, 1, 2});
    secondCheckpoint.isBackward = true;
    ExpectSame(MustRead(text + firstLine).checkpoint, firstCheckpoint);
    ExpectSame(MustRead(text + firstLine + secondLine).checkpoint, secondCheckpoint);
    // The empty line ends a checkpoint that was cut off.
    EXPECT_EQ(WriteCheckpoint(firstCheckpoint, check), "\n" + firstLine);
    EXPECT_EQ(WriteCheckpoint(secondCheckpoint, check), "\n" + secondLine);
    // The checksum of a checkpoint of another batch.
    const std::string other = second + CheckField(BitwiseCrc(check ^ 1, second));
    ExpectSame(MustRead(text + firstLine + other).checkpoint, firstCheckpoint);
}

TEST(JournalText, IsReadBackWhole)
{
    const Journal journal = MakeJournal();
    const Journal read = MustRead(TextOf(journal));
    ExpectSame(read, journal);
    EXPECT_FALSE(read.checkpoint);
}

TEST(JournalText, HoldsMoreStepsThanALine)
{
    const Journal journal = LongJournal(2500);
    EXPECT_EQ(MustRead(TextOf(journal)).plan.steps, journal.plan.steps);
}

TEST(JournalText, HasItsHeadingInItsFirstLines)
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

TEST(JournalText, GivesTheLastCheckpoint)
{
    const Journal journal = MakeJournal();
    std::uint32_t check = 0;
    std::string text = TextOf(journal, check);
    text += WriteCheckpoint(CheckpointAt({0}, {1}), check);
    Checkpoint last = CheckpointAt({0, 1, 2, 4});
    last.isBackward = true;
    last.wasStopped = true;
    last.foldersMade = {2};
    text += WriteCheckpoint(last, check);
    const Journal read = MustRead(text);
    ASSERT_TRUE(read.checkpoint);
    EXPECT_TRUE(read.checkpoint->isBackward);
    EXPECT_TRUE(read.checkpoint->wasStopped);
    EXPECT_THAT(read.checkpoint->entriesBefore, testing::ElementsAre(0, 1, 2, 4));
    EXPECT_THAT(read.checkpoint->entriesTemporary, testing::IsEmpty());
    EXPECT_THAT(read.checkpoint->foldersMade, testing::ElementsAre(2));
    EXPECT_EQ(read.check, check);
}

TEST(JournalText, IgnoresACheckpointThatWasCutOff)
{
    const Journal journal = MakeJournal();
    std::uint32_t check = 0;
    std::string text = TextOf(journal, check);
    const std::string first = WriteCheckpoint(CheckpointAt({3}), check);
    const std::string second = WriteCheckpoint(CheckpointAt({4}), check);
    for (std::size_t length = 0; length + 1 < second.size(); ++length) {
        const std::string cut = text + first + second.substr(0, length);
        ASSERT_TRUE(MustRead(cut).checkpoint);
        EXPECT_THAT(MustRead(cut).checkpoint->entriesBefore, testing::ElementsAre(3));
        // A checkpoint that is appended afterwards is valid.
        EXPECT_THAT(MustRead(cut + second).checkpoint->entriesBefore, testing::ElementsAre(4));
    }
}

TEST(JournalText, GivesTheLastCheckpointFromTheEndOfItsText)
{
    std::uint32_t check = 0;
    const std::string plan = TextOf(MakeJournal(), check);
    EXPECT_FALSE(ReadLastCheckpoint(FindCheckpoints(plan), 5));
    Checkpoint checkpoint = CheckpointAt({0, 1, 2, 4}, {3});
    checkpoint.wasStopped = true;
    const std::string checkpoints = WriteCheckpoint(CheckpointAt({1}), check) + WriteCheckpoint(checkpoint, check);
    const std::string text = plan + checkpoints;
    const std::size_t end = text.find("\nend\t");
    for (std::size_t start = 0; start < text.size(); ++start) {
        const std::optional<CheckpointOutline> read =
            ReadLastCheckpoint(FindCheckpoints(std::string_view(text).substr(start)), 5);
        EXPECT_EQ(read.has_value(), start <= end) << start;
        if (!read)
            continue;
        EXPECT_FALSE(read->isBackward);
        EXPECT_TRUE(read->wasStopped);
        EXPECT_EQ(read->entriesBefore, 4u);
        EXPECT_EQ(read->entriesTemporary, 1u);
    }
    // A part of the last one is ignored.
    for (std::size_t cut = 1; cut < 10; ++cut)
        EXPECT_EQ(ReadLastCheckpoint(FindCheckpoints(text.substr(0, text.size() - cut)), 5)->entriesBefore, 1u);
}

TEST(JournalText, GivesNoImpossibleCheckpoint)
{
    std::uint32_t check = 0;
    const std::string plan = TextOf(MakeJournal(), check);
    const auto isGiven = [&](const Checkpoint& checkpoint, std::size_t entries) {
        const std::string text = plan + WriteCheckpoint(checkpoint, check);
        return ReadLastCheckpoint(FindCheckpoints(text), entries).has_value();
    };
    EXPECT_TRUE(isGiven(CheckpointAt({0, 1, 2, 3, 4}), 5));
    EXPECT_FALSE(isGiven(CheckpointAt({0, 1, 2, 3, 4}), 4));
    EXPECT_FALSE(isGiven(CheckpointAt({0, 1, 2}, {0, 1, 2}), 5));
    EXPECT_FALSE(isGiven(CheckpointAt({1, 0}), 5));
    // Billions of entries are counted, not stored.
    std::string text = "\nend\t00000000\nmark\tf\te\t0-4294967293\t\t";
    const std::string content = text.substr(text.find("mark"));
    const std::string whole = text + CheckField(BitwiseCrc(0, content));
    const std::optional<CheckpointOutline> read = ReadLastCheckpoint(FindCheckpoints(whole), 4294967294);
    ASSERT_TRUE(read);
    EXPECT_EQ(read->entriesBefore, 4294967294u);
}

/// Writes `journal`, which has a fault but correct checksums, and expects that it is refused.
void ExpectRefused(const Journal& journal)
{
    EXPECT_TRUE(IsRefused(TextOf(journal)));
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
        journal.plan.entries[0].to.name = journal.plan.texts->Intern(name);
        ExpectRefused(journal);
        journal = MakeJournal();
        journal.plan.entries[0].from.name = journal.plan.texts->Intern(name);
        ExpectRefused(journal);
        journal = MakeJournal();
        for (PlanFolder& folder : journal.plan.folders)
            if (folder.isNew)
                folder.place.name = journal.plan.texts->Intern(name);
        ExpectRefused(journal);
        journal = MakeJournal();
        journal.plan.folders[0].place.name = journal.plan.texts->Intern(name + u"x");
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

TEST(JournalText, RefusesAFolderThatWouldMoveIntoItself)
{
    Journal journal = MakeJournal();
    for (PlanEntry& entry : journal.plan.entries)
        if (entry.folder != none)
            entry.to.folder = entry.folder;
    ExpectRefused(journal);
}

TEST(JournalText, NamesAnUnknownVersion)
{
    for (const char* text : {"vyr-journal\t1\t12345678\n", "vyr-journal\t4\n"}) {
        CString problem;
        EXPECT_FALSE(ReadJournal(text, problem));
        EXPECT_GE(problem.Find(u"version"), 0);
        EXPECT_FALSE(ReadHeading(text, problem));
        EXPECT_GE(problem.Find(u"version"), 0);
    }
}

/// `text` up to its end, with `line` instead of its lines of steps, and with a correct checksum.
std::string WithSteps(const std::string& text, const std::string& line)
{
    return WithCheck(text.substr(0, text.find("\nsteps") + 1) + line + "\nend");
}

TEST(JournalText, WritesConsecutiveStepsAsARange)
{
    PathRenames list;
    for (const char16_t* name : {u"a", u"b", u"c", u"d"})
        list.Add(Full(name), Full(CString(name) + u"x"), Kind::File);
    Journal journal = PlannedJournal(list);
    const std::string text = TextOf(journal);
    EXPECT_NE(text.find("\nsteps\tr0-3\nend\t"), text.npos) << text;
    EXPECT_EQ(MustRead(WithSteps(text, "steps\tr0-3")).plan.steps, journal.plan.steps);
    EXPECT_EQ(MustRead(WithSteps(text, "steps\tr0\tr1-1\nsteps\tr2-3")).plan.steps, journal.plan.steps);
    std::swap(journal.plan.steps[0], journal.plan.steps[3]);
    EXPECT_NE(TextOf(journal).find("\nsteps\tr3\tr1-2\tr0\nend\t"), text.npos);
}

TEST(JournalText, IsRefusedWithImpossibleRangesOfSteps)
{
    PathRenames list;
    list.Add(Full(u"a"), Full(u"b"), Kind::File);
    list.Add(Full(u"c"), Full(u"d"), Kind::File);
    const std::string text = TextOf(PlannedJournal(list));
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

TEST(JournalText, IsRefusedWithMoreStepsThanItsEntriesCanHave)
{
    const std::string text = WithCheck("vyr-journal\t2\nbatch\t1\t2\t\t0\t0\t4294967294\t\t");
    CString problem;
    EXPECT_FALSE(ReadJournal(text + "steps\tr0-4294967293\nend\t00000000\n", problem));
    EXPECT_GE(problem.Find(u"too many steps"), 0);
}

TEST(JournalText, IsWrittenInPiecesThatMakeTheWhole)
{
    const Journal journal = LongJournal(5000);
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
    EXPECT_EQ(check, BitwiseCrc(0, text.substr(0, text.rfind('\t'))));
}

} // namespace
