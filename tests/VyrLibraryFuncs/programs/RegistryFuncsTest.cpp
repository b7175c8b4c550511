#include <tests/support/DebugCapture.h>
#include <tests/support/ScratchRegistry.h>

#include <VyrLibraryFuncs/programs/RegistryFuncs.h>
#include <VyrLibraryUtils/DateTimeUtils.h>
#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/time/Clock.h>

#include <gmock/gmock.h>

#include <limits>

using VyrLibraryFuncs::RegistryFuncs;
using VyrLibraryUtils::DateTimeUtils;
using VyrTests::DebugCapture;
using VyrTests::ScratchRegistry;

namespace {

const CString uninstall = u"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\";
const CString uninstall32 = u"SOFTWARE\\Wow6432Node\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\";

/// The texts of all seconds from that of `first` to that of now.
std::vector<CString> TextsSince(const COleDateTime& first)
{
    constexpr double second = 1.0 / 86'400;
    std::vector<CString> texts;
    for (double moment = first; moment <= VyrPlatform::Clock::Now() + second; moment += second)
        texts.push_back(DateTimeUtils::GetFormatedDateTime(COleDateTime(moment)));
    return texts;
}

} // namespace

TEST(RegistryFuncs, ProductKeyHasVendorProductAndMajorVersion)
{
    EXPECT_EQ(RegistryFuncs::GetProductRegKey(u"Maker", u"Tool", 3), u"SOFTWARE\\Maker\\Tool\\3.0");
    EXPECT_EQ(RegistryFuncs::GetProductRegKey(u"Größe & Co", u"日本", 12), u"SOFTWARE\\Größe & Co\\日本\\12.0");
    EXPECT_EQ(RegistryFuncs::GetProductRegKey(u"M", u"T", 0), u"SOFTWARE\\M\\T\\0.0");
    EXPECT_EQ(RegistryFuncs::GetProductRegKey(u"M", u"T", -4), u"SOFTWARE\\M\\T\\-4.0");
    EXPECT_EQ(RegistryFuncs::GetProductRegKey(u"M", u"T", std::numeric_limits<int>::min()),
              u"SOFTWARE\\M\\T\\-2147483648.0");
    EXPECT_EQ(RegistryFuncs::GetProductRegKey(u"", u"", 1), u"SOFTWARE\\\\\\1.0");
    EXPECT_EQ(RegistryFuncs::GetProductRegKey(u"%s", u"%d", 1), u"SOFTWARE\\%s\\%d\\1.0");
}

TEST(RegistryFuncs, UninstallKeyHasTheEntrysName)
{
    EXPECT_EQ(RegistryFuncs::GetUninstallProductRegKey(u"Tool_is1"), uninstall + u"Tool_is1");
    EXPECT_EQ(RegistryFuncs::GetUninstallProductRegKey(u""), uninstall);
}

TEST(RegistryFuncs, InstallDateIsTheMomentOfTheEntrysLastWrite)
{
    ScratchRegistry registry;
    const COleDateTime before = VyrPlatform::Clock::Now();
    registry.SetText(HKEY_LOCAL_MACHINE, uninstall + u"Tool", u"DisplayName", u"Tool");
    const DebugCapture debug;
    const CString date = RegistryFuncs::GetProductInstallDate(u"Tool");
    EXPECT_THAT(TextsSince(before), testing::Contains(date));
    EXPECT_EQ(debug.Texts(), (std::vector<CString>{date + u"\r\n"}));
}

TEST(RegistryFuncs, EmptyNameIsTheUninstallKeyItself)
{
    ScratchRegistry registry;
    const COleDateTime before = VyrPlatform::Clock::Now();
    registry.AddKey(HKEY_LOCAL_MACHINE, uninstall + u"Tool");
    EXPECT_THAT(TextsSince(before), testing::Contains(RegistryFuncs::GetProductInstallDate(u"")));
}

TEST(RegistryFuncs, ProductThatThisMachineDoesNotListNativelyHasNoInstallDate)
{
    ScratchRegistry registry;
    const DebugCapture debug;
    EXPECT_EQ(RegistryFuncs::GetProductInstallDate(u"Tool"), u"");
    registry.AddKey(HKEY_LOCAL_MACHINE, uninstall32 + u"Tool");
    registry.AddKey(HKEY_CURRENT_USER, uninstall + u"Tool");
    registry.AddKey(HKEY_LOCAL_MACHINE, uninstall + u"Other");
    EXPECT_EQ(RegistryFuncs::GetProductInstallDate(u"Tool"), u"");
    EXPECT_TRUE(debug.Texts().empty());
}
