// The values of features in the registry after each call.
#include <tests/VyrLibraryFuncs/PrivateOperations.h>
#include <tests/support/ScratchRegistry.h>

#include <VyrLibraryFuncs/shell/FeatureControlFuncs.h>
#include <VyrLibraryUtils/FileUtils.h>
#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/registry/RegistryValue.h>

#include <gtest/gtest.h>

using VyrLibraryFuncs::FeatureControlFuncs;
using VyrLibraryFuncs::PrivateOperations;
using VyrTests::KeyNames;
using VyrTests::ScratchRegistry;
using VyrTests::ValueNames;

namespace Registry = VyrPlatform::Registry;
using Registry::Access;
using Registry::Key;

namespace {

const CString base = u"Software\\Microsoft\\Internet Explorer\\Main\\FeatureControl";

CString FeaturePath(const CString& feature)
{
    return CString::Join({base, u"\\", feature});
}

bool HasKey(HKEY root, const CString& path)
{
    return Key::Open(root, path, Access::Read).IsOpen();
}

/// The number in the user's registry for this program.
std::optional<std::uint32_t> Setting(const CString& feature)
{
    const Key key = Key::Open(HKEY_CURRENT_USER, FeaturePath(feature), Access::Read);
    return Registry::ReadNumber(key.Get(), VyrLibraryUtils::FileUtils::GetAppFileName());
}

/// A machine without feature controls.
class BareMachine : public testing::Test
{
protected:
    ScratchRegistry registry;
};

class FeatureControl : public BareMachine
{
protected:
    FeatureControl() { registry.AddKey(HKEY_LOCAL_MACHINE, base); }
};

const CString emulation = u"FEATURE_BROWSER_EMULATION";
const CString band = u"FEATURE_SECURITYBAND";

} // namespace

TEST_F(BareMachine, NothingIsWritten)
{
    FeatureControlFuncs::SetFeatureBrowserEmulation(11001);
    PrivateOperations::SetInformationBarRegistry(u"FEATURE_X", 1);
    EXPECT_TRUE(KeyNames(HKEY_CURRENT_USER).empty());
    EXPECT_TRUE(KeyNames(HKEY_LOCAL_MACHINE).empty());
}

TEST_F(FeatureControl, EachSetterWritesItsFeature)
{
    FeatureControlFuncs::SetFeatureBlockLMZImg(1);
    FeatureControlFuncs::SetFeatureBlockLMZObject(2);
    FeatureControlFuncs::SetFeatureBlockLMZScript(0);
    FeatureControlFuncs::SetFeatureBrowserEmulation(0xFFFFFFFF);
    EXPECT_EQ(Setting(u"FEATURE_BLOCK_LMZ_IMG"), 1U);
    EXPECT_EQ(Setting(u"FEATURE_BLOCK_LMZ_OBJECT"), 2U);
    EXPECT_EQ(Setting(u"FEATURE_BLOCK_LMZ_SCRIPT"), 0U);
    EXPECT_EQ(Setting(emulation), 0xFFFFFFFFU);
    const Key key = Key::Open(HKEY_CURRENT_USER, base, Access::Read);
    EXPECT_EQ(KeyNames(key.Get()).size(), 4U);
    EXPECT_TRUE(ValueNames(key.Get()).empty());
    const Key machine = Key::Open(HKEY_LOCAL_MACHINE, base, Access::Read);
    EXPECT_TRUE(KeyNames(machine.Get()).empty()) << "this machine's key is only read";
}

TEST_F(FeatureControl, LastValueCounts)
{
    FeatureControlFuncs::SetFeatureBrowserEmulation(10000);
    FeatureControlFuncs::SetFeatureBrowserEmulation(11001);
    EXPECT_EQ(Setting(emulation), 11001U);
    EXPECT_EQ(ValueNames(Key::Open(HKEY_CURRENT_USER, FeaturePath(emulation), Access::Read).Get()).size(), 1U);
}

TEST_F(FeatureControl, ValueIsNamedAfterTheProgramAndOthersStay)
{
    registry.SetNumber(HKEY_CURRENT_USER, FeaturePath(emulation), u"other.exe", 8000);
    FeatureControlFuncs::SetFeatureBrowserEmulation(11001);
    const Key key = Key::Open(HKEY_CURRENT_USER, FeaturePath(emulation), Access::Read);
    EXPECT_EQ(Registry::ReadNumber(key.Get(), u"other.exe"), 8000U);
    const std::vector<CString> names = ValueNames(key.Get());
    ASSERT_EQ(names.size(), 2U);
    EXPECT_TRUE((names[0].Find(u"VyrLibraryFuncsTests") >= 0) != (names[1].Find(u"VyrLibraryFuncsTests") >= 0));
}

TEST_F(FeatureControl, InformationBarSwitchesTheBandOnFirst)
{
    PrivateOperations::SetInformationBarRegistry(u"FEATURE_X", 7);
    EXPECT_EQ(Setting(band), 1U);
    EXPECT_EQ(Setting(u"FEATURE_X"), 7U);
}

