// Sizes as text for people.
#include <VyrLibraryUtils/FileUtils.h>

#include <tests/support/Describe.h>
#include <tests/support/UserLocale.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <string>

using VyrLibraryUtils::FileUtils;
using VyrTests::UserLocale;

namespace {

constexpr std::int64_t KB = 1024;
constexpr std::int64_t MB = 1024 * KB;
constexpr std::int64_t GB = 1024 * MB;
constexpr std::int64_t TB = 1024 * GB;
constexpr std::int64_t PB = 1024 * TB;

TEST(FileUtilsSizeText, HasAtMostThreeDigitsInFormatZero)
{
    struct
    {
        std::int64_t size;
        const char16_t* text;
    } const cases[] = {
        {0, u"0 bytes"},           {1, u"1 byte"},
        {532, u"532 bytes"},       {1023, u"1,023 bytes"},
        {KB, u"1.00 KB"},          {1340, u"1.30 KB"},
        {10 * KB - 1, u"9.99 KB"}, {10 * KB, u"10.0 KB"},
        {23506, u"22.9 KB"},       {100 * KB - 1, u"99.9 KB"},
        {100 * KB, u"100 KB"},     {1000 * KB - 1, u"999 KB"},
        {1000 * KB, u"0.97 MB"},   {MB - 1, u"0.99 MB"},
        {MB, u"1.00 MB"},          {2400016, u"2.28 MB"},
        {2400000000, u"2.23 GB"},  {GB, u"1.00 GB"},
        {1000 * GB, u"0.97 TB"},   {TB, u"1.00 TB"},
        {PB, u"1.00 PB"},          {999 * PB, u"999 PB"},
        {1000 * PB, u"1,000 PB"},  {std::numeric_limits<std::int64_t>::max(), u"8,191 PB"},
    };
    const UserLocale locale(u"C");
    for (const auto& expected : cases) {
        EXPECT_EQ(FileUtils::GetFileSize(expected.size, 0), expected.text) << expected.size;
        for (const int otherFormat : {2, -1, 1000})
            EXPECT_EQ(FileUtils::GetFileSize(expected.size, otherFormat), expected.text) << expected.size;
    }
}

TEST(FileUtilsSizeText, IsBytesWithSeparatorsInFormatOne)
{
    const UserLocale locale(u"C");
    EXPECT_EQ(FileUtils::GetFileSize(0, 1), u"0 bytes");
    EXPECT_EQ(FileUtils::GetFileSize(1, 1), u"1 byte");
    EXPECT_EQ(FileUtils::GetFileSize(1234, 1), u"1,234 bytes");
    EXPECT_EQ(FileUtils::GetFileSize(std::numeric_limits<std::int64_t>::max(), 1), u"9,223,372,036,854,775,807 bytes");
}

TEST(FileUtilsSizeText, IsEmptyForAnUnknownSize)
{
    for (const int format : {0, 1, 2}) {
        EXPECT_EQ(FileUtils::GetFileSize(-1, format), u"");
        EXPECT_EQ(FileUtils::GetFileSize(std::numeric_limits<std::int64_t>::min(), format), u"");
    }
}

TEST(FileUtilsSizeText, FollowsTheUsersLocale)
{
    struct
    {
        const char16_t* locale;
        const char16_t* scaled;
        const char16_t* bytes;
    } const cases[] = {
        {u"C", u"1.30 KB", u"1,340 bytes"},     {u"de_DE", u"1,30 KB", u"1.340 bytes"},
        {u"tr_TR", u"1,30 KB", u"1.340 bytes"}, {u"az", u"1,30 KB", u"1.340 bytes"},
        {u"ja_JP", u"1.30 KB", u"1,340 bytes"},
    };
    for (const auto& expected : cases) {
        const UserLocale locale(expected.locale);
        EXPECT_EQ(FileUtils::GetFileSize(1340, 0), expected.scaled);
        EXPECT_EQ(FileUtils::GetFileSize(1340, 1), expected.bytes);
    }
}

/// The number that `text` shows, in bytes.
long double ReadBack(const CString& text)
{
    static constexpr std::u16string_view units[] = {u" KB", u" MB", u" GB", u" TB", u" PB"};
    std::string digits;
    for (const char16_t unit : text.View())
        if ((unit >= u'0' && unit <= u'9') || unit == u'.')
            digits += static_cast<char>(unit);
    long double one = 1024;
    for (const std::u16string_view unit : units) {
        if (text.View().ends_with(unit))
            return std::stold(digits) * one;
        one *= 1024;
    }
    return std::stold(digits);
}

TEST(FileUtilsSizeText, IsNeverTooLargeAndAtMostTwoPercentTooSmall)
{
    const UserLocale locale(u"C");
    std::mt19937_64 random(4);
    for (int i = 0; i < 20'000; ++i) {
        const auto size = static_cast<std::int64_t>(random() >> (1 + random() % 63));
        const long double shown = ReadBack(FileUtils::GetFileSize(size, 0));
        ASSERT_LE(shown, static_cast<long double>(size)) << size;
        ASSERT_GE(shown, static_cast<long double>(size) * 0.98L) << size;
    }
}

} // namespace
