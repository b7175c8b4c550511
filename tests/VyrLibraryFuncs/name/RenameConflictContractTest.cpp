// The promises of conflict numbering, of format tokens and of samples, each tested by itself.
#include <VyrLibraryFuncs/name/NameFuncs.h>
#include <VyrPlatform/process/MessageQueue.h>

#include <tests/support/Describe.h>
#include <tests/support/EmptiedQueue.h>
#include <tests/support/FixedClock.h>
#include <tests/support/Links.h>
#include <tests/support/MessagePosting.h>
#include <tests/support/PictureBuilder.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/UserLocale.h>

#include <climits>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

using VyrLibraryFuncs::NameFuncs;
using VyrTests::FixedClock;
using VyrTests::MessagePosting;
using VyrTests::ScratchFolder;
using VyrTests::UserLocale;

namespace {

NameFuncs::CONFLICTITEM Numbering(const char16_t* format, int position, int start, int step)
{
    return {.numberFormat = format, .position = position, .startNumber = start, .step = step};
}

CString PictureOf(const ScratchFolder& scratch, std::string make, std::string model)
{
    VyrTests::PictureFacts facts;
    facts.make = std::move(make);
    facts.model = std::move(model);
    return scratch.WriteFile(u"p.jpg", VyrTests::BuildJpeg(facts));
}

} // namespace

// Conflicts

TEST(RenameContract, FreePathIsReturnedAsItIsWithoutADrain)
{
    const ScratchFolder scratch;
    const MessagePosting queue;
    int handled = 0;
    const VyrTests::EmptiedQueue emptied;
    queue.PostWork([&handled] { ++handled; });
    for (const int position : {INT_MIN, 0, 1, 2, INT_MAX})
        EXPECT_EQ(NameFuncs::GetResolveConflictFilePath(scratch.Path(u"a.txt"), Numbering(u"?", position, 1, 1)),
                  scratch.Path(u"a.txt"));
    EXPECT_EQ(NameFuncs::GetResolveConflictFilePath(u"", Numbering(u"?", 1, 1, 1)), u"");
    EXPECT_EQ(handled, 0);
    EXPECT_FALSE(VyrPlatform::MessageQueue::DrainOne());
    EXPECT_EQ(handled, 1);
}

TEST(RenameContract, FirstFreeNumberIsTaken)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a.txt");
    const NameFuncs::CONFLICTITEM numbering = Numbering(u" (?)", 1, 1, 1);
    EXPECT_EQ(NameFuncs::GetResolveConflictFilePath(path, numbering), scratch.Path(u"a (1).txt"));
    scratch.WriteFile(u"a (1).txt");
    EXPECT_EQ(NameFuncs::GetResolveConflictFilePath(path, numbering), scratch.Path(u"a (2).txt"));
    scratch.MakeFolder(u"a (2).txt");
    scratch.WriteFile(u"a (4).txt");
    EXPECT_EQ(NameFuncs::GetResolveConflictFilePath(path, numbering), scratch.Path(u"a (3).txt"));
}

TEST(RenameContract, PositionZeroPutsTheNumberBeforeTheName)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a.txt");
    EXPECT_EQ(NameFuncs::GetResolveConflictFilePath(path, Numbering(u"?_", 0, 1, 1)), scratch.Path(u"1_a.txt"));
}

TEST(RenameContract, EveryQuestionMarkStandsForTheNumberWithoutPadding)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a.b.c");
    EXPECT_EQ(NameFuncs::GetResolveConflictFilePath(path, Numbering(u"-?-?", 1, 12, 1)), scratch.Path(u"a.b-12-12.c"));
    EXPECT_EQ(NameFuncs::GetResolveConflictFilePath(path, Numbering(u"??", 0, 7, 1)), scratch.Path(u"77a.b.c"));
    EXPECT_EQ(NameFuncs::GetResolveConflictFilePath(path, Numbering(u"%d%s?", 1, 7, 1)), scratch.Path(u"a.b%d%s7.c"));
}

TEST(RenameContract, CandidatesAreMadeOfThePathAndNotOfTheOneBefore)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a (1).txt");
    for (const char16_t* const taken : {u"a (1) (1).txt", u"a (1) (2).txt", u"a (1) (3).txt"})
        scratch.WriteFile(taken);
    EXPECT_EQ(NameFuncs::GetResolveConflictFilePath(path, Numbering(u" (?)", 1, 1, 1)), scratch.Path(u"a (1) (4).txt"));
}

TEST(RenameContract, StepLeadsFromOneAttemptToTheNext)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    for (const char16_t* const taken : {u"a5", u"a2", u"a-1"})
        scratch.WriteFile(taken);
    EXPECT_EQ(NameFuncs::GetResolveConflictFilePath(path, Numbering(u"?", 1, 5, -3)), scratch.Path(u"a-4"));
    EXPECT_EQ(NameFuncs::GetResolveConflictFilePath(path, Numbering(u"?", 1, 5, 10)), scratch.Path(u"a15"));
    EXPECT_EQ(NameFuncs::GetResolveConflictFilePath(path, Numbering(u"?", 1, INT_MIN, 0)),
              scratch.Path(u"a-2147483648"));
}

