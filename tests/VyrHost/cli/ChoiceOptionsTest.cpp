// Tests of the program: files chosen by name, date and size.
#include "VyrProgram.h"

#include <gmock/gmock.h>
#include <tests/support/FileMoments.h>

using namespace VyrTests;
using testing::HasSubstr;
using testing::Not;

namespace {

class ChoiceOptions : public VyrProgram
{
protected:
    [[nodiscard]] ProgramResult Prefixed(std::vector<CString> options) const
    {
        std::vector<CString> all = {u"rename", u"--prefix", u"new "};
        all.insert(all.end(), options.begin(), options.end());
        return Run(std::move(all));
    }
};

} // namespace

TEST_F(ChoiceOptions, EntriesLeftOutAreCountedAndNotChanged)
{
    WriteNamed({u"a.jpg", u"b.txt", u"sub/c.jpg", u"cache/d.jpg"});
    const ProgramResult result =
        Prefixed({u"-r", u".", u"--include", u"*.JPG", u"--exclude", u"equals:cache", u"--apply", u"--sort=name"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_THAT(result.output, HasSubstr("2 entries: 2 renamed.\n1 entry was left out; 1 folder was not entered.\n"));
    EXPECT_EQ(Files(), (std::map<std::string, std::string>{{"new a.jpg", "a.jpg"},
                                                           {"b.txt", "b.txt"},
                                                           {"sub/new c.jpg", "sub/c.jpg"},
                                                           {"cache/d.jpg", "cache/d.jpg"}}));
}

TEST_F(ChoiceOptions, CaseIsMatchedOnRequest)
{
    WriteNamed({u"a.jpg", u"B.JPG"});
    const ProgramResult result = Prefixed({u"-r", u".", u"--include=*.JPG", u"--match-case"});
    EXPECT_THAT(result.output, HasSubstr("B.JPG  ->  new B.JPG"));
    EXPECT_THAT(result.output, HasSubstr("1 entry was left out.\n"));
}

TEST_F(ChoiceOptions, DateAndSizeMustBothMatch)
{
    WriteNamed({u"old", u"new"});
    m_folder.WriteFile(u"large", std::string(2000, 'x'));
    for (const char16_t* const name : {u"old", u"large"})
        StampFile(m_folder.Path(name), ToFileTicks(COleDateTime(2020, 5, 6, 0, 0, 0)),
                  ToFileTicks(COleDateTime(2020, 5, 6, 0, 0, 0)));
    const ProgramResult result =
        Prefixed({u"-r", u".", u"--modified", u"2020-05-06..2020-05-06", u"--size", u"..1KB", u"--json"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_THAT(result.output, HasSubstr("old"));
    EXPECT_THAT(result.output, Not(HasSubstr("large")));
    EXPECT_THAT(result.errors, HasSubstr("2 entries were left out.\n"));
}

TEST_F(ChoiceOptions, WrongOnesAreRefusedAndChangeNothing)
{
    WriteNamed({u"a"});
    const std::vector<std::pair<std::vector<CString>, std::string>> calls = {
        {{u"--modified=today", u"--taken=today"}, "--modified and --taken exclude each other: one date in a call"},
        {{u"--modified=2024-01-02..2024-01-01"}, "the range begins after its end"},
        {{u"--size=2MB..1MB"}, "the range begins after its end"},
        {{u"--size=big"}, "giant or FROM..TO is expected"},
        {{u"--include", u""}, "a name or a pattern is expected"},
        {{u"--include="}, "--include= is given no value; an empty one is given by --include \"\""},
        {{u"--size="}, "--size= is given no value"},
        {{u"--match-case"}, "--match-case changes nothing without --include or --exclude"},
    };
    for (const auto& [options, reason] : calls) {
        std::vector<CString> call = options;
        call.insert(call.end(), {u"a", u"--apply"});
        const ProgramResult result = Prefixed(call);
        EXPECT_EQ(result.exitCode, 2) << reason;
        EXPECT_THAT(result.errors, HasSubstr(reason));
        EXPECT_TRUE(m_folder.Has(u"a"));
    }
}
