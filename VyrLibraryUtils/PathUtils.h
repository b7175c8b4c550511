/// @file
/// Where the program keeps its files.
#pragma once

#include <VyrLibraryUtils/Export.h>
#include <VyrPlatform/text/CString.h>

namespace VyrLibraryUtils {

/// The locations of the running program's data.
///
/// They lie in a folder "VyrLibrary" of the user's data folders: on Windows local and roaming application data; on
/// Linux the XDG base directories (local: XDG_DATA_HOME, roaming: XDG_CONFIG_HOME, logs: XDG_STATE_HOME). Nothing is
/// made or looked for. A result is empty where the system names no such folder.
class VYR_UTILS_API PathUtils
{
public:
    PathUtils();
    ~PathUtils();
    PathUtils& operator=(const PathUtils&);

    /// The folder "Logs" of what the program keeps of its doings, without a separator at its end.
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
