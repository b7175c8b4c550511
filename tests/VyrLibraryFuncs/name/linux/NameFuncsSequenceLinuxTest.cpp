// A padding so long that Windows, which queries the window's messages at each step, would take seconds for it.
#include <VyrLibraryFuncs/name/NameFuncs.h>

#include <gtest/gtest.h>
#include <tests/support/Describe.h>

#include <string>

using VyrLibraryFuncs::NameFuncs;

TEST(NameFuncsSequenceLinux, AHundredThousandDigitsAreComplete)
{
    constexpr int digits = 100'000;
    NameFuncs::ITEM item;
    item.digits = digits;
    item.startNumber = 42;
    EXPECT_EQ(NameFuncs::GetSequenceNumberFilePath(item),
              std::u16string_view(std::u16string(digits - 2, u'0') + u"42"));
    item.startNumber = -42;
    EXPECT_EQ(NameFuncs::GetSequenceNumberFilePath(item),
              std::u16string_view(std::u16string(digits - 1, u'0') + u"-42"));
}
