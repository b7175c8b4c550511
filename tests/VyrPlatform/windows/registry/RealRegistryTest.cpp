// The registry of the running Windows, read and not changed.
#include <tests/support/RegistryTree.h>

#include <VyrPlatform/registry/RegistryValue.h>

#include <gtest/gtest.h>

#include <windows.h>

using namespace VyrPlatform::Registry;

TEST(RealRegistry, HasTheFolderOfTheSystem)
{
    const Key key = Key::Open(HKEY_LOCAL_MACHINE, u"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion", Access::Read);
    ASSERT_TRUE(key.IsOpen());
    wchar_t folder[MAX_PATH] = {};
    ASSERT_GT(::GetWindowsDirectoryW(folder, MAX_PATH), 0U);
    const std::optional<CString> root = ReadText(key.Get(), u"SystemRoot");
    ASSERT_TRUE(root.has_value());
    EXPECT_EQ(root->CompareNoCase(std::u16string_view(reinterpret_cast<const char16_t*>(folder))), 0);
    EXPECT_GT(GetLastWrite(key.Get()).value_or(0), 0);
    EXPECT_FALSE(VyrTests::KeyNames(HKEY_LOCAL_MACHINE).empty());
}
