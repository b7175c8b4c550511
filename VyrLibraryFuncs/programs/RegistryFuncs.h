/// @file
/// Where a product stands in the registry.
#pragma once

#include <VyrLibraryFuncs/Export.h>
#include <VyrPlatform/text/CString.h>

namespace VyrLibraryFuncs {

/// The registry paths of a product's settings and of its uninstall entry, and the date of its installation.
class VYR_FUNCS_API RegistryFuncs
{
public:
    RegistryFuncs();
    ~RegistryFuncs();
    RegistryFuncs& operator=(const RegistryFuncs&);

    /// The path of a product's settings below a root key of the caller's choice: "Maker", "Tool" and 3 give
    /// `SOFTWARE\Maker\Tool\3.0`.
    /// @param version the major version; a negative one is written with its sign.
    static CString GetProductRegKey(CString vendorName, CString productName, int version);
    /// The path of a product's uninstall entry, below the key of this machine or of the user.
    /// @param uninstallKeyName the entry's own name; an empty one gives the path of all entries and a backslash.
    static CString GetUninstallProductRegKey(CString uninstallKeyName);
    /// When the product's uninstall entry was last written to, which is when it was installed: local time, as
    /// DateTimeUtils::GetFormatedDateTime writes it. The text also goes to the debugger output.
    /// @return empty when this machine has no such entry. Neither the entries of 32-bit programs nor those of the user
    ///     are looked at.
    static CString GetProductInstallDate(CString uninstallKeyName);

private:
    static CString m_productKeyPattern;
    static CString m_uninstallKeyPattern;
};

} // namespace VyrLibraryFuncs
