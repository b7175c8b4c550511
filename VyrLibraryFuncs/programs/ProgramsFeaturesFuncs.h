/// @file
/// The programs that are installed.
#pragma once

#include <VyrLibraryFuncs/Export.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <utility>
#include <vector>

struct HKEY__; // NOLINT(bugprone-reserved-identifier): the system's own tag
using HKEY = HKEY__*;

namespace VyrLibraryFuncs {

/// Lists installed programs and installer products from the registry, and helps to show and to sort them.
///
/// The lists read and never write; nothing in them is sorted, merged or left out. A key that cannot be opened gives no
/// record. A value that is missing, of another type, not terminated or longer than 259 code units leaves its field
/// empty or 0. One pending event of the calling thread is handled before each value (VyrPlatform::MessageQueue), so
/// that a host's window stays alive; a stop ends the reading of the values of the key that is at hand, and the list
/// goes on. Progress is written to the debugger output.
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

    /// An installed program: an entry of an uninstall key. Each text is the registry value of its own name where
    /// nothing else is said; an absent value leaves it empty or 0.
    struct ITEM
    {
        /// Path of the entry below its root key.
        CString KeyName;
        /// The entry's own name.
        CString SubKeyName;
        /// Without double quotes. See GetApplicationIcon.
        CString DisplayIcon;
        CString DisplayName;
        /// Value "DisplayName_Localized", the text in the resources of a file that it refers to; empty when that cannot
        /// be had.
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
        /// As DateTimeUtils::GetFormatedDate writes it.
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
        /// When the entry was last written to, local time, as DateTimeUtils::GetFormatedDateTime writes it.
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
        /// `EstimatedSizeBytes` as FileUtils::GetFileSize writes it; empty when it is 0.
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

    /// The entries of the uninstall keys: those of this machine, then those of the user; in each key in its own order.
    /// @param scope 0: both. 1: the user's alone. 2: this machine's alone. Any other value gives an empty list.
    /// @param includeWow6432Node non-zero: behind each key that of 32-bit programs.
    static std::vector<ITEM> GetProgramsFeaturesItemsList(int scope, int includeWow6432Node);
    /// The products that Windows Installer keeps for the whole machine, as records of the same form. Their values are
    /// looked for in the products' own keys, where installers leave little.
    /// @param scope 0 or 2; any other value gives an empty list.
    static std::vector<ITEM> GetProgramsFeaturesWindowsInstallerItemsList(int scope);
    /// The text of a column of a list view: 0 name, 1 publisher,
    /// 2 install date, 3 size, 4 version, 5 source, 6 about, 7 telephone, 8 empty, 9 help, 10 comments, 11 updates,
    /// 12 empty, 13 location, 14 readme, 15 company, 16 owner, 17 contact.
    /// @return empty for any other column.
    static CString GetListViewItemText(int column, ITEM item);

    /// The products of Windows Installer: those of the machine, then those of the user.
    static std::vector<INSTALLER_PRODUCTS_ITEM> GetProgramsFeaturesInstallerProductsItemsList();
    /// The icon of the first product whose name is `productName`, letter for letter, and whose icon holds `iconFilter`
    /// (an empty one is in every icon).
    /// @return empty when there is none, for an empty `productName`, and when a stop is asked for meanwhile.
    static CString GetProductIcon(CString iconFilter, CString productName,
                                  std::vector<INSTALLER_PRODUCTS_ITEM> products);

    /// Takes an icon reference apart: a path, in double quotes or not, optionally a comma and an index.
    /// `"C:\a b.exe",-101` gives `C:\a b.exe` and -101. A path is cut at its first comma.
    /// @return the path without double quotes, and the index, 0 where there is none; an empty path and 0 for a text
    ///     without anything but commas.
    static std::pair<CString, int> GetApplicationIcon(CString iconText);
    /// `installDate` where it is not empty, else the date of `fallbackDate`, a text that
    /// DateTimeUtils::GetParseDateTime reads, as DateTimeUtils::GetFormatedDate writes it.
    static CString GetInstallDate(CString installDate, CString fallbackDate);
    /// `size` as FileUtils::GetFileSize writes it; empty where `text` is empty, whose content is not read.
    /// @param size in bytes.
    /// @param format as of FileUtils::GetFileSize.
    static CString GetFormatedSize(CString text, std::uint64_t size, int format);
    /// Compares two registry keys for a list that is sorted by them.
    ///
    /// A key with a flag sorts behind one without. Then the last parts of the paths count: those that begin with a
    /// letter, digit or sign of ASCII come first, product codes in braces next, all others last. Product codes compare
    /// as texts of the user's locale. Other names compare by their numbers, where a name of hexadecimal digits is read
    /// as a decimal number up to its first letter (`1F` is 1) and any other name is 0; equal ones as texts.
    ///
    /// This is no consistent order over all keys: `a`, `{1}` and `é` make a circle. Sort with what does not rely on
    /// one.
    /// @param flag1,flag2 only whether each is 0 counts.
    /// @param descending non-zero turns every result around.
    /// @return -1, 0 or 1; 0 when the flags are equal and a key is empty or nothing but backslashes.
    static int CompareRegKey(CString key1, CString key2, int flag1, int flag2, int descending);
    /// The name of a root key, such as "HKEY_LOCAL_MACHINE"; empty for HKEY_PERFORMANCE_DATA and any other key.
    static CString GetKeyParentName(HKEY root);
    /// 1 when `keyPath` holds "Wow6432Node", written so.
    static int IsWow6432Node(CString keyPath);

    // Settings of a report, kept for the life of the process. They are for one thread.

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
