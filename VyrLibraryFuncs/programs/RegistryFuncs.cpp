#include <VyrLibraryFuncs/programs/RegistryFuncs.h>

#include <VyrLibraryFuncs/programs/LastWriteText.h>
#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/process/DebugOutput.h>
#include <VyrPlatform/registry/Registry.h>

using VyrPlatform::Registry::Access;
using VyrPlatform::Registry::Key;

namespace VyrLibraryFuncs {

RegistryFuncs::RegistryFuncs() = default;
RegistryFuncs::~RegistryFuncs() = default;
RegistryFuncs& RegistryFuncs::operator=(const RegistryFuncs&) = default;

CString RegistryFuncs::GetProductRegKey(CString vendorName, CString productName, int version)
{
    CString path;
    path.Format(m_productKeyPattern, vendorName, productName, version);
    return path;
}

CString RegistryFuncs::GetUninstallProductRegKey(CString uninstallKeyName)
{
    CString path;
    path.Format(m_uninstallKeyPattern, uninstallKeyName);
    return path;
}

CString RegistryFuncs::GetProductInstallDate(CString uninstallKeyName)
{
    const Key key = Key::Open(HKEY_LOCAL_MACHINE, GetUninstallProductRegKey(uninstallKeyName), Access::Read);
    const std::optional<CString> date = GetLastWriteText(key.Get());
    if (!date)
        return {};
    VyrPlatform::DebugOutput::Write(*date + u"\r\n");
    return *date;
}

} // namespace VyrLibraryFuncs
