// The hives of a Windows that is not running, also damaged ones.
#include <tests/support/RegistryTree.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/linux/HiveBuilder.h>

#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/linux/registry/Hive.h>
#include <VyrPlatform/registry/RegistryFiles.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>

using namespace VyrPlatform;
using namespace VyrPlatform::Registry;
using VyrTests::BuildHive;
using VyrTests::BuiltHive;
using VyrTests::KeyNames;
using VyrTests::NumberBytes;
using VyrTests::RegistryTree;
using VyrTests::ScratchFolder;
using VyrTests::TextBytes;
using VyrTests::ValueNames;
using Outcome = OpenResult::Outcome;

namespace {

class Hives : public testing::Test
{
protected:
    ~Hives() override { CloseRegistryFiles(); }

    [[nodiscard]] CString Write(std::u16string_view name, const std::string& bytes) const
    {
        return folder.WriteFile(name, bytes);
    }
    [[nodiscard]] CString Write(std::u16string_view name, const RegistryTree& tree) const
    {
        return Write(name, BuildHive(tree).bytes);
    }

    const ScratchFolder folder;
};

const RegistryTree sample = {{u"Key\\Below", u"Other"},
                             {{u"Key", u"text", 1, TextBytes(u"a text")},
                              {u"Key", u"bytes", 3, std::string(3000, '\x7')},
                              {u"Key\\Below", u"", 4, NumberBytes(5)}}};

void PutNumber(std::string& bytes, std::size_t at, std::uint32_t number)
{
    bytes.replace(at, 4, NumberBytes(number));
}

std::size_t OffsetOf(const BuiltHive& hive, const CString& key)
{
    const auto found =
        std::find_if(hive.keys.begin(), hive.keys.end(), [&](const auto& entry) { return entry.first == key; });
    EXPECT_NE(found, hive.keys.end());
    return found->second;
}

/// How many keys and values there are, down to `levels` levels.
std::size_t Count(Node& node, int levels)
{
    std::size_t count = node.GetValues()->size();
    if (levels > 0)
        for (const auto& [folded, subkey] : node.GetSubkeys())
            count += 1 + Count(*subkey.node, levels - 1);
    return count;
}

} // namespace

TEST_F(Hives, RootsShowTheirHives)
{
    const HiveFiles files = {
        Write(u"SOFTWARE",
              RegistryTree{{u"Maker", u"Classes\\.x\\Machine"}, {{u"Classes\\.x", u"", 1, TextBytes(u"machine")}}}),
        Write(u"SYSTEM", RegistryTree{{u"Select"}, {}}),
        Write(u"NTUSER.DAT", RegistryTree{{u"Software\\Own", u"Console"}, {}}),
        Write(u"UsrClass.dat", RegistryTree{{u".X\\User"}, {{u".X", u"", 1, TextBytes(u"user")}}}),
    };
    const OpenResult result = ShowHives(files);
    ASSERT_EQ(result.outcome, Outcome::Shown);
    EXPECT_TRUE(result.unclosedFiles.empty());
    using Names = std::vector<CString>;
    EXPECT_EQ(KeyNames(HKEY_LOCAL_MACHINE), (Names{u"SOFTWARE", u"SYSTEM"}));
    EXPECT_EQ(KeyNames(Key::Open(HKEY_LOCAL_MACHINE, u"System", Access::Read).Get()), (Names{u"Select"}));
    EXPECT_EQ(KeyNames(HKEY_CURRENT_USER), (Names{u"Console", u"Software"}));
    EXPECT_EQ(KeyNames(Key::Open(HKEY_CURRENT_USER, u"Software", Access::Read).Get()), (Names{u"Classes", u"Own"}));
    EXPECT_EQ(KeyNames(Key::Open(HKEY_CLASSES_ROOT, u".x", Access::Read).Get()), (Names{u"Machine", u"User"}));
    std::byte buffer[40];
    EXPECT_EQ(ReadValue(Key::Open(HKEY_CLASSES_ROOT, u".x", Access::Read).Get(), u"", buffer).byteCount, 10U);
    EXPECT_EQ(GetLastWrite(Key::Open(HKEY_LOCAL_MACHINE, u"Software\\Maker", Access::Read).Get()), VyrTests::hiveTime);
}

