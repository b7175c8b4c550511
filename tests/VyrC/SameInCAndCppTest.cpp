// Calls each operation through C and in C++ with the same values; written by VyrC/generate from VyrC/interface.txt.
// clang-format off
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
inline vyr_attributes_item InC(const AttributesFuncs::ATTRIBUTESITEM& record)
{
    vyr_attributes_item made{};
    made.struct_size = sizeof made;
    made.read_only = record.readOnly;
    made.hidden = record.hidden;
    made.system = record.system;
    made.archive = record.archive;
    made.temporary = record.temporary;
    made.not_content_indexed = record.notContentIndexed;
    return made;
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
inline vyr_date_time_stagger_item InC(const DateTimeFuncs::STAGGERITEM& record)
{
    vyr_date_time_stagger_item made{};
    made.struct_size = sizeof made;
    made.use_start_date_time = record.useStartDateTime;
    made.start_date = InC(record.startDate);
    made.start_time = InC(record.startTime);
    made.numbering_mode = record.numberingMode;
    made.direction = record.direction;
    made.start_number = record.startNumber;
    made.years = record.years;
    made.months = record.months;
    made.days = record.days;
    made.hours = record.hours;
    made.minutes = record.minutes;
    made.seconds = record.seconds;
    return made;
}
inline OfficePropertyFuncs::CLSID_ITEM Make(Values& values, const OfficePropertyFuncs::CLSID_ITEM*)
{
    OfficePropertyFuncs::CLSID_ITEM record;
    record.extension = values.Next<CString>();
    record.clsid = values.Next<GUID>();
    record.flag = values.Next<int>();
    return record;
}
inline vyr_office_property_handler InC(const OfficePropertyFuncs::CLSID_ITEM& record)
{
    vyr_office_property_handler made{};
    made.struct_size = sizeof made;
    made.extension = InC(record.extension);
    made.clsid = InC(record.clsid);
    made.flag = record.flag;
    return made;
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
inline vyr_name_item InC(const NameFuncs::ITEM& record)
{
    vyr_name_item made{};
    made.struct_size = sizeof made;
    made.file_path = InC(record.filePath);
    made.aux_text1 = InC(record.auxText1);
    made.aux_text2 = InC(record.auxText2);
    made.aux_text3 = InC(record.auxText3);
    made.aux_text4 = InC(record.auxText4);
    made.dir_path = InC(record.dirPath);
    made.file_name = InC(record.fileName);
    made.extension = InC(record.extension);
    made.index = record.index;
    made.rename_type = record.renameType;
    made.number_position = record.numberPosition;
    made.number_text1 = InC(record.numberText1);
    made.number_text2 = InC(record.numberText2);
    made.start_number = record.startNumber;
    made.digits = record.digits;
    made.step = record.step;
    made.date_time_position = record.dateTimePosition;
    made.date_time_target = record.dateTimeTarget;
    made.date_time_format = InC(record.dateTimeFormat);
    made.add_delete_type = record.addDeleteType;
    made.position = record.position;
    made.delete_count = record.deleteCount;
    made.add_text = InC(record.addText);
    made.convert_type = record.convertType;
    made.find_text = InC(record.findText);
    made.replace_text = InC(record.replaceText);
    made.extension_type = record.extensionType;
    made.new_extension = InC(record.newExtension);
    return made;
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
inline vyr_name_conflict_item InC(const NameFuncs::CONFLICTITEM& record)
{
    vyr_name_conflict_item made{};
    made.struct_size = sizeof made;
    made.number_format = InC(record.numberFormat);
    made.position = record.position;
    made.start_number = record.startNumber;
    made.step = record.step;
    return made;
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
inline vyr_programs_item InC(const ProgramsFeaturesFuncs::ITEM& record)
{
    vyr_programs_item made{};
    made.struct_size = sizeof made;
    made.key_name = InC(record.KeyName);
    made.sub_key_name = InC(record.SubKeyName);
    made.display_icon = InC(record.DisplayIcon);
    made.display_name = InC(record.DisplayName);
    made.display_name_localized = InC(record.DisplayNameLocalized);
    made.display_version = InC(record.DisplayVersion);
    made.install_location = InC(record.InstallLocation);
    made.publisher = InC(record.Publisher);
    made.url_info_about = InC(record.URLInfoAbout);
    made.url_update_info = InC(record.URLUpdateInfo);
    made.comments = InC(record.Comments);
    made.contact = InC(record.Contact);
    made.help_link = InC(record.HelpLink);
    made.help_telephone = InC(record.HelpTelephone);
    made.install_date = InC(record.InstallDate);
    made.install_source = InC(record.InstallSource);
    made.readme = InC(record.Readme);
    made.unused18 = InC(record.Unused18);
    made.unused19 = InC(record.Unused19);
    made.reg_company = InC(record.RegCompany);
    made.reg_owner = InC(record.RegOwner);
    made.unused22 = InC(record.Unused22);
    made.last_write_time = InC(record.LastWriteTime);
    made.parent_display_name = InC(record.ParentDisplayName);
    made.parent_key_name = InC(record.ParentKeyName);
    made.uninstall_string = InC(record.UninstallString);
    made.unused27 = InC(record.Unused27);
    made.estimated_size_bytes = record.EstimatedSizeBytes;
    made.estimated_size = record.EstimatedSize;
    made.system_component = record.SystemComponent;
    made.windows_installer = record.WindowsInstaller;
    made.version_major = record.VersionMajor;
    made.version_minor = record.VersionMinor;
    made.unused34 = record.Unused34;
    made.language = record.Language;
    made.no_modify = record.NoModify;
    made.no_repair = record.NoRepair;
    made.no_remove = record.NoRemove;
    made.no_elevate_on_modify = record.NoElevateOnModify;
    made.full_key_name = InC(record.FullKeyName);
    made.formatted_size = InC(record.FormattedSize);
    made.unused42 = InC(record.Unused42);
    made.is_wow6432_node = record.IsWow6432Node;
    return made;
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
inline vyr_programs_product InC(const ProgramsFeaturesFuncs::INSTALLER_PRODUCTS_ITEM& record)
{
    vyr_programs_product made{};
    made.struct_size = sizeof made;
    made.product_key = InC(record.ProductKey);
    made.package_code = InC(record.PackageCode);
    made.product_name = InC(record.ProductName);
    made.product_icon = InC(record.ProductIcon);
    made.deployment_flags = record.DeploymentFlags;
    made.language = record.Language;
    made.version = record.Version;
    return made;
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
inline vyr_filter_condition InC(const FilterFuncs::FILTERITEM& record)
{
    vyr_filter_condition made{};
    made.struct_size = sizeof made;
    made.filter_value = record.filterValue;
    made.enabled = record.enabled;
    made.text = InC(record.text);
    made.condition = record.condition;
    made.match_case = record.matchCase;
    return made;
}
inline SearchFuncs::ITEM Make(Values& values, const SearchFuncs::ITEM*)
{
    SearchFuncs::ITEM record;
    record.dateTime = values.Next<COleDateTime>();
    record.size = values.Next<std::int64_t>();
    return record;
}
inline vyr_search_item InC(const SearchFuncs::ITEM& record)
{
    vyr_search_item made{};
    made.struct_size = sizeof made;
    made.date_time = InC(record.dateTime);
    made.size = record.size;
    return made;
}
inline UpdatesFuncs::UPDATEITEM Make(Values& values, const UpdatesFuncs::UPDATEITEM*)
{
    UpdatesFuncs::UPDATEITEM record;
    record.category = values.Next<int>();
    record.description = values.Next<CString>();
    return record;
}
inline vyr_updates_item InC(const UpdatesFuncs::UPDATEITEM& record)
{
    vyr_updates_item made{};
    made.struct_size = sizeof made;
    made.category = record.category;
    made.description = InC(record.description);
    return made;
}
inline StyleFuncs::DESIGNITEM Make(Values& values, const StyleFuncs::DESIGNITEM*)
{
    StyleFuncs::DESIGNITEM record;
    record.id = values.Next<int>();
    record.value = values.Next<CString>();
    record.name = values.Next<CString>();
    return record;
}
inline vyr_style_item InC(const StyleFuncs::DESIGNITEM& record)
{
    vyr_style_item made{};
    made.struct_size = sizeof made;
    made.id = record.id;
    made.value = InC(record.value);
    made.name = InC(record.name);
    return made;
}
inline std::string Show(const OfficePropertyFuncs::CLSID_ITEM& record)
{
    return Show(record.extension) + "|" + Show(record.clsid) + "|" + Show(record.flag);
}
inline std::string Show(const vyr_office_property_handler& record)
{
    return Show(record.extension) + "|" + Show(record.clsid) + "|" + Show(record.flag);
}
inline std::string Show(const NameFuncs::RENAMEITEM& record)
{
    return Show(record.sourcePath) + "|" + Show(record.destinationPath) + "|" + Show(record.dateCreated) + "|" + Show(record.dateModified);
}
inline std::string Show(const vyr_name_rename_item& record)
{
    return Show(record.source_path) + "|" + Show(record.destination_path) + "|" + Show(record.date_created) + "|" + Show(record.date_modified);
}
inline std::string Show(const ProgramsFeaturesFuncs::ITEM& record)
{
    return Show(record.KeyName) + "|" + Show(record.SubKeyName) + "|" + Show(record.DisplayIcon) + "|" + Show(record.DisplayName) + "|" + Show(record.DisplayNameLocalized) + "|" + Show(record.DisplayVersion) + "|" + Show(record.InstallLocation) + "|" + Show(record.Publisher) + "|" + Show(record.URLInfoAbout) + "|" + Show(record.URLUpdateInfo) + "|" + Show(record.Comments) + "|" + Show(record.Contact) + "|" + Show(record.HelpLink) + "|" + Show(record.HelpTelephone) + "|" + Show(record.InstallDate) + "|" + Show(record.InstallSource) + "|" + Show(record.Readme) + "|" + Show(record.Unused18) + "|" + Show(record.Unused19) + "|" + Show(record.RegCompany) + "|" + Show(record.RegOwner) + "|" + Show(record.Unused22) + "|" + Show(record.LastWriteTime) + "|" + Show(record.ParentDisplayName) + "|" + Show(record.ParentKeyName) + "|" + Show(record.UninstallString) + "|" + Show(record.Unused27) + "|" + Show(record.EstimatedSizeBytes) + "|" + Show(record.EstimatedSize) + "|" + Show(record.SystemComponent) + "|" + Show(record.WindowsInstaller) + "|" + Show(record.VersionMajor) + "|" + Show(record.VersionMinor) + "|" + Show(record.Unused34) + "|" + Show(record.Language) + "|" + Show(record.NoModify) + "|" + Show(record.NoRepair) + "|" + Show(record.NoRemove) + "|" + Show(record.NoElevateOnModify) + "|" + Show(record.FullKeyName) + "|" + Show(record.FormattedSize) + "|" + Show(record.Unused42) + "|" + Show(record.IsWow6432Node);
}
inline std::string Show(const vyr_programs_item& record)
{
    return Show(record.key_name) + "|" + Show(record.sub_key_name) + "|" + Show(record.display_icon) + "|" + Show(record.display_name) + "|" + Show(record.display_name_localized) + "|" + Show(record.display_version) + "|" + Show(record.install_location) + "|" + Show(record.publisher) + "|" + Show(record.url_info_about) + "|" + Show(record.url_update_info) + "|" + Show(record.comments) + "|" + Show(record.contact) + "|" + Show(record.help_link) + "|" + Show(record.help_telephone) + "|" + Show(record.install_date) + "|" + Show(record.install_source) + "|" + Show(record.readme) + "|" + Show(record.unused18) + "|" + Show(record.unused19) + "|" + Show(record.reg_company) + "|" + Show(record.reg_owner) + "|" + Show(record.unused22) + "|" + Show(record.last_write_time) + "|" + Show(record.parent_display_name) + "|" + Show(record.parent_key_name) + "|" + Show(record.uninstall_string) + "|" + Show(record.unused27) + "|" + Show(record.estimated_size_bytes) + "|" + Show(record.estimated_size) + "|" + Show(record.system_component) + "|" + Show(record.windows_installer) + "|" + Show(record.version_major) + "|" + Show(record.version_minor) + "|" + Show(record.unused34) + "|" + Show(record.language) + "|" + Show(record.no_modify) + "|" + Show(record.no_repair) + "|" + Show(record.no_remove) + "|" + Show(record.no_elevate_on_modify) + "|" + Show(record.full_key_name) + "|" + Show(record.formatted_size) + "|" + Show(record.unused42) + "|" + Show(record.is_wow6432_node);
}
inline std::string Show(const ProgramsFeaturesFuncs::INSTALLER_PRODUCTS_ITEM& record)
{
    return Show(record.ProductKey) + "|" + Show(record.PackageCode) + "|" + Show(record.ProductName) + "|" + Show(record.ProductIcon) + "|" + Show(record.DeploymentFlags) + "|" + Show(record.Language) + "|" + Show(record.Version);
}
inline std::string Show(const vyr_programs_product& record)
{
    return Show(record.product_key) + "|" + Show(record.package_code) + "|" + Show(record.product_name) + "|" + Show(record.product_icon) + "|" + Show(record.deployment_flags) + "|" + Show(record.language) + "|" + Show(record.version);
}
inline std::string Show(const BrowserFuncs::APPITEM& record)
{
    return Show(record.AppType) + "|" + Show(record.AppKey) + "|" + Show(record.DisplayName) + "|" + Show(record.Command) + "|" + Show(record.ExecutablePath);
}
inline std::string Show(const vyr_browser_app_item& record)
{
    return Show(record.app_type) + "|" + Show(record.app_key) + "|" + Show(record.display_name) + "|" + Show(record.command) + "|" + Show(record.executable_path);
}
inline std::string Show(const UpdatesFuncs::UPDATEITEM& record)
{
    return Show(record.category) + "|" + Show(record.description);
}
inline std::string Show(const vyr_updates_item& record)
{
    return Show(record.category) + "|" + Show(record.description);
}
inline std::string Show(const StyleFuncs::DESIGNITEM& record)
{
    return Show(record.id) + "|" + Show(record.value) + "|" + Show(record.name);
}
inline std::string Show(const vyr_style_item& record)
{
    return Show(record.id) + "|" + Show(record.value) + "|" + Show(record.name);
}

} // namespace VyrCTests

#include "SameCalls.h"

using namespace VyrCTests;

TEST(SameInCAndCpp, output_set_output_file_path)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            return Pair{ShowStatus(vyr_output_set_output_file_path(InC(a0).units, InC(a0).length)), ShowNothing([&] { OutputFuncs::SetOutputFilePath(a0); })};
        });
    }
}

TEST(SameInCAndCpp, output_set_output_filter_index)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<int>();
            return Pair{ShowStatus(vyr_output_set_output_filter_index(a0)), ShowNothing([&] { OutputFuncs::SetOutputFilterIndex(a0); })};
        });
    }
}

