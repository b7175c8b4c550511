/// @file
/// Pages of the Control Panel.
#pragma once

#include <VyrLibraryFuncs/Export.h>
#include <VyrPlatform/text/CString.h>

struct HWND__; // NOLINT(bugprone-reserved-identifier): the system's own tag
using HWND = HWND__*;

namespace VyrLibraryFuncs {

/// Opens pages of the Control Panel without waiting until they are closed. Linux has no Control Panel: there both
/// return 0.
class VYR_FUNCS_API ControlPanelFuncs
{
public:
    ControlPanelFuncs();
    ~ControlPanelFuncs();
    ControlPanelFuncs& operator=(const ControlPanelFuncs&);

    /// Opens the page of date and time.
    /// @param owner the window that messages of the system belong to, or a null pointer.
    /// @return 1 when it was started, else 0.
    static int ExecDateAndTime(HWND owner);
    /// Opens the list of installed programs, with the same argument and result.
    static int ExecProgramsAndFeatures(HWND owner);

private:
    friend struct PrivateOperations;

    static int ExecuteItems(HWND owner, CString arguments);
};

} // namespace VyrLibraryFuncs
