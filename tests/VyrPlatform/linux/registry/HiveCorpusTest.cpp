// Real hives of the corpus: every key and value as another reader tells them.
#include <tests/support/ChildProcess.h>
#include <tests/support/RegistryTree.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <VyrPlatform/linux/registry/Hive.h>
#include <VyrPlatform/text/Encoding.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <map>
#include <set>
#include <sstream>

using namespace VyrPlatform;
using namespace VyrPlatform::Registry;
using VyrTests::ProgramResult;
using VyrTests::RunProgram;
using VyrTests::ScratchFolder;

namespace {

/// What two readers can be compared by; reglookup knows ASCII only and escapes some of that.
struct Facts
{
    std::size_t keys = 0;
    std::size_t values = 0;
    /// Path of a value, its type and, for a number, its value.
    std::multiset<std::string> numbers;
    /// Path and time of each key.
    std::multiset<std::string> keyTimes;
    /// Path and type of every value.
    std::multiset<std::string> types;
    /// Path and text of every text that is nothing but plain ASCII and has an even count of bytes.
    std::multiset<std::string> texts;
};

const std::map<std::uint32_t, std::string> typeNames = {
    {0, "NONE"}, {1, "SZ"},       {2, "EXPAND_SZ"}, {3, "BINARY"},    {4, "DWORD"},          {5, "DWORD_BE"},
    {6, "LINK"}, {7, "MULTI_SZ"}, {8, "RSRC_LIST"}, {9, "RSRC_DESC"}, {10, "RSRC_REQ_LIST"}, {11, "QWORD"},
};

bool IsPlain(std::string_view text)
{
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return c >= ' ' && c < 0x7F && !std::strchr("\\,\"%|", c); });
}

std::string TimeText(FileTicks ticks)
{
    const std::time_t seconds = ticks / 10'000'000 - 11'644'473'600;
    std::tm fields{};
    gmtime_r(&seconds, &fields);
    char text[40];
    std::strftime(text, sizeof text, "%Y-%m-%d %H:%M:%S", &fields);
    return text;
}

void Gather(Node& node, const std::string& path, bool isPlainPath, Facts& facts)
{
    ++facts.keys;
    if (isPlainPath)
        facts.keyTimes.insert((path.empty() ? "/" : path) + "|" + TimeText(node.GetLastWrite()));
    const auto values = node.GetValues();
    for (const auto& [folded, value] : *values) {
        ++facts.values;
        const std::string name = Encoding::ToUtf8(value.name);
        if (!isPlainPath || !IsPlain(name) || name.find('/') != name.npos)
            continue;
        const std::string place = path + "/" + name + "|";
        if (const auto found = typeNames.find(value.type); found != typeNames.end())
            facts.types.insert(place + found->second);
        if (value.type == 4 && value.data.size() == 4) {
            char text[20];
            std::uint32_t number = 0;
            std::memcpy(&number, value.data.data(), 4);
            std::snprintf(text, sizeof text, "0x%.8X", number);
            facts.numbers.insert(place + text);
        }
        if (value.type == 1 && value.data.size() % 2 == 0) {
            std::u16string units(value.data.size() / 2, u'\0');
            // An empty value has no bytes to point to.
            if (!units.empty())
                std::memcpy(units.data(), value.data.data(), units.size() * 2);
            units.resize(std::min(units.find(u'\0'), units.size()));
            const std::string text = Encoding::ToUtf8(units);
            // The other reader says "(null)" for a text without even a terminator.
            if (IsPlain(text))
                facts.texts.insert(place + (value.data.empty() ? "(null)" : text));
        }
    }
    for (const auto& [folded, subkey] : node.GetSubkeys()) {
        const std::string name = Encoding::ToUtf8(subkey.name);
        Gather(*subkey.node, path + "/" + name, isPlainPath && IsPlain(name) && name.find('/') == name.npos, facts);
    }
}

Facts GatherByReglookup(const std::string& output)
{
    Facts facts;
    std::istringstream lines(output);
    std::string line;
    std::getline(lines, line);
    while (std::getline(lines, line)) {
        const std::size_t first = line.find(',');
        const std::size_t second = line.find(',', first + 1);
        const std::size_t third = line.find(',', second + 1);
        const std::string path = line.substr(0, first);
        const std::string type = line.substr(first + 1, second - first - 1);
        const std::string value = line.substr(second + 1, third - second - 1);
        if (type == "KEY") {
            ++facts.keys;
            const std::string time = line.substr(third + 1, line.find(',', third + 1) - third - 1);
            if (IsPlain(path))
                facts.keyTimes.insert(path + "|" + time);
            continue;
        }
        ++facts.values;
        if (!IsPlain(path))
            continue;
        facts.types.insert(path + "|" + type);
        if (type == "DWORD")
            facts.numbers.insert(path + "|" + value);
        if (type == "SZ" && IsPlain(value))
            facts.texts.insert(path + "|" + value);
    }
    return facts;
}

ProgramResult RunTool(const CString& program, std::vector<CString> arguments)
{
    return RunProgram({program, std::move(arguments)});
}

void Compare(const std::multiset<std::string>& ours, const std::multiset<std::string>& theirs, const char* what)
{
    std::vector<std::string> differences;
    std::set_symmetric_difference(ours.begin(), ours.end(), theirs.begin(), theirs.end(),
                                  std::back_inserter(differences));
    EXPECT_TRUE(differences.empty()) << what << ": " << differences.size() << " differ, first " << differences.front();
    EXPECT_FALSE(theirs.empty()) << what;
}

} // namespace

TEST(HiveCorpus, EveryKeyAndValueIsThatOfAnotherReader)
{
    const char* const corpus = std::getenv("VYR_CORPUS");
    if (!corpus)
        GTEST_SKIP() << "VYR_CORPUS names no folder";
    std::size_t hives = 0;
    for (const auto& entry : std::filesystem::directory_iterator(std::filesystem::path(corpus) / "registry")) {
        SCOPED_TRACE(entry.path().filename());
        const ScratchFolder folder;
        const ProgramResult unpacked =
            RunTool(u"/usr/bin/xz", {u"--decompress", u"--stdout", VyrTests::FromStdPath(entry.path())});
        ASSERT_EQ(unpacked.exitCode, 0) << unpacked.errors;
        const CString path = folder.WriteFile(u"hive", unpacked.output);
        const ProgramResult told = RunTool(u"/usr/bin/reglookup", {path});
        ASSERT_EQ(told.exitCode, 0) << told.errors;
        const Facts theirs = GatherByReglookup(told.output);
        const OpenedHive hive = OpenHive(path);
        ASSERT_TRUE(hive.top);
        Facts ours;
        Gather(*hive.top, "", true, ours);
        EXPECT_EQ(ours.keys, theirs.keys);
        EXPECT_EQ(ours.values, theirs.values);
        Compare(ours.keyTimes, theirs.keyTimes, "times of keys");
        Compare(ours.types, theirs.types, "types of values");
        Compare(ours.numbers, theirs.numbers, "numbers");
        Compare(ours.texts, theirs.texts, "texts");
        ++hives;
    }
    EXPECT_GE(hives, 2U);
}