TEST(SameInCAndCpp, programs_set_output_file_path)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            return Pair{ShowStatus(vyr_programs_set_output_file_path(InC(a0).units, InC(a0).length)), ShowNothing([&] { ProgramsFeaturesFuncs::SetOutputFilePath(a0); })};
        });
    }
}

TEST(SameInCAndCpp, programs_set_open_output_file)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<int>();
            return Pair{ShowStatus(vyr_programs_set_open_output_file(a0)), ShowNothing([&] { ProgramsFeaturesFuncs::SetOpenOutputFile(a0); })};
        });
    }
}

TEST(SameInCAndCpp, search_set_search_closed)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<int>();
            return Pair{ShowStatus(vyr_search_set_search_closed(a0)), ShowNothing([&] { SearchFuncs::SetSearchClosed(a0); })};
        });
    }
}

TEST(SameInCAndCpp, search_set_date_time_search)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<int>();
            return Pair{ShowStatus(vyr_search_set_date_time_search(a0)), ShowNothing([&] { SearchFuncs::SetDateTimeSearch(a0); })};
        });
    }
}

TEST(SameInCAndCpp, search_set_date_time_target)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<int>();
            return Pair{ShowStatus(vyr_search_set_date_time_target(a0)), ShowNothing([&] { SearchFuncs::SetDateTimeTarget(a0); })};
        });
    }
}

TEST(SameInCAndCpp, search_set_date_time_range)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<int>();
            return Pair{ShowStatus(vyr_search_set_date_time_range(a0)), ShowNothing([&] { SearchFuncs::SetDateTimeRange(a0); })};
        });
    }
}

TEST(SameInCAndCpp, search_set_date_time_from_date_time)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<COleDateTime>();
            return Pair{ShowStatus(vyr_search_set_date_time_from_date_time(InC(a0).days, InC(a0).status)), ShowNothing([&] { SearchFuncs::SetDateTimeFromDateTime(a0); })};
        });
    }
}

TEST(SameInCAndCpp, search_set_date_time_to_date_time)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<COleDateTime>();
            return Pair{ShowStatus(vyr_search_set_date_time_to_date_time(InC(a0).days, InC(a0).status)), ShowNothing([&] { SearchFuncs::SetDateTimeToDateTime(a0); })};
        });
    }
}

TEST(SameInCAndCpp, search_set_size_search)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<int>();
            return Pair{ShowStatus(vyr_search_set_size_search(a0)), ShowNothing([&] { SearchFuncs::SetSizeSearch(a0); })};
        });
    }
}

TEST(SameInCAndCpp, search_set_size_target)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<int>();
            return Pair{ShowStatus(vyr_search_set_size_target(a0)), ShowNothing([&] { SearchFuncs::SetSizeTarget(a0); })};
        });
    }
}

TEST(SameInCAndCpp, search_set_size_range)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<int>();
            return Pair{ShowStatus(vyr_search_set_size_range(a0)), ShowNothing([&] { SearchFuncs::SetSizeRange(a0); })};
        });
    }
}

TEST(SameInCAndCpp, search_set_size_from_size)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<std::int64_t>();
            return Pair{ShowStatus(vyr_search_set_size_from_size(a0)), ShowNothing([&] { SearchFuncs::SetSizeFromSize(a0); })};
        });
    }
}

TEST(SameInCAndCpp, search_set_size_to_size)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<std::int64_t>();
            return Pair{ShowStatus(vyr_search_set_size_to_size(a0)), ShowNothing([&] { SearchFuncs::SetSizeToSize(a0); })};
        });
    }
}

TEST(SameInCAndCpp, updates_initialize_updates_information)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            return Pair{ShowStatus(vyr_updates_initialize_updates_information()), ShowNothing([&] { UpdatesFuncs::InitializeUpdatesInformation(); })};
        });
    }
}

TEST(SameInCAndCpp, updates_set_type)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            return Pair{ShowStatus(vyr_updates_set_type(InC(a0).units, InC(a0).length)), ShowNothing([&] { UpdatesFuncs::SetType(a0); })};
        });
    }
}

TEST(SameInCAndCpp, updates_set_product_name)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            return Pair{ShowStatus(vyr_updates_set_product_name(InC(a0).units, InC(a0).length)), ShowNothing([&] { UpdatesFuncs::SetProductName(a0); })};
        });
    }
}

TEST(SameInCAndCpp, updates_set_version)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            return Pair{ShowStatus(vyr_updates_set_version(InC(a0).units, InC(a0).length)), ShowNothing([&] { UpdatesFuncs::SetVersion(a0); })};
        });
    }
}

