// Features for the running process, read back from the system's URL library.
#include <tests/VyrLibraryFuncs/PrivateOperations.h>

#include <VyrLibraryFuncs/shell/FeatureControlFuncs.h>

#include <gtest/gtest.h>

#include <windows.h>

#include <urlmon.h>

using VyrLibraryFuncs::FeatureControlFuncs;
using VyrLibraryFuncs::PrivateOperations;

namespace {

struct ProcessFeature
{
    void (*set)(int enable);
    INTERNETFEATURELIST feature;
};

const ProcessFeature processFeatures[] = {
    {FeatureControlFuncs::SetFeatureSecurityBand, FEATURE_SECURITYBAND},
    {FeatureControlFuncs::SetFeatureWebocPopupManagement, FEATURE_WEBOC_POPUPMANAGEMENT},
    {FeatureControlFuncs::SetFeatureLocalMachineLockDown, FEATURE_LOCALMACHINE_LOCKDOWN},
    {FeatureControlFuncs::SetFeatureRestrictFileDownload, FEATURE_RESTRICT_FILEDOWNLOAD},
    {FeatureControlFuncs::SetFeatureRestrictActiveXInstall, FEATURE_RESTRICT_ACTIVEXINSTALL},
    {FeatureControlFuncs::SetFeatureTabbedBrowsing, FEATURE_TABBED_BROWSING},
    {FeatureControlFuncs::SetFeatureDisableNavigationSounds, FEATURE_DISABLE_NAVIGATION_SOUNDS},
    {FeatureControlFuncs::SetFeatureFeeds, FEATURE_FEEDS},
};

/// The state in the URL library, which is in the process once a feature was switched.
bool IsEnabled(INTERNETFEATURELIST feature)
{
    const HMODULE library = ::GetModuleHandleW(L"urlmon.dll");
    EXPECT_TRUE(library);
    if (!library)
        return false;
    using Ask = HRESULT WINAPI(INTERNETFEATURELIST, DWORD);
    auto* const ask =
        reinterpret_cast<Ask*>(reinterpret_cast<void (*)()>(::GetProcAddress(library, "CoInternetIsFeatureEnabled")));
    return ask(feature, GET_FEATURE_FROM_PROCESS) == S_OK;
}

} // namespace

TEST(UrlmonFeatures, EachSwitchAffectsOnlyItsFeature)
{
    for (const auto& [set, feature] : processFeatures)
        set(0);
    for (const auto& [set, feature] : processFeatures) {
        set(1);
        for (const auto& [otherSet, other] : processFeatures)
            EXPECT_EQ(IsEnabled(other), other == feature) << feature << ' ' << other;
        set(0);
        EXPECT_FALSE(IsEnabled(feature));
    }
}

TEST(UrlmonFeatures, UnknownFeatureIsIgnored)
{
    PrivateOperations::SetFeatureControlEnabled(FEATURE_ENTRY_COUNT, 1);
    EXPECT_TRUE(::GetModuleHandleW(L"urlmon.dll")) << "the library stays";
}
