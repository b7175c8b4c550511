/// @file
/// Information on the newest release, and the date of the last check for it.
#pragma once

#include <VyrLibraryFuncs/Export.h>
#include <VyrPlatform/documents/XmlTypes.h>
#include <VyrPlatform/text/CString.h>

#include <vector>

namespace VyrLibraryFuncs {

/// Update information and the schedule of update checks.
///
/// The information is kept for the life of the process, without a lock: for the host's interface thread. Two
/// private-profile files (VyrPlatform::PrivateProfile) have a section "Updates": the one that the host ships in the
/// program's local data (PathUtils::GetLocalDataUpdatesFilePath, keys "Url" and "AgreeIgnoreServer"), and the user's
/// own (PathUtils::GetUpdatesFilePath, key "CheckedDate").
class VYR_FUNCS_API UpdatesFuncs
{
public:
    /// One line of the list of further information.
    struct UPDATEITEM
    {
        /// The number of its kind from the document.
        int category = 0;
        /// The line itself.
        CString description;
    };

    UpdatesFuncs();
    ~UpdatesFuncs();
    UpdatesFuncs& operator=(const UpdatesFuncs& other);

    /// Empties the type, the product name, the version, the edition, both addresses and the list. The platform's bits
    /// and the checked date are kept.
    static void InitializeUpdatesInformation();
    /// Reads an update document into the settings, after InitializeUpdatesInformation:
    ///
    ///     <updates>
    ///       <update type="release" name="Product" version="1.2.3.4" edition="Standard" platformbit="64"
    ///               detailsURL="https://example.org/details" downloadURL="https://example.org/download">
    ///         <moreinfo>
    ///           <item><category>1</category><description>A line to show</description></item>
    ///         </moreinfo>
    ///       </update>
    ///     </updates>
    ///
    /// Names match with their case, at any depth, without a prefix; the root may have any name. Of several `update`
    /// elements the first one gives the attributes and the last one the items. A missing attribute keeps its setting,
    /// an empty one empties it. An item without a category has that of the item before it, the first one 0. A stop ends
    /// only the list of elements that is being read: after one among the items of a `moreinfo`, the next `moreinfo` is
    /// read, and then the attributes.
    /// @param path  a path, or an address that the parser can load from.
    /// @return 1 when an `update` element was read; 0 when there is none, when a stop comes before the first, and when
    /// the document does not load.
    /// @throws _com_error  as MSXMLFuncs::LoadXmlFile does.
    static int GetUpdatesInformation(CString path);

    /// The settings from the update document, as texts, each with its setter.
    static void SetType(CString type);
    static CString GetType();
    static void SetProductName(CString productName);
    static CString GetProductName();
    static void SetVersion(CString version);
    static CString GetVersion();
    static void SetEdition(CString edition);
    static CString GetEdition();
    static void SetPlatformBit(CString platformBit);
    static CString GetPlatformBit();
    static void SetDetailsURL(CString detailsUrl);
    static CString GetDetailsURL();
    static void SetDownloadURL(CString downloadUrl);
    static CString GetDownloadURL();
    static void SetUpdateItemsList(std::vector<UPDATEITEM> items);
    static std::vector<UPDATEITEM> GetUpdateItemsList();
    /// The date of the last check, in the form of DateTimeUtils::GetCurrentDateTime; empty when it is unknown.
    static void SetCheckedDate(CString checkedDate);
    static CString GetCheckedDate();

    /// Whether `version` is newer than the running program (VersionUtils).
    /// @param version  major.minor.revision.build; the numbers are compared in this order.
    /// @return 1 when it is newer; 0 when it is not, and when it has not exactly four parts.
    static int CheckForUpdates(CString version);
    /// The address of the update information in the local-data updates file, truncated to 259 code units; empty when
    /// there is none.
    static CString GetCheckForUpdatesUrl();
    /// The number "AgreeIgnoreServer" in the local-data updates file; 0 when there is none.
    static int GetAgreeIgnoreServer();

    /// Reads the checked date from the user's updates file: empty when that has none, unchanged when there is no file.
    static void LoadCheckForUpdatesDate();
    /// Sets the checked date to the current date-time, and writes the user's updates file anew, with its folder if
    /// necessary. The file is UTF-16 with a byte order mark:
    ///
    ///     ; Updates.ini
    ///     [Updates]
    ///     CheckedDate=2024/01/05 10:30:00
    ///
    /// Where the file cannot be written, the date is set all the same.
    static void SaveCheckForUpdatesDate();
    /// Whether at least `days` days have passed since the checked date, counted from date to date: a check on the same
    /// day is 0 days ago.
    /// @return 1 or 0; 0 when the checked date is not a date-time.
    /// @throws boost::gregorian::bad_year  (a std::out_of_range) a checked date before 1400.
    static int IsDateIntervalCheckForUpdates(int days);

private:
    friend struct PrivateOperations;

    static int SetUpdatesAttributes(MSXML2::IXMLDOMDocumentPtr document);
    static std::vector<UPDATEITEM> GetMoreInfoElementItems(MSXML2::IXMLDOMNodeListPtr moreInfos);

    static std::vector<UPDATEITEM> m_updateItemsList;
    static CString m_type;
    static CString m_productName;
    static CString m_version;
    static CString m_edition;
    static CString m_platformBit;
    static CString m_detailsUrl;
    static CString m_downloadUrl;
    static CString m_checkedDate;
};

} // namespace VyrLibraryFuncs
