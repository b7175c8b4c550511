// Reading the registry, in every form in which the system stores one, and writing it.
#include <tests/support/RegistryForms.h>
#include <tests/support/ScratchRegistry.h>

#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/registry/Registry.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>

using namespace VyrPlatform;
using namespace VyrPlatform::Registry;
using VyrTests::KeyNames;
using VyrTests::NumberBytes;
using VyrTests::RegistryForm;
using VyrTests::RegistryTree;
using VyrTests::ScratchRegistry;
using VyrTests::TextBytes;
using VyrTests::UnitBytes;
using VyrTests::ValueNames;

namespace {

constexpr char16_t withNul[] = u"a\0b";
const std::u16string_view textWithNul(withNul, 3);

/// One value, as it comes back.
struct Answer
{
    std::uint32_t error;
    std::uint32_t type;
    std::uint32_t byteCount;
    std::string bytes;

    bool operator==(const Answer&) const = default;
};

void PrintTo(const Answer& answer, std::ostream* stream)
{
    *stream << "error " << answer.error << " type " << answer.type << " count " << answer.byteCount << " bytes "
            << testing::PrintToString(answer.bytes);
}

Answer Read(Handle key, const CString& name, std::size_t bufferSize = 100'000)
{
    std::vector<std::byte> buffer(bufferSize);
    const auto [error, type, count] = ReadValue(key, name, buffer);
    std::string bytes;
    if (error == Error::none)
        bytes.assign(reinterpret_cast<const char*>(buffer.data()), count);
    return {error, type, count, bytes};
}

class RegistryContract : public testing::TestWithParam<RegistryForm>
{};

Key OpenUser(const CString& path)
{
    Key key = Key::Open(HKEY_CURRENT_USER, path, Access::Read);
    EXPECT_TRUE(key.IsOpen()) << key.GetError();
    return key;
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Forms, RegistryContract, testing::ValuesIn(VyrTests::RegistryForms()),
                         [](const auto& form) { return form.param.name; });

TEST_P(RegistryContract, ValuesOfEveryTypeAreReadByteForByte)
{
    RegistryTree tree;
    const std::vector<std::pair<CString, std::string>> contents = {
        {u"nothing", ""},
        {u"text", TextBytes(u"plain")},
        {u"empty text", TextBytes(u"")},
        {u"odd", std::string("abc")},
        {u"one byte", std::string("x")},
        {u"unterminated", UnitBytes(u"ab")},
        {u"zeros inside", TextBytes(textWithNul)},
        {u"zeros at the end", TextBytes(u"x") + std::string(4, '\0')},
        {u"number", NumberBytes(0xDEADBEEF)},
        {u"short number", std::string("\x05\x06\x07")},
        {u"quotes", TextBytes(u"\"C:\\a b\\c.exe\" /x \\\\ [k] = ; @ , \r\n\t\x1b")},
        {u"not Latin", TextBytes(u"日本語 Ελληνικά \xD83D\xDE00 \xD800 é")},
        {u"digits", TextBytes(u"\x01"
                              u"1\x4e2d"
                              u"a0")},
    };
    for (const std::uint32_t type : {0U, 1U, 2U, 3U, 4U, 5U, 6U, 7U, 8U, 11U, 12U, 0x1234U, 0xFFFF0000U}) {
        CString path;
        path.Format(u"Types\\%x", type);
        for (const auto& [name, bytes] : contents)
            tree.values.push_back({path, name, type, bytes});
    }
    const auto shown = GetParam().show(tree);
    for (const auto& [path, name, type, bytes] : tree.values) {
        const Key key = OpenUser(path);
        EXPECT_EQ(Read(key.Get(), name), (Answer{Error::none, type, static_cast<std::uint32_t>(bytes.size()), bytes}))
            << testing::PrintToString(name.View());
    }
}

TEST_P(RegistryContract, LongTextsAreReadWhole)
{
    RegistryTree tree;
    for (const int length : {254, 255, 256, 258, 259, 260, 261, 32'766, 32'767})
        tree.values.push_back({u"Long", CString(u'n', length % 200 + 1), 1, TextBytes(CString(u'v', length))});
    const auto shown = GetParam().show(tree);
    const Key key = OpenUser(u"Long");
    for (const auto& [path, name, type, bytes] : tree.values)
        EXPECT_EQ(Read(key.Get(), name), (Answer{Error::none, type, static_cast<std::uint32_t>(bytes.size()), bytes}));
}

TEST_P(RegistryContract, SizeOfAValueThatDoesNotFitIsReturned)
{
    const auto shown =
        GetParam().show({{}, {{u"K", u"v", 1, TextBytes(CString(u'v', 260))}, {u"K", u"q", 4, "12345"}}});
    const Key key = OpenUser(u"K");
    EXPECT_EQ(Read(key.Get(), u"v", 520), (Answer{Error::moreData, 1, 522, ""}));
    EXPECT_EQ(Read(key.Get(), u"v", 522).error, Error::none);
    EXPECT_EQ(Read(key.Get(), u"q", 4), (Answer{Error::moreData, 4, 5, ""}));
}

TEST_P(RegistryContract, NamesAreFoundWithoutRegardToCase)
{
    const auto shown = GetParam().show({{u"Ünïcode\\Ключ"}, {{u"MiXed", u"NaMe é", 4, NumberBytes(1)}}});
    const Key key = OpenUser(u"mIxED");
    EXPECT_EQ(Read(key.Get(), u"nAmE É").error, Error::none);
    EXPECT_TRUE(Key::Open(HKEY_CURRENT_USER, u"ÜNÏCODE\\кЛЮЧ", Access::Read).IsOpen());
    EXPECT_EQ(KeyNames(HKEY_CURRENT_USER), (std::vector<CString>{u"MiXed", u"Ünïcode"}));
    EXPECT_EQ(ValueNames(key.Get()), (std::vector<CString>{u"NaMe é"}));
}

TEST_P(RegistryContract, DefaultValueHasTheEmptyName)
{
    const auto shown =
        GetParam().show({{u"None"}, {{u"K", u"", 1, TextBytes(u"default")}, {u"K", u"x", 4, NumberBytes(2)}}});
    const Key key = OpenUser(u"K");
    EXPECT_EQ(Read(key.Get(), u"").bytes, TextBytes(u"default"));
    EXPECT_EQ(ValueNames(key.Get()), (std::vector<CString>{u"", u"x"}));
    const Key none = OpenUser(u"None");
    EXPECT_EQ(Read(none.Get(), u"").error, Error::notFound);
    EXPECT_TRUE(ValueNames(none.Get()).empty());
}

TEST_P(RegistryContract, KeysAreInTheOrderOfTheirUpperCasedNames)
{
    const std::vector<CString> names = {u"10", u"9", u"a", u"B", u"c", u"{1}", u"É", u"ж", u"日本"};
    RegistryTree tree;
    for (const CString& name : names)
        tree.keys.insert(tree.keys.begin(), CString(u"Order\\") + name);
    const auto shown = GetParam().show(tree);
    const Key key = OpenUser(u"Order");
    EXPECT_EQ(KeyNames(key.Get()), names);
}

TEST_P(RegistryContract, EnumerationWorksAtAnyIndexInAnyOrder)
{
    RegistryTree tree;
    std::vector<CString> names;
    for (int i = 0; i < 50; ++i) {
        CString name;
        name.Format(u"Key %03d", i);
        names.push_back(name);
        tree.keys.push_back(CString(u"Many\\") + name);
    }
    const auto shown = GetParam().show(tree);
    const Key key = OpenUser(u"Many");
    EXPECT_EQ(KeyNames(key.Get()), names);
    for (const std::uint32_t index : {49U, 0U, 7U, 6U, 30U, 30U, 49U})
        EXPECT_EQ(EnumerateKey(key.Get(), index, 260).name, names[index]);
    // Past the end it says so for ever.
    for (const std::uint32_t index : {50U, 51U, 1000U, 0x7FFFFFFFU, 50U})
        EXPECT_EQ(EnumerateKey(key.Get(), index, 260).error, Error::noMoreItems);
    EXPECT_EQ(EnumerateValue(key.Get(), 0, 260).error, Error::noMoreItems);
}

TEST_P(RegistryContract, NameOfAKeyFitsWithItsNul)
{
    const CString longest(u'k', 255);
    const auto shown =
        GetParam().show({{CString(u"Names\\") + longest}, {{u"Values", CString(u'v', 300), 4, NumberBytes(1)}}});
    const Key key = OpenUser(u"Names");
    EXPECT_EQ(EnumerateKey(key.Get(), 0, 256).name, longest);
    EXPECT_EQ(EnumerateKey(key.Get(), 0, 255).error, Error::moreData);
    EXPECT_TRUE(Key::Open(key.Get(), longest, Access::Read).IsOpen());
    const Key values = OpenUser(u"Values");
    EXPECT_EQ(EnumerateValue(values.Get(), 0, 260).error, Error::moreData);
    EXPECT_EQ(EnumerateValue(values.Get(), 0, 301).name, CString(u'v', 300));
}

TEST_P(RegistryContract, PathsLeadDownFromRootKeysAndFromOpenOnes)
{
    const auto shown = GetParam().show({{u"A\\B\\C"}, {{u"A\\B", u"v", 4, NumberBytes(7)}}});
    const Key a = OpenUser(u"A");
    EXPECT_TRUE(Key::Open(a.Get(), u"B\\C", Access::Read).IsOpen());
    const Key b = Key::Open(a.Get(), u"B\\", Access::Read);
    ASSERT_TRUE(b.IsOpen());
    EXPECT_EQ(Read(b.Get(), u"v").bytes, NumberBytes(7));
    const Key itself = Key::Open(b.Get(), u"", Access::Read);
    ASSERT_TRUE(itself.IsOpen());
    EXPECT_EQ(Read(itself.Get(), u"v").bytes, NumberBytes(7));
    EXPECT_EQ(KeyNames(itself.Get()), (std::vector<CString>{u"C"}));
}

TEST_P(RegistryContract, MissingKeysAndValuesAreNotFound)
{
    const auto shown = GetParam().show({{u"A"}, {}});
    for (const CString path : {u"B", u"A\\B", u"B\\A", u"A B", u"v"})
        EXPECT_EQ(Key::Open(HKEY_CURRENT_USER, path, Access::Read).GetError(), Error::notFound);
    EXPECT_EQ(Read(OpenUser(u"A").Get(), u"v").error, Error::notFound);
    EXPECT_FALSE(Key::Open(HKEY_CURRENT_USER, CString(u'x', 300), Access::Read).IsOpen());
}

TEST_P(RegistryContract, NoKeyIsAnInvalidOne)
{
    const auto shown = GetParam().show({});
    const Key none;
    EXPECT_FALSE(none.IsOpen());
    EXPECT_EQ(EnumerateKey(none.Get(), 0, 260).error, Error::invalidHandle);
    EXPECT_EQ(Read(none.Get(), u"v").error, Error::invalidHandle);
    EXPECT_EQ(SetNumber(none.Get(), u"v", 1), Error::invalidHandle);
    EXPECT_FALSE(GetLastWrite(none.Get()).has_value());
}

TEST_P(RegistryContract, IndirectTextThatNamesNoFileCannotBeHad)
{
    const auto shown = GetParam().show({{},
                                        {{u"K", u"plain", 1, TextBytes(u"Plain")},
                                         {u"K", u"missing", 1, TextBytes(u"@Z:\\nowhere\\no.dll,-1")},
                                         {u"K", u"number", 4, NumberBytes(1)}}});
    const Key key = OpenUser(u"K");
    for (const CString name : {u"plain", u"missing", u"number", u"none"})
        EXPECT_FALSE(LoadIndirectText(key.Get(), name, 260).has_value());
}

TEST(Registry, KeyIsCreatedWithThoseAboveItAndFoundAgain)
{
    ScratchRegistry registry;
    {
        const Key made = Key::Create(HKEY_CURRENT_USER, u"New\\Key\\Here");
        ASSERT_TRUE(made.IsOpen());
        EXPECT_EQ(SetNumber(made.Get(), u"v", 5), Error::none);
    }
    const Key again = Key::Create(HKEY_CURRENT_USER, u"new\\KEY\\here\\");
    EXPECT_EQ(Read(again.Get(), u"V").bytes, NumberBytes(5));
    EXPECT_EQ(KeyNames(HKEY_CURRENT_USER), (std::vector<CString>{u"New"}));
    EXPECT_FALSE(Key::Open(HKEY_LOCAL_MACHINE, u"New", Access::Read).IsOpen()) << "another root";
}

TEST(Registry, NumberReplacesTheFormerValue)
{
    ScratchRegistry registry;
    registry.SetText(HKEY_CURRENT_USER, u"K", u"Value", u"a text");
    const Key key = Key::Open(HKEY_CURRENT_USER, u"K", Access::ReadWrite);
    EXPECT_EQ(SetNumber(key.Get(), u"vALUE", 0x01020304), Error::none);
    EXPECT_EQ(Read(key.Get(), u"value"), (Answer{Error::none, ValueType::number, 4, "\x04\x03\x02\x01"}));
    EXPECT_EQ(ValueNames(key.Get()).size(), 1U);
    EXPECT_EQ(SetNumber(key.Get(), u"value", 0xFFFFFFFF), Error::none);
    EXPECT_EQ(Read(key.Get(), u"value").bytes, "\xFF\xFF\xFF\xFF");
}

TEST(Registry, KeyOpenedForReadingRefusesChanges)
{
    ScratchRegistry registry;
    registry.SetNumber(HKEY_CURRENT_USER, u"K", u"v", 1);
    const Key key = Key::Open(HKEY_CURRENT_USER, u"K", Access::Read);
    EXPECT_EQ(SetNumber(key.Get(), u"v", 2), Error::accessDenied);
    EXPECT_EQ(RemoveValue(key.Get(), u"v"), Error::accessDenied);
    EXPECT_EQ(Read(key.Get(), u"v").bytes, NumberBytes(1));
}

TEST(Registry, OnlyTheValueIsRemoved)
{
    ScratchRegistry registry;
    registry.SetNumber(HKEY_CURRENT_USER, u"K", u"a", 1);
    registry.SetNumber(HKEY_CURRENT_USER, u"K", u"b", 2);
    const Key key = Key::Open(HKEY_CURRENT_USER, u"K", Access::ReadWrite);
    EXPECT_EQ(EnumerateValue(key.Get(), 1, 260).error, Error::none);
    EXPECT_EQ(RemoveValue(key.Get(), u"A"), Error::none);
    EXPECT_EQ(RemoveValue(key.Get(), u"a"), Error::notFound);
    EXPECT_EQ(EnumerateValue(key.Get(), 0, 260).name, u"b");
    EXPECT_EQ(EnumerateValue(key.Get(), 1, 260).error, Error::noMoreItems);
}

TEST(Registry, TreeIsRemovedWithAllKeysBelowAndNoOther)
{
    ScratchRegistry registry;
    registry.AddKey(HKEY_CURRENT_USER, u"Base\\Gone\\Below\\Deeper");
    registry.SetNumber(HKEY_CURRENT_USER, u"Base\\Gone", u"v", 1);
    registry.AddKey(HKEY_CURRENT_USER, u"Base\\Gone too");
    registry.SetNumber(HKEY_CURRENT_USER, u"Base", u"v", 1);
    EXPECT_EQ(RemoveTree(HKEY_CURRENT_USER, u"Base\\Gone"), Error::none);
    const Key base = OpenUser(u"Base");
    EXPECT_EQ(KeyNames(base.Get()), (std::vector<CString>{u"Gone too"}));
    EXPECT_EQ(Read(base.Get(), u"v").error, Error::none);
    EXPECT_EQ(RemoveTree(HKEY_CURRENT_USER, u"Base\\Gone"), Error::notFound);
    EXPECT_EQ(RemoveTree(HKEY_CURRENT_USER, u"None\\Gone"), Error::notFound);
    EXPECT_EQ(RemoveTree(base.Get(), u""), Error::invalidParameter);
    EXPECT_EQ(KeyNames(base.Get()).size(), 1U);
}

TEST(Registry, OpenKeyThatWasRemovedGivesItsError)
{
    ScratchRegistry registry;
    registry.AddKey(HKEY_CURRENT_USER, u"Base\\Gone\\Below");
    const Key gone = OpenUser(u"Base\\Gone");
    const Key below = OpenUser(u"Base\\Gone\\Below");
    EXPECT_EQ(RemoveTree(HKEY_CURRENT_USER, u"Base"), Error::none);
    for (const Key* const key : {&gone, &below}) {
        EXPECT_EQ(EnumerateKey(key->Get(), 0, 260).error, Error::keyDeleted);
        EXPECT_EQ(Key::Open(key->Get(), u"Below", Access::Read).GetError(), Error::keyDeleted);
    }
}

TEST(Registry, EnumerationFollowsChanges)
{
    ScratchRegistry registry;
    for (const CString name : {u"a", u"b", u"c"})
        registry.AddKey(HKEY_CURRENT_USER, CString(u"K\\") + name);
    const Key key = OpenUser(u"K");
    EXPECT_EQ(EnumerateKey(key.Get(), 1, 260).name, u"b");
    EXPECT_EQ(RemoveTree(key.Get(), u"b"), Error::none);
    EXPECT_EQ(EnumerateKey(key.Get(), 1, 260).name, u"c");
    registry.AddKey(HKEY_CURRENT_USER, u"K\\ab");
    EXPECT_EQ(EnumerateKey(key.Get(), 1, 260).name, u"ab");
    EXPECT_EQ(EnumerateKey(key.Get(), 2, 260).name, u"c");
}

TEST(Registry, LastWriteIsTheMomentOfTheLastChange)
{
    ScratchRegistry registry;
    registry.AddKey(HKEY_CURRENT_USER, u"K");
    const Key key = Key::Open(HKEY_CURRENT_USER, u"K", Access::ReadWrite);
    const auto made = GetLastWrite(key.Get());
    ASSERT_TRUE(made.has_value());
    // Within a day of the test's own clock, in the same unit.
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(now).count() + 11'644'473'600;
    EXPECT_LT(std::abs(*made / 10'000'000 - seconds), 86'400);
    EXPECT_EQ(SetNumber(key.Get(), u"v", 1), Error::none);
    EXPECT_GE(GetLastWrite(key.Get()).value_or(0), *made);
}
