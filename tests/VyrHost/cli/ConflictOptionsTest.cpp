// Tests of the program: names that are taken, and the numbers that free them.
#include "VyrProgram.h"

#include <VyrLibraryFuncs/name/NameFuncs.h>

#include <gmock/gmock.h>
#include <tests/support/Describe.h>

#include <algorithm>
#include <random>
#include <set>

using namespace VyrTests;
using testing::HasSubstr;
using testing::StartsWith;
using VyrLibraryFuncs::NameFuncs;

namespace {

using ConflictOptions = VyrProgram;

/// A pattern, a position, a start and a step, as the engine and as the program take them.
struct Numbering
{
    const char16_t* pattern;
    int position;
    int start;
    int step;
};

std::vector<CString> OptionsOf(const Numbering& numbering)
{
    const auto number = [](int value) {
        return VyrPlatform::Encoding::FromUtf8(std::to_string(value));
    };
    return {u"--conflict-pattern",  numbering.pattern,
            u"--conflict-position", numbering.position == 0 ? u"before" : u"after",
            u"--conflict-start",    number(numbering.start),
            u"--conflict-step",     number(numbering.step)};
}

NameFuncs::CONFLICTITEM ItemOf(const Numbering& numbering)
{
    NameFuncs::CONFLICTITEM item;
    item.numberFormat = numbering.pattern;
    item.position = numbering.position;
    item.startNumber = numbering.start;
    item.step = numbering.step;
    return item;
}

/// The new name of each of `entries`, in this order, when all want the first letter of their names and `disk` exists:
/// entries that leave their names free them, assigned names are taken.
std::map<std::string, std::string> Model(std::set<std::string> disk, const std::vector<std::string>& entries, int start,
                                         int step)
{
    std::map<std::string, std::string> result;
    for (const std::string& entry : entries)
        if (entry.size() > 1)
            disk.erase(entry);
    for (const std::string& entry : entries) {
        std::string name = entry.substr(0, 1);
        for (int number = start; entry.size() > 1 && !disk.insert(name).second; number += step)
            name = entry.substr(0, 1) + " (" + std::to_string(number) + ")";
        result[name] = entry;
    }
    return result;
}

} // namespace

TEST_F(ConflictOptions, NumberAsTheEngineDoesWhereOnlyTheDiskMatters)
{
    for (const Numbering& numbering :
         {Numbering{u" (?)", 1, 1, 1}, Numbering{u"?_", 0, 1, 1}, Numbering{u"-?-?", 1, 0, 7},
          Numbering{u"?", 1, 3, -1}, Numbering{u"_?", 1, 2147483647, 1}, Numbering{u"?", 0, -2, 1},
          Numbering{u" (?)", 1, 2, 2}}) {
        SCOPED_TRACE(VyrPlatform::Encoding::ToUtf8(numbering.pattern));
        m_folder.WriteFile(u"n/ax.txt", "entry");
        for (const char16_t* const taken :
             {u"a.txt", u"a (1).txt", u"a (2).txt", u"a (4).txt", u"1_a.txt", u"a-0-0.txt", u"a3.txt", u"a2.txt",
              u"a_2147483647.txt", u"-2a.txt", u"-1a.txt", u"0a.txt"})
            m_folder.WriteFile(CString(u"n/") + taken, "taken");
        const CString engine = NameFuncs::GetResolveConflictFilePath(m_folder.Path(u"n/a.txt"), ItemOf(numbering));
        std::vector<CString> call = OptionsOf(numbering);
        call.insert(call.end(), {u"--keep-first", u"1", u"--apply", u"n/ax.txt"});
        const ProgramResult result = Rename(call);
        EXPECT_EQ(result.exitCode, 0) << result.output << result.errors;
        const CString name = engine.Mid(m_folder.Path(u"n/").GetLength());
        EXPECT_EQ(m_folder.ReadFile(CString(u"n/") + name), "entry");
        EXPECT_EQ(Run({u"undo", u"--quiet"}).exitCode, 0);
    }
}

TEST_F(ConflictOptions, DigitsPadTheNumberOfThePattern)
{
    WriteNamed({u"ax.txt", u"ay.txt", u"az.txt"});
    std::vector<CString> call = {u"--keep-first", u"1", u"--conflict-digits", u"3"};
    const std::vector<CString> names = {u"ax.txt", u"ay.txt", u"az.txt"};
    const auto rename = [&](std::vector<CString> more) {
        more.insert(more.begin(), call.begin(), call.end());
        more.insert(more.end(), names.begin(), names.end());
        return Rename(more).output;
    };
    EXPECT_THAT(rename({}), HasSubstr("ay.txt  ->  a (001).txt  numbered\naz.txt  ->  a (002).txt  numbered\n"));
    EXPECT_THAT(rename({u"--conflict-pattern", u"-?-?"}), HasSubstr("ay.txt  ->  a-001-001.txt  numbered\n"));
    EXPECT_THAT(rename({u"--conflict-start", u"999"}), HasSubstr("a (999).txt   numbered\naz.txt  ->  a (1000).txt"));
    EXPECT_THAT(rename({u"--conflict-start", u"-5"}), HasSubstr("ay.txt  ->  a (-005).txt  numbered\n"));
}

