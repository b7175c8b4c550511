#include <VyrLibraryFuncs/shell/FeatureControlFuncs.h>

#include <VyrLibraryUtils/FileUtils.h>
#include <VyrPlatform/process/SystemLibrary.h>
#include <VyrPlatform/registry/RegistryValue.h>

using VyrLibraryUtils::FileUtils;
using VyrPlatform::SystemLibrary;
namespace Registry = VyrPlatform::Registry;
using Registry::Access;
using Registry::Key;

namespace VyrLibraryFuncs {

namespace {

/// Ends in a backslash: the names of features follow directly.
const char16_t featureControl[] = u"Software\\Microsoft\\Internet Explorer\\Main\\FeatureControl\\";

// As the system's URL library declares them; a negative result is a failure.
using SetFeatureEnabled = std::int32_t(INTERNETFEATURELIST feature, std::uint32_t flags, int enable);
using IsFeatureEnabled = std::int32_t(INTERNETFEATURELIST feature, std::uint32_t flags);
constexpr std::uint32_t onProcess = 2;

CString FeaturePath(const CString& featureName)
{
    return featureControl + featureName;
}

/// Whether this machine has feature controls and the user's key for them exists, created if necessary.
bool PrepareFeatureControl()
{
    return Key::Open(HKEY_LOCAL_MACHINE, featureControl, Access::Read).IsOpen() &&
           Key::Create(HKEY_CURRENT_USER, featureControl).IsOpen();
}

/// Sets the host's value of a feature.
/// @return whether it was set.
bool SetFeature(const CString& featureName, std::uint32_t value)
{
    const Key key = Key::Create(HKEY_CURRENT_USER, FeaturePath(featureName));
    return key.IsOpen() && Registry::SetNumber(key.Get(), FileUtils::GetAppFileName(), value) == Registry::Error::none;
}

} // namespace

FeatureControlFuncs::FeatureControlFuncs() = default;
FeatureControlFuncs::~FeatureControlFuncs() = default;
FeatureControlFuncs& FeatureControlFuncs::operator=(const FeatureControlFuncs&) = default;

void FeatureControlFuncs::SetFeatureSecurityBand(int enable)
{
    SetFeatureControlEnabled(FEATURE_SECURITYBAND, enable);
}

void FeatureControlFuncs::SetFeatureWebocPopupManagement(int enable)
{
    SetFeatureControlEnabled(FEATURE_WEBOC_POPUPMANAGEMENT, enable);
}

void FeatureControlFuncs::SetFeatureLocalMachineLockDown(int enable)
{
    SetFeatureControlEnabled(FEATURE_LOCALMACHINE_LOCKDOWN, enable);
}

void FeatureControlFuncs::SetFeatureRestrictFileDownload(int enable)
{
    SetFeatureControlEnabled(FEATURE_RESTRICT_FILEDOWNLOAD, enable);
}

void FeatureControlFuncs::SetFeatureRestrictActiveXInstall(int enable)
{
    SetFeatureControlEnabled(FEATURE_RESTRICT_ACTIVEXINSTALL, enable);
}

void FeatureControlFuncs::SetFeatureTabbedBrowsing(int enable)
{
    SetFeatureControlEnabled(FEATURE_TABBED_BROWSING, enable);
}

void FeatureControlFuncs::SetFeatureDisableNavigationSounds(int enable)
{
    SetFeatureControlEnabled(FEATURE_DISABLE_NAVIGATION_SOUNDS, enable);
}

void FeatureControlFuncs::SetFeatureFeeds(int enable)
{
    SetFeatureControlEnabled(FEATURE_FEEDS, enable);
}

void FeatureControlFuncs::SetFeatureBlockLMZImg(std::uint32_t value)
{
    CreateFeatureControlRegistry(u"FEATURE_BLOCK_LMZ_IMG", value);
}

void FeatureControlFuncs::SetFeatureBlockLMZObject(std::uint32_t value)
{
    CreateFeatureControlRegistry(u"FEATURE_BLOCK_LMZ_OBJECT", value);
}

void FeatureControlFuncs::SetFeatureBlockLMZScript(std::uint32_t value)
{
    CreateFeatureControlRegistry(u"FEATURE_BLOCK_LMZ_SCRIPT", value);
}

void FeatureControlFuncs::SetFeatureBrowserEmulation(std::uint32_t value)
{
    CreateFeatureControlRegistry(u"FEATURE_BROWSER_EMULATION", value);
}

void FeatureControlFuncs::SetFeatureControlEnabled(INTERNETFEATURELIST feature, int enable)
{
    const SystemLibrary library(FileUtils::GetSystemFilePath(u"urlmon.dll"));
    auto* const setEnabled = library.Find<SetFeatureEnabled>("CoInternetSetFeatureEnabled");
    if (!setEnabled || setEnabled(feature, onProcess, enable) < 0)
        return;
    // Every library that has the one function has the other.
    library.Find<IsFeatureEnabled>("CoInternetIsFeatureEnabled")(feature, onProcess);
}

void FeatureControlFuncs::CreateFeatureControlRegistry(CString featureName, std::uint32_t value)
{
    if (PrepareFeatureControl())
        SetFeature(featureName, value);
}

void FeatureControlFuncs::SetInformationBarRegistry(CString featureName, std::uint32_t value)
{
    if (PrepareFeatureControl() && SetFeature(u"FEATURE_SECURITYBAND", 1))
        SetFeature(featureName, value);
}

void FeatureControlFuncs::DeleteFeatureControlRegistry(CString featureName)
{
    if (!Key::Open(HKEY_CURRENT_USER, featureControl, Access::ReadWrite).IsOpen())
        return;
    {
        const Key key = Key::Open(HKEY_CURRENT_USER, FeaturePath(featureName), Access::ReadWrite);
        if (key.IsOpen()) {
            static_cast<void>(Registry::RemoveValue(key.Get(), FileUtils::GetAppFileName()));
            if (IsRegValueMore(key.Get()))
                return;
        }
    }
    static_cast<void>(Registry::RemoveTree(HKEY_CURRENT_USER, FeaturePath(featureName)));
}

int FeatureControlFuncs::IsRegValueMore(HKEY key)
{
    return Registry::EnumerateValue(key, 0, Registry::bufferCapacity).error == Registry::Error::none;
}

} // namespace VyrLibraryFuncs
