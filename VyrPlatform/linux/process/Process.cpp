// The running program and the system's folders, by the conventions of Linux.
#include <VyrPlatform/linux/process/VersionNote.h>
#include <VyrPlatform/process/Process.h>
#include <VyrPlatform/text/Encoding.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <pwd.h>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace VyrPlatform::Process {

namespace {

/// The user's home folder: from the environment, else from the user database. Empty when neither has it.
std::string HomeFolder()
{
    if (const char* const home = std::getenv("HOME"); home && *home)
        return home;
    std::vector<char> buffer(1024);
    passwd entry{};
    passwd* found = nullptr;
    while (::getpwuid_r(::getuid(), &entry, buffer.data(), buffer.size(), &found) == ERANGE)
        buffer.resize(buffer.size() * 2);
    return found && found->pw_dir ? found->pw_dir : std::string();
}

/// An XDG base directory: the variable `name`, or `fallback` in the home folder where it is unset, empty or relative
/// (relative values are to be ignored).
std::string BaseFolder(const char* name, const char* fallback)
{
    if (const char* const folder = std::getenv(name); folder && *folder == '/')
        return folder;
    const std::string home = HomeFolder();
    return home.empty() ? home : home + fallback;
}

std::string FolderOf(DataLocation location)
{
    switch (location) {
    case DataLocation::Local:
        return BaseFolder("XDG_DATA_HOME", "/.local/share");
    case DataLocation::Roaming:
        return BaseFolder("XDG_CONFIG_HOME", "/.config");
    case DataLocation::State:
        return BaseFolder("XDG_STATE_HOME", "/.local/state");
    }
    return {};
}

constexpr const char* programLink = "/proc/self/exe";

/// Whether the file at `path` is the program's own.
bool IsProgram(const std::string& path)
{
    struct stat file;
    struct stat program;
    return ::stat(path.c_str(), &file) == 0 && ::stat(programLink, &program) == 0 && file.st_dev == program.st_dev &&
           file.st_ino == program.st_ino;
}

} // namespace

CString GetProgramPath()
{
    constexpr std::string_view deletedMark = " (deleted)";
    std::string path(256, '\0');
    ssize_t length = 0;
    while ((length = ::readlink(programLink, path.data(), path.size())) == static_cast<ssize_t>(path.size()))
        path.resize(path.size() * 2);
    path.resize(length > 0 ? static_cast<std::size_t>(length) : 0);
    // The system appends this mark to the path of a file that was removed or replaced while it runs.
    if (path.ends_with(deletedMark) && !IsProgram(path))
        path.resize(path.size() - deletedMark.size());
    return Encoding::FromNameBytes(path);
}

const ProgramVersion& GetProgramVersion()
{
    static const ProgramVersion version = ReadVersionNote().value_or(ProgramVersion());
    return version;
}

CString GetSystemFolder()
{
    return u"/usr/bin";
}

CString GetSystemAppsFolder()
{
    return u"/usr/share/applications";
}

CString GetDataFolder(DataLocation location)
{
    std::string folder = FolderOf(location);
    while (folder.size() > 1 && folder.back() == '/')
        folder.pop_back();
    return Encoding::FromNameBytes(folder);
}

std::optional<CString> GetEnvironment(const CString& name)
{
    const char* const value = std::getenv(Encoding::ToNameBytes(name).c_str());
    return value ? std::optional(Encoding::FromNameBytes(value)) : std::nullopt;
}

CString GetCurrentFolder()
{
    std::string path(256, '\0');
    while (!::getcwd(path.data(), path.size())) {
        if (errno != ERANGE)
            return {};
        path.resize(path.size() * 2);
    }
    return Encoding::FromNameBytes(path.c_str());
}

CString GetErrorMessage(std::uint32_t code)
{
    const char* const message = ::strerrordesc_np(static_cast<int>(code));
    return message ? Encoding::FromUtf8(message) : CString();
}

} // namespace VyrPlatform::Process
