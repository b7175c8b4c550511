// Calls each operation through C and in C++ with the same values; written by VyrC/generate from VyrC/interface.txt.
// clang-format off
#include "SameInC.h"
#include "SameValues.h"

#include <VyrLibraryFuncs/html/HtmlFuncs.h>
#include <VyrLibraryFuncs/html/MSHTMLImgFuncs.h>
#include <VyrLibraryFuncs/html/OutputFuncs.h>
#include <VyrLibraryFuncs/metadata/AttributesFuncs.h>
#include <VyrLibraryFuncs/metadata/DateTimeFuncs.h>
#include <VyrLibraryFuncs/metadata/OfficePropertyFuncs.h>
#include <VyrLibraryFuncs/metadata/UnblockFuncs.h>
#include <VyrLibraryFuncs/name/NameFuncs.h>
#include <VyrLibraryFuncs/programs/ProgramsFeaturesFuncs.h>
#include <VyrLibraryFuncs/programs/RegistryFuncs.h>
#include <VyrLibraryFuncs/select/ColumnFuncs.h>
#include <VyrLibraryFuncs/select/FilterFuncs.h>
#include <VyrLibraryFuncs/select/SearchFuncs.h>
#include <VyrLibraryFuncs/shell/BrowserFuncs.h>
#include <VyrLibraryFuncs/shell/ControlPanelFuncs.h>
#include <VyrLibraryFuncs/shell/FeatureControlFuncs.h>
#include <VyrLibraryFuncs/textfile/LogFuncs.h>
#include <VyrLibraryFuncs/xmlinfo/ApplicationFuncs.h>
#include <VyrLibraryFuncs/xmlinfo/UpdatesFuncs.h>
#include <VyrLibraryFuncs/xmlinfo/MSXMLFuncs.h>
#include <VyrLibraryFuncs/xmlinfo/StyleFuncs.h>

using namespace VyrLibraryFuncs;

namespace VyrCTests {

inline AttributesFuncs::ATTRIBUTESITEM Make(Values& values, const AttributesFuncs::ATTRIBUTESITEM*)
{
    AttributesFuncs::ATTRIBUTESITEM record;
    record.readOnly = values.Next<int>();
    record.hidden = values.Next<int>();
    record.system = values.Next<int>();
    record.archive = values.Next<int>();
    record.temporary = values.Next<int>();
    record.notContentIndexed = values.Next<int>();
    return record;
}
inline DateTimeFuncs::STAGGERITEM Make(Values& values, const DateTimeFuncs::STAGGERITEM*)
{
    DateTimeFuncs::STAGGERITEM record;
    record.useStartDateTime = values.Next<int>();
    record.startDate = values.Next<COleDateTime>();
    record.startTime = values.Next<COleDateTime>();
    record.numberingMode = values.Next<int>();
    record.direction = values.Next<int>();
    record.startNumber = values.Next<int>();
    record.years = values.Next<int>();
    record.months = values.Next<int>();
    record.days = values.Next<int>();
    record.hours = values.Next<int>();
    record.minutes = values.Next<int>();
    record.seconds = values.Next<int>();
    return record;
}
inline OfficePropertyFuncs::CLSID_ITEM Make(Values& values, const OfficePropertyFuncs::CLSID_ITEM*)
{
    OfficePropertyFuncs::CLSID_ITEM record;
    record.extension = values.Next<CString>();
    record.clsid = values.Next<GUID>();
    record.flag = values.Next<int>();
    return record;
}
inline NameFuncs::ITEM Make(Values& values, const NameFuncs::ITEM*)
{
    NameFuncs::ITEM record;
    record.filePath = values.Next<CString>();
    record.auxText1 = values.Next<CString>();
    record.auxText2 = values.Next<CString>();
    record.auxText3 = values.Next<CString>();
    record.auxText4 = values.Next<CString>();
    record.dirPath = values.Next<CString>();
    record.fileName = values.Next<CString>();
    record.extension = values.Next<CString>();
    record.index = values.Next<int>();
    record.renameType = values.Next<int>();
    record.numberPosition = values.Next<int>();
    record.numberText1 = values.Next<CString>();
    record.numberText2 = values.Next<CString>();
    record.startNumber = values.Next<int>();
    record.digits = values.Next<int>();
    record.step = values.Next<int>();
    record.dateTimePosition = values.Next<int>();
    record.dateTimeTarget = values.Next<int>();
    record.dateTimeFormat = values.Next<CString>();
    record.addDeleteType = values.Next<int>();
    record.position = values.Next<int>();
    record.deleteCount = values.Next<int>();
    record.addText = values.Next<CString>();
    record.convertType = values.Next<int>();
    record.findText = values.Next<CString>();
    record.replaceText = values.Next<CString>();
    record.extensionType = values.Next<int>();
    record.newExtension = values.Next<CString>();
    return record;
}
inline NameFuncs::CONFLICTITEM Make(Values& values, const NameFuncs::CONFLICTITEM*)
{
    NameFuncs::CONFLICTITEM record;
    record.numberFormat = values.Next<CString>();
    record.position = values.Next<int>();
    record.startNumber = values.Next<int>();
    record.step = values.Next<int>();
    return record;
}
inline ProgramsFeaturesFuncs::ITEM Make(Values& values, const ProgramsFeaturesFuncs::ITEM*)
{
    ProgramsFeaturesFuncs::ITEM record;
    record.KeyName = values.Next<CString>();
    record.SubKeyName = values.Next<CString>();
    record.DisplayIcon = values.Next<CString>();
    record.DisplayName = values.Next<CString>();
    record.DisplayNameLocalized = values.Next<CString>();
    record.DisplayVersion = values.Next<CString>();
    record.InstallLocation = values.Next<CString>();
    record.Publisher = values.Next<CString>();
    record.URLInfoAbout = values.Next<CString>();
    record.URLUpdateInfo = values.Next<CString>();
    record.Comments = values.Next<CString>();
    record.Contact = values.Next<CString>();
    record.HelpLink = values.Next<CString>();
    record.HelpTelephone = values.Next<CString>();
    record.InstallDate = values.Next<CString>();
    record.InstallSource = values.Next<CString>();
    record.Readme = values.Next<CString>();
    record.Unused18 = values.Next<CString>();
    record.Unused19 = values.Next<CString>();
    record.RegCompany = values.Next<CString>();
    record.RegOwner = values.Next<CString>();
    record.Unused22 = values.Next<CString>();
    record.LastWriteTime = values.Next<CString>();
    record.ParentDisplayName = values.Next<CString>();
    record.ParentKeyName = values.Next<CString>();
    record.UninstallString = values.Next<CString>();
    record.Unused27 = values.Next<CString>();
    record.EstimatedSizeBytes = values.Next<std::uint64_t>();
    record.EstimatedSize = values.Next<std::uint32_t>();
    record.SystemComponent = values.Next<std::uint32_t>();
    record.WindowsInstaller = values.Next<std::uint32_t>();
    record.VersionMajor = values.Next<std::uint32_t>();
    record.VersionMinor = values.Next<std::uint32_t>();
    record.Unused34 = values.Next<std::uint32_t>();
    record.Language = values.Next<std::uint32_t>();
    record.NoModify = values.Next<std::uint32_t>();
    record.NoRepair = values.Next<std::uint32_t>();
    record.NoRemove = values.Next<std::uint32_t>();
    record.NoElevateOnModify = values.Next<std::uint32_t>();
    record.FullKeyName = values.Next<CString>();
    record.FormattedSize = values.Next<CString>();
    record.Unused42 = values.Next<CString>();
    record.IsWow6432Node = values.Next<int>();
    return record;
}
inline ProgramsFeaturesFuncs::INSTALLER_PRODUCTS_ITEM Make(Values& values, const ProgramsFeaturesFuncs::INSTALLER_PRODUCTS_ITEM*)
{
    ProgramsFeaturesFuncs::INSTALLER_PRODUCTS_ITEM record;
    record.ProductKey = values.Next<CString>();
    record.PackageCode = values.Next<CString>();
    record.ProductName = values.Next<CString>();
    record.ProductIcon = values.Next<CString>();
    record.DeploymentFlags = values.Next<std::uint32_t>();
    record.Language = values.Next<std::uint32_t>();
    record.Version = values.Next<std::uint32_t>();
    return record;
}
inline FilterFuncs::FILTERITEM Make(Values& values, const FilterFuncs::FILTERITEM*)
{
    FilterFuncs::FILTERITEM record;
    record.filterValue = values.Next<int>();
    record.enabled = values.Next<int>();
    record.text = values.Next<CString>();
    record.condition = values.Next<int>();
    record.matchCase = values.Next<int>();
    return record;
}
inline SearchFuncs::ITEM Make(Values& values, const SearchFuncs::ITEM*)
{
    SearchFuncs::ITEM record;
    record.dateTime = values.Next<COleDateTime>();
    record.size = values.Next<std::int64_t>();
    return record;
}
inline UpdatesFuncs::UPDATEITEM Make(Values& values, const UpdatesFuncs::UPDATEITEM*)
{
    UpdatesFuncs::UPDATEITEM record;
    record.category = values.Next<int>();
    record.description = values.Next<CString>();
    return record;
}
inline StyleFuncs::DESIGNITEM Make(Values& values, const StyleFuncs::DESIGNITEM*)
{
    StyleFuncs::DESIGNITEM record;
    record.id = values.Next<int>();
    record.value = values.Next<CString>();
    record.name = values.Next<CString>();
    return record;
}
inline std::string Show(const OfficePropertyFuncs::CLSID_ITEM& record)
{
    return Show(record.extension) + "|" + Show(record.clsid) + "|" + Show(record.flag);
}
inline std::string Show(const NameFuncs::RENAMEITEM& record)
{
    return Show(record.sourcePath) + "|" + Show(record.destinationPath) + "|" + Show(record.dateCreated) + "|" + Show(record.dateModified);
}
inline std::string Show(const ProgramsFeaturesFuncs::ITEM& record)
{
    return Show(record.KeyName) + "|" + Show(record.SubKeyName) + "|" + Show(record.DisplayIcon) + "|" + Show(record.DisplayName) + "|" + Show(record.DisplayNameLocalized) + "|" + Show(record.DisplayVersion) + "|" + Show(record.InstallLocation) + "|" + Show(record.Publisher) + "|" + Show(record.URLInfoAbout) + "|" + Show(record.URLUpdateInfo) + "|" + Show(record.Comments) + "|" + Show(record.Contact) + "|" + Show(record.HelpLink) + "|" + Show(record.HelpTelephone) + "|" + Show(record.InstallDate) + "|" + Show(record.InstallSource) + "|" + Show(record.Readme) + "|" + Show(record.Unused18) + "|" + Show(record.Unused19) + "|" + Show(record.RegCompany) + "|" + Show(record.RegOwner) + "|" + Show(record.Unused22) + "|" + Show(record.LastWriteTime) + "|" + Show(record.ParentDisplayName) + "|" + Show(record.ParentKeyName) + "|" + Show(record.UninstallString) + "|" + Show(record.Unused27) + "|" + Show(record.EstimatedSizeBytes) + "|" + Show(record.EstimatedSize) + "|" + Show(record.SystemComponent) + "|" + Show(record.WindowsInstaller) + "|" + Show(record.VersionMajor) + "|" + Show(record.VersionMinor) + "|" + Show(record.Unused34) + "|" + Show(record.Language) + "|" + Show(record.NoModify) + "|" + Show(record.NoRepair) + "|" + Show(record.NoRemove) + "|" + Show(record.NoElevateOnModify) + "|" + Show(record.FullKeyName) + "|" + Show(record.FormattedSize) + "|" + Show(record.Unused42) + "|" + Show(record.IsWow6432Node);
}
inline std::string Show(const ProgramsFeaturesFuncs::INSTALLER_PRODUCTS_ITEM& record)
{
    return Show(record.ProductKey) + "|" + Show(record.PackageCode) + "|" + Show(record.ProductName) + "|" + Show(record.ProductIcon) + "|" + Show(record.DeploymentFlags) + "|" + Show(record.Language) + "|" + Show(record.Version);
}
inline std::string Show(const BrowserFuncs::APPITEM& record)
{
    return Show(record.AppType) + "|" + Show(record.AppKey) + "|" + Show(record.DisplayName) + "|" + Show(record.Command) + "|" + Show(record.ExecutablePath);
}
inline std::string Show(const UpdatesFuncs::UPDATEITEM& record)
{
    return Show(record.category) + "|" + Show(record.description);
}
inline std::string Show(const StyleFuncs::DESIGNITEM& record)
{
    return Show(record.id) + "|" + Show(record.value) + "|" + Show(record.name);
}

} // namespace VyrCTests

