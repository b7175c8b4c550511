// A property of the program: whatever the tree and the rules, the preview shows what apply does, no content is lost,
// and undo restores exactly the tree before.
#include "VyrProgram.h"

#include <VyrPlatform/text/Encoding.h>

#include <gmock/gmock.h>
#include <tests/support/FileMoments.h>

#include <filesystem>
#include <iterator>
#include <map>
#include <random>
#include <set>
#include <string>
#include <string_view>
#include <vector>

using namespace VyrTests;
using testing::AnyOf;

namespace {

namespace fs = std::filesystem;

class RandomRules : public VyrProgram
{
protected:
    /// The entries by their paths: a file's content, or "<folder>".
    using FolderSnapshot = std::map<std::string, std::string>;

    [[nodiscard]] FolderSnapshot Now() const
    {
        FolderSnapshot tree = Files();
        const fs::path root = ToStdPath(m_folder.Path());
        for (const fs::directory_entry& entry : fs::recursive_directory_iterator(root))
            if (entry.is_directory())
                tree.emplace(entry.path().lexically_relative(root).generic_string(), "<folder>");
        return tree;
    }

    [[nodiscard]] static std::multiset<std::string> ContentsOf(const FolderSnapshot& tree)
    {
        std::multiset<std::string> contents;
        for (const auto& [name, content] : tree)
            if (content != "<folder>")
                contents.insert(content);
        return contents;
    }

    void Clear() const
    {
        for (const fs::directory_entry& entry : fs::directory_iterator(ToStdPath(m_folder.Path())))
            fs::remove_all(entry.path());
    }
};

/// Makes trees and calls, the same for each seed on every system.
class Choice
{
public:
    explicit Choice(unsigned seed) : m_random(seed) {}

    std::size_t Below(std::size_t bound) { return m_random() % bound; }
    bool Sometimes() { return Below(4) == 0; }

    CString Text(std::u16string_view units)
    {
        CString text;
        for (std::size_t count = 1 + Below(3); count > 0; --count)
            text += units[Below(units.size())];
        return text;
    }
    /// Small letters, so that no two names differ in their case alone.
    CString NewName()
    {
        const std::u16string_view endings[] = {u"", u"", u".txt", u".jpg", u".a.b"};
        return Text(u"abc1") + CString(endings[Below(std::size(endings))]);
    }
    CString Number(std::size_t least, std::size_t bound)
    {
        return VyrPlatform::Encoding::FromUtf8(std::to_string(least + Below(bound)));
    }
    CString Place() { return (Below(2) == 0 ? CString(u"-") : CString()) + Number(0, 4) + u":"; }

    void AddRule(std::vector<CString>& call)
    {
        constexpr std::u16string_view letters = u"abX1-é";
        const std::vector<std::vector<CString>> rules = {
            {u"--prefix", Text(letters)},
            {u"--suffix", Text(letters)},
            {u"--insert", Place() + Text(letters)},
            {u"--delete", Place() + Number(1, 3)},
            {u"--delete-first", Number(1, 2)},
            {u"--delete-last", Number(1, 2)},
            {u"--keep-first", Number(0, 4)},
            {u"--keep-last", Number(0, 4)},
            {u"--case", Below(2) == 0 ? u"upper" : u"first"},
            {u"--replace", Text(u"ab1"), Text(letters)},
            {u"--regex", u"([ab])(.?)", u"$2\\u$1"},
            {u"--regex", u"(.)\\.", u".$1", u"--regex-in", u"all", u"--nth", u"-1"},
            {u"--extension", Below(2) == 0 ? u"txt" : u"b"},
            {u"--extension-case", u"upper"},
            {u"--drop-extension"},
            {u"--number", u"<Name>-##"},
            {u"--number", u"#", u"--step", Number(0, 3)},
            {u"--date", u"yyyy<Folder><Name>"},
            {u"--date", u"'b'<Folder><Name>"},
            {u"--date", u"<Name> MM"},
            {u"--name", u"<Name|replace a b><#:per name>"},
            {u"--name", u"<Name> <#:per folder letters>"},
            {u"--name", u"<Extension?b><Folder><Name|upper>.<Extension?x|replace . ''>"},
        };
        const std::vector<CString>& rule = rules[Below(rules.size())];
        call.insert(call.end(), rule.begin(), rule.end());
    }

    std::vector<CString> Call()
    {
        std::vector<CString> call = {u"--json"};
        for (std::size_t rules = 1 + Below(3); rules > 0; --rules)
            AddRule(call);
        if (Sometimes())
            call.emplace_back(u"--on-conflict=skip");
        if (Sometimes())
            call.emplace_back(u"--together");
        if (Sometimes())
            call.emplace_back(u"--descending");
        call.insert(call.end(), {u"--recursive", u"--only", Sometimes() ? u"folders" : u"all", u"."});
        return call;
    }

private:
    std::mt19937 m_random;
};

std::string Shown(const std::vector<CString>& call)
{
    std::string text;
    for (const CString& argument : call)
        text += VyrPlatform::Encoding::ToUtf8(argument) + " ";
    return text;
}

/// The JSON of a preview, without the key that marks it as a preview.
std::string WithoutMarks(std::string json)
{
    constexpr std::string_view mark = ",\"preview\":true";
    for (std::size_t at = json.find(mark); at != json.npos; at = json.find(mark, at))
        json.erase(at, mark.size());
    return json;
}

} // namespace

TEST_F(RandomRules, AreAppliedAsShownAndUndoneWithoutATrace)
{
    constexpr unsigned seeds = 25;
    int applied = 0;
    for (unsigned seed = 0; seed < seeds && !HasFailure(); ++seed) {
        Choice choice(seed);
        Clear();
        std::vector<CString> folders = {CString()};
        for (int count = 0; count < 20; ++count) {
            const CString name = folders[choice.Below(folders.size())] + choice.NewName();
            if (m_folder.Has(name))
                continue;
            if (choice.Sometimes()) {
                m_folder.MakeFolder(name);
                folders.push_back(name + u"/");
            } else {
                m_folder.WriteFile(name, "content " + std::to_string(count));
            }
        }
        const FolderSnapshot before = Now();
        for (const auto& [name, content] : before)
            StampFile(m_folder.Path(VyrPlatform::Encoding::FromUtf8(name)), TicksOfUnixTime(1'700'000'000),
                      TicksOfUnixTime(1'700'000'000));
        std::vector<CString> call = choice.Call();
        SCOPED_TRACE(std::to_string(seed) + ": " + Shown(call));

        const ProgramResult preview = Rename(call);
        EXPECT_THAT(preview.exitCode, AnyOf(0, 1)) << preview.errors;
        EXPECT_EQ(Now(), before);
        call.emplace_back(u"--apply");
        const ProgramResult result = Rename(call);
        EXPECT_EQ(result.exitCode, preview.exitCode) << result.errors;
        EXPECT_EQ(result.output, WithoutMarks(preview.output));
        EXPECT_EQ(ContentsOf(Now()), ContentsOf(before));
        if (Now() == before)
            continue;
        ++applied;
        EXPECT_EQ(Run({u"undo", u"--quiet"}).exitCode, 0);
        EXPECT_EQ(Now(), before);
    }
    EXPECT_GT(applied, 15);
}
