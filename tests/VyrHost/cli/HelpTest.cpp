// Tests of the program: its help and version, and that the examples in the help work.
#include "VyrProgram.h"

#include <VyrHost/rename/NameTokens.h>

#include <gmock/gmock.h>
#include <tests/support/CommandLine.h>
#include <tests/support/FileState.h>
#include <tests/support/PictureBuilder.h>
#include <tests/support/RemoveTree.h>

#include <algorithm>
#include <regex>
#include <set>
#include <sstream>

using namespace VyrTests;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

namespace {

using Help = VyrProgram;

/// The command lines of the examples in a help text.
std::vector<std::string> Examples(const std::string& help)
{
    std::vector<std::string> examples;
    std::istringstream lines(help.substr(std::min(help.find("\nExamples:\n"), help.size())));
    lines.ignore(1);
    for (std::string line; std::getline(lines, line) && !line.empty();)
        if (line.find("vyr ") != std::string::npos && line.starts_with("  ") && line[2] != ' ')
            examples.push_back(line.substr(2));
    return examples;
}

constexpr std::u16string_view topics[] = {u"rules", u"tokens", u"dates", u"choosing", u"undo"};

/// The options that a help text names.
std::set<std::string> OptionsIn(const std::string& help)
{
    std::set<std::string> options;
    const std::regex word("--[a-z0-9-]+");
    for (std::sregex_iterator found(help.begin(), help.end(), word), end; found != end; ++found)
        options.insert(found->str());
    return options;
}

} // namespace

TEST_F(Help, TellsTheVersionThatTheProgramCarries)
{
    const ProgramResult result = Run({u"--version"});
    EXPECT_EQ(result.exitCode, 0);
    const std::string name = "vyr (VyrLibrary) ";
    ASSERT_THAT(result.output, StartsWith(name));
    std::istringstream version(result.output.substr(name.size()));
    int major = -1;
    int minor = -1;
    int revision = -1;
    char dot = 0;
    char secondDot = 0;
    ASSERT_TRUE(version >> major >> dot >> minor >> secondDot >> revision) << result.output;
    EXPECT_EQ(dot, '.');
    EXPECT_EQ(secondDot, '.');
    EXPECT_GT(major + minor + revision, 0);
    std::string rest;
    EXPECT_FALSE(version >> rest) << rest;
}