TEST(SameInCAndCpp, updates_set_edition)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            return Pair{ShowStatus(vyr_updates_set_edition(InC(a0).units, InC(a0).length)), ShowNothing([&] { UpdatesFuncs::SetEdition(a0); })};
        });
    }
}

TEST(SameInCAndCpp, updates_set_platform_bit)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            return Pair{ShowStatus(vyr_updates_set_platform_bit(InC(a0).units, InC(a0).length)), ShowNothing([&] { UpdatesFuncs::SetPlatformBit(a0); })};
        });
    }
}

TEST(SameInCAndCpp, updates_set_details_url)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            return Pair{ShowStatus(vyr_updates_set_details_url(InC(a0).units, InC(a0).length)), ShowNothing([&] { UpdatesFuncs::SetDetailsURL(a0); })};
        });
    }
}

TEST(SameInCAndCpp, updates_set_download_url)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            return Pair{ShowStatus(vyr_updates_set_download_url(InC(a0).units, InC(a0).length)), ShowNothing([&] { UpdatesFuncs::SetDownloadURL(a0); })};
        });
    }
}

TEST(SameInCAndCpp, updates_set_update_items_list)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const std::vector<UpdatesFuncs::UPDATEITEM> a0{values.Next<UpdatesFuncs::UPDATEITEM>(), values.Next<UpdatesFuncs::UPDATEITEM>()};
            const vyr_updates_item c0[] = {InC(a0[0]), InC(a0[1])};
            return Pair{ShowStatus(vyr_updates_set_update_items_list(c0, 2)), ShowNothing([&] { UpdatesFuncs::SetUpdateItemsList(a0); })};
        });
    }
}

TEST(SameInCAndCpp, updates_set_checked_date)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            return Pair{ShowStatus(vyr_updates_set_checked_date(InC(a0).units, InC(a0).length)), ShowNothing([&] { UpdatesFuncs::SetCheckedDate(a0); })};
        });
    }
}

TEST(SameInCAndCpp, updates_load_check_for_updates_date)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            return Pair{ShowStatus(vyr_updates_load_check_for_updates_date()), ShowNothing([&] { UpdatesFuncs::LoadCheckForUpdatesDate(); })};
        });
    }
}

TEST(SameInCAndCpp, style_initialize_styles_information)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            return Pair{ShowStatus(vyr_style_initialize_styles_information()), ShowNothing([&] { StyleFuncs::InitializeStylesInformation(); })};
        });
    }
}

