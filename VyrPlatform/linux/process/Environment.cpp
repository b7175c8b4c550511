// Replaces environment variables in texts from a Windows: by the process's own, and by values of its registry.
#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/linux/registry/Node.h>
#include <VyrPlatform/process/Process.h>
#include <VyrPlatform/registry/RegistryValue.h>

namespace VyrPlatform::Process {

namespace {

using Registry::Access;
using Registry::Key;

constexpr std::u16string_view systemDrive = u"%SystemDrive%";

/// A variable whose value is in the registry, below HKEY_LOCAL_MACHINE\SOFTWARE\Microsoft.
struct RegistryVariable
{
    const char16_t* name;
    const char16_t* path;
    const char16_t* value;
};

constexpr RegistryVariable registryVariables[] = {
    {u"SystemRoot", u"Windows NT\\CurrentVersion", u"SystemRoot"},
    {u"windir", u"Windows NT\\CurrentVersion", u"SystemRoot"},
    {u"ProgramFiles", u"Windows\\CurrentVersion", u"ProgramFilesDir"},
    {u"ProgramFiles(x86)", u"Windows\\CurrentVersion", u"ProgramFilesDir (x86)"},
    {u"CommonProgramFiles", u"Windows\\CurrentVersion", u"CommonFilesDir"},
    {u"ProgramData", u"Windows NT\\CurrentVersion\\ProfileList", u"ProgramData"},
};

std::optional<CString> ReadVariable(const RegistryVariable& variable)
{
    const Key key = Key::Open(HKEY_LOCAL_MACHINE, CString(u"SOFTWARE\\Microsoft\\") + variable.path, Access::Read);
    return Registry::ReadText(key.Get(), variable.value);
}

/// The drive of the system's folder, such as "C:".
CString SystemDrive()
{
    return ReadVariable(registryVariables[0]).value_or(CString()).Left(2);
}

std::optional<CString> GetRegistryVariable(const CString& name)
{
    const CString folded = Registry::FoldName(name);
    for (const RegistryVariable& variable : registryVariables)
        if (folded == Registry::FoldName(variable.name)) {
            std::optional<CString> value = ReadVariable(variable);
            // ProgramData is kept relative to the drive.
            if (value)
                value->Replace(systemDrive, SystemDrive());
            return value;
        }
    if (folded == u"SYSTEMDRIVE")
        if (CString drive = SystemDrive(); !drive.IsEmpty())
            return drive;
    return std::nullopt;
}

std::optional<CString> GetVariable(const CString& name)
{
    if (std::optional<CString> value = GetEnvironment(name))
        return value;
    return GetRegistryVariable(name);
}

} // namespace

std::optional<CString> ExpandEnvironment(const CString& text, std::uint32_t capacity)
{
    std::u16string_view rest = text;
    rest = rest.substr(0, rest.find(u'\0'));
    CString result;
    while (!rest.empty() && static_cast<std::uint32_t>(result.GetLength()) < capacity) {
        // The text up to a percent sign, or from one to the next, including that.
        const bool isName = rest.front() == u'%';
        const std::size_t next = rest.find(u'%', isName ? 1 : 0);
        const std::u16string_view part = isName && next != rest.npos ? rest.substr(0, next + 1) : rest.substr(0, next);
        const std::optional<CString> value = part.size() > 2 && isName && next != rest.npos
                                                 ? GetVariable(part.substr(1, part.size() - 2))
                                                 : std::nullopt;
        result += value ? value->View() : part;
        rest.remove_prefix(part.size());
    }
    if (static_cast<std::uint32_t>(result.GetLength()) >= capacity)
        return std::nullopt;
    return result;
}

} // namespace VyrPlatform::Process
