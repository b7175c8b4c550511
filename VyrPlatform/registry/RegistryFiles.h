/// @file
/// Registries that lie in files: those of a Wine prefix, and the hives of a Windows that does not run.
///
/// On Linux they are shown below the root keys, for reading alone; HKEY_CLASSES_ROOT is the user's classes over those
/// of the machine. Windows shows its own registry and no other: there nothing is opened.
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
        /// The root keys show it now.
        Shown,
        /// A file cannot be read.
        Unreadable,
        /// A file is something else, or damaged from its beginning.
        NoRegistry,
        /// A file has no bytes.
        Empty,
        /// A hive has fewer bytes than its head tells.
        CutShort,
        /// This system does not open such files.
        NotSupported
    };
    Outcome outcome = Outcome::Shown;
    /// The system's error code for a file that cannot be read.
    std::uint32_t error = 0;
    /// The file that is meant, where there is one.
    CString file;
    /// Hives that Windows did not close: what it wrote last may be missing in them.
    std::vector<CString> unclosedFiles;
};

/// Shows the registry of the Wine prefix in `folder`: its files `system.reg` and, where it is there, `user.reg`. What
/// is damaged in them is missing. They are read whole.
[[nodiscard]] VYR_PLATFORM_API OpenResult ShowWinePrefix(const CString& folder);

/// The files of a Windows. An empty path stands for none; what would be in it is missing.
struct HiveFiles
{
    /// `SOFTWARE` and `SYSTEM`, mostly in `Windows/System32/config`: the keys of these names of HKEY_LOCAL_MACHINE.
    CString software;
    CString system;
    /// `NTUSER.DAT` in the user's folder: HKEY_CURRENT_USER.
    CString user;
    /// `UsrClass.dat` in `AppData/Local/Microsoft/Windows` there: its key `Software\Classes`.
    CString userClasses;
};

/// Shows the registry of a Windows that does not run. Its files are opened for reading and held; keys that are damaged
/// are missing. Where one file cannot be opened, nothing changes.
[[nodiscard]] VYR_PLATFORM_API OpenResult ShowHives(const HiveFiles& files);
/// Shows another user beside the machine that is shown, so that the machine's hives are opened once for all its users.
/// @param user,userClasses  as of HiveFiles.
[[nodiscard]] VYR_PLATFORM_API OpenResult ShowUserHives(const CString& user, const CString& userClasses);

/// Makes the root keys show nothing of files any more.
VYR_PLATFORM_API void CloseRegistryFiles();

} // namespace VyrPlatform::Registry
