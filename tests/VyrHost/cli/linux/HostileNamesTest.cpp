// Tests of the program: names that only Linux can have.
#include "UnprivilegedProgram.h"

#include <VyrPlatform/text/Encoding.h>

#include <gmock/gmock.h>
#include <tests/support/StdPath.h>

#include <filesystem>
#include <sys/stat.h>

using namespace VyrTests;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

using HostileNames = UnprivilegedProgram;

} // namespace

TEST_F(HostileNames, ControlCharactersAreShownAsEscapes)
{
    m_folder.WriteFile(u"a\nb\tc\x1b[31m");
    EXPECT_THAT(Rename({u"--prefix", u"x", u"*"}).output, StartsWith("a\\nb\\tc\\x1b[31m  ->  xa\\nb\\tc\\x1b[31m\n"));
    EXPECT_THAT(Rename({u"--prefix", u"x", u"--json", u"*"}).output, HasSubstr("/a\\u000ab\\u0009c\\u001b[31m\""));
    EXPECT_EQ(Rename({u"--prefix", u"x", u"--apply", u"--quiet", u"*"}).exitCode, 0);
    EXPECT_TRUE(m_folder.Has(u"xa\nb\tc\x1b[31m"));
}

TEST_F(HostileNames, ACarriageReturnFromTheStandardInputIsPartOfTheName)
{
    m_folder.WriteFile(u"a\r", "1");
    m_folder.WriteFile(u"a", "2");
    EXPECT_EQ(Rename({u"--prefix", u"x", u"--apply", u"--quiet", u"--stdin"}, "a\r\n").exitCode, 0);
    EXPECT_EQ(m_folder.ReadFile(u"xa\r"), "1");
    EXPECT_EQ(m_folder.ReadFile(u"a"), "2");
}

TEST_F(HostileNames, BytesThatAreNotUtf8AreKept)
{
    m_folder.WriteFile(u"a\xDCFF\xDC80");
    const ProgramResult result = Rename({u"--json", u"--suffix", u"é", u"--stdin0"}, std::string("a\xff\x80\0", 4));
    EXPECT_THAT(result.output, HasSubstr("/a\\udcff\\udc80\",\"to\""));
    EXPECT_THAT(result.output, HasSubstr("/a\\udcff\\udc80\xC3\xA9\",\"status\":\"renamed\",\"preview\":true}"));
    EXPECT_EQ(Rename({u"--suffix", u"é", u"--apply", u"a\xDCFF\xDC80"}).exitCode, 0);
    EXPECT_TRUE(m_folder.Has(u"a\xDCFF\xDC80é"));
}

TEST_F(HostileNames, AListThatIsNotInUtf8IsToldByTheBytesThatItWouldPutIn)
{
    m_folder.WriteFile(u"a");
    const ProgramResult result = Rename({u"--pairs", u"-"}, "a,B\xe9\n");
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.output,
                HasSubstr("refused: the new name would hold half a character, or a byte that is not UTF-8"));
}

TEST_F(HostileNames, NamesOf255BytesAreRenamedAndLongerOnesRefused)
{
    m_folder.WriteFile(CString(u'a', 255));
    EXPECT_EQ(Rename({u"--prefix", u"x", u"*"}).exitCode, 1);
    EXPECT_EQ(Rename({u"--replace", u"a", u"b", u"--apply", u"--quiet", u"*"}).exitCode, 0);
    EXPECT_TRUE(m_folder.Has(CString(u'b', 255)));
}

TEST_F(HostileNames, NamesThatLookLikeWindowsPathsAreNames)
{
    m_folder.WriteFile(u"C:\\x\\y.z");
    EXPECT_EQ(Rename({u"--prefix", u"p", u"--apply", u"--quiet", u"C:\\x\\y.z"}).exitCode, 0);
    EXPECT_TRUE(m_folder.Has(u"pC:\\x\\y.z"));
}