#include "SameCalls.h"

using namespace VyrCTests;

TEST(SameInCAndCpp, mshtml_img_set_resize_img_style)
{
    ExpectSame(&same_mshtml_img_set_resize_img_style, [](Values& values) {
        auto a0 = values.NextPage();
        const auto a1 = values.NextRect();
        return ShowCpp([&] { return MSHTMLImgFuncs::SetResizeImgStyle(a0, a1); });
    }, {.acts = true});
}

TEST(SameInCAndCpp, output_set_output_file_path)
{
    ExpectSame(&same_output_set_output_file_path, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return OutputFuncs::SetOutputFilePath(a0); });
    });
}

TEST(SameInCAndCpp, output_set_output_filter_index)
{
    ExpectSame(&same_output_set_output_filter_index, [](Values& values) {
        const auto a0 = values.Next<int>();
        return ShowCpp([&] { return OutputFuncs::SetOutputFilterIndex(a0); });
    });
}

TEST(SameInCAndCpp, programs_set_output_file_path)
{
    ExpectSame(&same_programs_set_output_file_path, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return ProgramsFeaturesFuncs::SetOutputFilePath(a0); });
    }, {.hasRegistry = true});
}

TEST(SameInCAndCpp, programs_set_open_output_file)
{
    ExpectSame(&same_programs_set_open_output_file, [](Values& values) {
        const auto a0 = values.Next<int>();
        return ShowCpp([&] { return ProgramsFeaturesFuncs::SetOpenOutputFile(a0); });
    }, {.hasRegistry = true});
}

TEST(SameInCAndCpp, search_set_search_closed)
{
    ExpectSame(&same_search_set_search_closed, [](Values& values) {
        const auto a0 = values.Next<int>();
        return ShowCpp([&] { return SearchFuncs::SetSearchClosed(a0); });
    });
}

TEST(SameInCAndCpp, search_set_date_time_search)
{
    ExpectSame(&same_search_set_date_time_search, [](Values& values) {
        const auto a0 = values.Next<int>();
        return ShowCpp([&] { return SearchFuncs::SetDateTimeSearch(a0); });
    });
}

TEST(SameInCAndCpp, search_set_date_time_target)
{
    ExpectSame(&same_search_set_date_time_target, [](Values& values) {
        const auto a0 = values.Next<int>();
        return ShowCpp([&] { return SearchFuncs::SetDateTimeTarget(a0); });
    });
}

TEST(SameInCAndCpp, search_set_date_time_range)
{
    ExpectSame(&same_search_set_date_time_range, [](Values& values) {
        const auto a0 = values.Next<int>();
        return ShowCpp([&] { return SearchFuncs::SetDateTimeRange(a0); });
    });
}

TEST(SameInCAndCpp, search_set_date_time_from_date_time)
{
    ExpectSame(&same_search_set_date_time_from_date_time, [](Values& values) {
        const auto a0 = values.Next<COleDateTime>();
        return ShowCpp([&] { return SearchFuncs::SetDateTimeFromDateTime(a0); });
    });
}

TEST(SameInCAndCpp, search_set_date_time_to_date_time)
{
    ExpectSame(&same_search_set_date_time_to_date_time, [](Values& values) {
        const auto a0 = values.Next<COleDateTime>();
        return ShowCpp([&] { return SearchFuncs::SetDateTimeToDateTime(a0); });
    });
}

TEST(SameInCAndCpp, search_set_size_search)
{
    ExpectSame(&same_search_set_size_search, [](Values& values) {
        const auto a0 = values.Next<int>();
        return ShowCpp([&] { return SearchFuncs::SetSizeSearch(a0); });
    });
}

TEST(SameInCAndCpp, search_set_size_target)
{
    ExpectSame(&same_search_set_size_target, [](Values& values) {
        const auto a0 = values.Next<int>();
        return ShowCpp([&] { return SearchFuncs::SetSizeTarget(a0); });
    });
}

TEST(SameInCAndCpp, search_set_size_range)
{
    ExpectSame(&same_search_set_size_range, [](Values& values) {
        const auto a0 = values.Next<int>();
        return ShowCpp([&] { return SearchFuncs::SetSizeRange(a0); });
    });
}

TEST(SameInCAndCpp, search_set_size_from_size)
{
    ExpectSame(&same_search_set_size_from_size, [](Values& values) {
        const auto a0 = values.Next<std::int64_t>();
        return ShowCpp([&] { return SearchFuncs::SetSizeFromSize(a0); });
    });
}

TEST(SameInCAndCpp, search_set_size_to_size)
{
    ExpectSame(&same_search_set_size_to_size, [](Values& values) {
        const auto a0 = values.Next<std::int64_t>();
        return ShowCpp([&] { return SearchFuncs::SetSizeToSize(a0); });
    });
}

TEST(SameInCAndCpp, feature_control_set_feature_security_band)
{
    ExpectSame(&same_feature_control_set_feature_security_band, [](Values& values) {
        const auto a0 = values.Next<int>();
        return ShowCpp([&] { return FeatureControlFuncs::SetFeatureSecurityBand(a0); });
    }, {.acts = true, .isSeen = false, .hasRegistry = true});
}

TEST(SameInCAndCpp, feature_control_set_feature_weboc_popup_management)
{
    ExpectSame(&same_feature_control_set_feature_weboc_popup_management, [](Values& values) {
        const auto a0 = values.Next<int>();
        return ShowCpp([&] { return FeatureControlFuncs::SetFeatureWebocPopupManagement(a0); });
    }, {.acts = true, .isSeen = false, .hasRegistry = true});
}

TEST(SameInCAndCpp, feature_control_set_feature_local_machine_lock_down)
{
    ExpectSame(&same_feature_control_set_feature_local_machine_lock_down, [](Values& values) {
        const auto a0 = values.Next<int>();
        return ShowCpp([&] { return FeatureControlFuncs::SetFeatureLocalMachineLockDown(a0); });
    }, {.acts = true, .isSeen = false, .hasRegistry = true});
}

TEST(SameInCAndCpp, feature_control_set_feature_restrict_file_download)
{
    ExpectSame(&same_feature_control_set_feature_restrict_file_download, [](Values& values) {
        const auto a0 = values.Next<int>();
        return ShowCpp([&] { return FeatureControlFuncs::SetFeatureRestrictFileDownload(a0); });
    }, {.acts = true, .isSeen = false, .hasRegistry = true});
}

TEST(SameInCAndCpp, feature_control_set_feature_restrict_active_x_install)
{
    ExpectSame(&same_feature_control_set_feature_restrict_active_x_install, [](Values& values) {
        const auto a0 = values.Next<int>();
        return ShowCpp([&] { return FeatureControlFuncs::SetFeatureRestrictActiveXInstall(a0); });
    }, {.acts = true, .isSeen = false, .hasRegistry = true});
}

TEST(SameInCAndCpp, feature_control_set_feature_tabbed_browsing)
{
    ExpectSame(&same_feature_control_set_feature_tabbed_browsing, [](Values& values) {
        const auto a0 = values.Next<int>();
        return ShowCpp([&] { return FeatureControlFuncs::SetFeatureTabbedBrowsing(a0); });
    }, {.acts = true, .isSeen = false, .hasRegistry = true});
}

TEST(SameInCAndCpp, feature_control_set_feature_disable_navigation_sounds)
{
    ExpectSame(&same_feature_control_set_feature_disable_navigation_sounds, [](Values& values) {
        const auto a0 = values.Next<int>();
        return ShowCpp([&] { return FeatureControlFuncs::SetFeatureDisableNavigationSounds(a0); });
    }, {.acts = true, .isSeen = false, .hasRegistry = true});
}

TEST(SameInCAndCpp, feature_control_set_feature_feeds)
{
    ExpectSame(&same_feature_control_set_feature_feeds, [](Values& values) {
        const auto a0 = values.Next<int>();
        return ShowCpp([&] { return FeatureControlFuncs::SetFeatureFeeds(a0); });
    }, {.acts = true, .isSeen = false, .hasRegistry = true});
}

TEST(SameInCAndCpp, feature_control_set_feature_block_lmz_img)
{
    ExpectSame(&same_feature_control_set_feature_block_lmz_img, [](Values& values) {
        const auto a0 = values.Next<std::uint32_t>();
        return ShowCpp([&] { return FeatureControlFuncs::SetFeatureBlockLMZImg(a0); });
    }, {.acts = true, .hasRegistry = true});
}

TEST(SameInCAndCpp, feature_control_set_feature_block_lmz_object)
{
    ExpectSame(&same_feature_control_set_feature_block_lmz_object, [](Values& values) {
        const auto a0 = values.Next<std::uint32_t>();
        return ShowCpp([&] { return FeatureControlFuncs::SetFeatureBlockLMZObject(a0); });
    }, {.acts = true, .hasRegistry = true});
}

TEST(SameInCAndCpp, feature_control_set_feature_block_lmz_script)
{
    ExpectSame(&same_feature_control_set_feature_block_lmz_script, [](Values& values) {
        const auto a0 = values.Next<std::uint32_t>();
        return ShowCpp([&] { return FeatureControlFuncs::SetFeatureBlockLMZScript(a0); });
    }, {.acts = true, .hasRegistry = true});
}

