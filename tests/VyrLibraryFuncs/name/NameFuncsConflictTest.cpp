// The numbering of names that are taken, on real files.
#include <VyrLibraryFuncs/name/NameFuncs.h>

#include <tests/VyrLibraryFuncs/PrivateOperations.h>
#include <tests/support/EmptiedQueue.h>
#include <tests/support/Links.h>
#include <tests/support/MessagePosting.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <gtest/gtest.h>
#include <tests/support/Describe.h>

#include <filesystem>
#include <limits>
#include <string>

using VyrLibraryFuncs::NameFuncs;
using VyrTests::MessagePosting;
using VyrTests::ScratchFolder;

namespace {

constexpr int smallest = std::numeric_limits<int>::min();
constexpr int largest = std::numeric_limits<int>::max();

NameFuncs::CONFLICTITEM Numbering(const char16_t* format, int position, int startNumber = 1, int step = 1)
{
    return {format, position, startNumber, step};
}

CString Resolve(const CString& path, const NameFuncs::CONFLICTITEM& numbering)
{
    return NameFuncs::GetResolveConflictFilePath(path, numbering);
}

} // namespace

TEST(NameFuncsConflict, FreePathIsReturnedUnchangedWithoutNumbering)
{
    const ScratchFolder scratch;
    const CString path = scratch.Path(u"a.txt");
    EXPECT_EQ(Resolve(path, Numbering(u" (?)", 1)), path);
    EXPECT_EQ(Resolve(path, Numbering(u"", 9, 0, 0)), path);
}

TEST(NameFuncsConflict, FreePathHandlesNoEvent)
{
    const ScratchFolder scratch;
    const MessagePosting queue;
    queue.PostStop();
    const CString path = scratch.Path(u"a.txt");
    EXPECT_EQ(Resolve(path, Numbering(u" (?)", 1)), path);
    scratch.WriteFile(u"a.txt");
    EXPECT_EQ(Resolve(path, Numbering(u" (?)", 1)), path) << "only now the stop is told";
    EXPECT_EQ(Resolve(path, Numbering(u" (?)", 1)), scratch.Path(u"a (1).txt"));
}

TEST(NameFuncsConflict, FirstFreeNumberIsTaken)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a.txt");
    EXPECT_EQ(Resolve(path, Numbering(u" (?)", 1)), scratch.Path(u"a (1).txt"));
    scratch.WriteFile(u"a (1).txt");
    EXPECT_EQ(Resolve(path, Numbering(u" (?)", 1)), scratch.Path(u"a (2).txt"));
    scratch.MakeFolder(u"a (2).txt");
    EXPECT_EQ(Resolve(path, Numbering(u" (?)", 1)), scratch.Path(u"a (3).txt")) << "a folder takes a name too";
    scratch.WriteFile(u"a (4).txt");
    EXPECT_EQ(Resolve(path, Numbering(u" (?)", 1, 4)), scratch.Path(u"a (5).txt"));
}

TEST(NameFuncsConflict, NumberIsBeforeTheName)
{
    const ScratchFolder scratch;
    EXPECT_EQ(Resolve(scratch.WriteFile(u"a.txt"), Numbering(u"?_", 0)), scratch.Path(u"1_a.txt"));
}

TEST(NameFuncsConflict, EveryQuestionMarkIsTheNumber)
{
    const ScratchFolder scratch;
    EXPECT_EQ(Resolve(scratch.WriteFile(u"a.txt"), Numbering(u"-?-?", 1, 12)), scratch.Path(u"a-12-12.txt"));
}

TEST(NameFuncsConflict, PatternIsFilledWithTheDecimalNumber)
{
    using VyrLibraryFuncs::PrivateOperations;
    EXPECT_EQ(PrivateOperations::GetResolveConflictNumber(u" (?)", 7), u" (7)");
    EXPECT_EQ(PrivateOperations::GetResolveConflictNumber(u"?.?-?", -12), u"-12.-12--12");
    EXPECT_EQ(PrivateOperations::GetResolveConflictNumber(u"%d", 7), u"%d");
    EXPECT_EQ(PrivateOperations::GetResolveConflictNumber(u"", 7), u"");
    EXPECT_EQ(VyrLibraryFuncs::FillConflictPattern(u" (?)", u"007"), u" (007)");
}

TEST(NameFuncsConflict, NumbersAreNeitherPaddedNorUnsigned)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a.txt");
    EXPECT_EQ(Resolve(path, Numbering(u"?", 1, 0)), scratch.Path(u"a0.txt"));
    EXPECT_EQ(Resolve(path, Numbering(u"?", 1, -5)), scratch.Path(u"a-5.txt"));
    EXPECT_EQ(Resolve(path, Numbering(u"?", 1, smallest)), scratch.Path(u"a-2147483648.txt"));
}