TEST_F(Hives, MissingHivesAreRootsWithoutTheirKeys)
{
    ASSERT_EQ(ShowHives({Write(u"software", sample), {}, {}, {}}).outcome, Outcome::Shown);
    EXPECT_EQ(KeyNames(HKEY_LOCAL_MACHINE), (std::vector<CString>{u"SOFTWARE"}));
    EXPECT_EQ(Key::Open(HKEY_CURRENT_USER, u"Software", Access::Read).GetError(), Error::notFound);
    EXPECT_EQ(Key::Open(HKEY_CLASSES_ROOT, u".x", Access::Read).GetError(), Error::notFound);
    ASSERT_EQ(ShowHives({{}, {}, {}, Write(u"UsrClass.dat", sample)}).outcome, Outcome::Shown);
    EXPECT_TRUE(Key::Open(HKEY_CLASSES_ROOT, u"Key", Access::Read).IsOpen());
    EXPECT_TRUE(Key::Open(HKEY_CURRENT_USER, u"Software\\Classes\\Key", Access::Read).IsOpen());
    EXPECT_TRUE(KeyNames(HKEY_LOCAL_MACHINE).empty());
}

TEST_F(Hives, AreReadOnlyAndStayAsTheyAre)
{
    const std::string bytes = BuildHive(sample).bytes;
    ASSERT_EQ(ShowHives({{}, {}, Write(u"NTUSER.DAT", bytes), {}}).outcome, Outcome::Shown);
    EXPECT_EQ(Key::Open(HKEY_CURRENT_USER, u"Key", Access::ReadWrite).GetError(), Error::accessDenied);
    EXPECT_EQ(Key::Create(HKEY_CURRENT_USER, u"New").GetError(), Error::accessDenied);
    EXPECT_EQ(RemoveTree(HKEY_CURRENT_USER, u"Key"), Error::accessDenied);
    EXPECT_EQ(SetNumber(HKEY_CURRENT_USER, u"v", 1), Error::accessDenied);
    EXPECT_EQ(ValueNames(Key::Open(HKEY_CURRENT_USER, u"Key", Access::Read).Get()).size(), 2U);
    CloseRegistryFiles();
    EXPECT_EQ(folder.ReadFile(u"NTUSER.DAT"), bytes);
}

TEST_F(Hives, HiveThatWasNotClosedIsReadAndNamed)
{
    std::string bytes = BuildHive(sample).bytes;
    PutNumber(bytes, 4, 8);
    VyrTests::SealHive(bytes);
    const CString path = Write(u"NTUSER.DAT", bytes);
    const OpenResult result = ShowHives({Write(u"SOFTWARE", sample), {}, path, Write(u"UsrClass.dat", sample)});
    EXPECT_EQ(result.outcome, Outcome::Shown);
    EXPECT_EQ(result.unclosedFiles, (std::vector<CString>{path}));
    EXPECT_TRUE(Key::Open(HKEY_CURRENT_USER, u"Key\\Below", Access::Read).IsOpen());
}

TEST_F(Hives, UsersAreShownInTurnTogetherWithTheMachine)
{
    const RegistryTree machine = {{u"Classes\\.x\\Machine"}, {}};
    ASSERT_EQ(ShowHives({Write(u"SOFTWARE", machine), {}, {}, {}}).outcome, Outcome::Shown);
    using Names = std::vector<CString>;
    const auto classes = [] {
        return KeyNames(Key::Open(HKEY_CLASSES_ROOT, u".x", Access::Read).Get());
    };
    EXPECT_FALSE(Key::Open(HKEY_CURRENT_USER, u"", Access::Read).IsOpen());
    EXPECT_EQ(classes(), (Names{u"Machine"}));
    const OpenResult first = ShowUserHives(Write(u"one", RegistryTree{{u"Software\\One"}, {}}),
                                           Write(u"classes", RegistryTree{{u".x\\User"}, {}}));
    EXPECT_EQ(first.outcome, Outcome::Shown);
    EXPECT_EQ(KeyNames(Key::Open(HKEY_CURRENT_USER, u"Software", Access::Read).Get()), (Names{u"Classes", u"One"}));
    EXPECT_EQ(classes(), (Names{u"Machine", u"User"}));
    // One that cannot be opened leaves the one before it.
    EXPECT_EQ(ShowUserHives(folder.Path(u"missing"), {}).outcome, Outcome::Unreadable);
    EXPECT_EQ(classes(), (Names{u"Machine", u"User"}));
    EXPECT_EQ(ShowUserHives(Write(u"two", RegistryTree{{u"Software\\Two"}, {}}), {}).outcome, Outcome::Shown);
    EXPECT_EQ(KeyNames(Key::Open(HKEY_CURRENT_USER, u"Software", Access::Read).Get()), (Names{u"Two"}));
    EXPECT_EQ(classes(), (Names{u"Machine"}));
    EXPECT_EQ(KeyNames(HKEY_LOCAL_MACHINE), (Names{u"SOFTWARE"}));
}

