/// @file
/// Log lines.
#pragma once

#include <VyrLibraryFuncs/Export.h>
#include <VyrPlatform/text/CString.h>

namespace VyrLibraryFuncs {

/// Reports failures as lines of a log.
///
/// A line is a record of three fields in double quotes, separated by commas and ended by CR LF: the current local
/// date-time (`yyyy/MM/dd HH:mm:ss`), the level, the message. The message is written unchanged; a double quote in it is
/// not doubled.
///
///     "2024/01/05 10:30:00","2","File not found"
///
/// Lines are written to the debugger output (VyrPlatform::DebugOutput). The path of the day's log file is for hosts
/// that keep one; nothing here opens it. Several threads may write at once.
class VYR_FUNCS_API LogFuncs
{
public:
    LogFuncs();
    ~LogFuncs();
    LogFuncs& operator=(const LogFuncs& other);

    /// The name of the log file of the current local day: `2024-01-05_program.log`, with the base name of the running
    /// program's file.
    static CString GetLogFileName();
    /// The full path of that file in the program's log folder (PathUtils::GetApplicationLogFolderPath); the name alone
    /// where the system has no such folder.
    static CString GetApplicationLogFilePath();

    /// Writes a line.
    ///
    /// A file exception that the sink of the debugger output throws is caught: the number of its cause, in decimal, is
    /// written to the debugger output instead. Other exceptions pass to the caller.
    /// @param path  the log file; not used.
    /// @param message  the line's text, of any length.
    /// @param level  any number; the library itself uses 2.
    /// @return 0.
    static int Write(CString path, CString message, int level);
    /// Write(GetApplicationLogFilePath(), message, level).
    static int Write(CString message, int level);
    /// Write(GetApplicationLogFilePath(), message, 2).
    static int Write(CString message);
};

} // namespace VyrLibraryFuncs
