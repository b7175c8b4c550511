/// @file
/// Finds the files in which the running program keeps its data.
#pragma once

#include <VyrLibraryUtils/Export.h>
#include <VyrPlatform/text/CString.h>

namespace VyrLibraryUtils {

/// The locations of the running program's data.
///
/// They are in a folder of the user's data folders that is named after the program: by the product name of its version
/// information, or, where that has none, by its file name without extension. Characters that folder names cannot
/// contain become underscores. The data folders are local and roaming application data on Windows, the XDG base
/// directories on Linux (local: XDG_DATA_HOME, roaming: XDG_CONFIG_HOME, logs: XDG_STATE_HOME). Nothing is created. A
/// result is empty where the system has no such folder.
///
///     For the product "My Tool" of the user me, the log folder on Linux is /home/me/.local/state/My Tool/Logs.
class VYR_UTILS_API PathUtils
{
public:
    PathUtils();
    ~PathUtils();
    PathUtils& operator=(const PathUtils&);

    /// The log folder "Logs", without a separator at its end.
    static CString GetApplicationLogFolderPath();
    /// The application information file "Application.ini" in the program's local data.
    static CString GetLocalDataApplicationFilePath();
    /// The user's own update-information file, "Updates.ini" in the program's roaming data.
    static CString GetUpdatesFilePath();
    /// The update-information file "Updates.ini" in the program's local data.
    static CString GetLocalDataUpdatesFilePath();
    /// The bare file name of both update-information files, "Updates.ini".
    static CString GetUpdatesFileName();
};

} // namespace VyrLibraryUtils
