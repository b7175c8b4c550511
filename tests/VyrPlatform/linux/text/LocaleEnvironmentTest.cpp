// The locale that a Linux program takes from its environment, and what ICU knows beyond Wine.
#include <tests/support/ChildProcess.h>
#include <tests/support/UserLocale.h>

#include <gtest/gtest.h>

namespace {

using Environment = std::map<CString, std::optional<CString>>;

/// The capital of i, the thousands separator and the name of January, under `changes`.
std::string LocaleUnder(const Environment& changes)
{
    Environment environment = {{u"LC_ALL", {}}, {u"LC_MESSAGES", {}}, {u"LANG", {}}};
    for (const auto& [name, value] : changes)
        environment[name] = value;
    return VyrTests::RunProgram({VyrTests::BesideThisProgram(u"PlatformProbe"), {u"locale"}, {}, environment}).output;
}

} // namespace

TEST(LocaleEnvironmentTest, LanguageComesFromTheEnvironment)
{
    EXPECT_EQ(LocaleUnder({{u"LANG", u"de_DE.UTF-8"}}), "I|.|Januar\n");
    EXPECT_EQ(LocaleUnder({{u"LANG", u"de_DE.UTF-8"}, {u"LC_ALL", u"tr_TR.UTF-8"}}), "İ|.|Ocak\n");
}

TEST(LocaleEnvironmentTest, PosixLocaleReadsAsUsEnglish)
{
    for (const char16_t* name : {u"C", u"POSIX", u"C.UTF-8"})
        EXPECT_EQ(LocaleUnder({{u"LC_ALL", name}}), "I|,|January\n");
    EXPECT_EQ(LocaleUnder({}), "I|,|January\n");
    EXPECT_EQ(LocaleUnder({{u"LC_ALL", u""}, {u"LANG", u"nonsense"}}), "I|,|January\n");
}

TEST(LocaleEnvironmentTest, TurkishAndAzerbaijaniSortTheDotlessIFirst)
{
    for (const char16_t* name : {u"tr_TR", u"az"}) {
        const VyrTests::UserLocale locale(name);
        EXPECT_LT(VyrPlatform::Locale::Compare(u"ı", u"i"), 0);
        EXPECT_LT(VyrPlatform::Locale::Compare(u"ız", u"ia"), 0);
    }
}
