// Tests of the program: renames that are applied, undone and recovered.
#include "VyrProgram.h"

#include <VyrPlatform/text/Encoding.h>

#include <gmock/gmock.h>
#include <tests/support/PictureBuilder.h>
#include <tests/support/StdPath.h>

#include <filesystem>

using namespace VyrTests;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

namespace {

using RenameApply = VyrProgram;

} // namespace

TEST_F(RenameApply, RenamesAndTellsTheNumberOfTheBatch)
{
    m_folder.WriteFile(u"a", "1");
    m_folder.WriteFile(u"b", "2");
    const ProgramResult result = Rename({u"--suffix", u"!", u"--apply", u"a", u"b"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(result.output, "a  ->  a!\nb  ->  b!\n2 entries: 2 renamed.\n"
                             "This was batch 1; \"vyr undo\" undoes it.\n");
    EXPECT_EQ(m_folder.ReadFile(u"a!"), "1");
    EXPECT_EQ(m_folder.ReadFile(u"b!"), "2");
    EXPECT_FALSE(m_folder.Has(u"a"));
}

TEST_F(RenameApply, RefusedEntriesDoNotStopTheOthers)
{
    m_folder.WriteFile(u"a");
    const ProgramResult result = Rename({u"--suffix", u"!", u"--apply", u"missing", u"a"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.output, HasSubstr("2 entries: 1 renamed, 1 refused.\n"));
    EXPECT_TRUE(m_folder.Has(u"a!"));
}

TEST_F(RenameApply, NothingToRenameMakesNoBatch)
{
    m_folder.WriteFile(u"a");
    const ProgramResult result = Rename({u"--replace", u"x", u"y", u"--apply", u"a"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_THAT(result.output, HasSubstr("1 entry: 1 unchanged.\nNothing was renamed.\n"));
    EXPECT_EQ(Run({u"undo", u"--list", u"--quiet"}).output, "");
}

TEST_F(RenameApply, ABatchWithoutAPossibleRenameGivesAReasonForEachEntry)
{
    m_folder.WriteFile(u"d/x", "1");
    ProgramResult result = Rename({u"--pairs", u"-", u"--apply"}, "d,d/d\n");
    EXPECT_EQ(result.exitCode, 1) << result.errors;
    EXPECT_THAT(result.output, AllOf(HasSubstr("refused: "), HasSubstr("Nothing was renamed.\n")));

    // A file that is removed after the names were made fails when they are applied.
    m_folder.WriteFile(u"gone", "2");
    m_environment[u"VISUAL"] = std::nullopt;
    m_environment[u"EDITOR"] = CString::Join({u"\"", BesideThisProgram(u"EditorProbe"), u"\" remove gone"});
    result = Rename({u"--edit", u"--suffix", u"!", u"--apply", u"gone"});
    EXPECT_EQ(result.exitCode, 1) << result.errors;
    EXPECT_THAT(result.output, HasSubstr("gone  ->  gone!  failed: "));
    EXPECT_THAT(result.output, HasSubstr("1 entry: 1 failed.\nNothing was renamed.\n"));
    m_folder.WriteFile(u"gone", "2");
    EXPECT_EQ(Rename({u"--edit", u"--suffix", u"!", u"--apply", u"--quiet", u"gone"}).exitCode, 1);
    EXPECT_EQ(Run({u"undo", u"--list", u"--quiet"}).output, "");
}

TEST_F(RenameApply, FailsAsAWholeOnRequest)
{
    m_folder.WriteFile(u"a1");
    m_folder.WriteFile(u"a2");
    m_folder.WriteFile(u"b1");
    const ProgramResult result =
        Rename({u"--keep-first", u"1", u"--on-conflict", u"fail", u"--apply", u"b1", u"a1", u"a2"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.errors, HasSubstr("nothing is renamed"));
    EXPECT_THAT(result.output, HasSubstr("3 entries: 1 refused, 2 not reached.\nNothing was renamed.\n"));
    for (const char16_t* const name : {u"a1", u"a2", u"b1"})
        EXPECT_TRUE(m_folder.Has(name));
}

TEST_F(RenameApply, FailsAsAWholeForANameOnTheDiskToo)
{
    m_folder.WriteFile(u"a1", "1");
    m_folder.WriteFile(u"b1", "2");
    m_folder.WriteFile(u"b2", "3");
    const ProgramResult result = Rename({u"--replace", u"1", u"2", u"--on-conflict=fail", u"--apply", u"a1", u"b1"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.output, StartsWith("a1  ->  a2  not reached: "));
    EXPECT_THAT(result.output, HasSubstr("b1  ->  b2  refused: the new name is there already\n"));
    EXPECT_THAT(result.output, HasSubstr("2 entries: 1 refused, 1 not reached.\nNothing was renamed.\n"));
    EXPECT_EQ(m_folder.ReadFile(u"a1"), "1");
    EXPECT_EQ(m_folder.ReadFile(u"b1"), "2");
    EXPECT_EQ(m_folder.ReadFile(u"b2"), "3");
    EXPECT_EQ(Run({u"undo", u"--list", u"--quiet"}).output, "");
}

TEST_F(RenameApply, SkipsOnRequest)
{
    m_folder.WriteFile(u"a1");
    m_folder.WriteFile(u"a2");
    const ProgramResult result = Rename({u"--keep-first", u"1", u"--on-conflict=skip", u"--apply", u"a1", u"a2"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_TRUE(m_folder.Has(u"a"));
    EXPECT_TRUE(m_folder.Has(u"a2"));
}

TEST_F(RenameApply, NumbersWithTheRequestedPattern)
{
    for (const char16_t* const name : {u"a1.x", u"a2.x", u"a3.x"})
        m_folder.WriteFile(name);
    EXPECT_THAT(Rename({u"--keep-first", u"1", u"--conflict-pattern", u"?-?_", u"--conflict-position", u"before",
                        u"--conflict-start", u"10", u"--conflict-step=-3", u"*.x"})
                    .output,
                StartsWith("a1.x  ->  a.x\na2.x  ->  10-10_a.x  numbered\na3.x  ->  7-7_a.x    numbered\n"));
}

TEST_F(RenameApply, QuietShowsOnlyEntriesThatAreNotRenamed)
{
    m_folder.WriteFile(u"a");
    m_folder.WriteFile(u"b");
    const ProgramResult result = Rename({u"--suffix", u"!", u"--quiet", u"--apply", u"a", u"missing", u"b"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.output, IsEmpty());
    EXPECT_EQ(result.errors, "vyr: 'missing' refused: there is nothing of that name\n");
    EXPECT_TRUE(m_folder.Has(u"b!"));
}

TEST_F(RenameApply, MovesIntoFoldersThatItCreates)
{
    m_folder.WriteFile(u"a.jpg", BuildJpeg(PictureFacts{}));
    m_folder.WriteFile(u"a.xmp", "sidecar");
    const ProgramResult result = Rename({u"--date", u"yyyy<Folder><Model> <Name>", u"--date-from", u"picture",
                                         u"--together", u"--apply", u"a.jpg", u"a.xmp"});
    EXPECT_EQ(result.exitCode, 0) << result.output << result.errors;
    EXPECT_TRUE(m_folder.Has(u"2024/Model 1 a.jpg"));
    EXPECT_EQ(m_folder.ReadFile(u"2024/Model 1 a.xmp"), "sidecar");
    EXPECT_EQ(Run({u"undo"}).exitCode, 0);
    EXPECT_TRUE(m_folder.Has(u"a.xmp"));
    EXPECT_FALSE(m_folder.Has(u"2024"));
}

TEST_F(RenameApply, RenamesFoldersTogetherWithTheirEntries)
{
    m_folder.WriteFile(u"d/e/f");
    EXPECT_EQ(Rename({u"--case", u"upper", u"--suffix", u"1", u"-r", u"--only", u"all", u"--apply", u"."}).exitCode, 0);
    EXPECT_TRUE(m_folder.Has(u"D1/E1/F1"));
}

TEST_F(RenameApply, ChangesOfCaseAloneAreStored)
{
    m_folder.WriteFile(u"photo.JPG", "picture");
    const ProgramResult result = Rename({u"--case=upper", u"--extension-case=lower", u"--apply", u"photo.JPG"});
    EXPECT_EQ(result.exitCode, 0) << result.output << result.errors;
    EXPECT_THAT(Rename({u"--prefix", u"x", u"*"}).output, StartsWith("PHOTO.jpg  ->  xPHOTO.jpg\n"));
}

TEST_F(RenameApply, TakesPairsOfNames)
{
    m_folder.WriteFile(u"a", "a");
    m_folder.WriteFile(u"b", "b");
    const ProgramResult result = Rename({u"--pairs", u"-", u"--apply"}, "a,b\nb,a\n*,x\n");
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.output, StartsWith("a  ->  b\nb  ->  a\n*         refused: there is nothing of that name\n"));
    EXPECT_EQ(m_folder.ReadFile(u"a"), "b");
    EXPECT_EQ(m_folder.ReadFile(u"b"), "a");

    m_folder.WriteFile(u"pairs.tsv", "a\tnew, name\n");
    EXPECT_EQ(Rename({u"--pairs", u"pairs.tsv", u"--apply", u"--quiet"}).exitCode, 0);
    EXPECT_TRUE(m_folder.Has(u"new, name"));
}

TEST_F(RenameApply, LetsTheNamesBeEdited)
{
    m_folder.WriteFile(u"one.txt");
    m_folder.WriteFile(u"two.txt");
    const CString editor = CString::Join({u"\"", BesideThisProgram(u"EditorProbe"), u"\""});
    m_environment[u"VISUAL"] = std::nullopt;
    m_environment[u"EDITOR"] = editor + u" one three";
    ProgramResult result = Rename({u"--edit", u"--suffix", u"!", u"--apply", u"*.txt"});
    EXPECT_EQ(result.exitCode, 0) << result.output << result.errors;
    EXPECT_THAT(result.output, StartsWith("one.txt  ->  three!.txt\ntwo.txt  ->  two!.txt\n"));
    EXPECT_TRUE(m_folder.Has(u"three!.txt"));

    m_environment[u"EDITOR"] = editor + u" fail now";
    result = Rename({u"--edit", u"--apply", u"*.txt"});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_THAT(result.errors, HasSubstr("3"));
    EXPECT_TRUE(m_folder.Has(u"three!.txt"));
}

TEST_F(RenameApply, KeepsTheEditedTextWithAMistakeThatCannotBeCorrected)
{
    const ScratchFolder temporary;
    for (const char16_t* const name : {u"TMPDIR", u"TMP", u"TEMP"})
        m_environment[name] = temporary.Path();
    m_folder.WriteFile(u"one.txt");
    m_folder.WriteFile(u"two.txt");
    m_environment[u"VISUAL"] = std::nullopt;
    m_environment[u"EDITOR"] = CString::Join({u"\"", BesideThisProgram(u"EditorProbe"), u"\" 2 7"});
    const ProgramResult result = Rename({u"--edit", u"--apply", u"*.txt"});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_THAT(result.errors, StartsWith("vyr: line "));
    EXPECT_THAT(result.errors, HasSubstr("there is no entry of the number 7\nThe edited text is kept in "));
    EXPECT_TRUE(m_folder.Has(u"two.txt"));
    std::vector<std::filesystem::path> kept;
    for (const auto& entry : std::filesystem::directory_iterator(ToStdPath(temporary.Path())))
        kept.push_back(entry.path());
    ASSERT_EQ(kept.size(), 1u);
    const std::u8string name = kept.front().filename().u8string();
    const std::string text(name.begin(), name.end());
    EXPECT_THAT(result.errors, HasSubstr(text + "\n"));
    EXPECT_THAT(temporary.ReadFile(VyrPlatform::Encoding::FromUtf8(text)), HasSubstr("\n7\ttwo.txt\n"));
}

TEST_F(RenameApply, NamesAreEditedWithTheirFolders)
{
    m_folder.WriteFile(u"a/one", "1");
    m_folder.WriteFile(u"b/one", "2");
    const CString editor = CString::Join({u"\"", BesideThisProgram(u"EditorProbe"), u"\""});
    m_environment[u"VISUAL"] = std::nullopt;
    m_environment[u"EDITOR"] = editor + u" a/one b/three";
    const ProgramResult result = Rename({u"--edit", u"--suffix", u"!", u"--apply", u"-r", u"a", u"b"});
    EXPECT_EQ(result.exitCode, 0) << result.output << result.errors;
    EXPECT_EQ(m_folder.ReadFile(u"b/three!"), "1");
    EXPECT_EQ(m_folder.ReadFile(u"b/one!"), "2");
}

TEST_F(RenameApply, EditedNamesKeepTheFoldersThatADateGivesThem)
{
    m_folder.WriteFile(u"a/one", "1");
    m_folder.WriteFile(u"two", "2");
    m_environment[u"VISUAL"] = std::nullopt;
    m_environment[u"EDITOR"] = CString::Join({u"\"", BesideThisProgram(u"EditorProbe"), u"\" one three"});
    const ProgramResult result = Rename({u"--edit", u"--date", u"'new'<Folder><Name>", u"--apply", u"-r", u"."});
    EXPECT_EQ(result.exitCode, 0) << result.output << result.errors;
    EXPECT_EQ(m_folder.ReadFile(u"a/new/three"), "1");
    EXPECT_EQ(m_folder.ReadFile(u"new/two"), "2");
}

TEST_F(RenameApply, UndoTakesTheLatestBatchOrOneByItsNumber)
{
    m_folder.WriteFile(u"a", "1");
    ASSERT_EQ(Rename({u"--suffix", u"1", u"--apply", u"a"}).exitCode, 0);
    ASSERT_EQ(Rename({u"--suffix", u"2", u"--apply", u"a1"}).exitCode, 0);
    EXPECT_THAT(Run({u"undo", u"--list", u"--quiet"}).output, StartsWith("2  "));
    ProgramResult result = Run({u"undo"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_THAT(result.output, HasSubstr("Batch 2: 1 entry: 1 renamed.\n"));
    EXPECT_TRUE(m_folder.Has(u"a1"));
    result = Run({u"undo", u"1", u"--json"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_THAT(result.output, HasSubstr("\"status\":\"renamed\",\"changed\":false}"));
    EXPECT_EQ(m_folder.ReadFile(u"a"), "1");
    EXPECT_THAT(Run({u"undo", u"--list", u"--json"}).output, HasSubstr("\"state\":\"undone\""));

    result = Run({u"undo"});
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_THAT(result.errors, StartsWith("vyr: "));
    EXPECT_EQ(Run({u"undo", u"x"}).exitCode, 2);
}

TEST_F(RenameApply, WrongCallsOfUndoAndRecoverAreRefused)
{
    m_folder.WriteFile(u"a");
    ASSERT_EQ(Rename({u"--suffix", u"1", u"--apply", u"a"}).exitCode, 0);
    for (const std::vector<CString>& call :
         std::vector<std::vector<CString>>{{u"undo", u"--list", u"1"},
                                           {u"undo", u"1", u"1"},
                                           {u"undo", u"0"},
                                           {u"undo", u"-1"},
                                           {u"undo", u"1.5"},
                                           {u"undo", u""},
                                           {u"undo", u"99999999999"},
                                           {u"recover", u"1"},
                                           {u"recover", u"--take-back", u"--abandon"}}) {
        const ProgramResult result = Run(call);
        EXPECT_EQ(result.exitCode, 2) << VyrPlatform::Encoding::ToUtf8(call.back()) << result.output;
        EXPECT_THAT(result.errors, StartsWith("vyr: "));
    }
    EXPECT_EQ(Run({u"undo", u"2"}).exitCode, 4);
    EXPECT_TRUE(m_folder.Has(u"a1"));
}

TEST_F(RenameApply, RecoverReportsThatThereIsNothingToRecover)
{
    const ProgramResult result = Run({u"recover"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, "No batch was cut off.\n");
}

TEST_F(RenameApply, RecoverAbandonsABatchWhoseJournalIsDamagedAndKeepsTheJournal)
{
    const ScratchFolder journal;
    m_environment[u"VYR_JOURNAL_DIR"] = journal.Path();
    journal.WriteFile(u"000001.applying", "damaged");
    m_folder.WriteFile(u"a");
    EXPECT_EQ(Rename({u"--suffix", u"1", u"--apply", u"a"}).exitCode, 4);
    const ProgramResult refused = Run({u"recover"});
    EXPECT_EQ(refused.exitCode, 4);
    EXPECT_THAT(refused.errors, HasSubstr("vyr recover --abandon"));
    const ProgramResult given = Run({u"recover", u"--abandon"});
    EXPECT_EQ(given.exitCode, 0) << given.errors;
    EXPECT_THAT(given.output, AllOf(HasSubstr("Batch 1 is abandoned"), HasSubstr("000001.abandoned")));
    EXPECT_TRUE(journal.Has(u"000001.abandoned"));
    EXPECT_THAT(Rename({u"--suffix", u"1", u"--apply", u"a"}).output, HasSubstr("batch 2"));
    EXPECT_TRUE(m_folder.Has(u"a1"));
    EXPECT_EQ(Run({u"recover", u"--abandon", u"--take-back"}).exitCode, 2);
    EXPECT_EQ(Run({u"recover", u"--abandon", u"--json"}).exitCode, 2);
}

TEST_F(RenameApply, UndoNamesAFolderThatStaysAndRemovesItAtTheNextAttempt)
{
    m_folder.WriteFile(u"a.jpg", BuildJpeg(PictureFacts{}));
    ASSERT_EQ(Rename({u"--date", u"yyyy<Folder><Name>", u"--date-from", u"picture", u"--apply", u"a.jpg"}).exitCode, 0);
    ASSERT_TRUE(m_folder.Has(u"2024/a.jpg"));
    m_folder.WriteFile(u"2024/mine");
    const ProgramResult undone = Run({u"undo"});
    EXPECT_EQ(undone.exitCode, 0);
    EXPECT_THAT(undone.errors, AllOf(HasSubstr("stays"), HasSubstr("\"vyr undo 1\" tries again")));
    EXPECT_TRUE(m_folder.Has(u"2024/mine"));
    EXPECT_TRUE(m_folder.Has(u"a.jpg"));
    std::filesystem::remove(ToStdPath(m_folder.Path(u"2024/mine")));
    const ProgramResult again = Run({u"undo", u"1"});
    EXPECT_EQ(again.exitCode, 0) << again.errors;
    EXPECT_EQ(again.errors, "");
    EXPECT_FALSE(m_folder.Has(u"2024"));
    EXPECT_EQ(Run({u"undo", u"1"}).exitCode, 4);
}

TEST_F(RenameApply, ContradictionsAreRefusedBeforeAnythingIsChanged)
{
    m_folder.WriteFile(u"a");
    const std::vector<std::vector<CString>> calls = {
        {u"--suffix", u"1", u"--only", u"all", u"a"},
        {u"--suffix", u"1", u"--json", u"--quiet", u"a"},
        {u"--suffix", u"1", u"--stdin", u"--stdin0"},
        {u"--suffix", u"1", u"--pairs", u"-"},
        {u"--pairs", u"-", u"a"},
        {u"--pairs", u"-", u"--edit"},
        {u"--pairs", u"no such file"},
        {u"--suffix", u"1", u"--conflict-pattern", u"x", u"a"},
        {u"--suffix", u"1", u"--conflict-pattern", u"?/", u"a"},
        {u"--suffix", u"1", u"--conflict-step", u"0", u"a"},
        {u"--suffix", u"1", u"--conflict-position", u"middle", u"a"},
        {u"--suffix", u"1", u"--on-conflict", u"skip", u"--conflict-start", u"3", u"a"},
        {u"--suffix", u"1", u"--on-conflict", u"overwrite", u"a"},
        {u"--suffix", u"1", u"--sort", u"colour", u"a"},
    };
    for (std::vector<CString> call : calls) {
        call.emplace_back(u"--apply");
        const ProgramResult result = Rename(call, "a,b\n");
        EXPECT_EQ(result.exitCode, 2) << VyrPlatform::Encoding::ToUtf8(call[1]) << result.output;
        EXPECT_THAT(result.errors, StartsWith("vyr: "));
        EXPECT_TRUE(m_folder.Has(u"a"));
    }
}
