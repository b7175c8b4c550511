// Tests of the program: rules that are kept, shown, used and shared.
#include "VyrProgram.h"

#include <gmock/gmock.h>

#include <algorithm>

using namespace VyrTests;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

class KeptRules : public VyrProgram
{
protected:
    KeptRules() { m_environment[u"VYR_RULES_DIR"] = m_rules.Path(u"my/rules"); }

    /// The kept file of the rules `name`.
    [[nodiscard]] std::string KeptText(const CString& name) const
    {
        return m_rules.ReadFile(u"my/rules/" + name + u".rules");
    }

    ScratchFolder m_rules;
};

} // namespace

TEST_F(KeptRules, AreUsedInPlaceOfTheirNameAmongTheOtherRules)
{
    WriteNamed({u"artist - title.mp3"});
    const ProgramResult kept = Rename(
        {u"--regex", u"^(.+) - (.+)$", u"$2 - $1", u"--first-only", u"--case", u"title", u"--save-rules", u"swap"});
    EXPECT_EQ(kept.exitCode, 0) << kept.errors;
    EXPECT_THAT(kept.output, IsEmpty());
    EXPECT_EQ(KeptText(u"swap"), "--regex \"^(.+) - (.+)$\" \"$2 - $1\"\n--first-only\n--case title\n");
    EXPECT_THAT(Rename({u"--rules", u"swap", u"artist - title.mp3"}).output, HasSubstr("->  Title - Artist.mp3\n"));
    EXPECT_THAT(Rename({u"--prefix", u"new ", u"--rules", u"swap", u"--suffix", u"!", u"artist - title.mp3"}).output,
                HasSubstr("->  Title - New Artist!.mp3\n"));
}

TEST_F(KeptRules, AreListedAndShown)
{
    EXPECT_THAT(Run(std::vector<CString>{u"rules"}).output, HasSubstr("No rules are kept"));
    EXPECT_EQ(Rename({u"--trim", u"--save-rules=b"}).exitCode, 0);
    EXPECT_EQ(Rename({u"--prefix", u"a b", u"--collapse", u"--save-rules=a"}).exitCode, 0);
    EXPECT_EQ(Run(std::vector<CString>{u"rules"}).output, "a  --prefix \"a b\" --collapse\nb  --trim\n");
    EXPECT_EQ(Run({u"rules", u"a"}).output, "--prefix \"a b\"\n--collapse\n");
    const ProgramResult unknown = Run({u"rules", u"titels"});
    EXPECT_EQ(unknown.exitCode, 2);
    EXPECT_THAT(unknown.errors, HasSubstr("no rules are kept under the name 'titels'"));
}

TEST_F(KeptRules, AreReadFromAFileThatIsShared)
{
    WriteNamed({u"a.txt"});
    m_folder.WriteFile(u"shared.rules", "# from a friend\r\n--prefix \"x \"\r\n");
    EXPECT_THAT(Rename({u"--rules", u"shared.rules", u"a.txt"}).output, HasSubstr("->  x a.txt\n"));
    EXPECT_EQ(Rename({u"--rules", u"shared.rules", u"--save-rules", u"./mine.rules", u"a.txt"}).exitCode, 0);
    EXPECT_EQ(m_folder.ReadFile(u"mine.rules"), "--prefix \"x \"\n");
}

