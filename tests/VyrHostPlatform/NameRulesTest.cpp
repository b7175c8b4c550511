// The rules for names. The separator tells which system this is.
#include <VyrHostPlatform/NameRules.h>

#include <VyrPlatform/files/FileSystem.h>

#include <gtest/gtest.h>

#include <string>

using VyrHostPlatform::CheckName;
using VyrHostPlatform::NameFault;

namespace {

bool IsWindows()
{
    return VyrPlatform::FileSystem::Separator() == u'\\';
}

void ExpectFault(std::u16string_view name, NameFault fault, bool isError)
{
    const VyrHostPlatform::NameVerdict verdict = CheckName(name);
    EXPECT_EQ(verdict.fault, fault) << std::string(name.begin(), name.end());
    EXPECT_EQ(verdict.isError, isError) << std::string(name.begin(), name.end());
}

/// An error on Windows and a warning on Linux.
void ExpectWindowsFault(std::u16string_view name, NameFault fault)
{
    ExpectFault(name, fault, IsWindows());
}

} // namespace

TEST(NameRules, OrdinaryNamesHaveNoFault)
{
    for (const char16_t* const name : {u"a", u"a b.c", u".bashrc", u"...a", u"日本語", u"\U0001F600", u"a\xDCFF",
                                       u"CONSOLE", u"com", u"com10", u"lpt", u"nul1", u"xNUL"})
        ExpectFault(name, NameFault::None, false);
}

TEST(NameRules, NamesThatAreNoneAreErrorsEverywhere)
{
    for (const char16_t* const name : {u"", u".", u".."})
        ExpectFault(name, NameFault::NoName, true);
}

TEST(NameRules, SeparatorsAndNulAreErrorsEverywhere)
{
    ExpectFault(u"a/b", NameFault::ForbiddenCharacter, true);
    ExpectFault(std::u16string_view(u"a\0b", 3), NameFault::ForbiddenCharacter, true);
}

TEST(NameRules, TheCharactersThatWindowsForbidsAreItsErrors)
{
    for (const char16_t unit : std::u16string_view(u"<>:\"\\|?*\x01\n\x1f"))
        ExpectWindowsFault(std::u16string(u"a") + unit, NameFault::ForbiddenCharacter);
}

TEST(NameRules, ReservedWordsAreErrorsOfWindowsAloneOrBeforeADot)
{
    for (const char16_t* const name : {u"CON", u"con", u"Nul.txt", u"aux.tar.gz", u"PRN", u"COM1", u"com0.x", u"LPT9",
                                       u"LPT\u00B2", u"CONIN$", u"conout$", u"nul .txt"})
        ExpectWindowsFault(name, NameFault::ReservedWord);
}

TEST(NameRules, ADotOrABlankAtTheEndIsAnErrorOfWindows)
{
    for (const char16_t* const name : {u"a.", u"a ", u"a...", u"...", u" "})
        ExpectWindowsFault(name, NameFault::TrailingDotOrBlank);
}

TEST(NameRules, ANameHas255UnitsOrBytes)
{
    ExpectFault(std::u16string(255, u'a'), NameFault::None, false);
    ExpectFault(std::u16string(256, u'a'), NameFault::TooLong, true);
    // Three bytes each in UTF-8.
    ExpectFault(std::u16string(85, u'日'), NameFault::None, false);
    ExpectFault(std::u16string(86, u'日'), IsWindows() ? NameFault::None : NameFault::TooLong, !IsWindows());
    // A lone surrogate that encodes a byte is one byte.
    ExpectFault(std::u16string(255, u'\xDCFF'), NameFault::None, false);
}