TEST(NameFuncsConflict, StepsMayBeWideNegativeAndWrap)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a.txt");
    scratch.WriteFile(u"a10.txt");
    EXPECT_EQ(Resolve(path, Numbering(u"?", 1, 10, 7)), scratch.Path(u"a17.txt"));
    EXPECT_EQ(Resolve(path, Numbering(u"?", 1, 10, -20)), scratch.Path(u"a-10.txt"));
    EXPECT_EQ(Resolve(path, Numbering(u"?", 1, 10, largest)), scratch.Path(u"a-2147483639.txt"));
}

TEST(NameFuncsConflict, EachCandidateIsMadeFromTheGivenPath)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a.txt");
    for (const char16_t* const name : {u"a1.txt", u"a2.txt", u"a3.txt"})
        scratch.WriteFile(name);
    EXPECT_EQ(Resolve(path, Numbering(u"?", 1)), scratch.Path(u"a4.txt"));
}

TEST(NameFuncsConflict, FolderKeepsItsDottedName)
{
    const ScratchFolder scratch;
    EXPECT_EQ(Resolve(scratch.MakeFolder(u"x.y"), Numbering(u"?", 1)), scratch.Path(u"x.y1"));
}

TEST(NameFuncsConflict, FileWithoutAnExtensionGetsTheNumberAtItsEnd)
{
    const ScratchFolder scratch;
    EXPECT_EQ(Resolve(scratch.WriteFile(u"README"), Numbering(u" ?", 1)), scratch.Path(u"README 1"));
}

TEST(NameFuncsConflict, StopEndsASearchThatCannotEnd)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a.txt");
    const CString same = scratch.WriteFile(u"a!.txt");
    const CString numbered = scratch.WriteFile(u"a7.txt");
    const MessagePosting queue;
    const auto resolveUntilStop = [&](const NameFuncs::CONFLICTITEM& numbering) {
        int handled = 0;
        for (int i = 0; i < 5; ++i)
            queue.PostWork([&handled] { ++handled; });
        queue.PostStop();
        const CString result = Resolve(path, numbering);
        EXPECT_EQ(handled, 5);
        return result;
    };
    EXPECT_EQ(resolveUntilStop(Numbering(u"!", 1)), same) << "no question mark";
    EXPECT_EQ(resolveUntilStop(Numbering(u"?", 1, 7, 0)), numbered) << "step 0";
    for (const int position : {2, 3, -1, smallest, largest})
        EXPECT_EQ(resolveUntilStop(Numbering(u"?", position)), path) << "position " << position;
}

TEST(NameFuncsConflict, SearchContinuesUntilANameBecomesFree)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a.txt");
    const CString taken = scratch.WriteFile(u"a!.txt");
    const MessagePosting queue;
    for (int i = 0; i < 3; ++i)
        queue.PostWork([] {});
    queue.PostWork([&taken] { std::filesystem::remove(VyrTests::ToStdPath(taken)); });
    EXPECT_EQ(Resolve(path, Numbering(u"!", 1)), taken);
    EXPECT_FALSE(scratch.Has(u"a!.txt"));
}

TEST(NameFuncsConflict, NameOfABrokenLinkIsTaken)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    if (const std::string whyNot = VyrTests::MakeLink(scratch.Path(u"missing"), scratch.Path(u"a1")); !whyNot.empty())
        GTEST_SKIP() << whyNot;
    EXPECT_EQ(Resolve(path, Numbering(u"?", 1, 1, 1)), scratch.Path(u"a2"));
}

TEST(NameFuncsConflict, HiddenNameAndPlainNameInADottedFolderGetTheNumberAtTheirEnd)
{
    const ScratchFolder scratch;
    EXPECT_EQ(Resolve(scratch.WriteFile(u".rc"), Numbering(u"?", 1, 1, 1)), scratch.Path(u".rc1"));
    EXPECT_EQ(Resolve(scratch.WriteFile(u"d.d/plain"), Numbering(u"?", 1, 1, 1)), scratch.Path(u"d.d/plain1"));
}

TEST(NameFuncsConflict, StopGivesTheLastCandidateTried)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    for (const char16_t* const taken : {u"a1", u"a2", u"a3"})
        scratch.WriteFile(taken);
    const MessagePosting queue;
    const VyrTests::EmptiedQueue emptied;
    queue.PostStop();
    EXPECT_EQ(Resolve(path, Numbering(u"?", 1, 1, 1)), path);
    queue.PostWork([] {});
    queue.PostWork([] {});
    queue.PostStop();
    EXPECT_EQ(Resolve(path, Numbering(u"?", 1, 1, 1)), scratch.Path(u"a2"));
    EXPECT_EQ(Resolve(path, Numbering(u"?", 1, 1, 1)), scratch.Path(u"a4"));
}

TEST(NameFuncsConflict, AnEventIsHandledBeforeEachAttempt)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    const MessagePosting queue;
    const VyrTests::EmptiedQueue emptied;
    queue.PostWork([&scratch] { scratch.WriteFile(u"a1"); });
    EXPECT_EQ(Resolve(path, Numbering(u"?", 1, 1, 1)), scratch.Path(u"a2"));
}