TEST_F(Help, NamesTheCommandsAndTheExitCodes)
{
    const ProgramResult result = Run({u"--help"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_THAT(result.output, HasSubstr("rename"));
    EXPECT_THAT(result.errors, IsEmpty());
    EXPECT_THAT(Run({u"rename", u"--help"}).output, HasSubstr("Exit codes:"));
}

TEST_F(Help, FitsInto80Columns)
{
    const std::string program = Run({u"--help"}).output;
    std::vector<std::vector<CString>> calls = {{u"--help"}};
    std::istringstream commands(program.substr(program.find("Subcommands:\n") + 13));
    for (std::string line; std::getline(commands, line);)
        if (line.starts_with("  ") && line[2] != ' ')
            calls.push_back({VyrPlatform::Encoding::FromUtf8(line.substr(2, line.find(' ', 2) - 2)), u"--help"});
    EXPECT_GE(calls.size(), 6u);
    for (const std::u16string_view topic : topics)
        calls.push_back({u"help", topic});
    calls.push_back({u"help"});
    calls.push_back({u"help", u"rename"});
    for (const std::vector<CString>& call : calls) {
        const ProgramResult result = Run(call);
        EXPECT_EQ(result.exitCode, 0);
        std::istringstream lines(result.output);
        for (std::string line; std::getline(lines, line);)
            EXPECT_LE(line.size(), 80u) << line;
    }
}

TEST_F(Help, ListsTheLettersOfDates)
{
    const std::string help = Run({u"help", u"dates"}).output;
    const std::string letters = help.substr(help.find("Letters of --date"));
    // The table of docs/date-time-formats.md.
    for (const char* const letter : {"yyyy", "SSS", "yy", "MMMM", "MMM", "MM", "M", "dd", "d", "EEEE",
                                     "EEE",  "HH",  "H",  "hh",   "h",   "mm", "m", "ss", "s", "a"})
        EXPECT_THAT(letters, HasSubstr(std::string(" ") + letter + " ")) << letter;
}

TEST_F(Help, ListsTheTokensOfNames)
{
    const std::string help = Run({u"help", u"tokens"}).output;
    for (const VyrHost::Rename::TokenHelp& token : VyrHost::Rename::TokenTable())
        EXPECT_THAT(help, HasSubstr(std::string("\n  ") + token.form + " ")) << token.form;
}

TEST_F(Help, SaysThatNothingToUndoIsTheExitCodeFour)
{
    EXPECT_THAT(Run({u"undo", u"--help"}).output, HasSubstr("  4    nothing was done: there is nothing to undo,"));
    EXPECT_EQ(Run({u"undo"}).exitCode, 4);
}

TEST_F(Help, ThatCannotBeWrittenIsAnError)
{
    ProgramCall call = CallOf({u"rename", u"--help"});
    call.isOutputClosed = true;
    const ProgramResult result = RunProgram(call);
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_THAT(result.errors, StartsWith("vyr: the output cannot be written: "));
}

TEST_F(Help, IsNamedWhenNoCommandIsGiven)
{
    const ProgramResult result = Run({});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_THAT(result.errors, StartsWith("vyr: "));
}

TEST_F(Help, EveryExampleOfRenameRuns)
{
    for (const char16_t* const name :
         {u"IMG_1.jpg", u"IMG_2.jpg", u"one.pdf", u"two.pdf", u"old.txt", u"new.txt", u"SCAN.JPG", u"trip/a.jpg"})
        m_folder.WriteFile(name);
    const std::vector<std::string> examples = Examples(Run({u"help", u"rename"}).output);
    EXPECT_GE(examples.size(), 5u);
    for (const std::string& example : examples) {
        // Before a pipe there is another program, which writes names that each end in a NUL.
        const std::size_t pipe = example.find("| ");
        const bool hasInput = pipe != std::string::npos;
        std::vector<CString> arguments = WordsOf(hasInput ? example.substr(pipe + 2) : example);
        ASSERT_EQ(arguments.at(0), u"vyr") << example;
        arguments.erase(arguments.begin());
        const ProgramResult result = Run(arguments, hasInput ? std::string("old.txt\0new.txt\0", 16) : std::string());
        EXPECT_EQ(result.exitCode, 0) << example << '\n' << result.output << result.errors;
        EXPECT_THAT(result.output + result.errors, HasSubstr(" renamed")) << example;
    }
}

TEST_F(Help, EveryExampleOfUndoRunsAfterABatch)
{
    const std::vector<std::string> examples = Examples(Run({u"undo", u"--help"}).output);
    EXPECT_GE(examples.size(), 2u);
    for (const std::string& example : examples) {
        // A new folder of journals, so that the batch of each example has the number 1.
        const ScratchFolder journal;
        m_environment[u"VYR_JOURNAL_DIR"] = journal.Path();
        m_folder.WriteFile(u"old.txt");
        ASSERT_EQ(Run({u"rename", u"--prefix", u"new ", u"--apply", u"old.txt"}).exitCode, 0);
        std::vector<CString> arguments = WordsOf(example);
        arguments.erase(arguments.begin());
        const ProgramResult result = Run(arguments);
        EXPECT_EQ(result.exitCode, 0) << example << '\n' << result.output << result.errors;
        const bool isList = example.find("--list") != std::string::npos;
        EXPECT_EQ(m_folder.Has(u"old.txt"), !isList) << example;
        EXPECT_EQ(result.output.find("applied") != std::string::npos, isList) << example << result.output;
    }
}

TEST_F(Help, EveryExampleThatShowsOrChangesFilesInPlaceRuns)
{
    PictureFacts facts;
    facts.dateTimeOriginal = "2023:01:02 03:04:05";
    for (const char16_t* const name : {u"a.jpg", u"IMG_20240105_103000.jpg", u"Pictures/b.jpg"})
        m_folder.WriteFile(name, BuildJpeg(facts));
    m_folder.WriteFile(u"Downloads/c.pdf");
    MarkAsDownloaded(m_folder.WriteFile(u"d.pdf"));
    for (const CString command : {u"list", u"times", u"attributes", u"unblock"}) {
        if (command == u"attributes") {
            EXPECT_EQ(Run({command, u"--set=read-only", u"a.jpg", u"--apply"}).exitCode, 0);
        }
        const std::vector<std::string> examples = Examples(Run({command, u"--help"}).output);
        EXPECT_GE(examples.size(), 2u);
        for (const std::string& example : examples) {
            std::vector<CString> arguments = WordsOf(example);
            arguments.erase(arguments.begin());
            ASSERT_EQ(arguments.at(0), command) << example;
            const ProgramResult result = Run(arguments);
            EXPECT_EQ(result.exitCode, 0) << example << '\n' << result.output << result.errors;
            EXPECT_FALSE(result.output.empty()) << example;
            const bool isApplied = result.output.find("This was batch") != std::string::npos;
            EXPECT_EQ(isApplied, example.find("--apply") != std::string::npos) << example << '\n' << result.output;
            if (isApplied) {
                EXPECT_EQ(Run({u"undo"}).exitCode, 0) << example;
            }
        }
    }
}

TEST_F(Help, EveryExampleOfCopyAndMoveRuns)
{
    for (const CString command : {u"copy", u"move"}) {
        const ProgramResult help = Run({command, u"--help"});
        const std::vector<std::string> examples = Examples(help.output);
        EXPECT_GE(examples.size(), 2u);
        for (const std::string& example : examples) {
            m_folder.WriteFile(u"Pictures/a.jpg", "a");
            m_folder.WriteFile(u"Scans/b.tif", "b");
            m_folder.MakeFolder(u"Backup");
            std::vector<CString> arguments = WordsOf(example);
            arguments.erase(arguments.begin());
            const ProgramResult result = Run(arguments);
            EXPECT_EQ(result.exitCode, 0) << example << '\n' << result.output << result.errors;
            const bool isDone = example.find("--apply") != std::string::npos;
            EXPECT_EQ(m_folder.Has(u"Backup/Pictures/a.jpg"), isDone) << example;
            EXPECT_EQ(m_folder.Has(u"Pictures"), !isDone || command == u"copy") << example;
            EXPECT_EQ(RemoveTree(m_folder.Path(u"Backup")), "");
        }
    }
}

TEST_F(Help, EveryExampleOfRecoverRunsWithNothingCutOff)
{
    const std::vector<std::string> examples = Examples(Run({u"recover", u"--help"}).output);
    EXPECT_GE(examples.size(), 2u);
    for (const std::string& example : examples) {
        std::vector<CString> arguments = WordsOf(example);
        arguments.erase(arguments.begin());
        const ProgramResult result = Run(arguments);
        EXPECT_EQ(result.exitCode, 0) << example << '\n' << result.errors;
        EXPECT_THAT(result.output, HasSubstr("No batch was cut off.")) << example;
    }
}

TEST_F(Help, OfRenameIsShortAndNamesOnlyOptionsThatThereAre)
{
    const std::string help = Run({u"rename", u"--help"}).output;
    EXPECT_LE(std::count(help.begin(), help.end(), '\n'), 48);
    const std::set<std::string> all = OptionsIn(Run({u"help", u"rename"}).output);
    EXPECT_GE(all.size(), 40u);
    const std::set<std::string> named = OptionsIn(help);
    EXPECT_GE(named.size(), 30u);
    EXPECT_TRUE(std::includes(all.begin(), all.end(), named.begin(), named.end())) << help;
}

TEST_F(Help, HasTopicsThatTogetherDescribeEveryOptionOfRename)
{
    const std::string list = Run({u"help"}).output;
    std::string texts;
    for (const std::u16string_view topic : topics) {
        EXPECT_THAT(list, HasSubstr("vyr help " + VyrPlatform::Encoding::ToUtf8(topic)));
        const ProgramResult result = Run({u"help", topic});
        EXPECT_EQ(result.exitCode, 0);
        EXPECT_THAT(result.output, HasSubstr(topic == u"undo" ? "Exit codes:" : "Examples:"));
        texts += result.output;
    }
    const std::set<std::string> named = OptionsIn(texts);
    for (const std::string& option : OptionsIn(Run({u"help", u"rename"}).output)) {
        const bool isOfThePage =
            option == "--html" || option.starts_with("--design") || option == "--thumbnails" || option == "--overwrite";
        EXPECT_TRUE(named.contains(option) || isOfThePage || option == "--help") << option;
    }
    const ProgramResult unknown = Run({u"help", u"ruels"});
    EXPECT_EQ(unknown.exitCode, 2);
    EXPECT_THAT(unknown.errors, HasSubstr("did you mean rules?"));
}

TEST_F(Help, OfACommandListsItsOptions)
{
    EXPECT_EQ(Run({u"help", u"copy"}).output, Run({u"copy", u"--help"}).output);
    EXPECT_THAT(Run({u"help", u"rename"}).output, HasSubstr("--conflict-position"));
    EXPECT_THAT(Rename({u"--prefxi", u"x"}).errors, HasSubstr("vyr help rename lists its options."));
}

TEST_F(Help, EveryExampleOfRulesRuns)
{
    const ScratchFolder rules;
    m_environment[u"VYR_RULES_DIR"] = rules.Path();
    ASSERT_EQ(Rename({u"--case=title-en", u"--save-rules=titles"}).exitCode, 0);
    const std::vector<std::string> examples = Examples(Run({u"rules", u"--help"}).output);
    EXPECT_GE(examples.size(), 2u);
    for (const std::string& example : examples) {
        std::vector<CString> arguments = WordsOf(example);
        arguments.erase(arguments.begin());
        const ProgramResult result = Run(arguments);
        EXPECT_EQ(result.exitCode, 0) << example << '\n' << result.errors;
        EXPECT_THAT(result.output, HasSubstr("--case title-en")) << example;
    }
}