TEST_F(KeptRules, AreKeptWithoutTheFilesTheirOrderAndTheirPlace)
{
    WriteNamed({u"a.txt"});
    const std::vector<CString> call = {u"--prefix", u"x",         u"--into", u"foo",          u"--conflict-pattern",
                                       u"-?",       u"--include", u"*.txt",  u"--sort=name",  u"--remove-empty",
                                       u"-r",       u".",         u"--trim", u"--save-rules", u"k"};
    const ProgramResult kept = Rename(call);
    EXPECT_EQ(kept.exitCode, 0);
    EXPECT_THAT(kept.output, HasSubstr("xa.txt"));
    EXPECT_THAT(kept.errors, testing::StartsWith("vyr: not kept with the rules: --"));
    EXPECT_EQ(std::count(kept.errors.begin(), kept.errors.end(), '\n'), 1) << kept.errors;
    EXPECT_EQ(std::count(kept.errors.begin(), kept.errors.end(), ','), 5) << kept.errors;
    for (const char* const option :
         {"--into", "--conflict-pattern", "--include", "--sort", "--remove-empty", "--recursive"})
        EXPECT_THAT(kept.errors, HasSubstr(option));
    EXPECT_EQ(KeptText(u"k"), "--prefix x\n--trim\n");
    std::vector<CString> quiet = call;
    quiet.emplace_back(u"--quiet");
    EXPECT_THAT(Rename(quiet).errors, IsEmpty());
    EXPECT_THAT(Rename({u"--prefix=x", u"--trim", u"--save-rules=k", u"a.txt"}).errors, IsEmpty());
    EXPECT_THAT(Rename({u"--prefix=x", u"--into=foo", u"a.txt"}).errors, IsEmpty());
}

TEST_F(KeptRules, AreNeverReplacedByOthers)
{
    EXPECT_EQ(Rename({u"--trim", u"--save-rules=a"}).exitCode, 0);
    EXPECT_EQ(Rename({u"--trim", u"--save-rules=a"}).exitCode, 0);
    const ProgramResult other = Rename({u"--collapse", u"--save-rules=a"});
    EXPECT_EQ(other.exitCode, 2);
    EXPECT_THAT(other.errors, HasSubstr("other rules are kept there already"));
    EXPECT_EQ(KeptText(u"a"), "--trim\n");
}

TEST_F(KeptRules, ThatMakeNoSenseAreRefusedWithNameAndLine)
{
    WriteNamed({u"a.txt"});
    const auto mistakeIn = [this](const char* text) {
        m_folder.WriteFile(u"x.rules", text);
        const ProgramResult result = Rename({u"--rules", u"x.rules", u"a.txt"});
        EXPECT_EQ(result.exitCode, 2) << text;
        return result.errors;
    };
    EXPECT_EQ(mistakeIn("--trim\n--prefxi x\n"), "vyr: the rules 'x.rules': line 2: '--prefxi' is neither a rule nor a "
                                                 "setting of one; did you mean --prefix?\n");
    EXPECT_THAT(mistakeIn("--replace a"), HasSubstr("line 1: --replace takes 2 values, not 1"));
    EXPECT_THAT(mistakeIn("--apply"), HasSubstr("'--apply' is neither a rule"));
    EXPECT_THAT(mistakeIn("--rules x.rules"), HasSubstr("'--rules' is neither a rule"));
    EXPECT_THAT(
        mistakeIn("--into foo"),
        HasSubstr("line 1: '--into' is neither a rule nor a setting of one; it is not kept in rules, only given in "
                  "a call\n"));
    EXPECT_THAT(mistakeIn("-r"), HasSubstr("'-r' is neither a rule nor a setting of one; it is not kept in rules"));
    EXPECT_THAT(mistakeIn("PATH"), HasSubstr("'PATH' is neither a rule nor a setting of one\n"));
    EXPECT_THAT(mistakeIn("--first-only"), HasSubstr("changes nothing without --regex"));
    EXPECT_THAT(mistakeIn("--regex ( x"), HasSubstr("missing closing parenthesis"));
    EXPECT_THAT(mistakeIn("--prefix \"a"), HasSubstr("line 1: a double quote is not closed"));
    for (const CString name : {u"", u".x", u"-x", u"con", u"a:b", u"x."})
        EXPECT_EQ(Rename({u"--trim", u"--save-rules", name}).exitCode, 2);
    EXPECT_EQ(Rename({u"--save-rules=a", u"a.txt", u"--into=b"}).exitCode, 2);
    EXPECT_EQ(Rename({u"--rules=missing.rules", u"a.txt"}).exitCode, 2);
}
