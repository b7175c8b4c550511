/// @file
/// The installed programs.
#pragma once

#include <VyrLibraryFuncs/Export.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <utility>
#include <vector>

struct HKEY__; // NOLINT(bugprone-reserved-identifier): the system's own tag
using HKEY = HKEY__*;

namespace VyrLibraryFuncs {

/// Lists installed programs and installer products from the registry, and helps to show and sort them.
///
/// The lists only read; they do not sort, merge or filter. A key that cannot be opened gives no record. A value that is
/// missing, of another type, not terminated or longer than 259 code units leaves its field empty or 0. Before each
/// value one pending event of the calling thread is handled (VyrPlatform::MessageQueue), so that a host's window stays
/// responsive; a stop ends the reading of the current key's values, and the list continues. Progress is written to the
/// debugger output.
class VYR_FUNCS_API ProgramsFeaturesFuncs
{
public:
    /// A registry value to read.
    struct REGVALUE
    {
        CString Name;
        /// The expected type: 1 text, 2 text with environment variables to expand, 4 number.
        std::uint32_t Type = 0;
        /// The code of the field that receives it.
        std::int32_t Field = 0;
    };

    /// An installed program: an entry of an uninstall key. Each text is the registry value of the same name unless
    /// stated otherwise; a missing value leaves it empty or 0.
    struct ITEM
    {
        /// Path of the entry below its root key.
        CString KeyName;
        /// The entry's own name.
        CString SubKeyName;
        /// Without double quotes. See GetApplicationIcon.
        CString DisplayIcon;
        CString DisplayName;
        /// Value "DisplayName_Localized", resolved to the text in the resources of a file; empty when that is not
        /// available.
        CString DisplayNameLocalized;
        CString DisplayVersion;
        CString InstallLocation;
        CString Publisher;
        CString URLInfoAbout;
        CString URLUpdateInfo;
        CString Comments;
        CString Contact;
        CString HelpLink;
        CString HelpTelephone;
        /// In the form of DateTimeUtils::GetFormatedDate.
        CString InstallDate;
        CString InstallSource;
        CString Readme;
        /// Always empty.
        CString Unused18;
        /// Always empty; column 8 of a list view.
        CString Unused19;
        CString RegCompany;
        CString RegOwner;
        /// Always empty; column 12 of a list view.
        CString Unused22;
        /// The last write of the entry, local time, in the form of DateTimeUtils::GetFormatedDateTime.
        CString LastWriteTime;
        CString ParentDisplayName;
        CString ParentKeyName;
        /// With its environment variables expanded.
        CString UninstallString;
        /// Always empty.
        CString Unused27;
        /// `EstimatedSize` in bytes.
        std::uint64_t EstimatedSizeBytes = 0;
        /// In KB.
        std::uint32_t EstimatedSize = 0;
        std::uint32_t SystemComponent = 0;
        std::uint32_t WindowsInstaller = 0;
        std::uint32_t VersionMajor = 0;
        std::uint32_t VersionMinor = 0;
        /// Always 0.
        std::uint32_t Unused34 = 0;
        std::uint32_t Language = 0;
        std::uint32_t NoModify = 0;
        std::uint32_t NoRepair = 0;
        std::uint32_t NoRemove = 0;
        std::uint32_t NoElevateOnModify = 0;
        /// Name of the root key (GetKeyParentName), a backslash and `KeyName`.
        CString FullKeyName;
        /// `EstimatedSizeBytes` in the form of FileUtils::GetFileSize; empty when it is 0.
        CString FormattedSize;
        /// Always empty.
        CString Unused42;
        /// 1 for an entry in the view of 32-bit programs.
        std::int32_t IsWow6432Node = 0;
    };

    /// A product of Windows Installer. Each field is the registry value of its own name.
    struct INSTALLER_PRODUCTS_ITEM
    {
        /// The key's own name: the product code in the installer's packed form.
        CString ProductKey;
        CString PackageCode;
        CString ProductName;
        /// Without double quotes.
        CString ProductIcon;
        std::uint32_t DeploymentFlags = 0;
        std::uint32_t Language = 0;
        /// The installer's packed version number.
        std::uint32_t Version = 0;
    };

    ProgramsFeaturesFuncs();
    ~ProgramsFeaturesFuncs();
    ProgramsFeaturesFuncs& operator=(const ProgramsFeaturesFuncs&);