TEST_F(Hives, OtherFilesAreNotShown)
{
    const std::string whole = BuildHive(sample).bytes;
    const std::pair<std::string, Outcome> files[] = {
        {std::string(), Outcome::Empty},
        {"regf", Outcome::CutShort},
        {whole.substr(0, 43), Outcome::CutShort},
        {whole.substr(0, 4096), Outcome::CutShort},
        {whole.substr(0, whole.size() - 1), Outcome::CutShort},
        {std::string(10'000, 'x'), Outcome::NoRegistry},
        {"WINE REGISTRY Version 2\n", Outcome::NoRegistry},
        {std::string(whole).replace(600, 1, "x").replace(20, 1, "\7"), Outcome::NoRegistry}};
    for (const auto& [bytes, outcome] : files) {
        const CString path = Write(u"bad", bytes);
        const OpenResult result = ShowHives({Write(u"SOFTWARE", sample), {}, path, {}});
        EXPECT_EQ(result.outcome, outcome) << bytes.size();
        EXPECT_EQ(result.file, path);
        EXPECT_FALSE(Key::Open(HKEY_LOCAL_MACHINE, u"", Access::Read).IsOpen()) << "nothing is shown by halves";
    }
    const OpenResult missing = ShowHives({folder.Path(u"missing"), {}, {}, {}});
    EXPECT_EQ(missing.outcome, Outcome::Unreadable);
    EXPECT_EQ(missing.error, static_cast<std::uint32_t>(ENOENT));
    EXPECT_EQ(ShowHives({folder.Path(), {}, {}, {}}).outcome, Outcome::Unreadable);
}

TEST_F(Hives, KeyBelowItselfIsBounded)
{
    BuiltHive hive = BuildHive({{u"A\\B"}, {}});
    // The list of A's only subkey leads back to A.
    const std::size_t a = OffsetOf(hive, u"A");
    const std::size_t list =
        4096 + static_cast<unsigned char>(hive.bytes[a + 32]) + 256U * static_cast<unsigned char>(hive.bytes[a + 33]);
    PutNumber(hive.bytes, list + 8, static_cast<std::uint32_t>(a - 4096));
    ASSERT_EQ(ShowHives({{}, {}, Write(u"NTUSER.DAT", hive.bytes), {}}).outcome, Outcome::Shown);
    EXPECT_EQ(KeyNames(Key::Open(HKEY_CURRENT_USER, u"A\\A\\A", Access::Read).Get()), (std::vector<CString>{u"A"}));
    CString path;
    for (int i = 0; i < 100'000; ++i)
        path += u"A\\";
    EXPECT_EQ(Key::Open(HKEY_CURRENT_USER, path, Access::Read).GetError(), Error::notFound);
}

TEST_F(Hives, WildCountsLeaveTheRestReadable)
{
    const BuiltHive sound = BuildHive(sample);
    const std::size_t key = OffsetOf(sound, u"KEY") + 4;
    // Counts of subkeys and values, offsets of their lists, length of the name.
    for (const std::size_t field :
         {std::size_t{20}, std::size_t{28}, std::size_t{36}, std::size_t{40}, std::size_t{72}})
        for (const std::uint32_t number : {0U, 7U, 0xFFFFU, 0x7FFFFFFFU, 0xFFFFFFFEU}) {
            std::string bytes = sound.bytes;
            PutNumber(bytes, key + field, number);
            const OpenedHive hive = OpenHive(Write(u"damaged", bytes));
            ASSERT_TRUE(hive.top) << field << ' ' << number;
            EXPECT_LE(Count(*hive.top, 4), 20U);
            EXPECT_TRUE(FindNode(hive.top, u"Other")) << field << ' ' << number;
        }
}

TEST_F(Hives, EveryDamagedByteIsBounded)
{
    const std::string sound = BuildHive(sample).bytes;
    std::size_t opened = 0;
    for (std::size_t at = 4096; at < 4096 + 1200; ++at) {
        std::string bytes = sound;
        bytes[at] = static_cast<char>(bytes[at] ^ 0xFF);
        const OpenedHive hive = OpenHive(Write(u"damaged", bytes));
        if (!hive.top)
            continue;
        ++opened;
        EXPECT_LE(Count(*hive.top, 6), 100U) << at;
    }
    EXPECT_GT(opened, 500U);
}
