// Tests of the program on Windows: names that the system forbids are errors, and paths follow Windows' rules.
#include <tests/VyrHost/cli/VyrProgram.h>

#include <gmock/gmock.h>

using namespace VyrTests;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

using ForbiddenNames = VyrProgram;
using WindowsPaths = VyrProgram;

using FileMap = std::map<std::string, std::string>;

} // namespace

TEST_F(ForbiddenNames, AreRefusedWithTheReason)
{
    WriteNamed({u"a.txt"});
    struct Case
    {
        std::vector<CString> rules;
        const char* reason;
    };
    for (const auto& [rules, reason] :
         {Case{{u"--prefix", u"x:"}, "a forbidden character"}, Case{{u"--prefix", u"<"}, "a forbidden character"},
          Case{{u"--suffix", u"?"}, "a forbidden character"}, Case{{u"--suffix", u"|"}, "a forbidden character"},
          Case{{u"--suffix", u"\x01"}, "a forbidden character"}, Case{{u"--date", u"HH:mm"}, "a forbidden character"},
          Case{{u"--replace", u"a", u"CON"}, "a reserved word"}, Case{{u"--replace", u"a", u"nul"}, "a reserved word"},
          Case{{u"--replace", u"a", u"Com1.x"}, "a reserved word"},
          Case{{u"--suffix", u".", u"--drop-extension"}, "a dot or a blank"},
          Case{{u"--suffix", u" ", u"--drop-extension"}, "a dot or a blank"}}) {
        std::vector<CString> call = rules;
        call.insert(call.end(), {u"--apply", u"a.txt"});
        const ProgramResult result = Rename(call);
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_THAT(result.output, HasSubstr("refused: the new name would "));
        EXPECT_THAT(result.output, HasSubstr(reason));
        EXPECT_EQ(Files(), (FileMap{{"a.txt", "a.txt"}}));
    }
}

TEST_F(ForbiddenNames, AreRefusedForFoldersToMoveInto)
{
    WriteNamed({u"a.txt"});
    for (const char16_t* const format :
         {u"'aux'<Folder><Name>", u"yyyy.<Folder><Name>", u"yyyy<Folder>'x '<Folder><Name>"}) {
        const ProgramResult result = Rename({u"--date", format, u"--apply", u"a.txt"});
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_THAT(result.output, HasSubstr("refused: a folder of that name cannot be made\n"));
    }
    EXPECT_EQ(Files(), (FileMap{{"a.txt", "a.txt"}}));
}

TEST_F(ForbiddenNames, BothSeparatorsAreRefusedInRules)
{
    WriteNamed({u"a.txt"});
    for (const char16_t* const text : {u"x/y", u"x\\y"})
        EXPECT_EQ(Rename({u"--prefix", text, u"a.txt"}).exitCode, 2);
}

TEST_F(ForbiddenNames, FilesThatTheSystemDoesNotListDoNotExist)
{
    WriteNamed({u"a.txt"});
    for (const char16_t* const name : {u"a.txt.", u"a.txt ", u"NUL", u"CON"})
        EXPECT_THAT(Rename({u"--prefix", u"x", name}).output, HasSubstr("refused: there is nothing of that name\n"));
}

TEST_F(WindowsPaths, MayHaveEitherSeparatorAndADrive)
{
    WriteNamed({u"d/e/f"});
    const CString full = m_folder.Path(u"d/e/f");
    CString slashes = full;
    slashes.Replace(u"\\", u"/");
    for (const CString& path :
         {CString(u"d\\e/f"), CString(u".\\d\\.\\e\\f"), CString(u"d/x/../e\\f"), full, slashes}) {
        ASSERT_EQ(Rename({u"--suffix", u"!", u"--apply", path}).exitCode, 0) << VyrPlatform::Encoding::ToUtf8(path);
        EXPECT_EQ(Files(), (FileMap{{"d/e/f!", "d/e/f"}}));
        ASSERT_EQ(Run({u"undo"}).exitCode, 0);
    }
    const CString other = CString(full).MakeLower();
    EXPECT_THAT(Rename({u"--suffix", u"!", full, other}).output, HasSubstr("1 entry: 1 renamed.\n"));
}

TEST_F(WindowsPaths, OfAFolderAndItsEntriesMayDifferInCase)
{
    WriteNamed({u"Dir/Sub/file"});
    const ProgramResult result = Rename({u"--suffix", u"!", u"--apply", u"DIR", u"dir/sub/FILE"});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_THAT(result.errors, HasSubstr("inside it"));
    EXPECT_EQ(Files(), (FileMap{{"Dir/Sub/file", "Dir/Sub/file"}}));
}

TEST_F(WindowsPaths, WildcardsIgnoreCaseAsTheFileSystemDoes)
{
    WriteNamed({u"a.JPG", u"b.jpg", u"c.Jpeg"});
    EXPECT_THAT(Rename({u"--prefix", u"x", u"*.jpg"}).output,
                StartsWith("a.JPG  ->  xa.JPG\nb.jpg  ->  xb.jpg\n2 entries: "));
}

TEST_F(WindowsPaths, ChangesOfCaseAloneAreStoredAndUndone)
{
    WriteNamed({u"photo.jpg", u"Folder/File"});
    ASSERT_EQ(Rename({u"--case", u"upper", u"--apply", u"photo.jpg", u"FOLDER"}).exitCode, 0);
    EXPECT_EQ(Files(), (FileMap{{"PHOTO.jpg", "photo.jpg"}, {"FOLDER/File", "Folder/File"}}));
    ASSERT_EQ(Run({u"undo"}).exitCode, 0);
    EXPECT_EQ(Files(), (FileMap{{"photo.jpg", "photo.jpg"}, {"Folder/File", "Folder/File"}}));
}

TEST_F(WindowsPaths, LinesOfTheStandardInputMayEndInCrLf)
{
    WriteNamed({u"a", u"b"});
    EXPECT_THAT(Rename({u"--suffix", u"!", u"--stdin"}, "a\r\nb\r\n").output, StartsWith("a  ->  a!\nb  ->  b!\n"));
}
