// Tests of the program: vyr times, vyr attributes and vyr unblock, shown, applied, undone and recovered.
#include "VyrProgram.h"

#include <VyrPlatform/files/FileAttributes.h>
#include <VyrPlatform/files/FileTimes.h>

#include <gmock/gmock.h>
#include <tests/support/FileMoments.h>
#include <tests/support/FileState.h>
#include <tests/support/PictureBuilder.h>
#include <tests/support/StdPath.h>

#include <filesystem>
#include <optional>

using namespace VyrTests;
using testing::HasSubstr;
using testing::Not;

namespace FileAttributes = VyrPlatform::FileAttributes;
namespace FileTimes = VyrPlatform::FileTimes;

namespace {

constexpr std::uint32_t readOnly = 0x1;
constexpr std::uint32_t hidden = 0x2;
constexpr std::int64_t moment = 1'704'450'600; // 2024-01-05 10:30 UTC

class ChangeCommands : public VyrProgram
{
protected:
    ChangeCommands()
    {
        m_environment[u"TZ"] = u"UTC";
        m_environment[u"LC_ALL"] = u"C.UTF-8";
    }

    CString Make(std::u16string_view name) const
    {
        CString path = m_folder.WriteFile(name, "content");
        StampFile(path, TicksOfUnixTime(moment, 1'234'567), TicksOfUnixTime(moment + 60));
        return path;
    }
};

} // namespace

