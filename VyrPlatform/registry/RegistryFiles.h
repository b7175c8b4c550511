/// @file
/// Registries in files: those of a Wine prefix, and the hives of a Windows that is not running.
///
/// On Linux they are shown below the root keys, read-only; HKEY_CLASSES_ROOT merges the user's classes with those of
/// the machine and prefers the user's. Windows shows only its own registry: there nothing is opened.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <vector>

namespace VyrPlatform::Registry {

struct OpenResult
{
    enum class Outcome : std::uint8_t
    {
        /// The root keys now show it.
        Shown,
        /// A file cannot be read.
        Unreadable,
        /// A file is of another kind, or damaged at its beginning.
        NoRegistry,
        /// A file is empty.
        Empty,
        /// A hive is shorter than its header says.
        CutShort,
        /// This system does not open such files.
        NotSupported
    };
    Outcome outcome = Outcome::Shown;
    /// The system's error code for a file that cannot be read.
    std::uint32_t error = 0;
    /// The path of that file, where there is one.
    CString file;
    /// Hives that Windows did not close: its last changes may be missing in them.
    std::vector<CString> unclosedFiles;
};

/// Shows the registry of the Wine prefix in `folder`: its files `system.reg` and, if it exists, `user.reg`. They are
/// read completely; damaged parts are left out.
[[nodiscard]] VYR_PLATFORM_API OpenResult ShowWinePrefix(const CString& folder);

/// The files of a Windows. An empty path is no file; its keys are missing.
struct HiveFiles
{
    /// `SOFTWARE` and `SYSTEM`, usually in `Windows/System32/config`: the keys of these names in HKEY_LOCAL_MACHINE.
    CString software;
    CString system;
    /// `NTUSER.DAT` in the user's folder: HKEY_CURRENT_USER.
    CString user;
    /// `UsrClass.dat` in `AppData/Local/Microsoft/Windows` there: its key `Software\Classes`.
    CString userClasses;
};

/// Shows the registry of a Windows that is not running. Its files are opened for reading and kept open; damaged keys
/// are left out. Where a file cannot be opened, nothing changes.
[[nodiscard]] VYR_PLATFORM_API OpenResult ShowHives(const HiveFiles& files);
/// Shows another user together with the machine that is shown, so that the machine's hives are opened once for all
/// users.
/// @param user,userClasses  as of HiveFiles.
[[nodiscard]] VYR_PLATFORM_API OpenResult ShowUserHives(const CString& user, const CString& userClasses);

/// Makes the root keys no longer show anything from files.
VYR_PLATFORM_API void CloseRegistryFiles();

} // namespace VyrPlatform::Registry
