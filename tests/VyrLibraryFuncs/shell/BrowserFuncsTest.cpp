#include <tests/support/ScratchRegistry.h>

#include <VyrLibraryFuncs/shell/BrowserFuncs.h>
#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/process/Process.h>

#include <gtest/gtest.h>

using VyrLibraryFuncs::BrowserFuncs;
using VyrTests::ScratchRegistry;
using VyrTests::TextBytes;
using VyrTests::UnitBytes;

namespace {

const CString clients = u"SOFTWARE\\Clients\\StartMenuInternet\\";
const CString edge = u"SOFTWARE\\Wow6432Node\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Microsoft Edge";

class Browsers : public testing::Test
{
protected:
    void AddName(const CString& key, std::u16string_view name)
    {
        registry.SetText(HKEY_LOCAL_MACHINE, clients + key, u"", name);
    }
    void AddCommand(const CString& key, std::u16string_view command)
    {
        registry.SetText(HKEY_LOCAL_MACHINE, CString::Join({clients, key, u"\\shell\\open\\command"}), u"", command);
    }
    [[nodiscard]] static std::vector<CString> Keys()
    {
        std::vector<CString> keys;
        for (const BrowserFuncs::APPITEM& item : BrowserFuncs::GetBrowserItemsList())
            keys.push_back(item.AppKey);
        return keys;
    }

    ScratchRegistry registry;
};

} // namespace

TEST_F(Browsers, RegisteredBrowserIsListedWithItsCommand)
{
    AddName(u"Fox.exe", u"The Fox");
    AddCommand(u"Fox.exe", u"\"C:\\Program Files\\Fox\\fox.exe\" -new \"a\"");
    const auto items = BrowserFuncs::GetBrowserItemsList();
    ASSERT_EQ(items.size(), 1U);
    EXPECT_EQ(items[0].AppType, 0);
    EXPECT_EQ(items[0].AppKey, u"Fox.exe");
    EXPECT_EQ(items[0].DisplayName, u"The Fox");
    EXPECT_EQ(items[0].Command, u"C:\\Program Files\\Fox\\fox.exe -new a");
    EXPECT_EQ(items[0].ExecutablePath, items[0].Command);
}

TEST_F(Browsers, AreInTheOrderOfTheirKeys)
{
    for (const CString key : {u"b", u"C", u"a", u"1"}) {
        AddName(key, u"same name");
        AddCommand(key, u"same.exe");
    }
    EXPECT_EQ(Keys(), (std::vector<CString>{u"1", u"a", u"b", u"C"}));
}

TEST_F(Browsers, BrowserWithoutNameOrCommandIsLeftOut)
{
    AddName(u"a no command", u"name");
    AddCommand(u"b no name", u"c.exe");
    AddName(u"c command key without value", u"name");
    registry.AddKey(HKEY_LOCAL_MACHINE, clients + u"c command key without value\\shell\\open\\command");
    AddName(u"d whole", u"name");
    AddCommand(u"d whole", u"c.exe");
    registry.AddKey(HKEY_LOCAL_MACHINE, clients + u"e nothing");
    EXPECT_EQ(Keys(), (std::vector<CString>{u"d whole"}));
}

TEST_F(Browsers, BrowserWithABadTextIsLeftOut)
{
    const std::pair<std::uint32_t, std::string> bad[] = {
        {4, std::string("\1\0\0\0", 4)},    {1, UnitBytes(u"open")},
        {1, TextBytes(u"odd") + "x"},       {3, TextBytes(u"binary")},
        {1, TextBytes(CString(u'x', 260))},
    };
    for (std::size_t i = 0; i < std::size(bad); ++i) {
        CString key;
        key.Format(u"name %d", i);
        registry.SetValue(HKEY_LOCAL_MACHINE, clients + key, u"", bad[i].first, bad[i].second);
        AddCommand(key, u"c.exe");
        key.Format(u"command %d", i);
        AddName(key, u"name");
        registry.SetValue(HKEY_LOCAL_MACHINE, CString::Join({clients, key, u"\\shell\\open\\command"}), u"",
                          bad[i].first, bad[i].second);
    }
    AddName(u"sound", CString(u'x', 259));
    AddCommand(u"sound", u"c.exe");
    EXPECT_EQ(Keys(), (std::vector<CString>{u"sound"}));
}