TEST(SameInCAndCpp, style_set_design_items_list)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const std::vector<StyleFuncs::DESIGNITEM> a0{values.Next<StyleFuncs::DESIGNITEM>(), values.Next<StyleFuncs::DESIGNITEM>()};
            const vyr_style_item c0[] = {InC(a0[0]), InC(a0[1])};
            return Pair{ShowStatus(vyr_style_set_design_items_list(c0, 2)), ShowNothing([&] { StyleFuncs::SetDesignItemsList(a0); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_doctype_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_doctype_tag(buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetDoctypeTag(); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_saved_from_url_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_saved_from_url_tag(buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetSavedFromUrlTag(); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_html_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_html_tag(InC(a0).units, InC(a0).length, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetHtmlTag(a0); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_html_closing_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_html_closing_tag(buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetHtmlClosingTag(); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_head_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_head_tag(buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetHeadTag(); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_head_closing_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_head_closing_tag(buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetHeadClosingTag(); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_meta_xua_compatible_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_meta_xua_compatible_tag(InC(a0).units, InC(a0).length, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetMetaXUACompatibleTag(a0); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_meta_content_type_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_meta_content_type_tag(InC(a0).units, InC(a0).length, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetMetaContentTypeTag(a0); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_meta_generator_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_meta_generator_tag(InC(a0).units, InC(a0).length, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetMetaGeneratorTag(a0); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_link_css_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_link_css_tag(InC(a0).units, InC(a0).length, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetLinkCSSTag(a0); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_script_src_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_script_src_tag(InC(a0).units, InC(a0).length, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetScriptSrcTag(a0); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_script_closing_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_script_closing_tag(buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetScriptClosingTag(); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_script_src_pair_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_script_src_pair_tag(InC(a0).units, InC(a0).length, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetScriptSrcPairTag(a0); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_title_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_title_tag(InC(a0).units, InC(a0).length, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetTitleTag(a0); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_body_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_body_tag(buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetBodyTag(); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_body_tag_with_attributes)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_body_tag_with_attributes(InC(a0).units, InC(a0).length, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetBodyTag(a0); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_body_closing_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_body_closing_tag(buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetBodyClosingTag(); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_header_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const auto a1 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_header_tag(InC(a0).units, InC(a0).length, InC(a1).units, InC(a1).length, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetHeaderTag(a0, a1); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_header_closing_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_header_closing_tag(buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetHeaderClosingTag(); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_footer_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const auto a1 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_footer_tag(InC(a0).units, InC(a0).length, InC(a1).units, InC(a1).length, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetFooterTag(a0, a1); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_footer_closing_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_footer_closing_tag(buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetFooterClosingTag(); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_h1_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_h1_tag(InC(a0).units, InC(a0).length, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetH1Tag(a0); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_h1_closing_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_h1_closing_tag(buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetH1ClosingTag(); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_h1_pair_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const auto a1 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_h1_pair_tag(InC(a0).units, InC(a0).length, InC(a1).units, InC(a1).length, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetH1PairTag(a0, a1); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_p_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_p_tag(buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetPTag(); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_p_tag_with_class_name)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_p_tag_with_class_name(InC(a0).units, InC(a0).length, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetPTag(a0); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_p_closing_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_p_closing_tag(buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetPClosingTag(); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_span_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_span_tag(buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetSpanTag(); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_span_tag_with_class_name)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_span_tag_with_class_name(InC(a0).units, InC(a0).length, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetSpanTag(a0); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_span_tag_with_class_name_id)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const auto a1 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_span_tag_with_class_name_id(InC(a0).units, InC(a0).length, InC(a1).units, InC(a1).length, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetSpanTag(a0, a1); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_span_closing_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<int>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_span_closing_tag(a0, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetSpanClosingTag(a0); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_span_pair_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const auto a1 = values.Next<CString>();
            const auto a2 = values.Next<int>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_span_pair_tag(InC(a0).units, InC(a0).length, InC(a1).units, InC(a1).length, a2, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetSpanPairTag(a0, a1, a2); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_span_pair_tag_with_id)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const auto a1 = values.Next<CString>();
            const auto a2 = values.Next<CString>();
            const auto a3 = values.Next<int>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_span_pair_tag_with_id(InC(a0).units, InC(a0).length, InC(a1).units, InC(a1).length, InC(a2).units, InC(a2).length, a3, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetSpanPairTag(a0, a1, a2, a3); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_div_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_div_tag(buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetDivTag(); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_div_tag_with_class_name)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_div_tag_with_class_name(InC(a0).units, InC(a0).length, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetDivTag(a0); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_div_tag_with_class_name_id)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const auto a1 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_div_tag_with_class_name_id(InC(a0).units, InC(a0).length, InC(a1).units, InC(a1).length, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetDivTag(a0, a1); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_div_tag_with_class_name_id_attributes)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const auto a1 = values.Next<CString>();
            const auto a2 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_div_tag_with_class_name_id_attributes(InC(a0).units, InC(a0).length, InC(a1).units, InC(a1).length, InC(a2).units, InC(a2).length, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetDivTag(a0, a1, a2); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_div_closing_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<int>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_div_closing_tag(a0, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetDivClosingTag(a0); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_div_pair_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const auto a1 = values.Next<CString>();
            const auto a2 = values.Next<int>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_div_pair_tag(InC(a0).units, InC(a0).length, InC(a1).units, InC(a1).length, a2, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetDivPairTag(a0, a1, a2); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_div_pair_tag_with_id)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const auto a1 = values.Next<CString>();
            const auto a2 = values.Next<CString>();
            const auto a3 = values.Next<int>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_div_pair_tag_with_id(InC(a0).units, InC(a0).length, InC(a1).units, InC(a1).length, InC(a2).units, InC(a2).length, a3, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetDivPairTag(a0, a1, a2, a3); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_div_pair_tag_with_id_attributes)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const auto a1 = values.Next<CString>();
            const auto a2 = values.Next<CString>();
            const auto a3 = values.Next<CString>();
            const auto a4 = values.Next<int>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_div_pair_tag_with_id_attributes(InC(a0).units, InC(a0).length, InC(a1).units, InC(a1).length, InC(a2).units, InC(a2).length, InC(a3).units, InC(a3).length, a4, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetDivPairTag(a0, a1, a2, a3, a4); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_br_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<int>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_br_tag(a0, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetBrTag(a0); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_a_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_a_tag(InC(a0).units, InC(a0).length, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetATag(a0); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_a_tag_with_class_name)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const auto a1 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_a_tag_with_class_name(InC(a0).units, InC(a0).length, InC(a1).units, InC(a1).length, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetATag(a0, a1); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_a_tag_with_class_name_target)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const auto a1 = values.Next<CString>();
            const auto a2 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_a_tag_with_class_name_target(InC(a0).units, InC(a0).length, InC(a1).units, InC(a1).length, InC(a2).units, InC(a2).length, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetATag(a0, a1, a2); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_a_closing_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_a_closing_tag(buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetAClosingTag(); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_a_pair_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const auto a1 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_a_pair_tag(InC(a0).units, InC(a0).length, InC(a1).units, InC(a1).length, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetAPairTag(a0, a1); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_a_pair_tag_with_class_name)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const auto a1 = values.Next<CString>();
            const auto a2 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_a_pair_tag_with_class_name(InC(a0).units, InC(a0).length, InC(a1).units, InC(a1).length, InC(a2).units, InC(a2).length, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetAPairTag(a0, a1, a2); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_a_pair_tag_with_class_name_target)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const auto a1 = values.Next<CString>();
            const auto a2 = values.Next<CString>();
            const auto a3 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_a_pair_tag_with_class_name_target(InC(a0).units, InC(a0).length, InC(a1).units, InC(a1).length, InC(a2).units, InC(a2).length, InC(a3).units, InC(a3).length, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetAPairTag(a0, a1, a2, a3); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_img_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const auto a1 = values.Next<int>();
            const auto a2 = values.Next<int>();
            const auto a3 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_img_tag(InC(a0).units, InC(a0).length, a1, a2, InC(a3).units, InC(a3).length, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetImgTag(a0, a1, a2, a3); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_img_tag_with_class_name)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const auto a1 = values.Next<CString>();
            const auto a2 = values.Next<int>();
            const auto a3 = values.Next<int>();
            const auto a4 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_img_tag_with_class_name(InC(a0).units, InC(a0).length, InC(a1).units, InC(a1).length, a2, a3, InC(a4).units, InC(a4).length, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetImgTag(a0, a1, a2, a3, a4); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_img_tag_with_class_name_id)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const auto a1 = values.Next<CString>();
            const auto a2 = values.Next<int>();
            const auto a3 = values.Next<int>();
            const auto a4 = values.Next<CString>();
            const auto a5 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_img_tag_with_class_name_id(InC(a0).units, InC(a0).length, InC(a1).units, InC(a1).length, a2, a3, InC(a4).units, InC(a4).length, InC(a5).units, InC(a5).length, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetImgTag(a0, a1, a2, a3, a4, a5); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_img_tag_with_class_name_id_title)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const auto a1 = values.Next<CString>();
            const auto a2 = values.Next<int>();
            const auto a3 = values.Next<int>();
            const auto a4 = values.Next<CString>();
            const auto a5 = values.Next<CString>();
            const auto a6 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_img_tag_with_class_name_id_title(InC(a0).units, InC(a0).length, InC(a1).units, InC(a1).length, a2, a3, InC(a4).units, InC(a4).length, InC(a5).units, InC(a5).length, InC(a6).units, InC(a6).length, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetImgTag(a0, a1, a2, a3, a4, a5, a6); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_table_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const auto a1 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_table_tag(InC(a0).units, InC(a0).length, InC(a1).units, InC(a1).length, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetTableTag(a0, a1); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_table_closing_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_table_closing_tag(buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetTableClosingTag(); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_thead_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_thead_tag(buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetTheadTag(); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_thead_closing_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_thead_closing_tag(buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetTheadClosingTag(); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_tbody_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_tbody_tag(buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetTbodyTag(); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_tbody_closing_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_tbody_closing_tag(buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetTbodyClosingTag(); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_tr_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_tr_tag(buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetTrTag(); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_tr_tag_with_class_name)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_tr_tag_with_class_name(InC(a0).units, InC(a0).length, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetTrTag(a0); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_tr_tag_with_class_name_id)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const auto a1 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_tr_tag_with_class_name_id(InC(a0).units, InC(a0).length, InC(a1).units, InC(a1).length, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetTrTag(a0, a1); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_tr_closing_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_tr_closing_tag(buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetTrClosingTag(); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_tr_pair_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_tr_pair_tag(InC(a0).units, InC(a0).length, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetTrPairTag(a0); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_tr_pair_tag_with_class_name)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const auto a1 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_tr_pair_tag_with_class_name(InC(a0).units, InC(a0).length, InC(a1).units, InC(a1).length, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetTrPairTag(a0, a1); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_tr_pair_tag_with_class_name_id)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const auto a1 = values.Next<CString>();
            const auto a2 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_tr_pair_tag_with_class_name_id(InC(a0).units, InC(a0).length, InC(a1).units, InC(a1).length, InC(a2).units, InC(a2).length, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetTrPairTag(a0, a1, a2); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_th_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_th_tag(InC(a0).units, InC(a0).length, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetThTag(a0); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_th_closing_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_th_closing_tag(buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetThClosingTag(); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_th_pair_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const auto a1 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_th_pair_tag(InC(a0).units, InC(a0).length, InC(a1).units, InC(a1).length, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetThPairTag(a0, a1); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_td_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_td_tag(buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetTdTag(); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_td_tag_with_class_name)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_td_tag_with_class_name(InC(a0).units, InC(a0).length, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetTdTag(a0); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_td_tag_with_class_name_id)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const auto a1 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_td_tag_with_class_name_id(InC(a0).units, InC(a0).length, InC(a1).units, InC(a1).length, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetTdTag(a0, a1); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_td_tag_with_class_name_id_attributes)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const auto a1 = values.Next<CString>();
            const auto a2 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_td_tag_with_class_name_id_attributes(InC(a0).units, InC(a0).length, InC(a1).units, InC(a1).length, InC(a2).units, InC(a2).length, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetTdTag(a0, a1, a2); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_td_tag_with_class_name_id_width_height)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const auto a1 = values.Next<CString>();
            const auto a2 = values.Next<int>();
            const auto a3 = values.Next<int>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_td_tag_with_class_name_id_width_height(InC(a0).units, InC(a0).length, InC(a1).units, InC(a1).length, a2, a3, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetTdTag(a0, a1, a2, a3); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_td_col_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const auto a1 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_td_col_tag(InC(a0).units, InC(a0).length, InC(a1).units, InC(a1).length, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetTdColTag(a0, a1); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_td_col_tag_with_attributes)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const auto a1 = values.Next<CString>();
            const auto a2 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_td_col_tag_with_attributes(InC(a0).units, InC(a0).length, InC(a1).units, InC(a1).length, InC(a2).units, InC(a2).length, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetTdColTag(a0, a1, a2); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_td_closing_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_td_closing_tag(buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetTdClosingTag(); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_td_pair_tag)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_td_pair_tag(InC(a0).units, InC(a0).length, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetTdPairTag(a0); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_td_pair_tag_with_class_name)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const auto a1 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_td_pair_tag_with_class_name(InC(a0).units, InC(a0).length, InC(a1).units, InC(a1).length, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetTdPairTag(a0, a1); })};
        });
    }
}

TEST(SameInCAndCpp, html_get_td_pair_tag_with_class_name_id)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const auto a1 = values.Next<CString>();
            const auto a2 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_html_get_td_pair_tag_with_class_name_id(InC(a0).units, InC(a0).length, InC(a1).units, InC(a1).length, InC(a2).units, InC(a2).length, buffer, capacity, length); }), ShowCpp([&] { return HtmlFuncs::GetTdPairTag(a0, a1, a2); })};
        });
    }
}

TEST(SameInCAndCpp, output_get_output_file_path)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_output_get_output_file_path(buffer, capacity, length); }), ShowCpp([&] { return OutputFuncs::GetOutputFilePath(); })};
        });
    }
}

TEST(SameInCAndCpp, output_get_output_filter_index)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            return Pair{ShowNumber<int32_t>([&](int32_t* place) { return vyr_output_get_output_filter_index(place); }), ShowCpp([&] { return OutputFuncs::GetOutputFilterIndex(); })};
        });
    }
}

TEST(SameInCAndCpp, output_get_generator_output_string)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_output_get_generator_output_string(buffer, capacity, length); }), ShowCpp([&] { return OutputFuncs::GetGeneratorOutputString(); })};
        });
    }
}

TEST(SameInCAndCpp, output_get_generator_output_string_with_name)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_output_get_generator_output_string_with_name(InC(a0).units, InC(a0).length, buffer, capacity, length); }), ShowCpp([&] { return OutputFuncs::GetGeneratorOutputString(a0); })};
        });
    }
}

TEST(SameInCAndCpp, output_get_property_size)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<int>();
            const auto a1 = values.Next<int>();
            return Pair{ShowNumber<int32_t>([&](int32_t* place) { return vyr_output_get_property_size(a0, a1, place); }), ShowCpp([&] { return OutputFuncs::GetPropertySize(a0, a1); })};
        });
    }
}

TEST(SameInCAndCpp, output_get_dialog_property_width)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<int>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_output_get_dialog_property_width(a0, buffer, capacity, length); }), ShowCpp([&] { return OutputFuncs::GetDialogPropertyWidth(a0); })};
        });
    }
}

TEST(SameInCAndCpp, attributes_get_selected_read_only_attributes)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            return Pair{ShowNumber<int32_t>([&](int32_t* place) { return vyr_attributes_get_selected_read_only_attributes(InC(a0).units, InC(a0).length, place); }), ShowCpp([&] { return AttributesFuncs::GetSelectedReadOnlyAttributes(a0); })};
        });
    }
}

TEST(SameInCAndCpp, attributes_get_selected_hidden_attributes)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            return Pair{ShowNumber<int32_t>([&](int32_t* place) { return vyr_attributes_get_selected_hidden_attributes(InC(a0).units, InC(a0).length, place); }), ShowCpp([&] { return AttributesFuncs::GetSelectedHiddenAttributes(a0); })};
        });
    }
}

TEST(SameInCAndCpp, attributes_get_selected_system_attributes)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            return Pair{ShowNumber<int32_t>([&](int32_t* place) { return vyr_attributes_get_selected_system_attributes(InC(a0).units, InC(a0).length, place); }), ShowCpp([&] { return AttributesFuncs::GetSelectedSystemAttributes(a0); })};
        });
    }
}

TEST(SameInCAndCpp, attributes_get_selected_archive_attributes)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            return Pair{ShowNumber<int32_t>([&](int32_t* place) { return vyr_attributes_get_selected_archive_attributes(InC(a0).units, InC(a0).length, place); }), ShowCpp([&] { return AttributesFuncs::GetSelectedArchiveAttributes(a0); })};
        });
    }
}

TEST(SameInCAndCpp, attributes_get_selected_temporary_attributes)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            return Pair{ShowNumber<int32_t>([&](int32_t* place) { return vyr_attributes_get_selected_temporary_attributes(InC(a0).units, InC(a0).length, place); }), ShowCpp([&] { return AttributesFuncs::GetSelectedTemporaryAttributes(a0); })};
        });
    }
}