TEST(SameInCAndCpp, feature_control_set_feature_browser_emulation)
{
    ExpectSame(&same_feature_control_set_feature_browser_emulation, [](Values& values) {
        const auto a0 = values.Next<std::uint32_t>();
        return ShowCpp([&] { return FeatureControlFuncs::SetFeatureBrowserEmulation(a0); });
    }, {.acts = true, .hasRegistry = true});
}

TEST(SameInCAndCpp, updates_initialize_updates_information)
{
    ExpectSame(&same_updates_initialize_updates_information, [](Values& ) {
        return ShowCpp([&] { return UpdatesFuncs::InitializeUpdatesInformation(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, updates_set_type)
{
    ExpectSame(&same_updates_set_type, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return UpdatesFuncs::SetType(a0); });
    });
}

TEST(SameInCAndCpp, updates_set_product_name)
{
    ExpectSame(&same_updates_set_product_name, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return UpdatesFuncs::SetProductName(a0); });
    });
}

TEST(SameInCAndCpp, updates_set_version)
{
    ExpectSame(&same_updates_set_version, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return UpdatesFuncs::SetVersion(a0); });
    });
}

TEST(SameInCAndCpp, updates_set_edition)
{
    ExpectSame(&same_updates_set_edition, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return UpdatesFuncs::SetEdition(a0); });
    });
}

TEST(SameInCAndCpp, updates_set_platform_bit)
{
    ExpectSame(&same_updates_set_platform_bit, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return UpdatesFuncs::SetPlatformBit(a0); });
    });
}

TEST(SameInCAndCpp, updates_set_details_url)
{
    ExpectSame(&same_updates_set_details_url, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return UpdatesFuncs::SetDetailsURL(a0); });
    });
}

TEST(SameInCAndCpp, updates_set_download_url)
{
    ExpectSame(&same_updates_set_download_url, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return UpdatesFuncs::SetDownloadURL(a0); });
    });
}

TEST(SameInCAndCpp, updates_set_update_items_list)
{
    ExpectSame(&same_updates_set_update_items_list, [](Values& values) {
        const std::vector<UpdatesFuncs::UPDATEITEM> a0{values.Next<UpdatesFuncs::UPDATEITEM>(), values.Next<UpdatesFuncs::UPDATEITEM>()};
        return ShowCpp([&] { return UpdatesFuncs::SetUpdateItemsList(a0); });
    });
}

TEST(SameInCAndCpp, updates_set_checked_date)
{
    ExpectSame(&same_updates_set_checked_date, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return UpdatesFuncs::SetCheckedDate(a0); });
    });
}

