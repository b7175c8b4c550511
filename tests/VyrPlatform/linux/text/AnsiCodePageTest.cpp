// The ANSI code page of a Linux program, from the locale in its environment.
#include <tests/support/ChildProcess.h>

#include <gtest/gtest.h>

namespace {

using Environment = std::map<CString, std::optional<CString>>;

std::string AnsiUnder(const Environment& changes)
{
    Environment environment = {{u"LC_ALL", {}}, {u"LC_CTYPE", {}}, {u"LANG", {}}};
    for (const auto& [name, value] : changes)
        environment[name] = value;
    return VyrTests::RunProgram({VyrTests::BesideThisProgram(u"PlatformProbe"), {u"ansi-code-page"}, {}, environment})
        .output;
}

} // namespace

TEST(AnsiCodePage, IsThatOfTheLocale)
{
    const std::pair<const char16_t*, const char*> pages[] = {
        {u"de_DE.UTF-8", "65001\n"},      {u"C.utf8", "65001\n"},
        {u"de_DE.ISO-8859-1", "28591\n"}, {u"de_DE.ISO8859-15@euro", "28605\n"},
        {u"ru_RU.CP1251", "1251\n"},      {u"ja_JP.SJIS", "932\n"},
        {u"zh_TW.Big5", "950\n"},         {u"zh_CN.GBK", "936\n"},
        {u"pl_PL.ISO-8859-2", "28592\n"},
    };
    for (const auto& [locale, page] : pages)
        EXPECT_EQ(AnsiUnder({{u"LANG", locale}}), page) << page;
}

TEST(AnsiCodePage, IsAsciiInThePosixLocale)
{
    EXPECT_EQ(AnsiUnder({}), "20127\n");
    for (const char16_t* const name : {u"C", u"POSIX"})
        EXPECT_EQ(AnsiUnder({{u"LC_ALL", name}}), "20127\n");
}

TEST(AnsiCodePage, IsUtf8WhereTheLocaleNamesNone)
{
    for (const char16_t* const name : {u"nonsense", u"xx_YY", u"de_DE.nonsense", u"de_DE."})
        EXPECT_EQ(AnsiUnder({{u"LANG", name}}), "65001\n");
}

TEST(AnsiCodePage, IsThatOfTheFirstVariableThatIsSet)
{
    EXPECT_EQ(AnsiUnder({{u"LANG", u"de_DE.UTF-8"}, {u"LC_CTYPE", u"de_DE.ISO-8859-1"}}), "28591\n");
    EXPECT_EQ(AnsiUnder({{u"LC_ALL", u"ru_RU.CP1251"}, {u"LC_CTYPE", u"de_DE.ISO-8859-1"}}), "1251\n");
    EXPECT_EQ(AnsiUnder({{u"LC_ALL", u""}, {u"LC_CTYPE", u""}, {u"LANG", u"de_DE.UTF-8"}}), "65001\n");
}
