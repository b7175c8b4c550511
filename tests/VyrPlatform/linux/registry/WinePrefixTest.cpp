// The registry of a Wine prefix: the text as Wine writes it, and damaged.
#include <tests/support/RegistryTree.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/linux/WinePrefixText.h>

#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/linux/registry/MemoryNode.h>
#include <VyrPlatform/linux/registry/WineText.h>
#include <VyrPlatform/registry/RegistryFiles.h>

#include <gtest/gtest.h>

#include <cerrno>

using namespace VyrPlatform;
using namespace VyrPlatform::Registry;
using VyrTests::KeyNames;
using VyrTests::ScratchFolder;
using VyrTests::TextBytes;
using VyrTests::UnitBytes;
using Outcome = OpenResult::Outcome;

namespace {

const std::string head = "WINE REGISTRY Version 2\n";

class WinePrefix : public testing::Test
{
protected:
    ~WinePrefix() override { CloseRegistryFiles(); }

    [[nodiscard]] OpenResult Show(const std::string& machine, const std::string& user = head) const
    {
        prefix.WriteFile(u"system.reg", machine);
        prefix.WriteFile(u"user.reg", user);
        return ShowWinePrefix(prefix.Path());
    }
    void ShowMachine(const std::string& sections) const { ASSERT_EQ(Show(head + sections).outcome, Outcome::Shown); }

    const ScratchFolder prefix;
};

Key OpenMachine(const CString& path)
{
    return Key::Open(HKEY_LOCAL_MACHINE, path, Access::Read);
}

/// Type and bytes of a value of the machine; "missing" where it is not there.
std::string Read(const CString& path, const CString& name)
{
    std::byte buffer[2000];
    const Key key = OpenMachine(path);
    const auto [error, type, count] = ReadValue(key.Get(), name, buffer);
    if (error != Error::none)
        return "missing";
    return std::to_string(type) + ":" + std::string(reinterpret_cast<const char*>(buffer), count);
}

} // namespace

TEST_F(WinePrefix, TextIsReadAsWineWritesIt)
{
    ShowMachine(";; All keys relative to \\\\Machine\n\n#arch=win64\n\n"
                "[Probe\\\\sub\\]\\x4e2d] 1795308365\n#time=1db3c8e9d2f4a00\n#class=\"c\"\n"
                "@=\"default\"\n\"a=b\\\"c\"=\"v\"\n\"n\"=dword:deadbeef\n\"e\"=str(2):\"%PATH%\"\n"
                "\"m\"=str(7):\"a\\0b\\0\"\n\"q\"=hex(b):01,02,03,04,05,06,07,08\n"
                "\"h\"=hex:00,01,\\\n  02,03\n\"odd\"=hex(1):61,00,62\n\"empty\"=hex:\n"
                "\"escapes\"=\"\\t\\n\\r\\e\\\\\\\"\\x41\\x00e9b\\101\\7\\xd83d\\xde00\"\n");
    const CString path = u"Probe\\sub]\x4e2d";
    EXPECT_EQ(Read(path, u""), "1:" + TextBytes(u"default"));
    EXPECT_EQ(Read(path, u"a=b\"c"), "1:" + TextBytes(u"v"));
    EXPECT_EQ(Read(path, u"n"), "4:\xEF\xBE\xAD\xDE");
    EXPECT_EQ(Read(path, u"e"), "2:" + TextBytes(u"%PATH%"));
    EXPECT_EQ(Read(path, u"m"), "7:" + UnitBytes(std::u16string_view(u"a\0b\0\0", 5)));
    EXPECT_EQ(Read(path, u"q"), "11:\1\2\3\4\5\6\7\x8");
    EXPECT_EQ(Read(path, u"h"), "3:" + std::string("\0\1\2\3", 4));
    EXPECT_EQ(Read(path, u"odd"), "1:" + std::string("a\0b", 3));
    EXPECT_EQ(Read(path, u"empty"), "3:");
    EXPECT_EQ(Read(path, u"escapes"), "1:" + TextBytes(u"\t\n\r\x1b\\\"A\x00e9"
                                                       u"bA\x07\xd83d\xde00"));
    EXPECT_EQ(GetLastWrite(OpenMachine(path).Get()), 0x1db3c8e9d2f4a00);
}