TEST(SameInCAndCpp, attributes_get_selected_not_content_indexed_attributes)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            return Pair{ShowNumber<int32_t>([&](int32_t* place) { return vyr_attributes_get_selected_not_content_indexed_attributes(InC(a0).units, InC(a0).length, place); }), ShowCpp([&] { return AttributesFuncs::GetSelectedNotContentIndexedAttributes(a0); })};
        });
    }
}

TEST(SameInCAndCpp, attributes_get_arrtibutes_priority)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            return Pair{ShowNumber<int32_t>([&](int32_t* place) { return vyr_attributes_get_arrtibutes_priority(InC(a0).units, InC(a0).length, place); }), ShowCpp([&] { return AttributesFuncs::GetArrtibutesPriority(a0); })};
        });
    }
}

TEST(SameInCAndCpp, date_time_get_other_date_time)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const auto a1 = values.Next<int>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_date_time_get_other_date_time(InC(a0).units, InC(a0).length, a1, buffer, capacity, length); }), ShowCpp([&] { return DateTimeFuncs::GetOtherDateTime(a0, a1); })};
        });
    }
}

TEST(SameInCAndCpp, date_time_get_selected_file_date_time)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const auto a1 = values.Next<int>();
            const auto a2 = values.Next<int>();
            return Pair{ShowNumber<uint64_t>([&](uint64_t* place) { return vyr_date_time_get_selected_file_date_time(InC(a0).units, InC(a0).length, a1, a2, place); }), ShowCpp([&] { return DateTimeFuncs::GetSelectedFileDateTime(a0, a1, a2); })};
        });
    }
}

TEST(SameInCAndCpp, date_time_get_modified_file_date_time)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const auto a1 = values.Next<int>();
            const auto a2 = values.Next<COleDateTime>();
            const auto a3 = values.Next<COleDateTime>();
            const auto a4 = values.Next<int>();
            return Pair{ShowNumber<uint64_t>([&](uint64_t* place) { return vyr_date_time_get_modified_file_date_time(InC(a0).units, InC(a0).length, a1, InC(a2).days, InC(a2).status, InC(a3).days, InC(a3).status, a4, place); }), ShowCpp([&] { return DateTimeFuncs::GetModifiedFileDateTime(a0, a1, a2, a3, a4); })};
        });
    }
}

TEST(SameInCAndCpp, date_time_get_stagger_file_date_time)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<int>();
            const auto a1 = values.Next<int>();
            const auto a2 = values.Next<COleDateTime>();
            const auto a3 = values.Next<DateTimeFuncs::STAGGERITEM>();
            const vyr_date_time_stagger_item c3 = InC(a3);
            return Pair{ShowNumber<uint64_t>([&](uint64_t* place) { return vyr_date_time_get_stagger_file_date_time(a0, a1, InC(a2).days, InC(a2).status, &c3, place); }), ShowCpp([&] { return DateTimeFuncs::GetStaggerFileDateTime(a0, a1, a2, a3); })};
        });
    }
}

TEST(SameInCAndCpp, date_time_get_cal_date_time)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<COleDateTime>();
            const auto a1 = values.Next<int>();
            const auto a2 = values.Next<int>();
            const auto a3 = values.Next<int>();
            return Pair{ShowNumber<vyr_date_time>([&](vyr_date_time* place) { return vyr_date_time_get_cal_date_time(InC(a0).days, InC(a0).status, a1, a2, a3, place); }), ShowCpp([&] { return DateTimeFuncs::GetCalDateTime(a0, a1, a2, a3); })};
        });
    }
}

TEST(SameInCAndCpp, date_time_get_time_difference_date_time)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<COleDateTime>();
            const auto a1 = values.Next<int>();
            return Pair{ShowNumber<vyr_date_time>([&](vyr_date_time* place) { return vyr_date_time_get_time_difference_date_time(InC(a0).days, InC(a0).status, a1, place); }), ShowCpp([&] { return DateTimeFuncs::GetTimeDifferenceDateTime(a0, a1); })};
        });
    }
}

TEST(SameInCAndCpp, date_time_get_yesterday_date_time)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<COleDateTime>();
            return Pair{ShowNumber<vyr_date_time>([&](vyr_date_time* place) { return vyr_date_time_get_yesterday_date_time(InC(a0).days, InC(a0).status, place); }), ShowCpp([&] { return DateTimeFuncs::GetYesterdayDateTime(a0); })};
        });
    }
}

TEST(SameInCAndCpp, date_time_get_last_month_date_time)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<COleDateTime>();
            return Pair{ShowNumber<vyr_date_time>([&](vyr_date_time* place) { return vyr_date_time_get_last_month_date_time(InC(a0).days, InC(a0).status, place); }), ShowCpp([&] { return DateTimeFuncs::GetLastMonthDateTime(a0); })};
        });
    }
}

TEST(SameInCAndCpp, date_time_get_last_year_date_time)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<COleDateTime>();
            return Pair{ShowNumber<vyr_date_time>([&](vyr_date_time* place) { return vyr_date_time_get_last_year_date_time(InC(a0).days, InC(a0).status, place); }), ShowCpp([&] { return DateTimeFuncs::GetLastYearDateTime(a0); })};
        });
    }
}

TEST(SameInCAndCpp, date_time_get_begin_this_week_date_time)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<COleDateTime>();
            return Pair{ShowNumber<vyr_date_time>([&](vyr_date_time* place) { return vyr_date_time_get_begin_this_week_date_time(InC(a0).days, InC(a0).status, place); }), ShowCpp([&] { return DateTimeFuncs::GetBeginThisWeekDateTime(a0); })};
        });
    }
}

TEST(SameInCAndCpp, date_time_get_begin_last_week_date_time)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<COleDateTime>();
            return Pair{ShowNumber<vyr_date_time>([&](vyr_date_time* place) { return vyr_date_time_get_begin_last_week_date_time(InC(a0).days, InC(a0).status, place); }), ShowCpp([&] { return DateTimeFuncs::GetBeginLastWeekDateTime(a0); })};
        });
    }
}

TEST(SameInCAndCpp, date_time_get_end_week_date_time)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<COleDateTime>();
            return Pair{ShowNumber<vyr_date_time>([&](vyr_date_time* place) { return vyr_date_time_get_end_week_date_time(InC(a0).days, InC(a0).status, place); }), ShowCpp([&] { return DateTimeFuncs::GetEndWeekDateTime(a0); })};
        });
    }
}

TEST(SameInCAndCpp, date_time_is_match_date_month)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<COleDateTime>();
            const auto a1 = values.Next<COleDateTime>();
            return Pair{ShowNumber<int32_t>([&](int32_t* place) { return vyr_date_time_is_match_date_month(InC(a0).days, InC(a0).status, InC(a1).days, InC(a1).status, place); }), ShowCpp([&] { return DateTimeFuncs::IsMatchDateMonth(a0, a1); })};
        });
    }
}

TEST(SameInCAndCpp, date_time_is_match_date)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<COleDateTime>();
            const auto a1 = values.Next<COleDateTime>();
            return Pair{ShowNumber<int32_t>([&](int32_t* place) { return vyr_date_time_is_match_date(InC(a0).days, InC(a0).status, InC(a1).days, InC(a1).status, place); }), ShowCpp([&] { return DateTimeFuncs::IsMatchDate(a0, a1); })};
        });
    }
}

TEST(SameInCAndCpp, office_property_get_class_id_item_list)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const std::vector<std::pair<CString, int>> a0{values.Next<std::pair<CString, int>>(), values.Next<std::pair<CString, int>>()};
            const vyr_text_and_number c0[] = {InC(a0[0]), InC(a0[1])};
            return Pair{ShowList<vyr_office_property_handler>([&](vyr_list* list) { return vyr_office_property_get_class_id_item_list(c0, 2, list); }, &vyr_office_property_handler_get), ShowCpp([&] { return OfficePropertyFuncs::GetClassIdItemList(a0); })};
        });
    }
}

TEST(SameInCAndCpp, office_property_get_class_id)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const std::vector<OfficePropertyFuncs::CLSID_ITEM> a1{values.Next<OfficePropertyFuncs::CLSID_ITEM>(), values.Next<OfficePropertyFuncs::CLSID_ITEM>()};
            const vyr_office_property_handler c1[] = {InC(a1[0]), InC(a1[1])};
            return Pair{ShowNumber<vyr_guid>([&](vyr_guid* place) { return vyr_office_property_get_class_id(InC(a0).units, InC(a0).length, c1, 2, place); }), ShowCpp([&] { return OfficePropertyFuncs::GetClassId(a0, a1); })};
        });
    }
}

TEST(SameInCAndCpp, office_property_get_property_handler_reg_key)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_office_property_get_property_handler_reg_key(InC(a0).units, InC(a0).length, buffer, capacity, length); }), ShowCpp([&] { return OfficePropertyFuncs::GetPropertyHandlerRegKey(a0); })};
        });
    }
}

TEST(SameInCAndCpp, name_get_rename_file_path)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<NameFuncs::ITEM>();
            const vyr_name_item c0 = InC(a0);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_name_get_rename_file_path(&c0, buffer, capacity, length); }), ShowCpp([&] { return NameFuncs::GetRenameFilePath(a0); })};
        });
    }
}

TEST(SameInCAndCpp, name_get_rename_file_paths)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const std::vector<NameFuncs::ITEM> a0{values.Next<NameFuncs::ITEM>(), values.Next<NameFuncs::ITEM>()};
            const vyr_name_item c0[] = {InC(a0[0]), InC(a0[1])};
            return Pair{ShowList<vyr_text>([&](vyr_list* list) { return vyr_name_get_rename_file_paths(c0, 2, list); }, &vyr_text_get), ShowCpp([&] { return Each(a0, &NameFuncs::GetRenameFilePath); })};
        });
    }
}