TEST(SameInCAndCpp, updates_load_check_for_updates_date)
{
    ExpectSame(&same_updates_load_check_for_updates_date, [](Values& ) {
        return ShowCpp([&] { return UpdatesFuncs::LoadCheckForUpdatesDate(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, updates_save_check_for_updates_date)
{
    ExpectSame(&same_updates_save_check_for_updates_date, [](Values& ) {
        return ShowCpp([&] { return UpdatesFuncs::SaveCheckForUpdatesDate(); });
    }, {.rounds = 1, .acts = true});
}

TEST(SameInCAndCpp, style_initialize_styles_information)
{
    ExpectSame(&same_style_initialize_styles_information, [](Values& ) {
        return ShowCpp([&] { return StyleFuncs::InitializeStylesInformation(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, style_set_design_items_list)
{
    ExpectSame(&same_style_set_design_items_list, [](Values& values) {
        const std::vector<StyleFuncs::DESIGNITEM> a0{values.Next<StyleFuncs::DESIGNITEM>(), values.Next<StyleFuncs::DESIGNITEM>()};
        return ShowCpp([&] { return StyleFuncs::SetDesignItemsList(a0); });
    });
}

TEST(SameInCAndCpp, html_get_doctype_tag)
{
    ExpectSame(&same_html_get_doctype_tag, [](Values& ) {
        return ShowCpp([&] { return HtmlFuncs::GetDoctypeTag(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, html_get_saved_from_url_tag)
{
    ExpectSame(&same_html_get_saved_from_url_tag, [](Values& ) {
        return ShowCpp([&] { return HtmlFuncs::GetSavedFromUrlTag(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, html_get_html_tag)
{
    ExpectSame(&same_html_get_html_tag, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return HtmlFuncs::GetHtmlTag(a0); });
    });
}

TEST(SameInCAndCpp, html_get_html_closing_tag)
{
    ExpectSame(&same_html_get_html_closing_tag, [](Values& ) {
        return ShowCpp([&] { return HtmlFuncs::GetHtmlClosingTag(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, html_get_head_tag)
{
    ExpectSame(&same_html_get_head_tag, [](Values& ) {
        return ShowCpp([&] { return HtmlFuncs::GetHeadTag(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, html_get_head_closing_tag)
{
    ExpectSame(&same_html_get_head_closing_tag, [](Values& ) {
        return ShowCpp([&] { return HtmlFuncs::GetHeadClosingTag(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, html_get_meta_xua_compatible_tag)
{
    ExpectSame(&same_html_get_meta_xua_compatible_tag, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return HtmlFuncs::GetMetaXUACompatibleTag(a0); });
    });
}

TEST(SameInCAndCpp, html_get_meta_content_type_tag)
{
    ExpectSame(&same_html_get_meta_content_type_tag, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return HtmlFuncs::GetMetaContentTypeTag(a0); });
    });
}

TEST(SameInCAndCpp, html_get_meta_generator_tag)
{
    ExpectSame(&same_html_get_meta_generator_tag, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return HtmlFuncs::GetMetaGeneratorTag(a0); });
    });
}

TEST(SameInCAndCpp, html_get_link_css_tag)
{
    ExpectSame(&same_html_get_link_css_tag, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return HtmlFuncs::GetLinkCSSTag(a0); });
    });
}

TEST(SameInCAndCpp, html_get_script_src_tag)
{
    ExpectSame(&same_html_get_script_src_tag, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return HtmlFuncs::GetScriptSrcTag(a0); });
    });
}

TEST(SameInCAndCpp, html_get_script_closing_tag)
{
    ExpectSame(&same_html_get_script_closing_tag, [](Values& ) {
        return ShowCpp([&] { return HtmlFuncs::GetScriptClosingTag(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, html_get_script_src_pair_tag)
{
    ExpectSame(&same_html_get_script_src_pair_tag, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return HtmlFuncs::GetScriptSrcPairTag(a0); });
    });
}

TEST(SameInCAndCpp, html_get_title_tag)
{
    ExpectSame(&same_html_get_title_tag, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return HtmlFuncs::GetTitleTag(a0); });
    });
}

TEST(SameInCAndCpp, html_get_body_tag)
{
    ExpectSame(&same_html_get_body_tag, [](Values& ) {
        return ShowCpp([&] { return HtmlFuncs::GetBodyTag(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, html_get_body_tag_with_attributes)
{
    ExpectSame(&same_html_get_body_tag_with_attributes, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return HtmlFuncs::GetBodyTag(a0); });
    });
}

TEST(SameInCAndCpp, html_get_body_closing_tag)
{
    ExpectSame(&same_html_get_body_closing_tag, [](Values& ) {
        return ShowCpp([&] { return HtmlFuncs::GetBodyClosingTag(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, html_get_header_tag)
{
    ExpectSame(&same_html_get_header_tag, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const auto a1 = values.Next<CString>();
        return ShowCpp([&] { return HtmlFuncs::GetHeaderTag(a0, a1); });
    });
}

TEST(SameInCAndCpp, html_get_header_closing_tag)
{
    ExpectSame(&same_html_get_header_closing_tag, [](Values& ) {
        return ShowCpp([&] { return HtmlFuncs::GetHeaderClosingTag(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, html_get_footer_tag)
{
    ExpectSame(&same_html_get_footer_tag, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const auto a1 = values.Next<CString>();
        return ShowCpp([&] { return HtmlFuncs::GetFooterTag(a0, a1); });
    });
}

TEST(SameInCAndCpp, html_get_footer_closing_tag)
{
    ExpectSame(&same_html_get_footer_closing_tag, [](Values& ) {
        return ShowCpp([&] { return HtmlFuncs::GetFooterClosingTag(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, html_get_h1_tag)
{
    ExpectSame(&same_html_get_h1_tag, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return HtmlFuncs::GetH1Tag(a0); });
    });
}

TEST(SameInCAndCpp, html_get_h1_closing_tag)
{
    ExpectSame(&same_html_get_h1_closing_tag, [](Values& ) {
        return ShowCpp([&] { return HtmlFuncs::GetH1ClosingTag(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, html_get_h1_pair_tag)
{
    ExpectSame(&same_html_get_h1_pair_tag, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const auto a1 = values.Next<CString>();
        return ShowCpp([&] { return HtmlFuncs::GetH1PairTag(a0, a1); });
    });
}

TEST(SameInCAndCpp, html_get_p_tag)
{
    ExpectSame(&same_html_get_p_tag, [](Values& ) {
        return ShowCpp([&] { return HtmlFuncs::GetPTag(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, html_get_p_tag_with_class_name)
{
    ExpectSame(&same_html_get_p_tag_with_class_name, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return HtmlFuncs::GetPTag(a0); });
    });
}

TEST(SameInCAndCpp, html_get_p_closing_tag)
{
    ExpectSame(&same_html_get_p_closing_tag, [](Values& ) {
        return ShowCpp([&] { return HtmlFuncs::GetPClosingTag(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, html_get_span_tag)
{
    ExpectSame(&same_html_get_span_tag, [](Values& ) {
        return ShowCpp([&] { return HtmlFuncs::GetSpanTag(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, html_get_span_tag_with_class_name)
{
    ExpectSame(&same_html_get_span_tag_with_class_name, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return HtmlFuncs::GetSpanTag(a0); });
    });
}

TEST(SameInCAndCpp, html_get_span_tag_with_class_name_id)
{
    ExpectSame(&same_html_get_span_tag_with_class_name_id, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const auto a1 = values.Next<CString>();
        return ShowCpp([&] { return HtmlFuncs::GetSpanTag(a0, a1); });
    });
}

TEST(SameInCAndCpp, html_get_span_closing_tag)
{
    ExpectSame(&same_html_get_span_closing_tag, [](Values& values) {
        const auto a0 = values.Next<int>();
        return ShowCpp([&] { return HtmlFuncs::GetSpanClosingTag(a0); });
    });
}

TEST(SameInCAndCpp, html_get_span_pair_tag)
{
    ExpectSame(&same_html_get_span_pair_tag, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const auto a1 = values.Next<CString>();
        const auto a2 = values.Next<int>();
        return ShowCpp([&] { return HtmlFuncs::GetSpanPairTag(a0, a1, a2); });
    });
}

TEST(SameInCAndCpp, html_get_span_pair_tag_with_id)
{
    ExpectSame(&same_html_get_span_pair_tag_with_id, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const auto a1 = values.Next<CString>();
        const auto a2 = values.Next<CString>();
        const auto a3 = values.Next<int>();
        return ShowCpp([&] { return HtmlFuncs::GetSpanPairTag(a0, a1, a2, a3); });
    });
}

TEST(SameInCAndCpp, html_get_div_tag)
{
    ExpectSame(&same_html_get_div_tag, [](Values& ) {
        return ShowCpp([&] { return HtmlFuncs::GetDivTag(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, html_get_div_tag_with_class_name)
{
    ExpectSame(&same_html_get_div_tag_with_class_name, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return HtmlFuncs::GetDivTag(a0); });
    });
}

TEST(SameInCAndCpp, html_get_div_tag_with_class_name_id)
{
    ExpectSame(&same_html_get_div_tag_with_class_name_id, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const auto a1 = values.Next<CString>();
        return ShowCpp([&] { return HtmlFuncs::GetDivTag(a0, a1); });
    });
}

TEST(SameInCAndCpp, html_get_div_tag_with_class_name_id_attributes)
{
    ExpectSame(&same_html_get_div_tag_with_class_name_id_attributes, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const auto a1 = values.Next<CString>();
        const auto a2 = values.Next<CString>();
        return ShowCpp([&] { return HtmlFuncs::GetDivTag(a0, a1, a2); });
    });
}

TEST(SameInCAndCpp, html_get_div_closing_tag)
{
    ExpectSame(&same_html_get_div_closing_tag, [](Values& values) {
        const auto a0 = values.Next<int>();
        return ShowCpp([&] { return HtmlFuncs::GetDivClosingTag(a0); });
    });
}

TEST(SameInCAndCpp, html_get_div_pair_tag)
{
    ExpectSame(&same_html_get_div_pair_tag, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const auto a1 = values.Next<CString>();
        const auto a2 = values.Next<int>();
        return ShowCpp([&] { return HtmlFuncs::GetDivPairTag(a0, a1, a2); });
    });
}

TEST(SameInCAndCpp, html_get_div_pair_tag_with_id)
{
    ExpectSame(&same_html_get_div_pair_tag_with_id, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const auto a1 = values.Next<CString>();
        const auto a2 = values.Next<CString>();
        const auto a3 = values.Next<int>();
        return ShowCpp([&] { return HtmlFuncs::GetDivPairTag(a0, a1, a2, a3); });
    });
}

TEST(SameInCAndCpp, html_get_div_pair_tag_with_id_attributes)
{
    ExpectSame(&same_html_get_div_pair_tag_with_id_attributes, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const auto a1 = values.Next<CString>();
        const auto a2 = values.Next<CString>();
        const auto a3 = values.Next<CString>();
        const auto a4 = values.Next<int>();
        return ShowCpp([&] { return HtmlFuncs::GetDivPairTag(a0, a1, a2, a3, a4); });
    });
}

TEST(SameInCAndCpp, html_get_br_tag)
{
    ExpectSame(&same_html_get_br_tag, [](Values& values) {
        const auto a0 = values.Next<int>();
        return ShowCpp([&] { return HtmlFuncs::GetBrTag(a0); });
    });
}

TEST(SameInCAndCpp, html_get_a_tag)
{
    ExpectSame(&same_html_get_a_tag, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return HtmlFuncs::GetATag(a0); });
    });
}

TEST(SameInCAndCpp, html_get_a_tag_with_class_name)
{
    ExpectSame(&same_html_get_a_tag_with_class_name, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const auto a1 = values.Next<CString>();
        return ShowCpp([&] { return HtmlFuncs::GetATag(a0, a1); });
    });
}

TEST(SameInCAndCpp, html_get_a_tag_with_class_name_target)
{
    ExpectSame(&same_html_get_a_tag_with_class_name_target, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const auto a1 = values.Next<CString>();
        const auto a2 = values.Next<CString>();
        return ShowCpp([&] { return HtmlFuncs::GetATag(a0, a1, a2); });
    });
}

TEST(SameInCAndCpp, html_get_a_closing_tag)
{
    ExpectSame(&same_html_get_a_closing_tag, [](Values& ) {
        return ShowCpp([&] { return HtmlFuncs::GetAClosingTag(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, html_get_a_pair_tag)
{
    ExpectSame(&same_html_get_a_pair_tag, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const auto a1 = values.Next<CString>();
        return ShowCpp([&] { return HtmlFuncs::GetAPairTag(a0, a1); });
    });
}

TEST(SameInCAndCpp, html_get_a_pair_tag_with_class_name)
{
    ExpectSame(&same_html_get_a_pair_tag_with_class_name, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const auto a1 = values.Next<CString>();
        const auto a2 = values.Next<CString>();
        return ShowCpp([&] { return HtmlFuncs::GetAPairTag(a0, a1, a2); });
    });
}

TEST(SameInCAndCpp, html_get_a_pair_tag_with_class_name_target)
{
    ExpectSame(&same_html_get_a_pair_tag_with_class_name_target, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const auto a1 = values.Next<CString>();
        const auto a2 = values.Next<CString>();
        const auto a3 = values.Next<CString>();
        return ShowCpp([&] { return HtmlFuncs::GetAPairTag(a0, a1, a2, a3); });
    });
}

TEST(SameInCAndCpp, html_get_img_tag)
{
    ExpectSame(&same_html_get_img_tag, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const auto a1 = values.Next<int>();
        const auto a2 = values.Next<int>();
        const auto a3 = values.Next<CString>();
        return ShowCpp([&] { return HtmlFuncs::GetImgTag(a0, a1, a2, a3); });
    });
}

TEST(SameInCAndCpp, html_get_img_tag_with_class_name)
{
    ExpectSame(&same_html_get_img_tag_with_class_name, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const auto a1 = values.Next<CString>();
        const auto a2 = values.Next<int>();
        const auto a3 = values.Next<int>();
        const auto a4 = values.Next<CString>();
        return ShowCpp([&] { return HtmlFuncs::GetImgTag(a0, a1, a2, a3, a4); });
    });
}

TEST(SameInCAndCpp, html_get_img_tag_with_class_name_id)
{
    ExpectSame(&same_html_get_img_tag_with_class_name_id, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const auto a1 = values.Next<CString>();
        const auto a2 = values.Next<int>();
        const auto a3 = values.Next<int>();
        const auto a4 = values.Next<CString>();
        const auto a5 = values.Next<CString>();
        return ShowCpp([&] { return HtmlFuncs::GetImgTag(a0, a1, a2, a3, a4, a5); });
    });
}

TEST(SameInCAndCpp, html_get_img_tag_with_class_name_id_title)
{
    ExpectSame(&same_html_get_img_tag_with_class_name_id_title, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const auto a1 = values.Next<CString>();
        const auto a2 = values.Next<int>();
        const auto a3 = values.Next<int>();
        const auto a4 = values.Next<CString>();
        const auto a5 = values.Next<CString>();
        const auto a6 = values.Next<CString>();
        return ShowCpp([&] { return HtmlFuncs::GetImgTag(a0, a1, a2, a3, a4, a5, a6); });
    });
}

TEST(SameInCAndCpp, html_get_table_tag)
{
    ExpectSame(&same_html_get_table_tag, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const auto a1 = values.Next<CString>();
        return ShowCpp([&] { return HtmlFuncs::GetTableTag(a0, a1); });
    });
}

TEST(SameInCAndCpp, html_get_table_closing_tag)
{
    ExpectSame(&same_html_get_table_closing_tag, [](Values& ) {
        return ShowCpp([&] { return HtmlFuncs::GetTableClosingTag(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, html_get_thead_tag)
{
    ExpectSame(&same_html_get_thead_tag, [](Values& ) {
        return ShowCpp([&] { return HtmlFuncs::GetTheadTag(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, html_get_thead_closing_tag)
{
    ExpectSame(&same_html_get_thead_closing_tag, [](Values& ) {
        return ShowCpp([&] { return HtmlFuncs::GetTheadClosingTag(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, html_get_tbody_tag)
{
    ExpectSame(&same_html_get_tbody_tag, [](Values& ) {
        return ShowCpp([&] { return HtmlFuncs::GetTbodyTag(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, html_get_tbody_closing_tag)
{
    ExpectSame(&same_html_get_tbody_closing_tag, [](Values& ) {
        return ShowCpp([&] { return HtmlFuncs::GetTbodyClosingTag(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, html_get_tr_tag)
{
    ExpectSame(&same_html_get_tr_tag, [](Values& ) {
        return ShowCpp([&] { return HtmlFuncs::GetTrTag(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, html_get_tr_tag_with_class_name)
{
    ExpectSame(&same_html_get_tr_tag_with_class_name, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return HtmlFuncs::GetTrTag(a0); });
    });
}

TEST(SameInCAndCpp, html_get_tr_tag_with_class_name_id)
{
    ExpectSame(&same_html_get_tr_tag_with_class_name_id, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const auto a1 = values.Next<CString>();
        return ShowCpp([&] { return HtmlFuncs::GetTrTag(a0, a1); });
    });
}

TEST(SameInCAndCpp, html_get_tr_closing_tag)
{
    ExpectSame(&same_html_get_tr_closing_tag, [](Values& ) {
        return ShowCpp([&] { return HtmlFuncs::GetTrClosingTag(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, html_get_tr_pair_tag)
{
    ExpectSame(&same_html_get_tr_pair_tag, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return HtmlFuncs::GetTrPairTag(a0); });
    });
}

TEST(SameInCAndCpp, html_get_tr_pair_tag_with_class_name)
{
    ExpectSame(&same_html_get_tr_pair_tag_with_class_name, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const auto a1 = values.Next<CString>();
        return ShowCpp([&] { return HtmlFuncs::GetTrPairTag(a0, a1); });
    });
}

TEST(SameInCAndCpp, html_get_tr_pair_tag_with_class_name_id)
{
    ExpectSame(&same_html_get_tr_pair_tag_with_class_name_id, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const auto a1 = values.Next<CString>();
        const auto a2 = values.Next<CString>();
        return ShowCpp([&] { return HtmlFuncs::GetTrPairTag(a0, a1, a2); });
    });
}

TEST(SameInCAndCpp, html_get_th_tag)
{
    ExpectSame(&same_html_get_th_tag, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return HtmlFuncs::GetThTag(a0); });
    });
}

TEST(SameInCAndCpp, html_get_th_closing_tag)
{
    ExpectSame(&same_html_get_th_closing_tag, [](Values& ) {
        return ShowCpp([&] { return HtmlFuncs::GetThClosingTag(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, html_get_th_pair_tag)
{
    ExpectSame(&same_html_get_th_pair_tag, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const auto a1 = values.Next<CString>();
        return ShowCpp([&] { return HtmlFuncs::GetThPairTag(a0, a1); });
    });
}

TEST(SameInCAndCpp, html_get_td_tag)
{
    ExpectSame(&same_html_get_td_tag, [](Values& ) {
        return ShowCpp([&] { return HtmlFuncs::GetTdTag(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, html_get_td_tag_with_class_name)
{
    ExpectSame(&same_html_get_td_tag_with_class_name, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return HtmlFuncs::GetTdTag(a0); });
    });
}

TEST(SameInCAndCpp, html_get_td_tag_with_class_name_id)
{
    ExpectSame(&same_html_get_td_tag_with_class_name_id, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const auto a1 = values.Next<CString>();
        return ShowCpp([&] { return HtmlFuncs::GetTdTag(a0, a1); });
    });
}

TEST(SameInCAndCpp, html_get_td_tag_with_class_name_id_attributes)
{
    ExpectSame(&same_html_get_td_tag_with_class_name_id_attributes, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const auto a1 = values.Next<CString>();
        const auto a2 = values.Next<CString>();
        return ShowCpp([&] { return HtmlFuncs::GetTdTag(a0, a1, a2); });
    });
}

TEST(SameInCAndCpp, html_get_td_tag_with_class_name_id_width_height)
{
    ExpectSame(&same_html_get_td_tag_with_class_name_id_width_height, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const auto a1 = values.Next<CString>();
        const auto a2 = values.Next<int>();
        const auto a3 = values.Next<int>();
        return ShowCpp([&] { return HtmlFuncs::GetTdTag(a0, a1, a2, a3); });
    });
}

TEST(SameInCAndCpp, html_get_td_col_tag)
{
    ExpectSame(&same_html_get_td_col_tag, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const auto a1 = values.Next<CString>();
        return ShowCpp([&] { return HtmlFuncs::GetTdColTag(a0, a1); });
    });
}

TEST(SameInCAndCpp, html_get_td_col_tag_with_attributes)
{
    ExpectSame(&same_html_get_td_col_tag_with_attributes, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const auto a1 = values.Next<CString>();
        const auto a2 = values.Next<CString>();
        return ShowCpp([&] { return HtmlFuncs::GetTdColTag(a0, a1, a2); });
    });
}

TEST(SameInCAndCpp, html_get_td_closing_tag)
{
    ExpectSame(&same_html_get_td_closing_tag, [](Values& ) {
        return ShowCpp([&] { return HtmlFuncs::GetTdClosingTag(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, html_get_td_pair_tag)
{
    ExpectSame(&same_html_get_td_pair_tag, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return HtmlFuncs::GetTdPairTag(a0); });
    });
}

TEST(SameInCAndCpp, html_get_td_pair_tag_with_class_name)
{
    ExpectSame(&same_html_get_td_pair_tag_with_class_name, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const auto a1 = values.Next<CString>();
        return ShowCpp([&] { return HtmlFuncs::GetTdPairTag(a0, a1); });
    });
}

TEST(SameInCAndCpp, html_get_td_pair_tag_with_class_name_id)
{
    ExpectSame(&same_html_get_td_pair_tag_with_class_name_id, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const auto a1 = values.Next<CString>();
        const auto a2 = values.Next<CString>();
        return ShowCpp([&] { return HtmlFuncs::GetTdPairTag(a0, a1, a2); });
    });
}

TEST(SameInCAndCpp, output_get_output_file_path)
{
    ExpectSame(&same_output_get_output_file_path, [](Values& ) {
        return ShowCpp([&] { return OutputFuncs::GetOutputFilePath(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, output_get_output_filter_index)
{
    ExpectSame(&same_output_get_output_filter_index, [](Values& ) {
        return ShowCpp([&] { return OutputFuncs::GetOutputFilterIndex(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, output_get_generator_output_string)
{
    ExpectSame(&same_output_get_generator_output_string, [](Values& ) {
        return ShowCpp([&] { return OutputFuncs::GetGeneratorOutputString(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, output_get_generator_output_string_with_name)
{
    ExpectSame(&same_output_get_generator_output_string_with_name, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return OutputFuncs::GetGeneratorOutputString(a0); });
    });
}

TEST(SameInCAndCpp, output_get_property_size)
{
    ExpectSame(&same_output_get_property_size, [](Values& values) {
        const auto a0 = values.Next<int>();
        const auto a1 = values.Next<int>();
        return ShowCpp([&] { return OutputFuncs::GetPropertySize(a0, a1); });
    });
}

TEST(SameInCAndCpp, output_get_dialog_property_width)
{
    ExpectSame(&same_output_get_dialog_property_width, [](Values& values) {
        const auto a0 = values.Next<int>();
        return ShowCpp([&] { return OutputFuncs::GetDialogPropertyWidth(a0); });
    });
}

TEST(SameInCAndCpp, attributes_set_modified_file_attributes)
{
    ExpectSame(&same_attributes_set_modified_file_attributes, [](Values& values) {
        const auto a0 = values.NextPath();
        const auto a1 = values.Next<AttributesFuncs::ATTRIBUTESITEM>();
        return ShowCpp([&] { return AttributesFuncs::SetModifiedFileAttributes(a0, a1); });
    }, {.acts = true});
}

TEST(SameInCAndCpp, attributes_get_selected_read_only_attributes)
{
    ExpectSame(&same_attributes_get_selected_read_only_attributes, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return AttributesFuncs::GetSelectedReadOnlyAttributes(a0); });
    });
}

TEST(SameInCAndCpp, attributes_get_selected_hidden_attributes)
{
    ExpectSame(&same_attributes_get_selected_hidden_attributes, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return AttributesFuncs::GetSelectedHiddenAttributes(a0); });
    });
}

TEST(SameInCAndCpp, attributes_get_selected_system_attributes)
{
    ExpectSame(&same_attributes_get_selected_system_attributes, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return AttributesFuncs::GetSelectedSystemAttributes(a0); });
    });
}

TEST(SameInCAndCpp, attributes_get_selected_archive_attributes)
{
    ExpectSame(&same_attributes_get_selected_archive_attributes, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return AttributesFuncs::GetSelectedArchiveAttributes(a0); });
    });
}

TEST(SameInCAndCpp, attributes_get_selected_temporary_attributes)
{
    ExpectSame(&same_attributes_get_selected_temporary_attributes, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return AttributesFuncs::GetSelectedTemporaryAttributes(a0); });
    });
}

TEST(SameInCAndCpp, attributes_get_selected_not_content_indexed_attributes)
{
    ExpectSame(&same_attributes_get_selected_not_content_indexed_attributes, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return AttributesFuncs::GetSelectedNotContentIndexedAttributes(a0); });
    });
}

TEST(SameInCAndCpp, attributes_set_read_only_attributes)
{
    ExpectSame(&same_attributes_set_read_only_attributes, [](Values& values) {
        const auto a0 = values.NextPath();
        const auto a1 = values.Next<int>();
        return ShowCpp([&] { return AttributesFuncs::SetReadOnlyAttributes(a0, a1); });
    }, {.acts = true});
}

TEST(SameInCAndCpp, attributes_set_hidden_attributes)
{
    ExpectSame(&same_attributes_set_hidden_attributes, [](Values& values) {
        const auto a0 = values.NextPath();
        const auto a1 = values.Next<int>();
        return ShowCpp([&] { return AttributesFuncs::SetHiddenAttributes(a0, a1); });
    }, {.acts = true});
}

TEST(SameInCAndCpp, attributes_set_system_attributes)
{
    ExpectSame(&same_attributes_set_system_attributes, [](Values& values) {
        const auto a0 = values.NextPath();
        const auto a1 = values.Next<int>();
        return ShowCpp([&] { return AttributesFuncs::SetSystemAttributes(a0, a1); });
    }, {.acts = true});
}

TEST(SameInCAndCpp, attributes_set_archive_attributes)
{
    ExpectSame(&same_attributes_set_archive_attributes, [](Values& values) {
        const auto a0 = values.NextPath();
        const auto a1 = values.Next<int>();
        return ShowCpp([&] { return AttributesFuncs::SetArchiveAttributes(a0, a1); });
    }, {.acts = true});
}

TEST(SameInCAndCpp, attributes_set_temporary_attributes)
{
    ExpectSame(&same_attributes_set_temporary_attributes, [](Values& values) {
        const auto a0 = values.NextPath();
        const auto a1 = values.Next<int>();
        return ShowCpp([&] { return AttributesFuncs::SetTemporaryAttributes(a0, a1); });
    }, {.acts = true});
}

TEST(SameInCAndCpp, attributes_set_not_content_indexed_attributes)
{
    ExpectSame(&same_attributes_set_not_content_indexed_attributes, [](Values& values) {
        const auto a0 = values.NextPath();
        const auto a1 = values.Next<int>();
        return ShowCpp([&] { return AttributesFuncs::SetNotContentIndexedAttributes(a0, a1); });
    }, {.acts = true});
}

TEST(SameInCAndCpp, attributes_get_arrtibutes_priority)
{
    ExpectSame(&same_attributes_get_arrtibutes_priority, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return AttributesFuncs::GetArrtibutesPriority(a0); });
    });
}

TEST(SameInCAndCpp, date_time_get_other_date_time)
{
    ExpectSame(&same_date_time_get_other_date_time, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const auto a1 = values.Next<int>();
        return ShowCpp([&] { return DateTimeFuncs::GetOtherDateTime(a0, a1); });
    });
}

TEST(SameInCAndCpp, date_time_get_selected_file_date_time)
{
    ExpectSame(&same_date_time_get_selected_file_date_time, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const auto a1 = values.Next<int>();
        const auto a2 = values.Next<int>();
        return ShowCpp([&] { return DateTimeFuncs::GetSelectedFileDateTime(a0, a1, a2); });
    });
}

TEST(SameInCAndCpp, date_time_get_modified_file_date_time)
{
    ExpectSame(&same_date_time_get_modified_file_date_time, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const auto a1 = values.Next<int>();
        const auto a2 = values.Next<COleDateTime>();
        const auto a3 = values.Next<COleDateTime>();
        const auto a4 = values.Next<int>();
        return ShowCpp([&] { return DateTimeFuncs::GetModifiedFileDateTime(a0, a1, a2, a3, a4); });
    });
}

TEST(SameInCAndCpp, date_time_set_modified_file_date_time)
{
    ExpectSame(&same_date_time_set_modified_file_date_time, [](Values& values) {
        const auto a0 = values.NextPath();
        const auto a1 = values.NextFileTime();
        const auto a2 = values.NextFileTime();
        const auto a3 = values.NextFileTime();
        return ShowCpp([&] { return DateTimeFuncs::SetModifiedFileDateTime(a0, a1 ? &*a1 : nullptr, a2 ? &*a2 : nullptr, a3 ? &*a3 : nullptr); });
    }, {.acts = true});
}

TEST(SameInCAndCpp, date_time_get_stagger_file_date_time)
{
    ExpectSame(&same_date_time_get_stagger_file_date_time, [](Values& values) {
        const auto a0 = values.Next<int>();
        const auto a1 = values.Next<int>();
        const auto a2 = values.Next<COleDateTime>();
        const auto a3 = values.Next<DateTimeFuncs::STAGGERITEM>();
        return ShowCpp([&] { return DateTimeFuncs::GetStaggerFileDateTime(a0, a1, a2, a3); });
    });
}

TEST(SameInCAndCpp, date_time_get_cal_date_time)
{
    ExpectSame(&same_date_time_get_cal_date_time, [](Values& values) {
        const auto a0 = values.Next<COleDateTime>();
        const auto a1 = values.Next<int>();
        const auto a2 = values.Next<int>();
        const auto a3 = values.Next<int>();
        return ShowCpp([&] { return DateTimeFuncs::GetCalDateTime(a0, a1, a2, a3); });
    });
}

TEST(SameInCAndCpp, date_time_get_time_difference_date_time)
{
    ExpectSame(&same_date_time_get_time_difference_date_time, [](Values& values) {
        const auto a0 = values.Next<COleDateTime>();
        const auto a1 = values.Next<int>();
        return ShowCpp([&] { return DateTimeFuncs::GetTimeDifferenceDateTime(a0, a1); });
    });
}

TEST(SameInCAndCpp, date_time_get_yesterday_date_time)
{
    ExpectSame(&same_date_time_get_yesterday_date_time, [](Values& values) {
        const auto a0 = values.Next<COleDateTime>();
        return ShowCpp([&] { return DateTimeFuncs::GetYesterdayDateTime(a0); });
    });
}

TEST(SameInCAndCpp, date_time_get_last_month_date_time)
{
    ExpectSame(&same_date_time_get_last_month_date_time, [](Values& values) {
        const auto a0 = values.Next<COleDateTime>();
        return ShowCpp([&] { return DateTimeFuncs::GetLastMonthDateTime(a0); });
    });
}

TEST(SameInCAndCpp, date_time_get_last_year_date_time)
{
    ExpectSame(&same_date_time_get_last_year_date_time, [](Values& values) {
        const auto a0 = values.Next<COleDateTime>();
        return ShowCpp([&] { return DateTimeFuncs::GetLastYearDateTime(a0); });
    });
}

TEST(SameInCAndCpp, date_time_get_begin_this_week_date_time)
{
    ExpectSame(&same_date_time_get_begin_this_week_date_time, [](Values& values) {
        const auto a0 = values.Next<COleDateTime>();
        return ShowCpp([&] { return DateTimeFuncs::GetBeginThisWeekDateTime(a0); });
    });
}

TEST(SameInCAndCpp, date_time_get_begin_last_week_date_time)
{
    ExpectSame(&same_date_time_get_begin_last_week_date_time, [](Values& values) {
        const auto a0 = values.Next<COleDateTime>();
        return ShowCpp([&] { return DateTimeFuncs::GetBeginLastWeekDateTime(a0); });
    });
}

TEST(SameInCAndCpp, date_time_get_end_week_date_time)
{
    ExpectSame(&same_date_time_get_end_week_date_time, [](Values& values) {
        const auto a0 = values.Next<COleDateTime>();
        return ShowCpp([&] { return DateTimeFuncs::GetEndWeekDateTime(a0); });
    });
}

TEST(SameInCAndCpp, date_time_is_match_date_month)
{
    ExpectSame(&same_date_time_is_match_date_month, [](Values& values) {
        const auto a0 = values.Next<COleDateTime>();
        const auto a1 = values.Next<COleDateTime>();
        return ShowCpp([&] { return DateTimeFuncs::IsMatchDateMonth(a0, a1); });
    });
}

TEST(SameInCAndCpp, date_time_is_match_date)
{
    ExpectSame(&same_date_time_is_match_date, [](Values& values) {
        const auto a0 = values.Next<COleDateTime>();
        const auto a1 = values.Next<COleDateTime>();
        return ShowCpp([&] { return DateTimeFuncs::IsMatchDate(a0, a1); });
    });
}

TEST(SameInCAndCpp, office_property_get_class_id_item_list)
{
    ExpectSame(&same_office_property_get_class_id_item_list, [](Values& values) {
        const std::vector<std::pair<CString, int>> a0{values.Next<std::pair<CString, int>>(), values.Next<std::pair<CString, int>>()};
        return ShowCpp([&] { return OfficePropertyFuncs::GetClassIdItemList(a0); });
    }, {.hasRegistry = true});
}

TEST(SameInCAndCpp, office_property_get_class_id)
{
    ExpectSame(&same_office_property_get_class_id, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const std::vector<OfficePropertyFuncs::CLSID_ITEM> a1{values.Next<OfficePropertyFuncs::CLSID_ITEM>(), values.Next<OfficePropertyFuncs::CLSID_ITEM>()};
        return ShowCpp([&] { return OfficePropertyFuncs::GetClassId(a0, a1); });
    }, {.hasRegistry = true});
}

TEST(SameInCAndCpp, office_property_get_property_handler_reg_key)
{
    ExpectSame(&same_office_property_get_property_handler_reg_key, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return OfficePropertyFuncs::GetPropertyHandlerRegKey(a0); });
    }, {.hasRegistry = true});
}

TEST(SameInCAndCpp, office_property_set_dump_props)
{
    ExpectSame(&same_office_property_set_dump_props, [](Values& values) {
        const auto a0 = values.NextPath();
        const auto a1 = values.Next<std::uint32_t>();
        auto a2 = values.NextValue();
        const auto a3 = values.NextHandler();
        return ShowCpp([&] { return OfficePropertyFuncs::SetDumpProps(a0, a1, a2.Get(), a3); });
    }, {.acts = true, .hasRegistry = true});
}

TEST(SameInCAndCpp, unblock_delete_zone_id)
{
    ExpectSame(&same_unblock_delete_zone_id, [](Values& values) {
        const auto a0 = values.NextPath();
        return ShowCpp([&] { return UnblockFuncs::DeleteZoneId(a0); });
    }, {.acts = true});
}

TEST(SameInCAndCpp, name_get_rename_file_path)
{
    ExpectSame(&same_name_get_rename_file_path, [](Values& values) {
        const auto a0 = values.Next<NameFuncs::ITEM>();
        return ShowCpp([&] { return NameFuncs::GetRenameFilePath(a0); });
    });
}

TEST(SameInCAndCpp, name_get_rename_file_paths)
{
    ExpectSame(&same_name_get_rename_file_paths, [](Values& values) {
        const std::vector<NameFuncs::ITEM> a0{values.Next<NameFuncs::ITEM>(), values.Next<NameFuncs::ITEM>()};
        return ShowCpp([&] { return Each(a0, &NameFuncs::GetRenameFilePath); });
    });
}

TEST(SameInCAndCpp, name_get_f_name)
{
    ExpectSame(&same_name_get_f_name, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return NameFuncs::GetFName(a0); });
    });
}

TEST(SameInCAndCpp, name_get_extension)
{
    ExpectSame(&same_name_get_extension, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return NameFuncs::GetExtension(a0); });
    });
}

TEST(SameInCAndCpp, name_is_resolve_conflict)
{
    ExpectSame(&same_name_is_resolve_conflict, [](Values& values) {
        const auto a0 = values.Next<NameFuncs::ITEM>();
        return ShowCpp([&] { return NameFuncs::IsResolveConflict(a0); });
    });
}

TEST(SameInCAndCpp, name_get_sequence_number_file_path)
{
    ExpectSame(&same_name_get_sequence_number_file_path, [](Values& values) {
        const auto a0 = values.Next<NameFuncs::ITEM>();
        return ShowCpp([&] { return NameFuncs::GetSequenceNumberFilePath(a0); });
    });
}

TEST(SameInCAndCpp, name_get_date_time_file_path)
{
    ExpectSame(&same_name_get_date_time_file_path, [](Values& values) {
        const auto a0 = values.Next<NameFuncs::ITEM>();
        return ShowCpp([&] { return NameFuncs::GetDateTimeFilePath(a0); });
    });
}

TEST(SameInCAndCpp, name_get_add_delete_file_path)
{
    ExpectSame(&same_name_get_add_delete_file_path, [](Values& values) {
        const auto a0 = values.Next<NameFuncs::ITEM>();
        return ShowCpp([&] { return NameFuncs::GetAddDeleteFilePath(a0); });
    });
}

TEST(SameInCAndCpp, name_get_convert_file_path)
{
    ExpectSame(&same_name_get_convert_file_path, [](Values& values) {
        const auto a0 = values.Next<NameFuncs::ITEM>();
        return ShowCpp([&] { return NameFuncs::GetConvertFilePath(a0); });
    });
}

TEST(SameInCAndCpp, name_get_replace_file_path)
{
    ExpectSame(&same_name_get_replace_file_path, [](Values& values) {
        const auto a0 = values.Next<NameFuncs::ITEM>();
        return ShowCpp([&] { return NameFuncs::GetReplaceFilePath(a0); });
    });
}

TEST(SameInCAndCpp, name_get_extension_file_path)
{
    ExpectSame(&same_name_get_extension_file_path, [](Values& values) {
        const auto a0 = values.Next<NameFuncs::ITEM>();
        return ShowCpp([&] { return NameFuncs::GetExtensionFilePath(a0); });
    });
}

TEST(SameInCAndCpp, name_get_resolve_conflict_file_path)
{
    ExpectSame(&same_name_get_resolve_conflict_file_path, [](Values& values) {
        const auto a0 = values.NextFreePath();
        const auto a1 = values.Next<NameFuncs::CONFLICTITEM>();
        return ShowCpp([&] { return NameFuncs::GetResolveConflictFilePath(a0, a1); });
    });
}

TEST(SameInCAndCpp, name_get_rename_to_sample_formated)
{
    ExpectSame(&same_name_get_rename_to_sample_formated, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return NameFuncs::GetRenameToSampleFormated(a0); });
    });
}

TEST(SameInCAndCpp, name_get_date_time_format)
{
    ExpectSame(&same_name_get_date_time_format, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const auto a1 = values.Next<CString>();
        const auto a2 = values.Next<int>();
        return ShowCpp([&] { return NameFuncs::GetDateTimeFormat(a0, a1, a2); });
    });
}

TEST(SameInCAndCpp, name_get_folder_format)
{
    ExpectSame(&same_name_get_folder_format, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return NameFuncs::GetFolderFormat(a0); });
    });
}

TEST(SameInCAndCpp, name_get_exif_format)
{
    ExpectSame(&same_name_get_exif_format, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const auto a1 = values.Next<CString>();
        return ShowCpp([&] { return NameFuncs::GetExifFormat(a0, a1); });
    });
}

TEST(SameInCAndCpp, name_copy_folder)
{
    ExpectSame(&same_name_copy_folder, [](Values& values) {
        const auto a0 = values.NextPath();
        const auto a1 = values.NextPath();
        std::list<NameFuncs::RENAMEITEM> a2;
        const std::string given = ShowCpp([&] { return NameFuncs::CopyFolder(a0, a1, &a2); });
        return given + '\n' + Show(a2);
    }, {.acts = true});
}

TEST(SameInCAndCpp, name_move_folder)
{
    ExpectSame(&same_name_move_folder, [](Values& values) {
        const auto a0 = values.NextPath();
        const auto a1 = values.NextPath();
        std::list<NameFuncs::RENAMEITEM> a2;
        const std::string given = ShowCpp([&] { return NameFuncs::MoveFolder(a0, a1, &a2); });
        return given + '\n' + Show(a2);
    }, {.acts = true});
}

TEST(SameInCAndCpp, programs_get_programs_features_items_list)
{
    ExpectSame(&same_programs_get_programs_features_items_list, [](Values& values) {
        const auto a0 = values.Next<int>();
        const auto a1 = values.Next<int>();
        return ShowCpp([&] { return ProgramsFeaturesFuncs::GetProgramsFeaturesItemsList(a0, a1); });
    }, {.hasRegistry = true});
}

TEST(SameInCAndCpp, programs_get_programs_features_windows_installer_items_list)
{
    ExpectSame(&same_programs_get_programs_features_windows_installer_items_list, [](Values& values) {
        const auto a0 = values.Next<int>();
        return ShowCpp([&] { return ProgramsFeaturesFuncs::GetProgramsFeaturesWindowsInstallerItemsList(a0); });
    }, {.hasRegistry = true});
}

TEST(SameInCAndCpp, programs_get_list_view_item_text)
{
    ExpectSame(&same_programs_get_list_view_item_text, [](Values& values) {
        const auto a0 = values.Next<int>();
        const auto a1 = values.Next<ProgramsFeaturesFuncs::ITEM>();
        return ShowCpp([&] { return ProgramsFeaturesFuncs::GetListViewItemText(a0, a1); });
    }, {.hasRegistry = true});
}

TEST(SameInCAndCpp, programs_get_programs_features_installer_products_items_list)
{
    ExpectSame(&same_programs_get_programs_features_installer_products_items_list, [](Values& ) {
        return ShowCpp([&] { return ProgramsFeaturesFuncs::GetProgramsFeaturesInstallerProductsItemsList(); });
    }, {.rounds = 1, .hasRegistry = true});
}

TEST(SameInCAndCpp, programs_get_product_icon)
{
    ExpectSame(&same_programs_get_product_icon, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const auto a1 = values.Next<CString>();
        const std::vector<ProgramsFeaturesFuncs::INSTALLER_PRODUCTS_ITEM> a2{values.Next<ProgramsFeaturesFuncs::INSTALLER_PRODUCTS_ITEM>(), values.Next<ProgramsFeaturesFuncs::INSTALLER_PRODUCTS_ITEM>()};
        return ShowCpp([&] { return ProgramsFeaturesFuncs::GetProductIcon(a0, a1, a2); });
    }, {.hasRegistry = true});
}

TEST(SameInCAndCpp, programs_get_application_icon)
{
    ExpectSame(&same_programs_get_application_icon, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return ProgramsFeaturesFuncs::GetApplicationIcon(a0); });
    }, {.hasRegistry = true});
}

TEST(SameInCAndCpp, programs_get_install_date)
{
    ExpectSame(&same_programs_get_install_date, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const auto a1 = values.Next<CString>();
        return ShowCpp([&] { return ProgramsFeaturesFuncs::GetInstallDate(a0, a1); });
    }, {.hasRegistry = true});
}

TEST(SameInCAndCpp, programs_get_formated_size)
{
    ExpectSame(&same_programs_get_formated_size, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const auto a1 = values.Next<std::uint64_t>();
        const auto a2 = values.Next<int>();
        return ShowCpp([&] { return ProgramsFeaturesFuncs::GetFormatedSize(a0, a1, a2); });
    }, {.hasRegistry = true});
}

TEST(SameInCAndCpp, programs_compare_reg_key)
{
    ExpectSame(&same_programs_compare_reg_key, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const auto a1 = values.Next<CString>();
        const auto a2 = values.Next<int>();
        const auto a3 = values.Next<int>();
        const auto a4 = values.Next<int>();
        return ShowCpp([&] { return ProgramsFeaturesFuncs::CompareRegKey(a0, a1, a2, a3, a4); });
    }, {.hasRegistry = true});
}

TEST(SameInCAndCpp, programs_get_key_parent_name)
{
    ExpectSame(&same_programs_get_key_parent_name, [](Values& values) {
        const auto a0 = values.NextKey();
        return ShowCpp([&] { return ProgramsFeaturesFuncs::GetKeyParentName(a0); });
    }, {.hasRegistry = true});
}

TEST(SameInCAndCpp, programs_is_wow6432_node)
{
    ExpectSame(&same_programs_is_wow6432_node, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return ProgramsFeaturesFuncs::IsWow6432Node(a0); });
    }, {.hasRegistry = true});
}

TEST(SameInCAndCpp, programs_get_icon_folder_name)
{
    ExpectSame(&same_programs_get_icon_folder_name, [](Values& ) {
        return ShowCpp([&] { return ProgramsFeaturesFuncs::GetIconFolderName(); });
    }, {.rounds = 1, .hasRegistry = true});
}

TEST(SameInCAndCpp, programs_get_output_file_path)
{
    ExpectSame(&same_programs_get_output_file_path, [](Values& ) {
        return ShowCpp([&] { return ProgramsFeaturesFuncs::GetOutputFilePath(); });
    }, {.rounds = 1, .hasRegistry = true});
}

TEST(SameInCAndCpp, programs_get_open_output_file)
{
    ExpectSame(&same_programs_get_open_output_file, [](Values& ) {
        return ShowCpp([&] { return ProgramsFeaturesFuncs::GetOpenOutputFile(); });
    }, {.rounds = 1, .hasRegistry = true});
}

TEST(SameInCAndCpp, registry_get_product_reg_key)
{
    ExpectSame(&same_registry_get_product_reg_key, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const auto a1 = values.Next<CString>();
        const auto a2 = values.Next<int>();
        return ShowCpp([&] { return RegistryFuncs::GetProductRegKey(a0, a1, a2); });
    }, {.hasRegistry = true});
}

TEST(SameInCAndCpp, registry_get_uninstall_product_reg_key)
{
    ExpectSame(&same_registry_get_uninstall_product_reg_key, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return RegistryFuncs::GetUninstallProductRegKey(a0); });
    }, {.hasRegistry = true});
}

TEST(SameInCAndCpp, registry_get_product_install_date)
{
    ExpectSame(&same_registry_get_product_install_date, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return RegistryFuncs::GetProductInstallDate(a0); });
    }, {.hasRegistry = true});
}

TEST(SameInCAndCpp, column_is_visible_column)
{
    ExpectSame(&same_column_is_visible_column, [](Values& values) {
        auto a0 = values.NextList();
        const auto a1 = values.Next<CString>();
        return ShowCpp([&] { return ColumnFuncs::IsVisibleColumn(a0, a1); });
    }, {.hasList = true});
}

TEST(SameInCAndCpp, column_get_column_header_item)
{
    ExpectSame(&same_column_get_column_header_item, [](Values& values) {
        auto a0 = values.NextList();
        const auto a1 = values.Next<CString>();
        return ShowCpp([&] { return ColumnFuncs::GetColumnHeaderItem(a0, a1); });
    }, {.hasList = true});
}

TEST(SameInCAndCpp, column_get_column_item_order)
{
    ExpectSame(&same_column_get_column_item_order, [](Values& values) {
        auto a0 = values.NextList();
        const auto a1 = values.Next<CString>();
        return ShowCpp([&] { return ColumnFuncs::GetColumnItemOrder(a0, a1); });
    }, {.hasList = true});
}

TEST(SameInCAndCpp, column_get_column_item_text)
{
    ExpectSame(&same_column_get_column_item_text, [](Values& values) {
        auto a0 = values.NextList();
        const auto a1 = values.Next<int>();
        return ShowCpp([&] { return ColumnFuncs::GetColumnItemText(a0, a1); });
    }, {.hasList = true});
}

TEST(SameInCAndCpp, filter_is_match)
{
    ExpectSame(&same_filter_is_match, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const auto a1 = values.Next<int>();
        const std::vector<FilterFuncs::FILTERITEM> a2{values.Next<FilterFuncs::FILTERITEM>(), values.Next<FilterFuncs::FILTERITEM>()};
        return ShowCpp([&] { return FilterFuncs::IsMatch(a0, a1, a2); });
    });
}

TEST(SameInCAndCpp, filter_is_match_name)
{
    ExpectSame(&same_filter_is_match_name, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const auto a1 = values.Next<int>();
        const std::vector<FilterFuncs::FILTERITEM> a2{values.Next<FilterFuncs::FILTERITEM>(), values.Next<FilterFuncs::FILTERITEM>()};
        return ShowCpp([&] { return FilterFuncs::IsMatchName(a0, a1, a2); });
    });
}

TEST(SameInCAndCpp, filter_is_already_added)
{
    ExpectSame(&same_filter_is_already_added, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const std::vector<CString> a1{values.Next<CString>(), values.Next<CString>()};
        return ShowCpp([&] { return FilterFuncs::IsAlreadyAdded(a0, a1); });
    });
}

TEST(SameInCAndCpp, search_is_match_path)
{
    ExpectSame(&same_search_is_match_path, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const auto a1 = values.Next<int>();
        return ShowCpp([&] { return SearchFuncs::IsMatch(a0, a1); });
    });
}