TEST_F(ConflictOptions, NumberFoldersAsTheEngineDoes)
{
    for (const char16_t* const folder : {u"x.yz", u"x.y", u"x.y (1)"})
        m_folder.MakeFolder(folder);
    const Numbering numbering{u" (?)", 1, 1, 1};
    EXPECT_EQ(NameFuncs::GetResolveConflictFilePath(m_folder.Path(u"x.y"), ItemOf(numbering)),
              m_folder.Path(u"x.y (2)"));
    EXPECT_EQ(Rename({u"--keep-first", u"3", u"--apply", u"x.yz"}).exitCode, 0);
    EXPECT_TRUE(m_folder.Has(u"x.y (2)"));
}

TEST_F(ConflictOptions, NumberAgainstTheNamesThatAreTakenAfterTheBatch)
{
    const std::vector<std::string> pool = {"a",     "b",  "a1", "a2",    "b1", "a (1)",
                                           "a (2)", "aa", "ab", "b (1)", "ba", "a (3)"};
    for (unsigned seed = 1; seed <= 12; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        std::vector<std::string> disk = pool;
        std::shuffle(disk.begin(), disk.end(), random);
        disk.resize(6 + random() % 7);
        for (const auto& [name, content] : Files())
            std::filesystem::remove(ToStdPath(m_folder.Path(VyrPlatform::Encoding::FromUtf8(name))));
        for (const std::string& name : disk)
            m_folder.WriteFile(VyrPlatform::Encoding::FromUtf8(name), name);
        std::vector<std::string> entries = disk;
        entries.resize(2 + random() % (disk.size() - 1));
        const int start = static_cast<int>(1 + random() % 2);
        const int step = static_cast<int>(1 + random() % 2);

        std::map<std::string, std::string> expected =
            Model(std::set<std::string>(disk.begin(), disk.end()), entries, start, step);
        for (const std::string& name : disk)
            if (std::find(entries.begin(), entries.end(), name) == entries.end())
                expected[name] = name;
        std::vector<CString> call = OptionsOf({u" (?)", 1, start, step});
        call.insert(call.end(), {u"--keep-first", u"1", u"--apply"});
        for (const std::string& entry : entries)
            call.push_back(VyrPlatform::Encoding::FromUtf8(entry));
        const ProgramResult result = Rename(call);
        EXPECT_EQ(result.exitCode, 0) << result.output << result.errors;
        EXPECT_EQ(Files(), expected) << result.output;
    }
}

TEST_F(ConflictOptions, NumberOnlyWhereARuleAllowsIt)
{
    WriteNamed({u"a1.x", u"a2.x", u"b.x", u"b.y"});
    struct Case
    {
        std::vector<CString> rules;
        bool isNumbered;
    };
    const std::vector<CString> merge = {u"--replace", u"1", u"", u"--replace", u"2", u""};
    const auto merged = [&merge](std::initializer_list<CString> more) {
        std::vector<CString> rules = merge;
        rules.insert(rules.end(), more);
        return rules;
    };
    for (const auto& [rules, isNumbered] :
         {Case{{u"--number", u"#", u"--step", u"0"}, true},
          Case{{u"--date", u"'d'", u"--date-from", u"modified"}, true}, Case{{u"--keep-first", u"1"}, true},
          Case{{u"--delete-last", u"1"}, true}, Case{{u"--delete", u"1:1"}, true}, Case{merge, false},
          Case{merged({u"--case", u"upper"}), false}, Case{merged({u"--extension-case", u"upper"}), false},
          Case{merged({u"--drop-extension"}), false}, Case{merged({u"--extension", u"z"}), true},
          Case{merged({u"--suffix", u"!"}), true}, Case{merged({u"--insert", u"1:!"}), true}}) {
        std::vector<CString> call = rules;
        call.insert(call.end(), {u"a1.x", u"a2.x"});
        const ProgramResult result = Rename(call);
        EXPECT_EQ(result.exitCode, isNumbered ? 0 : 1) << result.output;
        EXPECT_THAT(result.output,
                    HasSubstr(isNumbered ? "1 renamed, 1 numbered." : "another entry gets the same name\n"));
    }
    EXPECT_THAT(Rename({u"--drop-extension", u"b.x", u"b.y"}).output, HasSubstr("1 renamed, 1 refused."));
    EXPECT_THAT(Rename({u"--extension", u"z", u"b.x", u"b.y"}).output, HasSubstr("b (1).z  numbered"));
}

TEST_F(ConflictOptions, SkippedEntriesKeepTheirNamesAndBlockOthers)
{
    WriteNamed({u"a", u"b1", u"b", u"c"});
    const ProgramResult result = Rename({u"--replace", u"b1", u"a", u"--on-conflict", u"skip", u"--apply", u"b1"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_THAT(result.output, StartsWith("b1  ->  a  skipped: the new name is there already\n1 entry: 1 skipped.\n"));
    // b wants the name of c, which wants the name of a, which stays.
    const ProgramResult chain =
        Rename({u"--replace", u"c", u"a", u"--replace", u"b", u"c", u"--on-conflict=skip", u"--apply", u"b", u"c"});
    EXPECT_EQ(chain.exitCode, 0);
    EXPECT_THAT(chain.output, HasSubstr("2 entries: 2 skipped.\n"));
    for (const auto& [name, content] : Files())
        EXPECT_EQ(name, content);
}