TEST(SameInCAndCpp, name_get_f_name)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_name_get_f_name(InC(a0).units, InC(a0).length, buffer, capacity, length); }), ShowCpp([&] { return NameFuncs::GetFName(a0); })};
        });
    }
}

TEST(SameInCAndCpp, name_get_extension)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_name_get_extension(InC(a0).units, InC(a0).length, buffer, capacity, length); }), ShowCpp([&] { return NameFuncs::GetExtension(a0); })};
        });
    }
}

TEST(SameInCAndCpp, name_is_resolve_conflict)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<NameFuncs::ITEM>();
            const vyr_name_item c0 = InC(a0);
            return Pair{ShowNumber<int32_t>([&](int32_t* place) { return vyr_name_is_resolve_conflict(&c0, place); }), ShowCpp([&] { return NameFuncs::IsResolveConflict(a0); })};
        });
    }
}

TEST(SameInCAndCpp, name_get_sequence_number_file_path)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<NameFuncs::ITEM>();
            const vyr_name_item c0 = InC(a0);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_name_get_sequence_number_file_path(&c0, buffer, capacity, length); }), ShowCpp([&] { return NameFuncs::GetSequenceNumberFilePath(a0); })};
        });
    }
}

TEST(SameInCAndCpp, name_get_date_time_file_path)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<NameFuncs::ITEM>();
            const vyr_name_item c0 = InC(a0);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_name_get_date_time_file_path(&c0, buffer, capacity, length); }), ShowCpp([&] { return NameFuncs::GetDateTimeFilePath(a0); })};
        });
    }
}

TEST(SameInCAndCpp, name_get_add_delete_file_path)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<NameFuncs::ITEM>();
            const vyr_name_item c0 = InC(a0);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_name_get_add_delete_file_path(&c0, buffer, capacity, length); }), ShowCpp([&] { return NameFuncs::GetAddDeleteFilePath(a0); })};
        });
    }
}

TEST(SameInCAndCpp, name_get_convert_file_path)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<NameFuncs::ITEM>();
            const vyr_name_item c0 = InC(a0);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_name_get_convert_file_path(&c0, buffer, capacity, length); }), ShowCpp([&] { return NameFuncs::GetConvertFilePath(a0); })};
        });
    }
}

TEST(SameInCAndCpp, name_get_replace_file_path)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<NameFuncs::ITEM>();
            const vyr_name_item c0 = InC(a0);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_name_get_replace_file_path(&c0, buffer, capacity, length); }), ShowCpp([&] { return NameFuncs::GetReplaceFilePath(a0); })};
        });
    }
}

TEST(SameInCAndCpp, name_get_extension_file_path)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<NameFuncs::ITEM>();
            const vyr_name_item c0 = InC(a0);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_name_get_extension_file_path(&c0, buffer, capacity, length); }), ShowCpp([&] { return NameFuncs::GetExtensionFilePath(a0); })};
        });
    }
}

TEST(SameInCAndCpp, name_get_resolve_conflict_file_path)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const auto a1 = values.Next<NameFuncs::CONFLICTITEM>();
            const vyr_name_conflict_item c1 = InC(a1);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_name_get_resolve_conflict_file_path(InC(a0).units, InC(a0).length, &c1, buffer, capacity, length); }), ShowCpp([&] { return NameFuncs::GetResolveConflictFilePath(a0, a1); })};
        });
    }
}

TEST(SameInCAndCpp, name_get_rename_to_sample_formated)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_name_get_rename_to_sample_formated(InC(a0).units, InC(a0).length, buffer, capacity, length); }), ShowCpp([&] { return NameFuncs::GetRenameToSampleFormated(a0); })};
        });
    }
}

TEST(SameInCAndCpp, name_get_date_time_format)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const auto a1 = values.Next<CString>();
            const auto a2 = values.Next<int>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_name_get_date_time_format(InC(a0).units, InC(a0).length, InC(a1).units, InC(a1).length, a2, buffer, capacity, length); }), ShowCpp([&] { return NameFuncs::GetDateTimeFormat(a0, a1, a2); })};
        });
    }
}

TEST(SameInCAndCpp, name_get_folder_format)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_name_get_folder_format(InC(a0).units, InC(a0).length, buffer, capacity, length); }), ShowCpp([&] { return NameFuncs::GetFolderFormat(a0); })};
        });
    }
}

TEST(SameInCAndCpp, name_get_exif_format)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const auto a1 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_name_get_exif_format(InC(a0).units, InC(a0).length, InC(a1).units, InC(a1).length, buffer, capacity, length); }), ShowCpp([&] { return NameFuncs::GetExifFormat(a0, a1); })};
        });
    }
}

TEST(SameInCAndCpp, programs_get_programs_features_items_list)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<int>();
            const auto a1 = values.Next<int>();
            return Pair{ShowList<vyr_programs_item>([&](vyr_list* list) { return vyr_programs_get_programs_features_items_list(a0, a1, list); }, &vyr_programs_item_get), ShowCpp([&] { return ProgramsFeaturesFuncs::GetProgramsFeaturesItemsList(a0, a1); })};
        });
    }
}

TEST(SameInCAndCpp, programs_get_programs_features_windows_installer_items_list)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<int>();
            return Pair{ShowList<vyr_programs_item>([&](vyr_list* list) { return vyr_programs_get_programs_features_windows_installer_items_list(a0, list); }, &vyr_programs_item_get), ShowCpp([&] { return ProgramsFeaturesFuncs::GetProgramsFeaturesWindowsInstallerItemsList(a0); })};
        });
    }
}

TEST(SameInCAndCpp, programs_get_list_view_item_text)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<int>();
            const auto a1 = values.Next<ProgramsFeaturesFuncs::ITEM>();
            const vyr_programs_item c1 = InC(a1);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_programs_get_list_view_item_text(a0, &c1, buffer, capacity, length); }), ShowCpp([&] { return ProgramsFeaturesFuncs::GetListViewItemText(a0, a1); })};
        });
    }
}

TEST(SameInCAndCpp, programs_get_programs_features_installer_products_items_list)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            return Pair{ShowList<vyr_programs_product>([&](vyr_list* list) { return vyr_programs_get_programs_features_installer_products_items_list(list); }, &vyr_programs_product_get), ShowCpp([&] { return ProgramsFeaturesFuncs::GetProgramsFeaturesInstallerProductsItemsList(); })};
        });
    }
}

TEST(SameInCAndCpp, programs_get_product_icon)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const auto a1 = values.Next<CString>();
            const std::vector<ProgramsFeaturesFuncs::INSTALLER_PRODUCTS_ITEM> a2{values.Next<ProgramsFeaturesFuncs::INSTALLER_PRODUCTS_ITEM>(), values.Next<ProgramsFeaturesFuncs::INSTALLER_PRODUCTS_ITEM>()};
            const vyr_programs_product c2[] = {InC(a2[0]), InC(a2[1])};

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_programs_get_product_icon(InC(a0).units, InC(a0).length, InC(a1).units, InC(a1).length, c2, 2, buffer, capacity, length); }), ShowCpp([&] { return ProgramsFeaturesFuncs::GetProductIcon(a0, a1, a2); })};
        });
    }
}

TEST(SameInCAndCpp, programs_get_application_icon)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            std::int32_t number = 0;
            return Pair{ShowTextAndNumber([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_programs_get_application_icon(InC(a0).units, InC(a0).length, buffer, capacity, length, &number); }, number), ShowCpp([&] { return ProgramsFeaturesFuncs::GetApplicationIcon(a0); })};
        });
    }
}

TEST(SameInCAndCpp, programs_get_install_date)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const auto a1 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_programs_get_install_date(InC(a0).units, InC(a0).length, InC(a1).units, InC(a1).length, buffer, capacity, length); }), ShowCpp([&] { return ProgramsFeaturesFuncs::GetInstallDate(a0, a1); })};
        });
    }
}

TEST(SameInCAndCpp, programs_get_formated_size)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const auto a1 = values.Next<std::uint64_t>();
            const auto a2 = values.Next<int>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_programs_get_formated_size(InC(a0).units, InC(a0).length, a1, a2, buffer, capacity, length); }), ShowCpp([&] { return ProgramsFeaturesFuncs::GetFormatedSize(a0, a1, a2); })};
        });
    }
}

TEST(SameInCAndCpp, programs_compare_reg_key)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const auto a1 = values.Next<CString>();
            const auto a2 = values.Next<int>();
            const auto a3 = values.Next<int>();
            const auto a4 = values.Next<int>();
            return Pair{ShowNumber<int32_t>([&](int32_t* place) { return vyr_programs_compare_reg_key(InC(a0).units, InC(a0).length, InC(a1).units, InC(a1).length, a2, a3, a4, place); }), ShowCpp([&] { return ProgramsFeaturesFuncs::CompareRegKey(a0, a1, a2, a3, a4); })};
        });
    }
}

TEST(SameInCAndCpp, programs_get_key_parent_name)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<HKEY>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_programs_get_key_parent_name(reinterpret_cast<std::intptr_t>(a0), buffer, capacity, length); }), ShowCpp([&] { return ProgramsFeaturesFuncs::GetKeyParentName(a0); })};
        });
    }
}

TEST(SameInCAndCpp, programs_is_wow6432_node)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            return Pair{ShowNumber<int32_t>([&](int32_t* place) { return vyr_programs_is_wow6432_node(InC(a0).units, InC(a0).length, place); }), ShowCpp([&] { return ProgramsFeaturesFuncs::IsWow6432Node(a0); })};
        });
    }
}

TEST(SameInCAndCpp, programs_get_icon_folder_name)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_programs_get_icon_folder_name(buffer, capacity, length); }), ShowCpp([&] { return ProgramsFeaturesFuncs::GetIconFolderName(); })};
        });
    }
}

