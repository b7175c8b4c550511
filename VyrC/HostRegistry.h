/// @file
/// Registries in files.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <cstdint>

namespace VyrC {

/// Chooses the registry that the operations on Linux read: that of a Wine prefix, or the hives of a Windows that is not
/// running. Files are only read. Windows has its own registry: there nothing is opened.
class HostRegistry
{
public:
    /// The files of a Windows. An empty path is no file; its keys are missing.
    struct HIVEFILES
    {
        /// `SOFTWARE`, usually in `Windows/System32/config`.
        CString software;
        /// `SYSTEM` beside it.
        CString system;
        /// `NTUSER.DAT` in the user's folder.
        CString user;
        /// `UsrClass.dat` in `AppData/Local/Microsoft/Windows` there.
        CString userClasses;
    };

    /// What became of opening files.
    struct OPENRESULT
    {
        /// 0 shown, 1 a file cannot be read, 2 it is of another kind or damaged, 3 it is empty, 4 it is cut short,
        /// 5 this system does not open such files.
        int outcome = 0;
        /// The system's error code for a file that cannot be read.
        std::uint32_t error = 0;
        /// The path of that file.
        CString file;
        /// The hives that Windows did not close, one path a line: its last changes may be missing in them.
        CString unclosedFiles;
    };

    /// Shows the registry of the Wine prefix in `folder`: its `system.reg` and, if it exists, `user.reg`.
    static OPENRESULT ShowWinePrefix(CString folder);
    /// Shows the registry of a Windows that is not running, and keeps its files open. Where a file cannot be opened,
    /// nothing changes.
    static OPENRESULT ShowHives(HIVEFILES files);
    /// Shows another user together with the machine that is shown. The paths are those of HIVEFILES.
    static OPENRESULT ShowUserHives(CString user, CString userClasses);
    /// Shows no registry of files any longer.
    static void Close();
};

} // namespace VyrC