TEST_F(FeatureControl, InformationBarOfTheBandItselfKeepsTheSecondValue)
{
    PrivateOperations::SetInformationBarRegistry(band, 7);
    EXPECT_EQ(Setting(band), 7U);
}

TEST_F(FeatureControl, DeletingTheOnlyValueDeletesTheFeature)
{
    FeatureControlFuncs::SetFeatureBrowserEmulation(11001);
    FeatureControlFuncs::SetFeatureBlockLMZImg(1);
    registry.AddKey(HKEY_CURRENT_USER, FeaturePath(emulation) + u"\\Below\\Deeper");
    PrivateOperations::DeleteFeatureControlRegistry(emulation);
    EXPECT_FALSE(HasKey(HKEY_CURRENT_USER, FeaturePath(emulation)));
    EXPECT_EQ(Setting(u"FEATURE_BLOCK_LMZ_IMG"), 1U);
}

TEST_F(FeatureControl, DeletingKeepsTheValuesOfOtherPrograms)
{
    FeatureControlFuncs::SetFeatureBrowserEmulation(11001);
    registry.SetNumber(HKEY_CURRENT_USER, FeaturePath(emulation), u"other.exe", 8000);
    PrivateOperations::DeleteFeatureControlRegistry(emulation);
    EXPECT_FALSE(Setting(emulation).has_value());
    const Key key = Key::Open(HKEY_CURRENT_USER, FeaturePath(emulation), Access::Read);
    EXPECT_EQ(ValueNames(key.Get()), (std::vector<CString>{u"other.exe"}));
}

TEST_F(FeatureControl, DeletingWhereOnlyOthersHaveValuesKeepsThem)
{
    registry.SetNumber(HKEY_CURRENT_USER, FeaturePath(emulation), u"other.exe", 8000);
    PrivateOperations::DeleteFeatureControlRegistry(emulation);
    EXPECT_TRUE(HasKey(HKEY_CURRENT_USER, FeaturePath(emulation)));
}

TEST_F(FeatureControl, DeletingAMissingFeatureChangesNothing)
{
    PrivateOperations::DeleteFeatureControlRegistry(emulation);
    EXPECT_TRUE(KeyNames(HKEY_CURRENT_USER).empty());
    FeatureControlFuncs::SetFeatureBlockLMZImg(1);
    PrivateOperations::DeleteFeatureControlRegistry(emulation);
    EXPECT_EQ(Setting(u"FEATURE_BLOCK_LMZ_IMG"), 1U);
}

TEST_F(BareMachine, DeletingDoesNotAskThisMachinesKey)
{
    registry.AddKey(HKEY_CURRENT_USER, FeaturePath(emulation));
    PrivateOperations::DeleteFeatureControlRegistry(emulation);
    EXPECT_FALSE(HasKey(HKEY_CURRENT_USER, FeaturePath(emulation)));
    EXPECT_TRUE(HasKey(HKEY_CURRENT_USER, base));
}

TEST_F(BareMachine, KeyTellsWhetherItHasAValue)
{
    registry.AddKey(HKEY_CURRENT_USER, u"Empty\\Below");
    registry.SetNumber(HKEY_CURRENT_USER, u"One", u"v", 1);
    registry.SetNumber(HKEY_CURRENT_USER, u"Default", u"", 1);
    registry.SetNumber(HKEY_CURRENT_USER, u"Long", CString(u'v', 300), 1);
    const auto hasMore = [](const CString& path) {
        return PrivateOperations::IsRegValueMore(Key::Open(HKEY_CURRENT_USER, path, Access::Read).Get());
    };
    EXPECT_EQ(hasMore(u"Empty"), 0);
    EXPECT_EQ(hasMore(u"One"), 1);
    EXPECT_EQ(hasMore(u"Default"), 1);
    EXPECT_EQ(hasMore(u"Long"), 0) << "a name that does not fit into the buffer";
    EXPECT_EQ(PrivateOperations::IsRegValueMore(nullptr), 0);
}

TEST_F(BareMachine, SwitchesOfTheProcessWriteNothing)
{
    for (const auto set :
         {FeatureControlFuncs::SetFeatureSecurityBand, FeatureControlFuncs::SetFeatureWebocPopupManagement,
          FeatureControlFuncs::SetFeatureLocalMachineLockDown, FeatureControlFuncs::SetFeatureRestrictFileDownload,
          FeatureControlFuncs::SetFeatureRestrictActiveXInstall, FeatureControlFuncs::SetFeatureTabbedBrowsing,
          FeatureControlFuncs::SetFeatureDisableNavigationSounds, FeatureControlFuncs::SetFeatureFeeds})
        set(1);
    EXPECT_TRUE(KeyNames(HKEY_CURRENT_USER).empty());
}