TEST(SameInCAndCpp, programs_get_output_file_path)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_programs_get_output_file_path(buffer, capacity, length); }), ShowCpp([&] { return ProgramsFeaturesFuncs::GetOutputFilePath(); })};
        });
    }
}

TEST(SameInCAndCpp, programs_get_open_output_file)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            return Pair{ShowNumber<int32_t>([&](int32_t* place) { return vyr_programs_get_open_output_file(place); }), ShowCpp([&] { return ProgramsFeaturesFuncs::GetOpenOutputFile(); })};
        });
    }
}

TEST(SameInCAndCpp, registry_get_product_reg_key)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const auto a1 = values.Next<CString>();
            const auto a2 = values.Next<int>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_registry_get_product_reg_key(InC(a0).units, InC(a0).length, InC(a1).units, InC(a1).length, a2, buffer, capacity, length); }), ShowCpp([&] { return RegistryFuncs::GetProductRegKey(a0, a1, a2); })};
        });
    }
}

TEST(SameInCAndCpp, registry_get_uninstall_product_reg_key)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_registry_get_uninstall_product_reg_key(InC(a0).units, InC(a0).length, buffer, capacity, length); }), ShowCpp([&] { return RegistryFuncs::GetUninstallProductRegKey(a0); })};
        });
    }
}

TEST(SameInCAndCpp, registry_get_product_install_date)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_registry_get_product_install_date(InC(a0).units, InC(a0).length, buffer, capacity, length); }), ShowCpp([&] { return RegistryFuncs::GetProductInstallDate(a0); })};
        });
    }
}

TEST(SameInCAndCpp, column_is_visible_column)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            CListCtrl a0;
            const auto a1 = values.Next<CString>();
            return Pair{ShowNumber<int32_t>([&](int32_t* place) { return vyr_column_is_visible_column(0, InC(a1).units, InC(a1).length, place); }), ShowCpp([&] { return ColumnFuncs::IsVisibleColumn(a0, a1); })};
        });
    }
}

TEST(SameInCAndCpp, column_get_column_header_item)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            CListCtrl a0;
            const auto a1 = values.Next<CString>();
            return Pair{ShowNumber<int32_t>([&](int32_t* place) { return vyr_column_get_column_header_item(0, InC(a1).units, InC(a1).length, place); }), ShowCpp([&] { return ColumnFuncs::GetColumnHeaderItem(a0, a1); })};
        });
    }
}

TEST(SameInCAndCpp, column_get_column_item_order)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            CListCtrl a0;
            const auto a1 = values.Next<CString>();
            return Pair{ShowNumber<int32_t>([&](int32_t* place) { return vyr_column_get_column_item_order(0, InC(a1).units, InC(a1).length, place); }), ShowCpp([&] { return ColumnFuncs::GetColumnItemOrder(a0, a1); })};
        });
    }
}

TEST(SameInCAndCpp, column_get_column_item_text)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            CListCtrl a0;
            const auto a1 = values.Next<int>();

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_column_get_column_item_text(0, a1, buffer, capacity, length); }), ShowCpp([&] { return ColumnFuncs::GetColumnItemText(a0, a1); })};
        });
    }
}

TEST(SameInCAndCpp, filter_is_match)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const auto a1 = values.Next<int>();
            const std::vector<FilterFuncs::FILTERITEM> a2{values.Next<FilterFuncs::FILTERITEM>(), values.Next<FilterFuncs::FILTERITEM>()};
            const vyr_filter_condition c2[] = {InC(a2[0]), InC(a2[1])};
            return Pair{ShowNumber<int32_t>([&](int32_t* place) { return vyr_filter_is_match(InC(a0).units, InC(a0).length, a1, c2, 2, place); }), ShowCpp([&] { return FilterFuncs::IsMatch(a0, a1, a2); })};
        });
    }
}

TEST(SameInCAndCpp, filter_is_match_name)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const auto a1 = values.Next<int>();
            const std::vector<FilterFuncs::FILTERITEM> a2{values.Next<FilterFuncs::FILTERITEM>(), values.Next<FilterFuncs::FILTERITEM>()};
            const vyr_filter_condition c2[] = {InC(a2[0]), InC(a2[1])};
            return Pair{ShowNumber<int32_t>([&](int32_t* place) { return vyr_filter_is_match_name(InC(a0).units, InC(a0).length, a1, c2, 2, place); }), ShowCpp([&] { return FilterFuncs::IsMatchName(a0, a1, a2); })};
        });
    }
}

TEST(SameInCAndCpp, filter_is_already_added)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const std::vector<CString> a1{values.Next<CString>(), values.Next<CString>()};
            const vyr_text c1[] = {InC(a1[0]), InC(a1[1])};
            return Pair{ShowNumber<int32_t>([&](int32_t* place) { return vyr_filter_is_already_added(InC(a0).units, InC(a0).length, c1, 2, place); }), ShowCpp([&] { return FilterFuncs::IsAlreadyAdded(a0, a1); })};
        });
    }
}

TEST(SameInCAndCpp, search_is_match_path)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const auto a1 = values.Next<int>();
            return Pair{ShowNumber<int32_t>([&](int32_t* place) { return vyr_search_is_match_path(InC(a0).units, InC(a0).length, a1, place); }), ShowCpp([&] { return SearchFuncs::IsMatch(a0, a1); })};
        });
    }
}

TEST(SameInCAndCpp, search_is_match)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<SearchFuncs::ITEM>();
            const vyr_search_item c0 = InC(a0);
            return Pair{ShowNumber<int32_t>([&](int32_t* place) { return vyr_search_is_match(&c0, place); }), ShowCpp([&] { return SearchFuncs::IsMatch(a0); })};
        });
    }
}

TEST(SameInCAndCpp, search_is_match_date_time)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            return Pair{ShowNumber<int32_t>([&](int32_t* place) { return vyr_search_is_match_date_time(InC(a0).units, InC(a0).length, place); }), ShowCpp([&] { return SearchFuncs::IsMatchDateTime(a0); })};
        });
    }
}

TEST(SameInCAndCpp, search_is_match_date_time_value)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<COleDateTime>();
            return Pair{ShowNumber<int32_t>([&](int32_t* place) { return vyr_search_is_match_date_time_value(InC(a0).days, InC(a0).status, place); }), ShowCpp([&] { return SearchFuncs::IsMatchDateTime(a0); })};
        });
    }
}

TEST(SameInCAndCpp, search_is_match_size_path)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            const auto a1 = values.Next<int>();
            return Pair{ShowNumber<int32_t>([&](int32_t* place) { return vyr_search_is_match_size_path(InC(a0).units, InC(a0).length, a1, place); }), ShowCpp([&] { return SearchFuncs::IsMatchSize(a0, a1); })};
        });
    }
}

TEST(SameInCAndCpp, search_is_match_size)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<std::int64_t>();
            return Pair{ShowNumber<int32_t>([&](int32_t* place) { return vyr_search_is_match_size(a0, place); }), ShowCpp([&] { return SearchFuncs::IsMatchSize(a0); })};
        });
    }
}

TEST(SameInCAndCpp, search_get_search_closed)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            return Pair{ShowNumber<int32_t>([&](int32_t* place) { return vyr_search_get_search_closed(place); }), ShowCpp([&] { return SearchFuncs::GetSearchClosed(); })};
        });
    }
}

TEST(SameInCAndCpp, search_get_date_time_search)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            return Pair{ShowNumber<int32_t>([&](int32_t* place) { return vyr_search_get_date_time_search(place); }), ShowCpp([&] { return SearchFuncs::GetDateTimeSearch(); })};
        });
    }
}

TEST(SameInCAndCpp, search_get_date_time_target)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            return Pair{ShowNumber<int32_t>([&](int32_t* place) { return vyr_search_get_date_time_target(place); }), ShowCpp([&] { return SearchFuncs::GetDateTimeTarget(); })};
        });
    }
}

TEST(SameInCAndCpp, search_get_date_time_range)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            return Pair{ShowNumber<int32_t>([&](int32_t* place) { return vyr_search_get_date_time_range(place); }), ShowCpp([&] { return SearchFuncs::GetDateTimeRange(); })};
        });
    }
}

TEST(SameInCAndCpp, search_get_date_time_from_date_time)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            return Pair{ShowNumber<vyr_date_time>([&](vyr_date_time* place) { return vyr_search_get_date_time_from_date_time(place); }), ShowCpp([&] { return SearchFuncs::GetDateTimeFromDateTime(); })};
        });
    }
}

TEST(SameInCAndCpp, search_get_date_time_to_date_time)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            return Pair{ShowNumber<vyr_date_time>([&](vyr_date_time* place) { return vyr_search_get_date_time_to_date_time(place); }), ShowCpp([&] { return SearchFuncs::GetDateTimeToDateTime(); })};
        });
    }
}

TEST(SameInCAndCpp, search_get_size_search)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            return Pair{ShowNumber<int32_t>([&](int32_t* place) { return vyr_search_get_size_search(place); }), ShowCpp([&] { return SearchFuncs::GetSizeSearch(); })};
        });
    }
}

TEST(SameInCAndCpp, search_get_size_target)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            return Pair{ShowNumber<int32_t>([&](int32_t* place) { return vyr_search_get_size_target(place); }), ShowCpp([&] { return SearchFuncs::GetSizeTarget(); })};
        });
    }
}

TEST(SameInCAndCpp, search_get_size_range)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            return Pair{ShowNumber<int32_t>([&](int32_t* place) { return vyr_search_get_size_range(place); }), ShowCpp([&] { return SearchFuncs::GetSizeRange(); })};
        });
    }
}

TEST(SameInCAndCpp, search_get_size_from_size)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            return Pair{ShowNumber<int64_t>([&](int64_t* place) { return vyr_search_get_size_from_size(place); }), ShowCpp([&] { return SearchFuncs::GetSizeFromSize(); })};
        });
    }
}

