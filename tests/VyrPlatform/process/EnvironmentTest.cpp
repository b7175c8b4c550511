// Environment variables in texts.
#include <VyrPlatform/process/Process.h>

#include <gtest/gtest.h>

using namespace VyrPlatform;
using Process::ExpandEnvironment;

namespace {

constexpr std::uint32_t plenty = 30'000;

/// A variable that both systems set.
CString PathVariable()
{
    const CString path = Process::GetEnvironment(u"PATH").value_or(CString());
    EXPECT_FALSE(path.IsEmpty());
    return path;
}

} // namespace

TEST(Environment, VariablesInATextAreReplaced)
{
    const CString path = PathVariable();
    EXPECT_EQ(ExpandEnvironment(u"%PATH%", plenty), path);
    EXPECT_EQ(ExpandEnvironment(u"a %PATH% b%PATH%", plenty), CString::Join({u"a ", path, u" b", path}));
    EXPECT_EQ(ExpandEnvironment(u"%VYR_NO_SUCH% %PATH%%PATH%", plenty), CString::Join({u"%VYR_NO_SUCH% ", path, path}));
}

TEST(Environment, UnknownVariableIsKept)
{
    for (const CString text :
         {u"", u"plain", u"%", u"%%", u"%%%", u"50% off", u"%VYR_NO_SUCH%", u"%VYR NO SUCH% %", u"x%y%z"})
        EXPECT_EQ(ExpandEnvironment(text, plenty), text);
}

TEST(Environment, ResultFitsWithItsNul)
{
    const CString text(u'x', 259);
    EXPECT_EQ(ExpandEnvironment(text, 260), text);
    EXPECT_FALSE(ExpandEnvironment(text, 259).has_value());
    const CString path = PathVariable();
    const auto length = static_cast<std::uint32_t>(path.GetLength());
    EXPECT_EQ(ExpandEnvironment(u"%PATH%", length + 1), path);
    EXPECT_FALSE(ExpandEnvironment(u"%PATH%", length).has_value());
}

TEST(Environment, TextEndsAtItsNul)
{
    constexpr char16_t withNul[] = u"a\0%PATH%";
    EXPECT_EQ(ExpandEnvironment(std::u16string_view(withNul, 8), plenty), u"a");
}
