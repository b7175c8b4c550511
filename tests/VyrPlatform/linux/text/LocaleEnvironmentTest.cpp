// The locale of a Linux program from its environment, and what ICU knows beyond Wine.
#include <tests/support/ChildProcess.h>
#include <tests/support/UserLocale.h>

#include <gtest/gtest.h>

namespace {

using Environment = std::map<CString, std::optional<CString>>;

/// The order of z and ö (<, > or =), the thousands separator and the name of January, under `changes`.
std::string LocaleUnder(const Environment& changes)
{
    Environment environment = {{u"LC_ALL", {}},     {u"LC_MESSAGES", {}}, {u"LC_COLLATE", {}},
                               {u"LC_NUMERIC", {}}, {u"LC_TIME", {}},     {u"LANG", {}}};
    for (const auto& [name, value] : changes)
        environment[name] = value;
    return VyrTests::RunProgram({VyrTests::BesideThisProgram(u"PlatformProbe"), {u"locale"}, {}, environment}).output;
}

} // namespace

TEST(LocaleEnvironmentTest, LanguageIsThatOfTheEnvironment)
{
    EXPECT_EQ(LocaleUnder({{u"LANG", u"de_DE.UTF-8"}}), ">|.|Januar\n");
    EXPECT_EQ(LocaleUnder({{u"LANG", u"de_DE.UTF-8"}, {u"LC_ALL", u"sv_SE.UTF-8"}}), "<|\u00A0|januari\n");
}

TEST(LocaleEnvironmentTest, EachCategoryHasALocaleOfItsOwn)
{
    const CString english = u"en_US.UTF-8";
    EXPECT_EQ(LocaleUnder({{u"LANG", english}, {u"LC_COLLATE", u"sv_SE"}}), "<|,|January\n");
    EXPECT_EQ(LocaleUnder({{u"LANG", english}, {u"LC_NUMERIC", u"de_DE"}}), ">|.|January\n");
    EXPECT_EQ(LocaleUnder({{u"LANG", english}, {u"LC_TIME", u"de_DE"}}), ">|,|Januar\n");
    EXPECT_EQ(LocaleUnder({{u"LANG", u"sv_SE"}, {u"LC_TIME", u"C"}, {u"LC_NUMERIC", u""}}), "<|\u00A0|January\n");
    EXPECT_EQ(LocaleUnder({{u"LC_ALL", u"de_DE"}, {u"LC_TIME", u"C"}, {u"LC_COLLATE", u"sv_SE"}}), ">|.|Januar\n");
}

TEST(LocaleEnvironmentTest, LanguageOfMessagesIsIgnored)
{
    EXPECT_EQ(LocaleUnder({{u"LC_MESSAGES", u"de_DE.UTF-8"}}), ">|,|January\n");
}

TEST(LocaleEnvironmentTest, PosixLocaleReadsAsUsEnglish)
{
    for (const char16_t* name : {u"C", u"POSIX", u"C.UTF-8"})
        EXPECT_EQ(LocaleUnder({{u"LC_ALL", name}}), ">|,|January\n");
    EXPECT_EQ(LocaleUnder({}), ">|,|January\n");
    EXPECT_EQ(LocaleUnder({{u"LC_ALL", u""}, {u"LANG", u"nonsense"}}), ">|,|January\n");
}

TEST(LocaleEnvironmentTest, TurkishAndAzerbaijaniSortTheDotlessIFirst)
{
    for (const char16_t* name : {u"tr_TR", u"az"}) {
        const VyrTests::UserLocale locale(name);
        EXPECT_LT(VyrPlatform::Locale::Compare(u"ı", u"i"), 0);
        EXPECT_LT(VyrPlatform::Locale::Compare(u"ız", u"ia"), 0);
    }
}