TEST(SameInCAndCpp, search_get_size_to_size)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            return Pair{ShowNumber<int64_t>([&](int64_t* place) { return vyr_search_get_size_to_size(place); }), ShowCpp([&] { return SearchFuncs::GetSizeToSize(); })};
        });
    }
}

TEST(SameInCAndCpp, browser_get_browser_items_list)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            return Pair{ShowList<vyr_browser_app_item>([&](vyr_list* list) { return vyr_browser_get_browser_items_list(list); }, &vyr_browser_app_item_get), ShowCpp([&] { return BrowserFuncs::GetBrowserItemsList(); })};
        });
    }
}

TEST(SameInCAndCpp, browser_get_microsoft_edge_app_item)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            return Pair{ShowList<vyr_browser_app_item>([&](vyr_list* list) { return vyr_browser_get_microsoft_edge_app_item(list); }, &vyr_browser_app_item_get), ShowCpp([&] { return std::vector{BrowserFuncs::GetMicrosoftEdgeAppItem()}; })};
        });
    }
}

TEST(SameInCAndCpp, browser_is_installed_microsoft_edge_chromium)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            return Pair{ShowNumber<int32_t>([&](int32_t* place) { return vyr_browser_is_installed_microsoft_edge_chromium(place); }), ShowCpp([&] { return BrowserFuncs::IsInstalledMicrosoftEdgeChromium(); })};
        });
    }
}

TEST(SameInCAndCpp, log_get_log_file_name)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_log_get_log_file_name(buffer, capacity, length); }), ShowCpp([&] { return LogFuncs::GetLogFileName(); })};
        });
    }
}

TEST(SameInCAndCpp, log_get_application_log_file_path)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_log_get_application_log_file_path(buffer, capacity, length); }), ShowCpp([&] { return LogFuncs::GetApplicationLogFilePath(); })};
        });
    }
}

TEST(SameInCAndCpp, application_get_local_data_application_version)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_application_get_local_data_application_version(buffer, capacity, length); }), ShowCpp([&] { return ApplicationFuncs::GetLocalDataApplicationVersion(); })};
        });
    }
}

TEST(SameInCAndCpp, application_is_alpha_version)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            return Pair{ShowNumber<int32_t>([&](int32_t* place) { return vyr_application_is_alpha_version(place); }), ShowCpp([&] { return ApplicationFuncs::IsAlphaVersion(); })};
        });
    }
}

TEST(SameInCAndCpp, application_is_beta_version)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            return Pair{ShowNumber<int32_t>([&](int32_t* place) { return vyr_application_is_beta_version(place); }), ShowCpp([&] { return ApplicationFuncs::IsBetaVersion(); })};
        });
    }
}

TEST(SameInCAndCpp, application_is_release_candidate_version)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            return Pair{ShowNumber<int32_t>([&](int32_t* place) { return vyr_application_is_release_candidate_version(place); }), ShowCpp([&] { return ApplicationFuncs::IsReleaseCandidateVersion(); })};
        });
    }
}

TEST(SameInCAndCpp, application_is_release_to_manufacturing_version)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            return Pair{ShowNumber<int32_t>([&](int32_t* place) { return vyr_application_is_release_to_manufacturing_version(place); }), ShowCpp([&] { return ApplicationFuncs::IsReleaseToManufacturingVersion(); })};
        });
    }
}

TEST(SameInCAndCpp, application_is_release_version)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            return Pair{ShowNumber<int32_t>([&](int32_t* place) { return vyr_application_is_release_version(place); }), ShowCpp([&] { return ApplicationFuncs::IsReleaseVersion(); })};
        });
    }
}

TEST(SameInCAndCpp, application_is_product_release_version)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            return Pair{ShowNumber<int32_t>([&](int32_t* place) { return vyr_application_is_product_release_version(place); }), ShowCpp([&] { return ApplicationFuncs::IsProductReleaseVersion(); })};
        });
    }
}

TEST(SameInCAndCpp, application_get_online_support_url)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_application_get_online_support_url(buffer, capacity, length); }), ShowCpp([&] { return ApplicationFuncs::GetOnlineSupportUrl(); })};
        });
    }
}

TEST(SameInCAndCpp, application_get_send_feedback_url)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_application_get_send_feedback_url(buffer, capacity, length); }), ShowCpp([&] { return ApplicationFuncs::GetSendFeedbackUrl(); })};
        });
    }
}

TEST(SameInCAndCpp, application_get_send_questionnaire_url)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_application_get_send_questionnaire_url(buffer, capacity, length); }), ShowCpp([&] { return ApplicationFuncs::GetSendQuestionnaireUrl(); })};
        });
    }
}

TEST(SameInCAndCpp, updates_get_type)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_updates_get_type(buffer, capacity, length); }), ShowCpp([&] { return UpdatesFuncs::GetType(); })};
        });
    }
}

TEST(SameInCAndCpp, updates_get_product_name)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_updates_get_product_name(buffer, capacity, length); }), ShowCpp([&] { return UpdatesFuncs::GetProductName(); })};
        });
    }
}

TEST(SameInCAndCpp, updates_get_version)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_updates_get_version(buffer, capacity, length); }), ShowCpp([&] { return UpdatesFuncs::GetVersion(); })};
        });
    }
}

TEST(SameInCAndCpp, updates_get_edition)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_updates_get_edition(buffer, capacity, length); }), ShowCpp([&] { return UpdatesFuncs::GetEdition(); })};
        });
    }
}

TEST(SameInCAndCpp, updates_get_platform_bit)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_updates_get_platform_bit(buffer, capacity, length); }), ShowCpp([&] { return UpdatesFuncs::GetPlatformBit(); })};
        });
    }
}

TEST(SameInCAndCpp, updates_get_details_url)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_updates_get_details_url(buffer, capacity, length); }), ShowCpp([&] { return UpdatesFuncs::GetDetailsURL(); })};
        });
    }
}

TEST(SameInCAndCpp, updates_get_download_url)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_updates_get_download_url(buffer, capacity, length); }), ShowCpp([&] { return UpdatesFuncs::GetDownloadURL(); })};
        });
    }
}

TEST(SameInCAndCpp, updates_get_update_items_list)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            return Pair{ShowList<vyr_updates_item>([&](vyr_list* list) { return vyr_updates_get_update_items_list(list); }, &vyr_updates_item_get), ShowCpp([&] { return UpdatesFuncs::GetUpdateItemsList(); })};
        });
    }
}

TEST(SameInCAndCpp, updates_get_checked_date)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_updates_get_checked_date(buffer, capacity, length); }), ShowCpp([&] { return UpdatesFuncs::GetCheckedDate(); })};
        });
    }
}

TEST(SameInCAndCpp, updates_check_for_updates)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            return Pair{ShowNumber<int32_t>([&](int32_t* place) { return vyr_updates_check_for_updates(InC(a0).units, InC(a0).length, place); }), ShowCpp([&] { return UpdatesFuncs::CheckForUpdates(a0); })};
        });
    }
}

TEST(SameInCAndCpp, updates_get_check_for_updates_url)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);

            return Pair{ShowText([&](std::uint16_t* buffer, std::size_t capacity, std::size_t* length) { return vyr_updates_get_check_for_updates_url(buffer, capacity, length); }), ShowCpp([&] { return UpdatesFuncs::GetCheckForUpdatesUrl(); })};
        });
    }
}

TEST(SameInCAndCpp, updates_get_agree_ignore_server)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            return Pair{ShowNumber<int32_t>([&](int32_t* place) { return vyr_updates_get_agree_ignore_server(place); }), ShowCpp([&] { return UpdatesFuncs::GetAgreeIgnoreServer(); })};
        });
    }
}

TEST(SameInCAndCpp, updates_get_updates_information)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            return Pair{ShowNumber<int32_t>([&](int32_t* place) { return vyr_updates_get_updates_information(InC(a0).units, InC(a0).length, place); }), ShowCpp([&] { return UpdatesFuncs::GetUpdatesInformation(a0); })};
        });
    }
}

TEST(SameInCAndCpp, updates_is_date_interval_check_for_updates)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<int>();
            return Pair{ShowNumber<int32_t>([&](int32_t* place) { return vyr_updates_is_date_interval_check_for_updates(a0, place); }), ShowCpp([&] { return UpdatesFuncs::IsDateIntervalCheckForUpdates(a0); })};
        });
    }
}

TEST(SameInCAndCpp, msxml_load_xml_file)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            return Pair{ShowNumber<void*>([&](void** place) { return vyr_msxml_load_xml_file(InC(a0).units, InC(a0).length, place); }), ShowCpp([&] { return MSXMLFuncs::LoadXmlFile(a0); })};
        });
    }
}

TEST(SameInCAndCpp, msxml_load_xslt_file)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            return Pair{ShowNumber<void*>([&](void** place) { return vyr_msxml_load_xslt_file(InC(a0).units, InC(a0).length, place); }), ShowCpp([&] { return MSXMLFuncs::LoadXsltFile(a0); })};
        });
    }
}

TEST(SameInCAndCpp, style_get_styles_information)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            const auto a0 = values.Next<CString>();
            return Pair{ShowNumber<int32_t>([&](int32_t* place) { return vyr_style_get_styles_information(InC(a0).units, InC(a0).length, place); }), ShowCpp([&] { return StyleFuncs::GetStylesInformation(a0); })};
        });
    }
}

TEST(SameInCAndCpp, style_get_design_items_list)
{
    for (int round = 0; round < rounds; ++round) {
        ExpectSame([&] {
            Values values(round);
            return Pair{ShowList<vyr_style_item>([&](vyr_list* list) { return vyr_style_get_design_items_list(list); }, &vyr_style_item_get), ShowCpp([&] { return StyleFuncs::GetDesignItemsList(); })};
        });
    }
}
