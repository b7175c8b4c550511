/// @file
/// The running program (file, version, environment) and the system's folders.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/text/CString.h>

#include <array>
#include <cstdint>
#include <optional>

namespace VyrPlatform::Process {

/// The full path of the program's executable file. It stays the same when that file is replaced or removed while the
/// program runs.
[[nodiscard]] VYR_PLATFORM_API CString GetProgramPath();

/// The program's version: on Windows its version resource, on Linux the note that the build adds.
struct ProgramVersion
{
    /// Major, minor, revision, build.
    std::array<std::int32_t, 4> file{};
    CString productName;
    CString productVersion;
};

/// Zeros and empty texts for a program without version information. Read once.
[[nodiscard]] VYR_PLATFORM_API const ProgramVersion& GetProgramVersion();

/// The folder of the system's own programs and libraries, without a separator at its end (Windows: the system
/// directory; Linux: /usr/bin).
[[nodiscard]] VYR_PLATFORM_API CString GetSystemFolder();
/// The folder of the system's built-in apps (Windows: SystemApps in the Windows folder; Linux:
/// /usr/share/applications).
[[nodiscard]] VYR_PLATFORM_API CString GetSystemAppsFolder();

/// The user's folders for a program's data. On Linux the XDG base directories.
enum class DataLocation : std::uint8_t
{
    /// Data of this machine (Windows: local application data; Linux: XDG_DATA_HOME).
    Local,
    /// Settings that follow the user (Windows: roaming application data; Linux: XDG_CONFIG_HOME).
    Roaming,
    /// Logs and journals (Windows: local application data; Linux: XDG_STATE_HOME).
    State
};

/// The folder of `location`, without a separator at its end; empty when the system has none.
[[nodiscard]] VYR_PLATFORM_API CString GetDataFolder(DataLocation location);

/// The value of an environment variable; nothing when it is not set.
[[nodiscard]] VYR_PLATFORM_API std::optional<CString> GetEnvironment(const CString& name);

/// `text` with each `%NAME%` replaced by the value of the environment variable NAME; other text is kept.
///
/// On Linux the variables SystemRoot, windir, SystemDrive, ProgramFiles, ProgramFiles(x86), CommonProgramFiles and
/// ProgramData, which its processes do not have, are taken from the registry that is open (Registry.h), in any case.
/// @param capacity the length of the buffer for the result, in code units with its NUL.
/// @return nothing when the result does not fit.
[[nodiscard]] VYR_PLATFORM_API std::optional<CString> ExpandEnvironment(const CString& text, std::uint32_t capacity);

/// The current folder, as a full path; empty where it was removed (on Linux).
[[nodiscard]] VYR_PLATFORM_API CString GetCurrentFolder();

/// The system's message for one of its error codes, without a line end; empty for an unknown one.
[[nodiscard]] VYR_PLATFORM_API CString GetErrorMessage(std::uint32_t code);

} // namespace VyrPlatform::Process