TEST(RenameContract, ConflictNumbersWrapInThirtyTwoBits)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    scratch.WriteFile(u"a2147483647");
    EXPECT_EQ(NameFuncs::GetResolveConflictFilePath(path, Numbering(u"?", 1, INT_MAX, 1)),
              scratch.Path(u"a-2147483648"));
    scratch.WriteFile(u"a-2147483648");
    EXPECT_EQ(NameFuncs::GetResolveConflictFilePath(path, Numbering(u"?", 1, INT_MIN, -1)),
              scratch.Path(u"a2147483646"))
        << "the wrapped number is taken too";
    scratch.WriteFile(u"a1");
    EXPECT_EQ(NameFuncs::GetResolveConflictFilePath(path, Numbering(u"?", 1, 1, INT_MAX)), scratch.Path(u"a-1"));
}

TEST(RenameContract, FolderKeepsItsWholeNameBeforeTheNumber)
{
    const ScratchFolder scratch;
    const CString path = scratch.MakeFolder(u"x.y");
    EXPECT_EQ(NameFuncs::GetResolveConflictFilePath(path, Numbering(u" (?)", 1, 1, 1)), scratch.Path(u"x.y (1)"));
    EXPECT_EQ(NameFuncs::GetResolveConflictFilePath(path, Numbering(u"?_", 0, 1, 1)), scratch.Path(u"1_x.y"));
    scratch.WriteFile(u"x.y (1)");
    EXPECT_EQ(NameFuncs::GetResolveConflictFilePath(path, Numbering(u" (?)", 1, 1, 1)), scratch.Path(u"x.y (2)"));
}

TEST(RenameContract, NamesWithoutAnExtensionAndHiddenNamesAreNumberedAtTheirEnd)
{
    const ScratchFolder scratch;
    EXPECT_EQ(NameFuncs::GetResolveConflictFilePath(scratch.WriteFile(u".rc"), Numbering(u"?", 1, 1, 1)),
              scratch.Path(u".rc1"));
    EXPECT_EQ(NameFuncs::GetResolveConflictFilePath(scratch.WriteFile(u"d.d/plain"), Numbering(u"?", 1, 1, 1)),
              scratch.Path(u"d.d/plain1"));
}

TEST(RenameContract, NameTakenByALinkToNothingIsTaken)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    if (const std::string whyNot = VyrTests::MakeLink(scratch.Path(u"missing"), scratch.Path(u"a1")); !whyNot.empty())
        GTEST_SKIP() << whyNot;
    EXPECT_EQ(NameFuncs::GetResolveConflictFilePath(path, Numbering(u"?", 1, 1, 1)), scratch.Path(u"a2"));
}

TEST(RenameContract, PatternWithoutANumberIsTriedAsItStands)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a.txt");
    EXPECT_EQ(NameFuncs::GetResolveConflictFilePath(path, Numbering(u"_copy", 1, 1, 1)), scratch.Path(u"a_copy.txt"));
}

TEST(RenameContract, SearchWithoutAFreePathRunsUntilAStop)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a.txt");
    scratch.WriteFile(u"a_copy.txt");
    scratch.WriteFile(u"a1.txt");
    const std::vector<std::pair<NameFuncs::CONFLICTITEM, CString>> searches = {
        {Numbering(u"?", 2, 5, 1), path},
        {Numbering(u"?", -1, 5, 1), path},
        {Numbering(u"?", INT_MIN, 5, 1), path},
        {Numbering(u"?", INT_MAX, 5, 1), path},
        {Numbering(u"", 0, 5, 1), path},
        {Numbering(u"_copy", 1, 5, 1), scratch.Path(u"a_copy.txt")},
        {Numbering(u"?", 1, 1, 0), scratch.Path(u"a1.txt")}};
    const MessagePosting queue;
    for (const auto& [numbering, result] : searches) {
        int handled = 0;
        const VyrTests::EmptiedQueue emptied;
        for (int i = 0; i < 40; ++i)
            queue.PostWork([&handled] { ++handled; });
        queue.PostStop();
        EXPECT_EQ(NameFuncs::GetResolveConflictFilePath(path, numbering), result);
        EXPECT_EQ(handled, 40);
    }
}

TEST(RenameContract, StopGivesTheLastCandidateTried)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    for (const char16_t* const taken : {u"a1", u"a2", u"a3"})
        scratch.WriteFile(taken);
    const MessagePosting queue;
    const VyrTests::EmptiedQueue emptied;
    queue.PostStop();
    EXPECT_EQ(NameFuncs::GetResolveConflictFilePath(path, Numbering(u"?", 1, 1, 1)), path);
    queue.PostWork([] {});
    queue.PostWork([] {});
    queue.PostStop();
    EXPECT_EQ(NameFuncs::GetResolveConflictFilePath(path, Numbering(u"?", 1, 1, 1)), scratch.Path(u"a2"));
    EXPECT_EQ(NameFuncs::GetResolveConflictFilePath(path, Numbering(u"?", 1, 1, 1)), scratch.Path(u"a4"));
}

