// Real hives of the corpus: every key and value is compared with another reader's.
#include <tests/support/ChildProcess.h>
#include <tests/support/RegistryTree.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/registry/RegistryFiles.h>
#include <VyrPlatform/text/Encoding.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <map>
#include <optional>
#include <set>
#include <sstream>

using namespace VyrPlatform;
using namespace VyrPlatform::Registry;
using VyrTests::KeyNames;
using VyrTests::ProgramResult;
using VyrTests::RunProgram;
using VyrTests::ScratchFolder;

namespace {

/// The output of reglookup for a hive, a line for each key and value: `PATH,TYPE,VALUE,TIME,`.
using Lines = std::multiset<std::string>;

const std::map<std::uint32_t, std::string> typeNames = {
    {0, "NONE"}, {1, "SZ"},       {2, "EXPAND_SZ"}, {3, "BINARY"},    {4, "DWORD"},          {5, "DWORD_BE"},
    {6, "LINK"}, {7, "MULTI_SZ"}, {8, "RSRC_LIST"}, {9, "RSRC_DESC"}, {10, "RSRC_REQ_LIST"}, {11, "QWORD"},
};

/// The bytes with percent signs and two digits for unprintable bytes, and for `special` characters.
std::string Quoted(std::string_view bytes, std::string_view special)
{
    std::string text;
    for (const char byte : bytes) {
        if (byte >= ' ' && byte < 0x7F && special.find(byte) == special.npos) {
            text += byte;
            continue;
        }
        char escape[4];
        std::snprintf(escape, sizeof escape, "%%%.2X", static_cast<unsigned char>(byte));
        text += escape;
    }
    return text;
}

constexpr std::string_view specialInNames = ",\"%/";
constexpr std::string_view specialInValues = ",\"%";

/// A name as the other reader shows it: it knows ASCII alone, and shows the bytes of all others, of which those of
/// Latin-1 are kept as one byte a letter.
std::string NameOf(const CString& name)
{
    std::string bytes;
    const std::u16string_view units = name.View();
    const bool isNarrow = std::all_of(units.begin(), units.end(), [](char16_t unit) { return unit < 0x100; });
    for (const char16_t unit : units) {
        bytes += static_cast<char>(unit);
        if (!isNarrow)
            bytes += static_cast<char>(unit >> 8);
    }
    return Quoted(bytes, specialInNames);
}

/// The text in the bytes; nothing when it is not ASCII, or has half a code unit.
std::optional<std::string> PlainText(std::string_view bytes)
{
    if (bytes.size() % 2 != 0)
        return std::nullopt;
    std::string text;
    for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
        if (bytes[at + 1] != 0 || static_cast<unsigned char>(bytes[at]) >= 0x80)
            return std::nullopt;
        text += bytes[at];
    }
    return text;
}

std::string NumberText(std::string_view bytes, int digits)
{
    std::uint64_t number = 0;
    std::memcpy(&number, bytes.data(), bytes.size());
    char text[20];
    std::snprintf(text, sizeof text, "0x%.*llX", digits, static_cast<unsigned long long>(number));
    return text;
}

/// The texts of a list, with a bar between them.
std::string ListText(std::string text)
{
    std::string list;
    while (!text.empty() && text.back() == '\0')
        text.pop_back();
    std::istringstream parts(text);
    for (std::string part; std::getline(parts, part, '\0');)
        list.append(list.empty() ? "" : "|").append(Quoted(part, ",\"%|"));
    return list;
}

std::string ValueText(std::uint32_t type, const std::string& bytes)
{
    if (bytes.empty())
        return "(null)";
    if (type == 4 && bytes.size() == 4)
        return NumberText(bytes, 8);
    if (type == 11 && bytes.size() == 8)
        return NumberText(bytes, 16);
    if (type != 1 && type != 2 && type != 7)
        return Quoted(bytes, specialInValues);
    const std::optional<std::string> text = PlainText(bytes);
    if (!text)
        return Quoted(bytes, specialInValues);
    return type == 7 ? ListText(*text) : Quoted(text->substr(0, text->find('\0')), specialInValues);
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

void GatherValues(const Key& key, const std::string& path, Lines& lines)
{
    constexpr std::uint32_t longestName = 16'384;
    std::vector<std::byte> buffer(1 << 20);
    for (std::uint32_t index = 0;; ++index) {
        const auto [end, name] = EnumerateValue(key.Get(), index, longestName);
        if (end == Error::noMoreItems)
            return;
        ASSERT_EQ(end, Error::none) << path;
        const ReadResult value = ReadValue(key.Get(), name, buffer);
        ASSERT_EQ(value.error, Error::none) << path << '/' << NameOf(name);
        const auto type = typeNames.find(value.type);
        const std::string bytes(reinterpret_cast<const char*>(buffer.data()), value.byteCount);
        lines.insert(path + "/" + NameOf(name) + "," +
                     (type == typeNames.end() ? std::to_string(value.type) : type->second) + "," +
                     ValueText(value.type, bytes) + ",");
    }
}

void Gather(const Key& key, const std::string& path, Lines& lines)
{
    ASSERT_TRUE(key.IsOpen()) << path;
    lines.insert((path.empty() ? "/" : path) + ",KEY,," + TimeText(GetLastWrite(key.Get()).value_or(0)));
    GatherValues(key, path, lines);
    for (const CString& name : KeyNames(key.Get()))
        Gather(Key::Open(key.Get(), name, Access::Read), path + "/" + NameOf(name), lines);
}

Lines GatherByReglookup(const std::string& output)
{
    Lines lines;
    std::istringstream stream(output);
    std::string line;
    std::getline(stream, line);
    while (std::getline(stream, line))
        lines.insert(line);
    return lines;
}

std::string FirstFew(const std::vector<std::string>& lines)
{
    std::string text;
    for (std::size_t index = 0; index < std::min<std::size_t>(lines.size(), 10); ++index)
        text += lines[index].substr(0, 400) + "\n";
    return text;
}

std::vector<std::string> Lacking(const Lines& lines, const Lines& others)
{
    std::vector<std::string> lacking;
    std::set_difference(lines.begin(), lines.end(), others.begin(), others.end(), std::back_inserter(lacking));
    return lacking;
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
            RunProgram({u"/usr/bin/xz", {u"--decompress", u"--stdout", VyrTests::FromStdPath(entry.path())}});
        ASSERT_EQ(unpacked.exitCode, 0) << unpacked.errors;
        const CString path = folder.WriteFile(u"hive", unpacked.output);
        const ProgramResult told = RunProgram({u"/usr/bin/reglookup", {path}});
        ASSERT_EQ(told.exitCode, 0) << told.errors;
        const Lines theirs = GatherByReglookup(told.output);
        ASSERT_EQ(ShowHives({{}, {}, path, {}}).outcome, OpenResult::Outcome::Shown);
        Lines ours;
        Gather(Key::Open(HKEY_CURRENT_USER, u"", Access::Read), "", ours);
        CloseRegistryFiles();
        EXPECT_GT(theirs.size(), 5000U);
        EXPECT_EQ(ours.size(), theirs.size());
        const std::vector<std::string> ownOnly = Lacking(ours, theirs);
        const std::vector<std::string> theirsOnly = Lacking(theirs, ours);
        EXPECT_TRUE(ownOnly.empty()) << ownOnly.size() << " lines, the first:\n" << FirstFew(ownOnly);
        EXPECT_TRUE(theirsOnly.empty()) << theirsOnly.size() << " lines, the first:\n" << FirstFew(theirsOnly);
        ++hives;
    }
    EXPECT_GE(hives, 2U);
}