TEST_F(WinePrefix, KeyWithoutItsOwnTimeHasThatOfItsLine)
{
    ShowMachine("[A\\\\B] 1704450600\n\"v\"=\"x\"\n[C]\n\n[D] x\n");
    const FileTicks moment = (1'704'450'600 + 11'644'473'600) * 10'000'000;
    EXPECT_EQ(GetLastWrite(OpenMachine(u"A\\B").Get()), moment);
    EXPECT_EQ(GetLastWrite(OpenMachine(u"A").Get()), moment) << "a key that is only a parent";
    EXPECT_EQ(GetLastWrite(OpenMachine(u"C").Get()), 0);
    EXPECT_EQ(GetLastWrite(OpenMachine(u"D").Get()), 0);
}

TEST_F(WinePrefix, RootsShowTheirFiles)
{
    const std::string classes = "[Software\\\\Classes\\\\.x] 1\n@=\"machine\"\n[Software\\\\Classes\\\\Machine] 1\n";
    const std::string userClasses =
        "[Software\\\\Classes\\\\.X] 1\n@=\"user\"\n\"u\"=\"v\"\n[Software\\\\Classes\\\\User] 1\n";
    ASSERT_EQ(Show(head + classes, head + userClasses).outcome, Outcome::Shown);
    EXPECT_EQ(KeyNames(HKEY_LOCAL_MACHINE), (std::vector<CString>{u"Software"}));
    EXPECT_EQ(KeyNames(HKEY_CLASSES_ROOT), (std::vector<CString>{u".X", u"Machine", u"User"}));
    const Key merged = Key::Open(HKEY_CLASSES_ROOT, u".x", Access::Read);
    std::byte buffer[20];
    EXPECT_EQ(ReadValue(merged.Get(), u"", buffer).byteCount, 10U) << "the user's value comes first";
    EXPECT_EQ(Key::Open(HKEY_CURRENT_USER, u"Software\\Classes\\Machine", Access::Read).GetError(), Error::notFound);
    CloseRegistryFiles();
    for (const Handle root : {HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER, HKEY_CLASSES_ROOT})
        EXPECT_EQ(Key::Open(root, u"", Access::Read).GetError(), Error::notFound);
}

TEST_F(WinePrefix, IsReadOnly)
{
    ShowMachine("[A\\\\B] 1\n\"v\"=\"x\"\n");
    EXPECT_EQ(Key::Open(HKEY_LOCAL_MACHINE, u"A", Access::ReadWrite).GetError(), Error::accessDenied);
    EXPECT_EQ(Key::Create(HKEY_LOCAL_MACHINE, u"New").GetError(), Error::accessDenied);
    EXPECT_EQ(RemoveTree(HKEY_LOCAL_MACHINE, u"A"), Error::accessDenied);
    EXPECT_EQ(SetNumber(HKEY_LOCAL_MACHINE, u"v", 1), Error::accessDenied);
    EXPECT_EQ(RemoveValue(HKEY_LOCAL_MACHINE, u"v"), Error::accessDenied);
}

TEST_F(WinePrefix, LinksLeadToTheirKeys)
{
    const auto link = [](std::u16string_view target) {
        std::string line = "#link\n\"SymbolicLinkValue\"=hex(6):";
        for (const char byte : UnitBytes(target)) {
            char text[4];
            std::snprintf(text, sizeof text, "%02x,", static_cast<unsigned char>(byte));
            line += text;
        }
        return line + "\n";
    };
    ASSERT_EQ(Show(head + "[Real\\\\Deep] 1\n\"v\"=\"x\"\n[To] 1\n" + link(u"\\Registry\\Machine\\Real") +
                       "[Chain] 1\n" + link(u"\\REGISTRY\\MACHINE\\To\\Deep") + "[User] 1\n" +
                       link(u"\\Registry\\User\\S-1-5-21-0-0-0-1000\\Own") + "[Circle] 1\n" +
                       link(u"\\Registry\\Machine\\Circle") + "[Ping] 1\n" + link(u"\\Registry\\Machine\\Pong\\a") +
                       "[Pong] 1\n" + link(u"\\Registry\\Machine\\Ping\\b") + "[Elsewhere] 1\n" + link(u"\\Device\\X") +
                       "[Dead] 1\n" + link(u"\\Registry\\Machine\\Nothing"),
                   head + "[Own\\\\Below] 1\n")
                  .outcome,
              Outcome::Shown);
    EXPECT_EQ(Read(u"To\\Deep", u"v"), "1:" + TextBytes(u"x"));
    EXPECT_EQ(Read(u"Chain", u"v"), "1:" + TextBytes(u"x"));
    EXPECT_EQ(KeyNames(OpenMachine(u"To").Get()), (std::vector<CString>{u"Deep"}));
    EXPECT_EQ(KeyNames(OpenMachine(u"User").Get()), (std::vector<CString>{u"Below"}));
    for (const CString path : {u"Circle", u"Circle\\x", u"Ping", u"Pong\\x", u"Dead"})
        EXPECT_EQ(OpenMachine(path).GetError(), Error::notFound);
    EXPECT_TRUE(OpenMachine(u"Elsewhere").IsOpen()) << "a link that leads out of the registry is the key itself";
}

