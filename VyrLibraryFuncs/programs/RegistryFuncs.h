/// @file
/// The registry keys of a product.
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

    /// The path of a product's settings below a root key that the caller chooses: "Maker", "Tool" and 3 give
    /// `SOFTWARE\Maker\Tool\3.0`.
    /// @param version the major version; a negative one is written with its sign.
    static CString GetProductRegKey(CString vendorName, CString productName, int version);
    /// The path of a product's uninstall entry, below the key of this machine or of the user.
    /// @param uninstallKeyName the entry's own name; an empty one gives the path of all entries and a backslash.
    static CString GetUninstallProductRegKey(CString uninstallKeyName);
    /// The last write of the product's uninstall entry, which is the time of its installation: local time, in the form
    /// of DateTimeUtils::GetFormatedDateTime. The text is also written to the debugger output.
    /// @return empty when this machine has no such entry. The entries of 32-bit programs and of the user are not read.
    static CString GetProductInstallDate(CString uninstallKeyName);

private:
    static CString m_productKeyPattern;
    static CString m_uninstallKeyPattern;
};

} // namespace VyrLibraryFuncs
