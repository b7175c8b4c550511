/// @file
/// Features of the web-browser control.
#pragma once

#include <VyrLibraryFuncs/Export.h>
#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>

namespace VyrLibraryFuncs {

/// Switches features of the web-browser controls in the host's process: some for the running process, through the
/// system's URL library; others permanently, by values in the user's registry under the name of the host's executable
/// file. A failure changes nothing and is not reported; earlier changes stay.
///
/// The values are written only where this machine's registry has the key `Software\Microsoft\Internet
/// Explorer\Main\FeatureControl`. Linux has no URL library: there the switches of the process have no effect.
class VYR_FUNCS_API FeatureControlFuncs
{
public:
    FeatureControlFuncs();
    ~FeatureControlFuncs();
    FeatureControlFuncs& operator=(const FeatureControlFuncs&);

    // For the running process, from now on.

    /// Feature 9: the bar that reports blocked content.
    /// @param enable non-zero switches it on, as in those below.
    static void SetFeatureSecurityBand(int enable);
    /// Feature 5: pop-up windows are managed.
    static void SetFeatureWebocPopupManagement(int enable);
    /// Feature 8: pages of this machine are locked down.
    static void SetFeatureLocalMachineLockDown(int enable);
    /// Feature 12: downloads that the user did not request are blocked.
    static void SetFeatureRestrictFileDownload(int enable);
    /// Feature 10: installing ActiveX controls is blocked.
    static void SetFeatureRestrictActiveXInstall(int enable);
    /// Feature 19: pages open in tabs.
    static void SetFeatureTabbedBrowsing(int enable);
    /// Feature 21: navigation makes no sound.
    static void SetFeatureDisableNavigationSounds(int enable);
    /// Feature 26: feeds are shown.
    static void SetFeatureFeeds(int enable);

    // For the host's executable file, permanently.

    /// Sets FEATURE_BLOCK_LMZ_IMG to `value`.
    static void SetFeatureBlockLMZImg(std::uint32_t value);
    /// Sets FEATURE_BLOCK_LMZ_OBJECT to `value`.
    static void SetFeatureBlockLMZObject(std::uint32_t value);
    /// Sets FEATURE_BLOCK_LMZ_SCRIPT to `value`.
    static void SetFeatureBlockLMZScript(std::uint32_t value);
    /// Sets FEATURE_BROWSER_EMULATION to `value`, the number of a document mode.
    static void SetFeatureBrowserEmulation(std::uint32_t value);

private:
    friend struct PrivateOperations;

    static void SetFeatureControlEnabled(INTERNETFEATURELIST feature, int enable);
    static void CreateFeatureControlRegistry(CString featureName, std::uint32_t value);
    static void DeleteFeatureControlRegistry(CString featureName);
    static void SetInformationBarRegistry(CString featureName, std::uint32_t value);
    static int IsRegValueMore(HKEY key);
};

} // namespace VyrLibraryFuncs