TEST_F(Browsers, ExpandableAndEmptyTextsAreKept)
{
    registry.SetValue(HKEY_LOCAL_MACHINE, clients + u"x", u"", 2, TextBytes(u"%PATH%"));
    registry.SetValue(HKEY_LOCAL_MACHINE, clients + u"x\\shell\\open\\command", u"", 2, TextBytes(u""));
    const auto items = BrowserFuncs::GetBrowserItemsList();
    ASSERT_EQ(items.size(), 1U);
    EXPECT_EQ(items[0].DisplayName, u"%PATH%");
    EXPECT_EQ(items[0].Command, u"");
}

TEST_F(Browsers, AreNoneWithoutTheKey)
{
    EXPECT_TRUE(BrowserFuncs::GetBrowserItemsList().empty());
    AddName(u"", u"a name of the clients' key itself");
    EXPECT_TRUE(BrowserFuncs::GetBrowserItemsList().empty());
}

TEST_F(Browsers, PackagedEdgeIsAFixedRecord)
{
    const BrowserFuncs::APPITEM item = BrowserFuncs::GetMicrosoftEdgeAppItem();
    EXPECT_EQ(item.AppType, 1);
    EXPECT_EQ(item.AppKey, u"Microsoft.MicrosoftEdge_8wekyb3d8bbwe");
    EXPECT_EQ(item.DisplayName, u"Microsoft Edge");
    EXPECT_EQ(item.Command, u"shell:AppsFolder\\Microsoft.MicrosoftEdge_8wekyb3d8bbwe!MicrosoftEdge");
    const CString folder = VyrPlatform::Process::GetSystemAppsFolder();
    EXPECT_EQ(item.ExecutablePath.Left(folder.GetLength()), folder);
    EXPECT_TRUE(VyrPlatform::FileSystem::IsSeparator(item.ExecutablePath[folder.GetLength()]));
    EXPECT_EQ(item.ExecutablePath.Mid(folder.GetLength() + 1),
              u"Microsoft.MicrosoftEdge_8wekyb3d8bbwe\\MicrosoftEdge.exe");
}

TEST_F(Browsers, EdgeIsInstalledWhenItCanBeUninstalled)
{
    EXPECT_EQ(BrowserFuncs::IsInstalledMicrosoftEdgeChromium(), 0);
    registry.AddKey(HKEY_LOCAL_MACHINE, edge);
    EXPECT_EQ(BrowserFuncs::IsInstalledMicrosoftEdgeChromium(), 0);
    registry.SetText(HKEY_LOCAL_MACHINE, edge, u"UninstallString", u"");
    EXPECT_EQ(BrowserFuncs::IsInstalledMicrosoftEdgeChromium(), 0);
    registry.SetNumber(HKEY_LOCAL_MACHINE, edge, u"UninstallString", 1);
    EXPECT_EQ(BrowserFuncs::IsInstalledMicrosoftEdgeChromium(), 0);
    registry.SetValue(HKEY_LOCAL_MACHINE, edge, u"UninstallString", 1, UnitBytes(u"open"));
    EXPECT_EQ(BrowserFuncs::IsInstalledMicrosoftEdgeChromium(), 0);
    registry.SetText(HKEY_LOCAL_MACHINE, edge, u"UninstallString", u"setup.exe");
    EXPECT_EQ(BrowserFuncs::IsInstalledMicrosoftEdgeChromium(), 1);
}

TEST_F(Browsers, EdgeOfTheNativeViewOrOfTheUserDoesNotCount)
{
    const CString native = u"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Microsoft Edge";
    registry.SetText(HKEY_LOCAL_MACHINE, native, u"UninstallString", u"setup.exe");
    registry.SetText(HKEY_CURRENT_USER, edge, u"UninstallString", u"setup.exe");
    EXPECT_EQ(BrowserFuncs::IsInstalledMicrosoftEdgeChromium(), 0);
}
