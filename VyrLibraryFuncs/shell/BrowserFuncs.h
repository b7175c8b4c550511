/// @file
/// The installed web browsers.
#pragma once

#include <VyrLibraryFuncs/Export.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <vector>

namespace VyrLibraryFuncs {

/// Lists the installed browsers from the registry. Starts none.
class VYR_FUNCS_API BrowserFuncs
{
public:
    /// An application that can open a page.
    struct APPITEM
    {
        /// 0: a browser that is registered for the start menu. 1: a packaged application, which the shell starts.
        std::int32_t AppType = 0;
        /// The name of its key, or of its package family.
        CString AppKey;
        /// The name to show.
        CString DisplayName;
        /// The command that starts it.
        CString Command;
        /// The program file.
        CString ExecutablePath;
    };

    BrowserFuncs();
    ~BrowserFuncs();
    BrowserFuncs& operator=(const BrowserFuncs&);

    /// The browsers that are registered for this machine's start menu, in the registry's order. `Command` and
    /// `ExecutablePath` are the same: the command without double quotes, including its arguments.
    ///
    /// A browser without a name or a command, or with one of more than 259 code units, is left out.
    static std::vector<APPITEM> GetBrowserItemsList();
    /// The packaged Microsoft Edge of early Windows 10, whether it is installed or not.
    static APPITEM GetMicrosoftEdgeAppItem();
    /// 1 when this machine's list of 32-bit programs has an entry "Microsoft Edge" that can be uninstalled, else 0. The
    /// list of other programs is not read.
    static int IsInstalledMicrosoftEdgeChromium();
};

} // namespace VyrLibraryFuncs