TEST_F(ChangeCommands, TimesAreShownSideBySideAppliedAndUndone)
{
    const CString path = Make(u"a.txt");
    const ProgramResult shown = Run({u"times", u"--set-modified", u"2020-02-03 04:05", u"a.txt"});
    EXPECT_EQ(shown.exitCode, 0) << shown.errors;
    EXPECT_THAT(shown.output, HasSubstr("modified 2024-01-05 10:30:00 -> modified 2020-02-03 04:05:00"));
    EXPECT_THAT(shown.output, HasSubstr("1 entry: 1 changed.\nThis is a preview: nothing was changed.\n"));
    EXPECT_EQ(FileTimes::GetModified(path), TicksOfUnixTime(moment, 1'234'567));

    const ProgramResult applied = Run({u"times", u"--set-modified", u"2020-02-03 04:05", u"a.txt", u"--apply"});
    EXPECT_EQ(applied.exitCode, 0) << applied.errors;
    EXPECT_THAT(applied.output, HasSubstr("This was batch 1; \"vyr undo\" undoes it."));
    EXPECT_EQ(FileTimes::GetModified(path), TicksOfUnixTime(1'580'702'700));
    EXPECT_EQ(FileTimes::GetAccessed(path), TicksOfUnixTime(moment + 60));

    const ProgramResult undone = Run({u"undo"});
    EXPECT_EQ(undone.exitCode, 0) << undone.errors;
    EXPECT_EQ(FileTimes::GetModified(path), TicksOfUnixTime(moment, 1'234'567));
    EXPECT_EQ(Run({u"undo", u"2"}).exitCode, 0) << "redone";
    EXPECT_EQ(FileTimes::GetModified(path), TicksOfUnixTime(1'580'702'700));
}

TEST_F(ChangeCommands, TimesAreListedWithoutAChange)
{
    Make(u"a.txt");
    const ProgramResult result = Run({u"times", u"a.txt", u"--json"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_THAT(result.output, HasSubstr("\"name\":\"a.txt\",\"modified\":\"2024-01-05T10:30:00+00:00\""));
    EXPECT_THAT(result.output, HasSubstr("\"accessed\":\"2024-01-05T10:31:00+00:00\""));
}

TEST_F(ChangeCommands, ListIsATableForSpreadsheetsOfTheColumnsThatAreChosen)
{
    Make(u"a.txt");
    const ProgramResult times = Run({u"times", u"a.txt", u"--csv", u"--columns", u"name,size,accessed"});
    EXPECT_EQ(times.exitCode, 0) << times.errors;
    EXPECT_EQ(times.output, "\xEF\xBB\xBFname,size,accessed\r\na.txt,7,2024-01-05T10:31:00+00:00\r\n");
    EXPECT_EQ(times.errors, "1 entry.\n");
    EXPECT_THAT(Run({u"times", u"a.txt", u"--csv"}).output,
                testing::StartsWith("\xEF\xBB\xBFname,modified,created,accessed,taken\r\n"));
    EXPECT_THAT(Run({u"attributes", u"a.txt", u"--csv", u"--quiet"}).output,
                testing::StartsWith("\xEF\xBB\xBFname,attributes\r\na.txt,"));
    EXPECT_EQ(Run({u"attributes", u"a.txt", u"--json", u"--columns=size"}).output, "{\"size\":7}\n");
}

TEST_F(ChangeCommands, ListHasTheOrderThatIsAskedFor)
{
    for (const char16_t* const name : {u"p9", u"p10", u"p1"})
        Make(name);
    const auto names = [this](std::vector<CString> options) {
        std::vector<CString> call = {u"times", u"p9", u"p10", u"p1", u"--quiet", u"--columns=name"};
        call.insert(call.end(), options.begin(), options.end());
        return Run(std::move(call)).output;
    };
    EXPECT_EQ(names({}), "p9\np10\np1\n");
    EXPECT_EQ(names({u"--sort=name"}), "p1\np9\np10\n");
    EXPECT_EQ(names({u"--sort=name", u"--descending"}), "p10\np9\np1\n");
}

TEST_F(ChangeCommands, RowSaysWhyAnEntryCannotBeChanged)
{
    Make(u"IMG_20230102_030405.jpg");
    Make(u"IMG_20230230_030405.jpg");
    Make(u"other.jpg");
    const ProgramResult result = Run({u"times", u"--set-modified=from:name", u"--apply", u"IMG_20230102_030405.jpg",
                                      u"IMG_20230230_030405.jpg", u"other.jpg", u"missing"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.output, HasSubstr("modified 2024-01-05 10:30:00 -> modified 2023-01-02 03:04:05"));
    EXPECT_THAT(result.output, HasSubstr("refused: the date in its name does not exist"));
    EXPECT_THAT(result.output, HasSubstr("refused: its name holds no date"));
    EXPECT_THAT(result.output, HasSubstr("4 entries: 1 changed, 3 refused."));
}

TEST_F(ChangeCommands, FileThatVanishesBeforeItIsChangedFailsInItsRow)
{
    const CString staying = Make(u"staying");
    const CString vanishing = Make(u"vanishing");
    const ScratchFolder journal;
    m_environment[u"VYR_JOURNAL_DIR"] = journal.Path();
    ProgramCall call = CallOf({u"times", u"--set-modified=2020-02-03 04:05", u"staying", u"vanishing", u"--apply"});
    call.stopsAtChanges = true;
    ChildProcess child(call);
    // Once its journal is on the disk it has looked at the files. It may hold the first one open.
    while (!journal.Has(u"000001.applying"))
        ASSERT_TRUE(child.GoToNextChange());
    ASSERT_TRUE(std::filesystem::remove(ToStdPath(vanishing)));
    const ProgramResult result = child.Wait();
    EXPECT_EQ(result.exitCode, 1) << result.errors;
    EXPECT_THAT(result.output, HasSubstr("failed: "));
    EXPECT_THAT(result.output, HasSubstr("2 entries: 1 changed, 1 failed.\nThis was batch 1;"));
    EXPECT_EQ(FileTimes::GetModified(staying), TicksOfUnixTime(1'580'702'700));
    EXPECT_EQ(Run({u"undo"}).exitCode, 0) << "what was not done is not undone either";
    EXPECT_EQ(FileTimes::GetModified(staying), TicksOfUnixTime(moment, 1'234'567));
}

TEST_F(ChangeCommands, ListIsStaggeredInItsOrder)
{
    for (const char16_t* const name : {u"p10", u"p9", u"p1"})
        Make(name);
    EXPECT_EQ(
        Run({u"times", u"-r", u".", u"--sort=name", u"--stagger=1m", u"--start=2020-01-01 00:00", u"--apply"}).exitCode,
        0);
    constexpr std::int64_t start = 1'577'836'800;
    EXPECT_EQ(FileTimes::GetModified(m_folder.Path(u"p1")), TicksOfUnixTime(start));
    EXPECT_EQ(FileTimes::GetModified(m_folder.Path(u"p9")), TicksOfUnixTime(start + 60));
    EXPECT_EQ(FileTimes::GetModified(m_folder.Path(u"p10")), TicksOfUnixTime(start + 120));
}

TEST_F(ChangeCommands, ChangesOfAnotherProgramAreNotUndone)
{
    const CString mine = Make(u"a");
    const CString other = Make(u"b");
    ASSERT_EQ(Run({u"times", u"--shift=1h", u"a", u"b", u"--apply"}).exitCode, 0);
    StampFile(other, TicksOfUnixTime(1), TicksOfUnixTime(2));
    const ProgramResult undone = Run({u"undo"});
    EXPECT_EQ(undone.exitCode, 1);
    EXPECT_THAT(undone.output, HasSubstr("refused: another program has changed it since"));
    EXPECT_EQ(FileTimes::GetModified(mine), TicksOfUnixTime(moment, 1'234'567));
    EXPECT_EQ(FileTimes::GetModified(other), TicksOfUnixTime(1));
    EXPECT_THAT(Run({u"undo", u"--list"}).output, HasSubstr("undone (undo 2), 1 of 2 entries not undone"));
}

TEST_F(ChangeCommands, TimesOfReadOnlyFileAreNotSetAsThePreviewSays)
{
    const CString path = Make(u"a");
    SetReadOnly(path, true);
    for (const CString& last : {CString(u"--set-modified=from:modified"), CString(u"--apply")}) {
        const ProgramResult result = Run({u"times", u"--shift=1h", u"a", last});
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_THAT(result.output, testing::StartsWith("a        refused: it is read-only\n1 entry: 1 refused.\n"));
    }
    EXPECT_EQ(Run({u"times", u"--set-modified=from:modified", u"a"}).exitCode, 0) << "nothing is to be written";
    EXPECT_EQ(FileTimes::GetModified(path), TicksOfUnixTime(moment, 1'234'567));
    SetReadOnly(path, false);
}

TEST_F(ChangeCommands, AttributesAreChangedAndUndone)
{
    const CString path = Make(u"a");
    const std::uint32_t before = FileAttributes::Get(path);
    EXPECT_THAT(Run({u"attributes", u"a"}).output, HasSubstr("Attributes"));
    const ProgramResult applied = Run({u"attributes", u"--set=read-only,H", u"a", u"--apply"});
    EXPECT_EQ(applied.exitCode, 0) << applied.errors;
    EXPECT_THAT(applied.output, HasSubstr(" -> RH"));
    EXPECT_EQ(FileAttributes::Get(path) & (readOnly | hidden), readOnly | hidden);
    const ProgramResult again = Run({u"attributes", u"--set=RH", u"a", u"--apply"});
    EXPECT_THAT(again.output, HasSubstr("1 entry: 1 unchanged."));
    EXPECT_THAT(again.output, HasSubstr("Nothing was changed."));
    EXPECT_EQ(Run({u"undo"}).exitCode, 0);
    EXPECT_EQ(FileAttributes::Get(path), before);
}

TEST_F(ChangeCommands, AllAttributesAreClearedExceptThoseThatAreSet)
{
    const CString path = Make(u"a");
    ASSERT_EQ(FileAttributes::Set(path, 0x7), 0U);
    EXPECT_EQ(Run({u"attributes", u"--clear-all", u"--set=S", u"a", u"--apply"}).exitCode, 0);
    EXPECT_EQ(FileAttributes::Get(path) & 0x7, 0x4U);
    EXPECT_EQ(Run({u"undo"}).exitCode, 0);
    EXPECT_EQ(FileAttributes::Get(path) & 0x7, 0x7U);
    EXPECT_EQ(FileAttributes::Set(path, 0), 0U);
}

TEST_F(ChangeCommands, MarksAreRemovedAndRestored)
{
    const CString marked = Make(u"a.zip");
    Make(u"b.zip");
    MarkAsDownloaded(marked);
    const ProgramResult shown = Run({u"unblock", u"a.zip", u"b.zip"});
    EXPECT_EQ(shown.exitCode, 0) << shown.errors;
    EXPECT_THAT(shown.output, HasSubstr("internet -> no mark"));
    EXPECT_THAT(shown.output, HasSubstr("2 entries: 1 changed, 1 unchanged."));
    EXPECT_TRUE(IsMarkedAsDownloaded(marked));
    EXPECT_EQ(Run({u"unblock", u"a.zip", u"b.zip", u"--apply"}).exitCode, 0);
    EXPECT_FALSE(IsMarkedAsDownloaded(marked));
    const ProgramResult undone = Run({u"undo", u"--json"});
    EXPECT_EQ(undone.exitCode, 0) << undone.errors;
    EXPECT_THAT(undone.output, HasSubstr("\"kind\":\"mark\""));
    EXPECT_TRUE(IsMarkedAsDownloaded(marked));
}

TEST_F(ChangeCommands, RenamedFilesAreUndoneAtTheirNewPaths)
{
    const CString path = Make(u"a");
    ASSERT_EQ(Run({u"times", u"--shift=1h", u"a", u"--apply"}).exitCode, 0);
    ASSERT_EQ(Rename({u"--suffix", u"b", u"a", u"--apply"}).exitCode, 0);
    EXPECT_EQ(Run({u"undo"}).exitCode, 0);
    EXPECT_EQ(Run({u"undo"}).exitCode, 0);
    EXPECT_EQ(FileTimes::GetModified(path), TicksOfUnixTime(moment, 1'234'567));
}

TEST_F(ChangeCommands, WrongCallsAreRefusedAndChangeNothing)
{
    const CString path = Make(u"a");
    const std::pair<std::vector<CString>, const char*> calls[] = {
        {{u"times", u"a", u"--apply"}, "--apply changes nothing"},
        {{u"times", u"--set-modified=2024-02-30", u"a", u"--apply"}, "from:name is expected"},
        {{u"times", u"--shift=1x", u"a", u"--apply"}, "numbers with units are expected"},
        {{u"times", u"--start=2024-01-01", u"a", u"--apply"}, "--start changes nothing without --stagger"},
        {{u"times", u"--stagger=1m", u"--start=10:30", u"a"}, "a date or a date-time is expected"},
        {{u"times", u"-r"}, "no file is named; -r . takes those in this folder and below"},
        {{u"times", u"--csv", u"--json", u"a"}, "exclude each other"},
        {{u"times", u"--columns=weight", u"a"}, "the columns are name, path,"},
        {{u"times", u"--shift=1h", u"--csv", u"a", u"--apply"}, "--csv is for lists"},
        {{u"attributes", u"--set=R", u"--columns=name", u"a", u"--apply"}, "--columns is for lists"},
        {{u"attributes", u"--set=X", u"a", u"--apply"}, "read-only, hidden, system"},
        {{u"attributes", u"--set=RH", u"--clear=H", u"a", u"--apply"}, "--set and --clear both name H"},
        {{u"attributes", u"--clear-all", u"--clear=H", u"a", u"--apply"}, "exclude each other"},
        {{u"unblock"}, "no file is named"},
        {{u"unblock", u"--json", u"--quiet", u"a"}, "exclude each other"},
    };
    for (const auto& [call, reason] : calls) {
        const ProgramResult result = Run(call);
        EXPECT_EQ(result.exitCode, 2) << reason;
        EXPECT_THAT(result.errors, HasSubstr(reason));
    }
    EXPECT_EQ(FileTimes::GetModified(path), TicksOfUnixTime(moment, 1'234'567));
}