TEST(SameInCAndCpp, search_is_match)
{
    ExpectSame(&same_search_is_match, [](Values& values) {
        const auto a0 = values.Next<SearchFuncs::ITEM>();
        return ShowCpp([&] { return SearchFuncs::IsMatch(a0); });
    });
}

TEST(SameInCAndCpp, search_is_match_date_time)
{
    ExpectSame(&same_search_is_match_date_time, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return SearchFuncs::IsMatchDateTime(a0); });
    });
}

TEST(SameInCAndCpp, search_is_match_date_time_value)
{
    ExpectSame(&same_search_is_match_date_time_value, [](Values& values) {
        const auto a0 = values.Next<COleDateTime>();
        return ShowCpp([&] { return SearchFuncs::IsMatchDateTime(a0); });
    });
}

TEST(SameInCAndCpp, search_is_match_size_path)
{
    ExpectSame(&same_search_is_match_size_path, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const auto a1 = values.Next<int>();
        return ShowCpp([&] { return SearchFuncs::IsMatchSize(a0, a1); });
    });
}

TEST(SameInCAndCpp, search_is_match_size)
{
    ExpectSame(&same_search_is_match_size, [](Values& values) {
        const auto a0 = values.Next<std::int64_t>();
        return ShowCpp([&] { return SearchFuncs::IsMatchSize(a0); });
    });
}

