#include <tests/support/ScratchRegistry.h>

#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/registry/RegistryValue.h>

#include <gtest/gtest.h>

using namespace VyrPlatform::Registry;
using VyrTests::NumberBytes;
using VyrTests::ScratchRegistry;
using VyrTests::TextBytes;
using VyrTests::UnitBytes;

namespace {

constexpr char16_t withNul[] = u"a\0b";

class RegistryValue : public testing::Test
{
protected:
    [[nodiscard]] std::optional<CString> Text(std::uint32_t type, std::string_view bytes)
    {
        m_registry.SetValue(HKEY_CURRENT_USER, u"K", u"v", type, bytes);
        return ReadText(Key::Open(HKEY_CURRENT_USER, u"K", Access::Read).Get(), u"v");
    }
    [[nodiscard]] std::optional<std::uint32_t> Number(std::uint32_t type, std::string_view bytes)
    {
        m_registry.SetValue(HKEY_CURRENT_USER, u"K", u"v", type, bytes);
        return ReadNumber(Key::Open(HKEY_CURRENT_USER, u"K", Access::Read).Get(), u"v");
    }

private:
    ScratchRegistry m_registry;
};

} // namespace

TEST_F(RegistryValue, TextsOfBothTypesAreReadUnchanged)
{
    EXPECT_EQ(Text(ValueType::text, TextBytes(u"plain")), u"plain");
    EXPECT_EQ(Text(ValueType::expandableText, TextBytes(u"%PATH%")), u"%PATH%");
    EXPECT_EQ(Text(ValueType::text, TextBytes(u"")), u"");
}

TEST_F(RegistryValue, ValueOfNoBytesIsTheEmptyText)
{
    EXPECT_EQ(Text(ValueType::text, ""), u"");
}

TEST_F(RegistryValue, TextIsCutAtItsFirstZero)
{
    EXPECT_EQ(Text(ValueType::text, TextBytes(std::u16string_view(withNul, 3))), u"a");
    EXPECT_EQ(Text(ValueType::text, TextBytes(u"x") + std::string(8, '\0')), u"x");
}

TEST_F(RegistryValue, OtherTypesAreNoTexts)
{
    for (const std::uint32_t type : {0U, 3U, 4U, 5U, 6U, 7U, 8U, 11U, 99U})
        EXPECT_FALSE(Text(type, TextBytes(u"text")).has_value()) << type;
}

TEST_F(RegistryValue, OddCountIsNoText)
{
    EXPECT_FALSE(Text(ValueType::text, TextBytes(u"ab") + "x").has_value());
    EXPECT_FALSE(Text(ValueType::text, std::string(1, '\0')).has_value());
    EXPECT_FALSE(Text(ValueType::text, std::string(3, '\0')).has_value());
}

TEST_F(RegistryValue, UnterminatedTextIsNone)
{
    EXPECT_FALSE(Text(ValueType::text, UnitBytes(u"ab")).has_value());
    EXPECT_FALSE(Text(ValueType::text, UnitBytes(std::u16string_view(withNul, 3))).has_value());
}

TEST_F(RegistryValue, TextOf259UnitsFitsAndOneOf260DoesNot)
{
    EXPECT_EQ(Text(ValueType::text, TextBytes(CString(u'x', 259))), CString(u'x', 259));
    EXPECT_FALSE(Text(ValueType::text, TextBytes(CString(u'x', 260))).has_value());
    EXPECT_FALSE(Text(ValueType::text, UnitBytes(CString(u'x', 260))).has_value()) << "fits, without its terminator";
}

TEST_F(RegistryValue, NumberHasItsLowestByteFirst)
{
    EXPECT_EQ(Number(ValueType::number, "\x04\x03\x02\x01"), 0x01020304U);
    EXPECT_EQ(Number(ValueType::number, NumberBytes(0xFFFFFFFF)), 0xFFFFFFFFU);
    EXPECT_EQ(Number(ValueType::number, NumberBytes(0)), 0U);
}

TEST_F(RegistryValue, ShortNumberCountsWithZerosAboveIt)
{
    EXPECT_EQ(Number(ValueType::number, "\x05\xFF"), 0xFF05U);
    EXPECT_EQ(Number(ValueType::number, ""), 0U);
}

TEST_F(RegistryValue, OnlyNumbersOfUpToFourBytesAreRead)
{
    EXPECT_FALSE(Number(ValueType::number, "12345").has_value());
    for (const std::uint32_t type : {0U, 1U, 2U, 3U, 5U, 11U})
        EXPECT_FALSE(Number(type, NumberBytes(1)).has_value()) << type;
}

TEST_F(RegistryValue, MissingValueIsNone)
{
    const Key key = Key::Create(HKEY_CURRENT_USER, u"Empty");
    EXPECT_FALSE(ReadText(key.Get(), u"v").has_value());
    EXPECT_FALSE(ReadText(key.Get(), u"").has_value());
    EXPECT_FALSE(ReadNumber(key.Get(), u"v").has_value());
    EXPECT_FALSE(ReadText(nullptr, u"v").has_value());
}