TEST(RenameContract, WorkDoneDuringTheSearchIsSeenByIt)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    const MessagePosting queue;
    const VyrTests::EmptiedQueue emptied;
    queue.PostWork([&scratch] { scratch.WriteFile(u"a1"); });
    EXPECT_EQ(NameFuncs::GetResolveConflictFilePath(path, Numbering(u"?", 1, 1, 1)), scratch.Path(u"a2"))
        << "an event is handled before each attempt";
}

// Tokens and samples

TEST(RenameContract, FolderTokenBecomesOneBackslash)
{
    EXPECT_EQ(NameFuncs::GetFolderFormat(u"<Folder>x<Folder>"), u"\\x\\");
    EXPECT_EQ(NameFuncs::GetFolderFormat(u"<Folder><Folder>"), u"\\\\");
    EXPECT_EQ(NameFuncs::GetFolderFormat(u"<Fol<Folder>der>"), u"<Fol\\der>");
    for (const char16_t* const format :
         {u"", u"yyyy", u"<folder>", u"<FOLDER>", u"<Folder", u"Folder>", u"< Folder>", u"<Make><Model>", u"\\"})
        EXPECT_EQ(NameFuncs::GetFolderFormat(format), CString(format));
}

TEST(RenameContract, MakeAndModelTokensBecomeThoseOfThePicture)
{
    const ScratchFolder scratch;
    const CString picture = PictureOf(scratch, "Maker", "M 1");
    EXPECT_EQ(NameFuncs::GetExifFormat(picture, u"<Make>-<Model>-<Make>-<Model>"), u"Maker-M 1-Maker-M 1");
    EXPECT_EQ(NameFuncs::GetExifFormat(picture, u"<Model>"), u"M 1");
    EXPECT_EQ(NameFuncs::GetExifFormat(picture, u"yyyy<Make><Folder>"), u"yyyyMaker<Folder>");
}

TEST(RenameContract, TokenOfOtherCaseIsNotReplaced)
{
    const ScratchFolder scratch;
    const CString picture = PictureOf(scratch, "Maker", "M 1");
    for (const char16_t* const format :
         {u"", u"<make>", u"<MAKE>", u"<model>", u"<MODEL>", u"Make", u"<Make", u"Model>", u"<Make >", u"%"})
        EXPECT_EQ(NameFuncs::GetExifFormat(picture, format), CString(format));
}

TEST(RenameContract, TokensOfAPictureThatTellsNothingDisappear)
{
    const ScratchFolder scratch;
    const CString text = scratch.WriteFile(u"a.txt", "x");
    for (const CString& path : {text, scratch.Path(u"missing"), scratch.Path(), CString()}) {
        EXPECT_EQ(NameFuncs::GetExifFormat(path, u"[<Make>|<Model>]"), u"[|]");
        EXPECT_EQ(NameFuncs::GetExifFormat(path, u"yyyy<Folder>"), u"yyyy<Folder>");
    }
    const CString silent = PictureOf(scratch, "", "M 1");
    EXPECT_EQ(NameFuncs::GetExifFormat(silent, u"<Make><Model>"), u"M 1");
}

TEST(RenameContract, MakeIsPutInBeforeModelIsLookedFor)
{
    const ScratchFolder scratch;
    const CString picture = PictureOf(scratch, "A<Model>B", "<Make>");
    EXPECT_EQ(NameFuncs::GetExifFormat(picture, u"<Make>"), u"A<Make>B");
    EXPECT_EQ(NameFuncs::GetExifFormat(picture, u"<Model>"), u"<Make>");
}

TEST(RenameContract, SampleIsTheCurrentTimeInTheFormat)
{
    const UserLocale locale(u"en_US");
    const FixedClock clock({2024, 3, 15, 13, 5, 9});
    EXPECT_EQ(NameFuncs::GetRenameToSampleFormated(u"yyyyMMdd_HHmmss"), u"20240315_130509");
    EXPECT_EQ(NameFuncs::GetRenameToSampleFormated(u"yyyy<Folder>MM<Folder>dd"), u"2024\\03\\15");
    EXPECT_EQ(NameFuncs::GetRenameToSampleFormated(u"'<Folder>'yyyy"), u"\\2024");
    EXPECT_EQ(NameFuncs::GetRenameToSampleFormated(u"<folder><Make><Model>"), u"<folder><Make><Model>");
    EXPECT_EQ(NameFuncs::GetRenameToSampleFormated(u"100% EEEE"), u"100% Friday");
    EXPECT_EQ(NameFuncs::GetRenameToSampleFormated(u" "), u" ");
    EXPECT_EQ(NameFuncs::GetRenameToSampleFormated(u""), u"");
}

TEST(RenameContract, DateTimeFormatLeavesTokensInPlace)
{
    EXPECT_EQ(NameFuncs::GetDateTimeFormat(u"", u"yyyy<Folder>MM<Make>", 7), u"1899<Folder>12<Make>");
    EXPECT_EQ(NameFuncs::GetDateTimeFormat(u"", u" ", -1), u" ");
}
