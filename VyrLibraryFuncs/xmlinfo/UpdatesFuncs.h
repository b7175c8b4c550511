/// @file
/// What is known of the newest release, and when it was last asked for.
#pragma once

#include <VyrLibraryFuncs/Export.h>
#include <VyrPlatform/documents/XmlTypes.h>
#include <VyrPlatform/text/CString.h>

#include <vector>

namespace VyrLibraryFuncs {

/// Update information and the schedule of update checks.
///
/// What is known of the newest release is kept for the life of the process, without a lock: for the host's one thread
/// of its interface. Two private-profile files (VyrPlatform::PrivateProfile) with a section "Updates" go with it: the
/// one that the host ships in the program's local data (PathUtils::GetLocalDataUpdatesFilePath, keys "Url" and
/// "AgreeIgnoreServer"), and the user's own (PathUtils::GetUpdatesFilePath, key "CheckedDate").
class VYR_FUNCS_API UpdatesFuncs
{
public:
    /// One line of the list of further information.
    struct UPDATEITEM
    {
        /// The number of its kind, as the document gives it.
        int category = 0;
        /// The line itself.
        CString description;
    };

    UpdatesFuncs();
    ~UpdatesFuncs();
    UpdatesFuncs& operator=(const UpdatesFuncs& other);

    /// Empties the type, the product name, the version, the edition, both addresses and the list. The platform's bits
    /// and the checked date stay.
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
    /// Names are matched with their case, at any depth, without a prefix; the root may have any name. Of several
    /// `update` elements the first one gives the attributes and the last one the items. An absent attribute leaves its
    /// setting as it is, an empty one empties it. An item without a category has that of the item before it, the first
    /// one 0. A stop that the host's thread asks for ends the reading: the settings then have what was read.
    /// @param path  a path, or an address that the parser can load from.
    /// @return 1 when an `update` element was read; 0 when there is none, and when the document does not load.
    /// @throws _com_error  as MSXMLFuncs::LoadXmlFile does.
    static int GetUpdatesInformation(CString path);

    /// The settings, each with its setter: what the update document says, as texts.
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
    /// When the newest release was last asked for, as DateTimeUtils::GetCurrentDateTime writes it; empty when that is
    /// not known.
    static void SetCheckedDate(CString checkedDate);
    static CString GetCheckedDate();

    /// Whether `version` is newer than the running program (VersionUtils).
    /// @param version  major.minor.revision.build, numbers that are compared one after the other.
    /// @return 1 when it is newer; 0 when it is not, and when it has not exactly four parts.
    static int CheckForUpdates(CString version);
    /// The address of the update information in the local-data updates file, cut to 259 code units; empty when there is
    /// none.
    static CString GetCheckForUpdatesUrl();
    /// The number "AgreeIgnoreServer" in the local-data updates file; 0 when there is none.
    static int GetAgreeIgnoreServer();

    /// Takes the checked date from the user's updates file: empty when that has none, unchanged when there is no file.
    static void LoadCheckForUpdatesDate();
    /// Makes the user's updates file anew, and its folder where that is missing, with the current date-time as its
    /// checked date, and keeps that. The file is UTF-16 with a mark:
    ///
    ///     ; Updates.ini
    ///     [Updates]
    ///     CheckedDate=2024/01/05 10:30:00
    ///
    /// Where it cannot be written the date is kept all the same.
    static void SaveCheckForUpdatesDate();
    /// Whether `days` days or more have passed since the checked date, counted from date to date: a check of the same
    /// day is no day ago.
    /// @return 1 or 0; 0 when the checked date is no date-time.
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