TEST(SameInCAndCpp, search_get_search_closed)
{
    ExpectSame(&same_search_get_search_closed, [](Values& ) {
        return ShowCpp([&] { return SearchFuncs::GetSearchClosed(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, search_get_date_time_search)
{
    ExpectSame(&same_search_get_date_time_search, [](Values& ) {
        return ShowCpp([&] { return SearchFuncs::GetDateTimeSearch(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, search_get_date_time_target)
{
    ExpectSame(&same_search_get_date_time_target, [](Values& ) {
        return ShowCpp([&] { return SearchFuncs::GetDateTimeTarget(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, search_get_date_time_range)
{
    ExpectSame(&same_search_get_date_time_range, [](Values& ) {
        return ShowCpp([&] { return SearchFuncs::GetDateTimeRange(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, search_get_date_time_from_date_time)
{
    ExpectSame(&same_search_get_date_time_from_date_time, [](Values& ) {
        return ShowCpp([&] { return SearchFuncs::GetDateTimeFromDateTime(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, search_get_date_time_to_date_time)
{
    ExpectSame(&same_search_get_date_time_to_date_time, [](Values& ) {
        return ShowCpp([&] { return SearchFuncs::GetDateTimeToDateTime(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, search_get_size_search)
{
    ExpectSame(&same_search_get_size_search, [](Values& ) {
        return ShowCpp([&] { return SearchFuncs::GetSizeSearch(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, search_get_size_target)
{
    ExpectSame(&same_search_get_size_target, [](Values& ) {
        return ShowCpp([&] { return SearchFuncs::GetSizeTarget(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, search_get_size_range)
{
    ExpectSame(&same_search_get_size_range, [](Values& ) {
        return ShowCpp([&] { return SearchFuncs::GetSizeRange(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, search_get_size_from_size)
{
    ExpectSame(&same_search_get_size_from_size, [](Values& ) {
        return ShowCpp([&] { return SearchFuncs::GetSizeFromSize(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, search_get_size_to_size)
{
    ExpectSame(&same_search_get_size_to_size, [](Values& ) {
        return ShowCpp([&] { return SearchFuncs::GetSizeToSize(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, browser_get_browser_items_list)
{
    ExpectSame(&same_browser_get_browser_items_list, [](Values& ) {
        return ShowCpp([&] { return BrowserFuncs::GetBrowserItemsList(); });
    }, {.rounds = 1, .hasRegistry = true});
}

TEST(SameInCAndCpp, browser_get_microsoft_edge_app_item)
{
    ExpectSame(&same_browser_get_microsoft_edge_app_item, [](Values& ) {
        return ShowCpp([&] { return std::vector{BrowserFuncs::GetMicrosoftEdgeAppItem()}; });
    }, {.rounds = 1, .hasRegistry = true});
}

TEST(SameInCAndCpp, browser_is_installed_microsoft_edge_chromium)
{
    ExpectSame(&same_browser_is_installed_microsoft_edge_chromium, [](Values& ) {
        return ShowCpp([&] { return BrowserFuncs::IsInstalledMicrosoftEdgeChromium(); });
    }, {.rounds = 1, .hasRegistry = true});
}

TEST(SameInCAndCpp, control_panel_exec_date_and_time)
{
    ExpectSame(&same_control_panel_exec_date_and_time, [](Values& values) {
        const auto a0 = values.Next<HWND>();
        return ShowCpp([&] { return ControlPanelFuncs::ExecDateAndTime(a0); });
    }, {.rounds = 2, .acts = true});
}

TEST(SameInCAndCpp, control_panel_exec_programs_and_features)
{
    ExpectSame(&same_control_panel_exec_programs_and_features, [](Values& values) {
        const auto a0 = values.Next<HWND>();
        return ShowCpp([&] { return ControlPanelFuncs::ExecProgramsAndFeatures(a0); });
    }, {.rounds = 2, .acts = true});
}

TEST(SameInCAndCpp, log_get_log_file_name)
{
    ExpectSame(&same_log_get_log_file_name, [](Values& ) {
        return ShowCpp([&] { return LogFuncs::GetLogFileName(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, log_get_application_log_file_path)
{
    ExpectSame(&same_log_get_application_log_file_path, [](Values& ) {
        return ShowCpp([&] { return LogFuncs::GetApplicationLogFilePath(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, log_write_with_path_level)
{
    ExpectSame(&same_log_write_with_path_level, [](Values& values) {
        const auto a0 = values.NextPath();
        const auto a1 = values.Next<CString>();
        const auto a2 = values.Next<int>();
        return ShowCpp([&] { return LogFuncs::Write(a0, a1, a2); });
    }, {.acts = true});
}

TEST(SameInCAndCpp, log_write_with_level)
{
    ExpectSame(&same_log_write_with_level, [](Values& values) {
        const auto a0 = values.Next<CString>();
        const auto a1 = values.Next<int>();
        return ShowCpp([&] { return LogFuncs::Write(a0, a1); });
    }, {.acts = true});
}

TEST(SameInCAndCpp, log_write)
{
    ExpectSame(&same_log_write, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return LogFuncs::Write(a0); });
    }, {.acts = true});
}

TEST(SameInCAndCpp, application_get_local_data_application_version)
{
    ExpectSame(&same_application_get_local_data_application_version, [](Values& ) {
        return ShowCpp([&] { return ApplicationFuncs::GetLocalDataApplicationVersion(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, application_is_alpha_version)
{
    ExpectSame(&same_application_is_alpha_version, [](Values& ) {
        return ShowCpp([&] { return ApplicationFuncs::IsAlphaVersion(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, application_is_beta_version)
{
    ExpectSame(&same_application_is_beta_version, [](Values& ) {
        return ShowCpp([&] { return ApplicationFuncs::IsBetaVersion(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, application_is_release_candidate_version)
{
    ExpectSame(&same_application_is_release_candidate_version, [](Values& ) {
        return ShowCpp([&] { return ApplicationFuncs::IsReleaseCandidateVersion(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, application_is_release_to_manufacturing_version)
{
    ExpectSame(&same_application_is_release_to_manufacturing_version, [](Values& ) {
        return ShowCpp([&] { return ApplicationFuncs::IsReleaseToManufacturingVersion(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, application_is_release_version)
{
    ExpectSame(&same_application_is_release_version, [](Values& ) {
        return ShowCpp([&] { return ApplicationFuncs::IsReleaseVersion(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, application_is_product_release_version)
{
    ExpectSame(&same_application_is_product_release_version, [](Values& ) {
        return ShowCpp([&] { return ApplicationFuncs::IsProductReleaseVersion(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, application_get_online_support_url)
{
    ExpectSame(&same_application_get_online_support_url, [](Values& ) {
        return ShowCpp([&] { return ApplicationFuncs::GetOnlineSupportUrl(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, application_get_send_feedback_url)
{
    ExpectSame(&same_application_get_send_feedback_url, [](Values& ) {
        return ShowCpp([&] { return ApplicationFuncs::GetSendFeedbackUrl(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, application_get_send_questionnaire_url)
{
    ExpectSame(&same_application_get_send_questionnaire_url, [](Values& ) {
        return ShowCpp([&] { return ApplicationFuncs::GetSendQuestionnaireUrl(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, updates_get_type)
{
    ExpectSame(&same_updates_get_type, [](Values& ) {
        return ShowCpp([&] { return UpdatesFuncs::GetType(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, updates_get_product_name)
{
    ExpectSame(&same_updates_get_product_name, [](Values& ) {
        return ShowCpp([&] { return UpdatesFuncs::GetProductName(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, updates_get_version)
{
    ExpectSame(&same_updates_get_version, [](Values& ) {
        return ShowCpp([&] { return UpdatesFuncs::GetVersion(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, updates_get_edition)
{
    ExpectSame(&same_updates_get_edition, [](Values& ) {
        return ShowCpp([&] { return UpdatesFuncs::GetEdition(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, updates_get_platform_bit)
{
    ExpectSame(&same_updates_get_platform_bit, [](Values& ) {
        return ShowCpp([&] { return UpdatesFuncs::GetPlatformBit(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, updates_get_details_url)
{
    ExpectSame(&same_updates_get_details_url, [](Values& ) {
        return ShowCpp([&] { return UpdatesFuncs::GetDetailsURL(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, updates_get_download_url)
{
    ExpectSame(&same_updates_get_download_url, [](Values& ) {
        return ShowCpp([&] { return UpdatesFuncs::GetDownloadURL(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, updates_get_update_items_list)
{
    ExpectSame(&same_updates_get_update_items_list, [](Values& ) {
        return ShowCpp([&] { return UpdatesFuncs::GetUpdateItemsList(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, updates_get_checked_date)
{
    ExpectSame(&same_updates_get_checked_date, [](Values& ) {
        return ShowCpp([&] { return UpdatesFuncs::GetCheckedDate(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, updates_check_for_updates)
{
    ExpectSame(&same_updates_check_for_updates, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return UpdatesFuncs::CheckForUpdates(a0); });
    });
}

TEST(SameInCAndCpp, updates_get_check_for_updates_url)
{
    ExpectSame(&same_updates_get_check_for_updates_url, [](Values& ) {
        return ShowCpp([&] { return UpdatesFuncs::GetCheckForUpdatesUrl(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, updates_get_agree_ignore_server)
{
    ExpectSame(&same_updates_get_agree_ignore_server, [](Values& ) {
        return ShowCpp([&] { return UpdatesFuncs::GetAgreeIgnoreServer(); });
    }, {.rounds = 1});
}

TEST(SameInCAndCpp, updates_get_updates_information)
{
    ExpectSame(&same_updates_get_updates_information, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return UpdatesFuncs::GetUpdatesInformation(a0); });
    });
}

TEST(SameInCAndCpp, updates_is_date_interval_check_for_updates)
{
    ExpectSame(&same_updates_is_date_interval_check_for_updates, [](Values& values) {
        const auto a0 = values.Next<int>();
        return ShowCpp([&] { return UpdatesFuncs::IsDateIntervalCheckForUpdates(a0); });
    });
}

TEST(SameInCAndCpp, msxml_load_xml_file)
{
    ExpectSame(&same_msxml_load_xml_file, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return MSXMLFuncs::LoadXmlFile(a0); });
    });
}

TEST(SameInCAndCpp, msxml_load_xslt_file)
{
    ExpectSame(&same_msxml_load_xslt_file, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return MSXMLFuncs::LoadXsltFile(a0); });
    });
}

TEST(SameInCAndCpp, style_get_styles_information)
{
    ExpectSame(&same_style_get_styles_information, [](Values& values) {
        const auto a0 = values.Next<CString>();
        return ShowCpp([&] { return StyleFuncs::GetStylesInformation(a0); });
    });
}

TEST(SameInCAndCpp, style_get_design_items_list)
{
    ExpectSame(&same_style_get_design_items_list, [](Values& ) {
        return ShowCpp([&] { return StyleFuncs::GetDesignItemsList(); });
    }, {.rounds = 1});
}