    /// The entries of the uninstall keys: first those of this machine, then those of the user; each key in its own
    /// order.
    /// @param scope 0: both. 1: only the user's. 2: only this machine's. Any other value gives an empty list.
    /// @param includeWow6432Node non-zero: each key is followed by that of 32-bit programs.
    static std::vector<ITEM> GetProgramsFeaturesItemsList(int scope, int includeWow6432Node);
    /// The machine-wide products of Windows Installer, as the same records. Their values are read from the products'
    /// own keys, where installers store little.
    /// @param scope 0 or 2; any other value gives an empty list.
    static std::vector<ITEM> GetProgramsFeaturesWindowsInstallerItemsList(int scope);
    /// The text of a column of a list view: 0 name, 1 publisher,
    /// 2 install date, 3 size, 4 version, 5 source, 6 about, 7 telephone, 8 empty, 9 help, 10 comments, 11 updates,
    /// 12 empty, 13 location, 14 readme, 15 company, 16 owner, 17 contact.
    /// @return empty for any other column.
    static CString GetListViewItemText(int column, ITEM item);

    /// The products of Windows Installer: first those of the machine, then those of the user.
    static std::vector<INSTALLER_PRODUCTS_ITEM> GetProgramsFeaturesInstallerProductsItemsList();
    /// The icon of the first product whose name is exactly `productName` and whose icon contains `iconFilter` (an empty
    /// one is in every icon).
    /// @return empty when there is none, for an empty `productName`, and after a stop.
    static CString GetProductIcon(CString iconFilter, CString productName,
                                  std::vector<INSTALLER_PRODUCTS_ITEM> products);

    /// Splits an icon reference: a path, optionally in double quotes, optionally followed by a comma and an index.
    /// `"C:\a b.exe",-101` gives `C:\a b.exe` and -101. A path ends at its first comma.
    /// @return the path without double quotes, and the index, 0 where there is none; an empty path and 0 for a text of
    /// nothing but commas.
    static std::pair<CString, int> GetApplicationIcon(CString iconText);
    /// `installDate` where it is not empty, else the date of `fallbackDate` (a text for
    /// DateTimeUtils::GetParseDateTime) in the form of DateTimeUtils::GetFormatedDate.
    static CString GetInstallDate(CString installDate, CString fallbackDate);
    /// `size` in the form of FileUtils::GetFileSize; empty where `text` is empty. `text` is not used otherwise.
    /// @param size in bytes.
    /// @param format as of FileUtils::GetFileSize.
    static CString GetFormatedSize(CString text, std::uint64_t size, int format);
    /// Compares two registry keys for sorting.
    ///
    /// Keys with a flag come after those without. Then the last parts of the paths are compared: first those that begin
    /// with an ASCII letter, digit or sign, then product codes in braces, then all others. Product codes compare as
    /// texts of the user's locale. Other names compare by their numbers: a name of hexadecimal digits is read as a
    /// decimal number up to its first letter (`1F` is 1), and any other name is 0; equal ones compare as texts.
    ///
    /// This is not a consistent order of all keys: in most locales `z`, `{1}` and `é` form a cycle. Use a sort that
    /// tolerates this.
    /// @param flag1,flag2 only whether each is 0 matters.
    /// @param descending non-zero reverses every result.
    /// @return -1, 0 or 1; 0 when the flags are equal and a key is empty or consists of backslashes.
    static int CompareRegKey(CString key1, CString key2, int flag1, int flag2, int descending);
    /// The name of a root key, such as "HKEY_LOCAL_MACHINE"; empty for HKEY_PERFORMANCE_DATA and any other key.
    static CString GetKeyParentName(HKEY root);
    /// 1 when `keyPath` contains "Wow6432Node" in exactly this case.
    static int IsWow6432Node(CString keyPath);

    // Settings of a report, kept for the life of the process. Use them on one thread.

    /// "icons".
    static CString GetIconFolderName();
    static void SetOutputFilePath(CString path);
    /// Empty at first.
    static CString GetOutputFilePath();
    static void SetOpenOutputFile(int isOpened);
    /// Whether the output file is to be opened; 1 at first.
    static int GetOpenOutputFile();

private:
    friend struct PrivateOperations;

    static std::vector<ITEM> GetProgramsFeaturesItemsList(HKEY root, CString keyPath, std::vector<REGVALUE> values,
                                                          std::vector<ITEM> items);
    static std::vector<ITEM> GetProgramsFeaturesWindowsInstallerItemsList(HKEY root, CString keyPath,
                                                                          std::vector<REGVALUE> values,
                                                                          std::vector<ITEM> items);
    static std::vector<REGVALUE> GetProgramsFeaturesValueList();
    static std::vector<INSTALLER_PRODUCTS_ITEM>
    GetProgramsFeaturesInstallerProductsItemsList(HKEY root, CString keyPath, std::vector<REGVALUE> values,
                                                  std::vector<INSTALLER_PRODUCTS_ITEM> items);
    static std::vector<REGVALUE> GetProgramsFeaturesInstallerProductsValueList();

    static CString m_iconFolderName;
    static CString m_outputFilePath;
    static int m_openOutputFile;
};

} // namespace VyrLibraryFuncs