TEST_F(WinePrefix, DamagedLinesAreLeftOut)
{
    ShowMachine(
        "\"lost\"=\"no key yet\"\n[Broken\n\"a\"=\"1\"\n[Sound] 1\n\"b\"=\"2\"\n\"open=\"x\n\"c\"=\"open\n\"d\"\n"
        "\"e\"=dword:xyz\n\"f\"=hex(zz):00\n\"g\"=hex:0g\n\"h\"=str(1):open\n\"i\"=other:1\n=\"j\"\n#\n#time=zz\n"
        "\"k\"=\"end\\\n\"l\"=\"3\" behind\n\"m\"=dword:5\n\xFF\xFE\n");
    EXPECT_EQ(KeyNames(HKEY_LOCAL_MACHINE), (std::vector<CString>{u"Sound"}));
    EXPECT_EQ(VyrTests::ValueNames(OpenMachine(u"Sound").Get()), (std::vector<CString>{u"b", u"l", u"m"}));
}

TEST_F(WinePrefix, CarriageReturnsAndBlanksDoNotMatter)
{
    prefix.WriteFile(u"system.reg",
                     "WINE REGISTRY Version 2\r\n\r\n  [A] 1\r\n\t\"v\"=\"x\"\r\n\"h\"=hex:01,\\\r\n  02\r\n");
    ASSERT_EQ(ShowWinePrefix(prefix.Path()).outcome, Outcome::Shown) << "without a file of the user";
    EXPECT_EQ(Read(u"A", u"v"), "1:" + TextBytes(u"x"));
    EXPECT_EQ(Read(u"A", u"h"), "3:\1\2");
}

TEST_F(WinePrefix, TruncatedTextKeepsItsIntactKeys)
{
    const std::string whole = VyrTests::WineText({{u"A\\B", u"é\\x"},
                                                  {{u"A", u"text", 1, TextBytes(u"\"quoted\" é 日")},
                                                   {u"A", u"bytes", 3, std::string(60, '\x7')},
                                                   {u"A", u"number", 4, std::string("\1\2\3\4")}}});
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        const auto top = std::make_shared<MemoryNode>(false, 0);
        ReadWineText(whole.substr(0, length), top, {});
        for (const auto& [folded, subkey] : top->GetSubkeys())
            EXPECT_TRUE(folded == u"A" || folded == u"É") << length;
        if (const auto a = FindNode(top, u"A")) {
            EXPECT_LE(a->GetValues()->size(), 3U);
        }
    }
}

TEST_F(WinePrefix, HostileTextTakesTimeInProportion)
{
    std::string text = head;
    for (int i = 0; i < 2000; ++i)
        text += "[" + std::string(3000, '\\') + "]\n";
    for (int i = 0; i < 100'000; ++i)
        text += "\"" + std::to_string(i) + "\"=\"\"\n";
    std::string deep = "[";
    for (int i = 0; i < 100'000; ++i)
        deep += "a\\\\";
    text += deep + "b] 1\n\"v\"=\"x\"\n[Last] 1\n";
    ASSERT_EQ(Show(text).outcome, Outcome::Shown);
    EXPECT_TRUE(OpenMachine(u"Last").IsOpen());
}

TEST_F(WinePrefix, OtherFoldersAreNotShown)
{
    OpenResult result = ShowWinePrefix(prefix.Path());
    EXPECT_EQ(result.outcome, Outcome::Unreadable);
    EXPECT_EQ(result.error, static_cast<std::uint32_t>(ENOENT));
    EXPECT_EQ(result.file, prefix.Path(u"system.reg"));
    EXPECT_EQ(Show("REGEDIT4\n").outcome, Outcome::NoRegistry);
    EXPECT_EQ(Show("").outcome, Outcome::Empty);
    result = Show(head, "no registry");
    EXPECT_EQ(result.outcome, Outcome::NoRegistry);
    EXPECT_EQ(result.file, prefix.Path(u"user.reg"));
    EXPECT_EQ(ShowWinePrefix(prefix.Path(u"missing")).outcome, Outcome::Unreadable);
    EXPECT_EQ(Key::Open(HKEY_LOCAL_MACHINE, u"", Access::Read).GetError(), Error::notFound);
}