TEST_F(HostileNames, BackslashesAreNoSeparators)
{
    const std::vector<std::u16string_view> names = {u"a\\b.jpg", u"c\\", u"\\\\server\\share", u"C:\\x", u"<Folder>x"};
    WriteNamed(names);
    const std::map<std::string, std::string> before = Files();
    const ProgramResult result = Rename({u"--date", u"'p\\q'<Folder><Name>", u"--apply", u"*"});
    EXPECT_EQ(result.exitCode, 0) << result.output << result.errors;
    std::map<std::string, std::string> expected;
    for (const auto& [name, content] : before)
        expected.emplace("p\\q/" + name, content);
    EXPECT_EQ(Files(), expected);
    EXPECT_EQ(Run({u"undo", u"--quiet"}).exitCode, 0);
    EXPECT_EQ(Files(), before);
    EXPECT_FALSE(m_folder.Has(u"p\\q"));
}

TEST_F(HostileNames, NamesThatWindowsRefusesGetWarnings)
{
    m_folder.WriteFile(u"a");
    m_folder.WriteFile(u"b:");
    EXPECT_THAT(Rename({u"--suffix", u"?", u"a"}).output,
                StartsWith("a  ->  a?  warning: Windows forbids a character of the new name\n"));
    EXPECT_THAT(Rename({u"--replace", u"a", u"nul", u"a"}).output, HasSubstr("reserved on Windows"));
    EXPECT_THAT(Rename({u"--suffix", u".", u"a"}).output, HasSubstr("warning: on Windows no name ends in a dot"));
    // The names of folders to be created are checked, too.
    EXPECT_THAT(Rename({u"--date", u"'nul'<Folder>'x'<Folder><Name>", u"a"}).output,
                HasSubstr("a  ->  nul/x/a  warning: the new name is reserved on Windows"));
    EXPECT_THAT(Rename({u"--prefix", u"x", u"b:"}).output, StartsWith("b:  ->  xb:\n"));
}

TEST_F(HostileNames, AFolderThatCannotBeReadIsReported)
{
    if (RunUnprivileged({u"--version"}).exitCode != 0)
        GTEST_SKIP() << "root can read every folder, and nobody else can run the program here";
    m_folder.WriteFile(u"d/a");
    m_folder.WriteFile(u"b");
    const std::string folder = VyrPlatform::Encoding::ToNameBytes(m_folder.Path());
    chmod(folder.c_str(), 0777);
    chmod((folder + "/d").c_str(), 0);
    const ProgramResult walk = RunUnprivileged({u"rename", u"--prefix", u"x", u"-r", u"."});
    EXPECT_EQ(walk.exitCode, 1);
    EXPECT_THAT(walk.errors, StartsWith("vyr: cannot read the folder d/: "));
    EXPECT_THAT(walk.output, StartsWith("b  ->  xb\n1 entry: 1 renamed.\n"));
    const ProgramResult named = RunUnprivileged({u"rename", u"--prefix", u"x", u"d/a", u"b"});
    EXPECT_EQ(named.exitCode, 1);
    EXPECT_THAT(named.output, HasSubstr("its folder cannot be read"));
    EXPECT_THAT(named.output, HasSubstr("b    ->  xb\n2 entries: 1 renamed, 1 refused.\n"));
    chmod((folder + "/d").c_str(), 0700);
}

TEST_F(HostileNames, OneFolderUnderTwoNamesIsOneFolder)
{
    m_folder.WriteFile(u"real/a");
    std::filesystem::create_directory_symlink(ToStdPath(m_folder.Path(u"real")), ToStdPath(m_folder.Path(u"link")));
    const ProgramResult result = Rename({u"--prefix", u"x", u"real/a", u"link/a"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_THAT(result.output, HasSubstr("\n1 entry: 1 renamed.\n"));
}

TEST_F(HostileNames, AFolderAndItsEntriesAreRecognisedThroughLinks)
{
    m_folder.WriteFile(u"d/e/f");
    std::filesystem::create_directory_symlink(ToStdPath(m_folder.Path(u"d/e")), ToStdPath(m_folder.Path(u"link")));
    const ProgramResult inside = Rename({u"--suffix", u"!", u"--apply", u"d", u"link/f"});
    EXPECT_EQ(inside.exitCode, 2);
    EXPECT_THAT(inside.errors, HasSubstr("'d' is named together with something inside it"));
    // The link itself has no entries.
    EXPECT_EQ(Rename({u"--suffix", u"!", u"--apply", u"link", u"d/e/f"}).exitCode, 0);
    EXPECT_TRUE(m_folder.Has(u"link!"));
    EXPECT_TRUE(m_folder.Has(u"d/e/f!"));
}
