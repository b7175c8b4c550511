// The functions of vyr.h; written by VyrC/generate from VyrC/interface.txt.
// clang-format off
#include <VyrC/Marshal.h>
#include <VyrC/PropertyValue.h>
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
#include <VyrC/XmlNodes.h>
#include <VyrC/HostLists.h>
#include <VyrC/HostRegistry.h>
#include <VyrC/HostQueue.h>

#include <cstddef>
#include <list>
#include <utility>
#include <vector>

using namespace VyrC;
using namespace VyrLibraryFuncs;

namespace {

const AttributesFuncs::ATTRIBUTESITEM& ToCpp(const vyr_attributes_item* record, const char* argument)
{
    RequireRecord(record, argument, sizeof(vyr_attributes_item));
    AttributesFuncs::ATTRIBUTESITEM& kept = LastOf<AttributesFuncs::ATTRIBUTESITEM>();
    kept.readOnly = record->read_only;
    kept.hidden = record->hidden;
    kept.system = record->system;
    kept.archive = record->archive;
    kept.temporary = record->temporary;
    kept.notContentIndexed = record->not_content_indexed;
    return kept;
}

const DateTimeFuncs::STAGGERITEM& ToCpp(const vyr_date_time_stagger_item* record, const char* argument)
{
    RequireRecord(record, argument, sizeof(vyr_date_time_stagger_item));
    DateTimeFuncs::STAGGERITEM& kept = LastOf<DateTimeFuncs::STAGGERITEM>();
    kept.useStartDateTime = record->use_start_date_time;
    kept.startDate = ToDateTime(record->start_date, argument);
    kept.startTime = ToDateTime(record->start_time, argument);
    kept.numberingMode = record->numbering_mode;
    kept.direction = record->direction;
    kept.startNumber = record->start_number;
    kept.years = record->years;
    kept.months = record->months;
    kept.days = record->days;
    kept.hours = record->hours;
    kept.minutes = record->minutes;
    kept.seconds = record->seconds;
    return kept;
}

const OfficePropertyFuncs::CLSID_ITEM& ToCpp(const vyr_office_property_handler* record, const char* argument)
{
    RequireRecord(record, argument, sizeof(vyr_office_property_handler));
    OfficePropertyFuncs::CLSID_ITEM& kept = LastOf<OfficePropertyFuncs::CLSID_ITEM>();
    Keep(kept.extension, record->extension, argument);
    kept.clsid = ToGuid(record->clsid);
    kept.flag = record->flag;
    return kept;
}

const NameFuncs::ITEM& ToCpp(const vyr_name_item* record, const char* argument)
{
    RequireRecord(record, argument, sizeof(vyr_name_item));
    NameFuncs::ITEM& kept = LastOf<NameFuncs::ITEM>();
    Keep(kept.filePath, record->file_path, argument);
    Keep(kept.auxText1, record->aux_text1, argument);
    Keep(kept.auxText2, record->aux_text2, argument);
    Keep(kept.auxText3, record->aux_text3, argument);
    Keep(kept.auxText4, record->aux_text4, argument);
    Keep(kept.dirPath, record->dir_path, argument);
    Keep(kept.fileName, record->file_name, argument);
    Keep(kept.extension, record->extension, argument);
    kept.index = record->index;
    kept.renameType = record->rename_type;
    kept.numberPosition = record->number_position;
    Keep(kept.numberText1, record->number_text1, argument);
    Keep(kept.numberText2, record->number_text2, argument);
    kept.startNumber = record->start_number;
    kept.digits = record->digits;
    kept.step = record->step;
    kept.dateTimePosition = record->date_time_position;
    kept.dateTimeTarget = record->date_time_target;
    Keep(kept.dateTimeFormat, record->date_time_format, argument);
    kept.addDeleteType = record->add_delete_type;
    kept.position = record->position;
    kept.deleteCount = record->delete_count;
    Keep(kept.addText, record->add_text, argument);
    kept.convertType = record->convert_type;
    Keep(kept.findText, record->find_text, argument);
    Keep(kept.replaceText, record->replace_text, argument);
    kept.extensionType = record->extension_type;
    Keep(kept.newExtension, record->new_extension, argument);
    return kept;
}

const NameFuncs::CONFLICTITEM& ToCpp(const vyr_name_conflict_item* record, const char* argument)
{
    RequireRecord(record, argument, sizeof(vyr_name_conflict_item));
    NameFuncs::CONFLICTITEM& kept = LastOf<NameFuncs::CONFLICTITEM>();
    Keep(kept.numberFormat, record->number_format, argument);
    kept.position = record->position;
    kept.startNumber = record->start_number;
    kept.step = record->step;
    return kept;
}

const ProgramsFeaturesFuncs::ITEM& ToCpp(const vyr_programs_item* record, const char* argument)
{
    RequireRecord(record, argument, sizeof(vyr_programs_item));
    ProgramsFeaturesFuncs::ITEM& kept = LastOf<ProgramsFeaturesFuncs::ITEM>();
    Keep(kept.KeyName, record->key_name, argument);
    Keep(kept.SubKeyName, record->sub_key_name, argument);
    Keep(kept.DisplayIcon, record->display_icon, argument);
    Keep(kept.DisplayName, record->display_name, argument);
    Keep(kept.DisplayNameLocalized, record->display_name_localized, argument);
    Keep(kept.DisplayVersion, record->display_version, argument);
    Keep(kept.InstallLocation, record->install_location, argument);
    Keep(kept.Publisher, record->publisher, argument);
    Keep(kept.URLInfoAbout, record->url_info_about, argument);
    Keep(kept.URLUpdateInfo, record->url_update_info, argument);
    Keep(kept.Comments, record->comments, argument);
    Keep(kept.Contact, record->contact, argument);
    Keep(kept.HelpLink, record->help_link, argument);
    Keep(kept.HelpTelephone, record->help_telephone, argument);
    Keep(kept.InstallDate, record->install_date, argument);
    Keep(kept.InstallSource, record->install_source, argument);
    Keep(kept.Readme, record->readme, argument);
    Keep(kept.Unused18, record->unused18, argument);
    Keep(kept.Unused19, record->unused19, argument);
    Keep(kept.RegCompany, record->reg_company, argument);
    Keep(kept.RegOwner, record->reg_owner, argument);
    Keep(kept.Unused22, record->unused22, argument);
    Keep(kept.LastWriteTime, record->last_write_time, argument);
    Keep(kept.ParentDisplayName, record->parent_display_name, argument);
    Keep(kept.ParentKeyName, record->parent_key_name, argument);
    Keep(kept.UninstallString, record->uninstall_string, argument);
    Keep(kept.Unused27, record->unused27, argument);
    kept.EstimatedSizeBytes = record->estimated_size_bytes;
    kept.EstimatedSize = record->estimated_size;
    kept.SystemComponent = record->system_component;
    kept.WindowsInstaller = record->windows_installer;
    kept.VersionMajor = record->version_major;
    kept.VersionMinor = record->version_minor;
    kept.Unused34 = record->unused34;
    kept.Language = record->language;
    kept.NoModify = record->no_modify;
    kept.NoRepair = record->no_repair;
    kept.NoRemove = record->no_remove;
    kept.NoElevateOnModify = record->no_elevate_on_modify;
    Keep(kept.FullKeyName, record->full_key_name, argument);
    Keep(kept.FormattedSize, record->formatted_size, argument);
    Keep(kept.Unused42, record->unused42, argument);
    kept.IsWow6432Node = record->is_wow6432_node;
    return kept;
}

const ProgramsFeaturesFuncs::INSTALLER_PRODUCTS_ITEM& ToCpp(const vyr_programs_product* record, const char* argument)
{
    RequireRecord(record, argument, sizeof(vyr_programs_product));
    ProgramsFeaturesFuncs::INSTALLER_PRODUCTS_ITEM& kept = LastOf<ProgramsFeaturesFuncs::INSTALLER_PRODUCTS_ITEM>();
    Keep(kept.ProductKey, record->product_key, argument);
    Keep(kept.PackageCode, record->package_code, argument);
    Keep(kept.ProductName, record->product_name, argument);
    Keep(kept.ProductIcon, record->product_icon, argument);
    kept.DeploymentFlags = record->deployment_flags;
    kept.Language = record->language;
    kept.Version = record->version;
    return kept;
}

const FilterFuncs::FILTERITEM& ToCpp(const vyr_filter_condition* record, const char* argument)
{
    RequireRecord(record, argument, sizeof(vyr_filter_condition));
    FilterFuncs::FILTERITEM& kept = LastOf<FilterFuncs::FILTERITEM>();
    kept.filterValue = record->filter_value;
    kept.enabled = record->enabled;
    Keep(kept.text, record->text, argument);
    kept.condition = record->condition;
    kept.matchCase = record->match_case;
    return kept;
}

const SearchFuncs::ITEM& ToCpp(const vyr_search_item* record, const char* argument)
{
    RequireRecord(record, argument, sizeof(vyr_search_item));
    SearchFuncs::ITEM& kept = LastOf<SearchFuncs::ITEM>();
    kept.dateTime = ToDateTime(record->date_time, argument);
    kept.size = record->size;
    return kept;
}

const UpdatesFuncs::UPDATEITEM& ToCpp(const vyr_updates_item* record, const char* argument)
{
    RequireRecord(record, argument, sizeof(vyr_updates_item));
    UpdatesFuncs::UPDATEITEM& kept = LastOf<UpdatesFuncs::UPDATEITEM>();
    kept.category = record->category;
    Keep(kept.description, record->description, argument);
    return kept;
}

const StyleFuncs::DESIGNITEM& ToCpp(const vyr_style_item* record, const char* argument)
{
    RequireRecord(record, argument, sizeof(vyr_style_item));
    StyleFuncs::DESIGNITEM& kept = LastOf<StyleFuncs::DESIGNITEM>();
    kept.id = record->id;
    Keep(kept.value, record->value, argument);
    Keep(kept.name, record->name, argument);
    return kept;
}

const HostRegistry::HIVEFILES& ToCpp(const vyr_host_registry_hive_files* record, const char* argument)
{
    RequireRecord(record, argument, sizeof(vyr_host_registry_hive_files));
    HostRegistry::HIVEFILES& kept = LastOf<HostRegistry::HIVEFILES>();
    Keep(kept.software, record->software, argument);
    Keep(kept.system, record->system, argument);
    Keep(kept.user, record->user, argument);
    Keep(kept.userClasses, record->user_classes, argument);
    return kept;
}

} // namespace

vyr_status vyr_office_property_handler_get(vyr_list list, size_t index, vyr_office_property_handler* record)
{
    return Guard([&] {
        RequireRecord(record, "record", sizeof(vyr_office_property_handler));
        const auto held = Held(list);
        const auto& found = RecordAt<OfficePropertyFuncs::CLSID_ITEM>(held, index);
        record->extension = ToC(found.extension);
        record->clsid = ToC(found.clsid);
        record->flag = found.flag;
        return VYR_OK;
    });
}

vyr_status vyr_name_rename_item_get(vyr_list list, size_t index, vyr_name_rename_item* record)
{
    return Guard([&] {
        RequireRecord(record, "record", sizeof(vyr_name_rename_item));
        const auto held = Held(list);
        const auto& found = RecordAt<NameFuncs::RENAMEITEM>(held, index);
        record->source_path = ToC(found.sourcePath);
        record->destination_path = ToC(found.destinationPath);
        record->date_created = ToC(found.dateCreated);
        record->date_modified = ToC(found.dateModified);
        return VYR_OK;
    });
}

vyr_status vyr_programs_item_get(vyr_list list, size_t index, vyr_programs_item* record)
{
    return Guard([&] {
        RequireRecord(record, "record", sizeof(vyr_programs_item));
        const auto held = Held(list);
        const auto& found = RecordAt<ProgramsFeaturesFuncs::ITEM>(held, index);
        record->key_name = ToC(found.KeyName);
        record->sub_key_name = ToC(found.SubKeyName);
        record->display_icon = ToC(found.DisplayIcon);
        record->display_name = ToC(found.DisplayName);
        record->display_name_localized = ToC(found.DisplayNameLocalized);
        record->display_version = ToC(found.DisplayVersion);
        record->install_location = ToC(found.InstallLocation);
        record->publisher = ToC(found.Publisher);
        record->url_info_about = ToC(found.URLInfoAbout);
        record->url_update_info = ToC(found.URLUpdateInfo);
        record->comments = ToC(found.Comments);
        record->contact = ToC(found.Contact);
        record->help_link = ToC(found.HelpLink);
        record->help_telephone = ToC(found.HelpTelephone);
        record->install_date = ToC(found.InstallDate);
        record->install_source = ToC(found.InstallSource);
        record->readme = ToC(found.Readme);
        record->unused18 = ToC(found.Unused18);
        record->unused19 = ToC(found.Unused19);
        record->reg_company = ToC(found.RegCompany);
        record->reg_owner = ToC(found.RegOwner);
        record->unused22 = ToC(found.Unused22);
        record->last_write_time = ToC(found.LastWriteTime);
        record->parent_display_name = ToC(found.ParentDisplayName);
        record->parent_key_name = ToC(found.ParentKeyName);
        record->uninstall_string = ToC(found.UninstallString);
        record->unused27 = ToC(found.Unused27);
        record->estimated_size_bytes = found.EstimatedSizeBytes;
        record->estimated_size = found.EstimatedSize;
        record->system_component = found.SystemComponent;
        record->windows_installer = found.WindowsInstaller;
        record->version_major = found.VersionMajor;
        record->version_minor = found.VersionMinor;
        record->unused34 = found.Unused34;
        record->language = found.Language;
        record->no_modify = found.NoModify;
        record->no_repair = found.NoRepair;
        record->no_remove = found.NoRemove;
        record->no_elevate_on_modify = found.NoElevateOnModify;
        record->full_key_name = ToC(found.FullKeyName);
        record->formatted_size = ToC(found.FormattedSize);
        record->unused42 = ToC(found.Unused42);
        record->is_wow6432_node = found.IsWow6432Node;
        return VYR_OK;
    });
}

vyr_status vyr_programs_product_get(vyr_list list, size_t index, vyr_programs_product* record)
{
    return Guard([&] {
        RequireRecord(record, "record", sizeof(vyr_programs_product));
        const auto held = Held(list);
        const auto& found = RecordAt<ProgramsFeaturesFuncs::INSTALLER_PRODUCTS_ITEM>(held, index);
        record->product_key = ToC(found.ProductKey);
        record->package_code = ToC(found.PackageCode);
        record->product_name = ToC(found.ProductName);
        record->product_icon = ToC(found.ProductIcon);
        record->deployment_flags = found.DeploymentFlags;
        record->language = found.Language;
        record->version = found.Version;
        return VYR_OK;
    });
}

vyr_status vyr_browser_app_item_get(vyr_list list, size_t index, vyr_browser_app_item* record)
{
    return Guard([&] {
        RequireRecord(record, "record", sizeof(vyr_browser_app_item));
        const auto held = Held(list);
        const auto& found = RecordAt<BrowserFuncs::APPITEM>(held, index);
        record->app_type = found.AppType;
        record->app_key = ToC(found.AppKey);
        record->display_name = ToC(found.DisplayName);
        record->command = ToC(found.Command);
        record->executable_path = ToC(found.ExecutablePath);
        return VYR_OK;
    });
}

vyr_status vyr_updates_item_get(vyr_list list, size_t index, vyr_updates_item* record)
{
    return Guard([&] {
        RequireRecord(record, "record", sizeof(vyr_updates_item));
        const auto held = Held(list);
        const auto& found = RecordAt<UpdatesFuncs::UPDATEITEM>(held, index);
        record->category = found.category;
        record->description = ToC(found.description);
        return VYR_OK;
    });
}

vyr_status vyr_style_item_get(vyr_list list, size_t index, vyr_style_item* record)
{
    return Guard([&] {
        RequireRecord(record, "record", sizeof(vyr_style_item));
        const auto held = Held(list);
        const auto& found = RecordAt<StyleFuncs::DESIGNITEM>(held, index);
        record->id = found.id;
        record->value = ToC(found.value);
        record->name = ToC(found.name);
        return VYR_OK;
    });
}

vyr_status vyr_host_registry_open_result_get(vyr_list list, size_t index, vyr_host_registry_open_result* record)
{
    return Guard([&] {
        RequireRecord(record, "record", sizeof(vyr_host_registry_open_result));
        const auto held = Held(list);
        const auto& found = RecordAt<HostRegistry::OPENRESULT>(held, index);
        record->outcome = found.outcome;
        record->error = found.error;
        record->file = ToC(found.file);
        record->unclosed_files = ToC(found.unclosedFiles);
        return VYR_OK;
    });
}

vyr_status vyr_html_get_doctype_tag(uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(HtmlFuncs::GetDoctypeTag());
    });
}

vyr_status vyr_html_get_saved_from_url_tag(uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(HtmlFuncs::GetSavedFromUrlTag());
    });
}

vyr_status vyr_html_get_html_tag(
    const uint16_t* lang,
    ptrdiff_t lang_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(lang, lang_length, "lang");
        return textResult.Give(HtmlFuncs::GetHtmlTag(std::move(argument0)));
    });
}

vyr_status vyr_html_get_html_closing_tag(uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(HtmlFuncs::GetHtmlClosingTag());
    });
}

vyr_status vyr_html_get_head_tag(uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(HtmlFuncs::GetHeadTag());
    });
}

vyr_status vyr_html_get_head_closing_tag(uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(HtmlFuncs::GetHeadClosingTag());
    });
}

vyr_status vyr_html_get_meta_xua_compatible_tag(
    const uint16_t* mode,
    ptrdiff_t mode_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(mode, mode_length, "mode");
        return textResult.Give(HtmlFuncs::GetMetaXUACompatibleTag(std::move(argument0)));
    });
}

vyr_status vyr_html_get_meta_content_type_tag(
    const uint16_t* charset,
    ptrdiff_t charset_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(charset, charset_length, "charset");
        return textResult.Give(HtmlFuncs::GetMetaContentTypeTag(std::move(argument0)));
    });
}

vyr_status vyr_html_get_meta_generator_tag(
    const uint16_t* generator,
    ptrdiff_t generator_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(generator, generator_length, "generator");
        return textResult.Give(HtmlFuncs::GetMetaGeneratorTag(std::move(argument0)));
    });
}

vyr_status vyr_html_get_link_css_tag(
    const uint16_t* href,
    ptrdiff_t href_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(href, href_length, "href");
        return textResult.Give(HtmlFuncs::GetLinkCSSTag(std::move(argument0)));
    });
}

vyr_status vyr_html_get_script_src_tag(
    const uint16_t* src,
    ptrdiff_t src_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(src, src_length, "src");
        return textResult.Give(HtmlFuncs::GetScriptSrcTag(std::move(argument0)));
    });
}

vyr_status vyr_html_get_script_closing_tag(uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(HtmlFuncs::GetScriptClosingTag());
    });
}

vyr_status vyr_html_get_script_src_pair_tag(
    const uint16_t* src,
    ptrdiff_t src_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(src, src_length, "src");
        return textResult.Give(HtmlFuncs::GetScriptSrcPairTag(std::move(argument0)));
    });
}

vyr_status vyr_html_get_title_tag(
    const uint16_t* title,
    ptrdiff_t title_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(title, title_length, "title");
        return textResult.Give(HtmlFuncs::GetTitleTag(std::move(argument0)));
    });
}

vyr_status vyr_html_get_body_tag(uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(HtmlFuncs::GetBodyTag());
    });
}

vyr_status vyr_html_get_body_tag_with_attributes(
    const uint16_t* attributes,
    ptrdiff_t attributes_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(attributes, attributes_length, "attributes");
        return textResult.Give(HtmlFuncs::GetBodyTag(std::move(argument0)));
    });
}

vyr_status vyr_html_get_body_closing_tag(uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(HtmlFuncs::GetBodyClosingTag());
    });
}

vyr_status vyr_html_get_header_tag(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* id,
    ptrdiff_t id_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(class_name, class_name_length, "class_name");
        auto argument1 = ToText(id, id_length, "id");
        return textResult.Give(HtmlFuncs::GetHeaderTag(std::move(argument0), std::move(argument1)));
    });
}

vyr_status vyr_html_get_header_closing_tag(uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(HtmlFuncs::GetHeaderClosingTag());
    });
}

vyr_status vyr_html_get_footer_tag(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* id,
    ptrdiff_t id_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(class_name, class_name_length, "class_name");
        auto argument1 = ToText(id, id_length, "id");
        return textResult.Give(HtmlFuncs::GetFooterTag(std::move(argument0), std::move(argument1)));
    });
}

vyr_status vyr_html_get_footer_closing_tag(uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(HtmlFuncs::GetFooterClosingTag());
    });
}

vyr_status vyr_html_get_h1_tag(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(class_name, class_name_length, "class_name");
        return textResult.Give(HtmlFuncs::GetH1Tag(std::move(argument0)));
    });
}

vyr_status vyr_html_get_h1_closing_tag(uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(HtmlFuncs::GetH1ClosingTag());
    });
}

vyr_status vyr_html_get_h1_pair_tag(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* content,
    ptrdiff_t content_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(class_name, class_name_length, "class_name");
        auto argument1 = ToText(content, content_length, "content");
        return textResult.Give(HtmlFuncs::GetH1PairTag(std::move(argument0), std::move(argument1)));
    });
}

vyr_status vyr_html_get_p_tag(uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(HtmlFuncs::GetPTag());
    });
}

vyr_status vyr_html_get_p_tag_with_class_name(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(class_name, class_name_length, "class_name");
        return textResult.Give(HtmlFuncs::GetPTag(std::move(argument0)));
    });
}

vyr_status vyr_html_get_p_closing_tag(uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(HtmlFuncs::GetPClosingTag());
    });
}

vyr_status vyr_html_get_span_tag(uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(HtmlFuncs::GetSpanTag());
    });
}

vyr_status vyr_html_get_span_tag_with_class_name(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(class_name, class_name_length, "class_name");
        return textResult.Give(HtmlFuncs::GetSpanTag(std::move(argument0)));
    });
}

vyr_status vyr_html_get_span_tag_with_class_name_id(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* id,
    ptrdiff_t id_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(class_name, class_name_length, "class_name");
        auto argument1 = ToText(id, id_length, "id");
        return textResult.Give(HtmlFuncs::GetSpanTag(std::move(argument0), std::move(argument1)));
    });
}

vyr_status vyr_html_get_span_closing_tag(int32_t new_line, uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(HtmlFuncs::GetSpanClosingTag(new_line));
    });
}

vyr_status vyr_html_get_span_pair_tag(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* content,
    ptrdiff_t content_length,
    int32_t new_line,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(class_name, class_name_length, "class_name");
        auto argument1 = ToText(content, content_length, "content");
        return textResult.Give(HtmlFuncs::GetSpanPairTag(std::move(argument0), std::move(argument1), new_line));
    });
}

vyr_status vyr_html_get_span_pair_tag_with_id(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* id,
    ptrdiff_t id_length,
    const uint16_t* content,
    ptrdiff_t content_length,
    int32_t new_line,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(class_name, class_name_length, "class_name");
        auto argument1 = ToText(id, id_length, "id");
        auto argument2 = ToText(content, content_length, "content");
        return textResult.Give(HtmlFuncs::GetSpanPairTag(std::move(argument0), std::move(argument1), std::move(argument2), new_line));
    });
}

vyr_status vyr_html_get_div_tag(uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(HtmlFuncs::GetDivTag());
    });
}

vyr_status vyr_html_get_div_tag_with_class_name(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(class_name, class_name_length, "class_name");
        return textResult.Give(HtmlFuncs::GetDivTag(std::move(argument0)));
    });
}

vyr_status vyr_html_get_div_tag_with_class_name_id(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* id,
    ptrdiff_t id_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(class_name, class_name_length, "class_name");
        auto argument1 = ToText(id, id_length, "id");
        return textResult.Give(HtmlFuncs::GetDivTag(std::move(argument0), std::move(argument1)));
    });
}

vyr_status vyr_html_get_div_tag_with_class_name_id_attributes(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* id,
    ptrdiff_t id_length,
    const uint16_t* attributes,
    ptrdiff_t attributes_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(class_name, class_name_length, "class_name");
        auto argument1 = ToText(id, id_length, "id");
        auto argument2 = ToText(attributes, attributes_length, "attributes");
        return textResult.Give(HtmlFuncs::GetDivTag(std::move(argument0), std::move(argument1), std::move(argument2)));
    });
}

vyr_status vyr_html_get_div_closing_tag(int32_t new_line, uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(HtmlFuncs::GetDivClosingTag(new_line));
    });
}

vyr_status vyr_html_get_div_pair_tag(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* content,
    ptrdiff_t content_length,
    int32_t new_line,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(class_name, class_name_length, "class_name");
        auto argument1 = ToText(content, content_length, "content");
        return textResult.Give(HtmlFuncs::GetDivPairTag(std::move(argument0), std::move(argument1), new_line));
    });
}

vyr_status vyr_html_get_div_pair_tag_with_id(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* id,
    ptrdiff_t id_length,
    const uint16_t* content,
    ptrdiff_t content_length,
    int32_t new_line,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(class_name, class_name_length, "class_name");
        auto argument1 = ToText(id, id_length, "id");
        auto argument2 = ToText(content, content_length, "content");
        return textResult.Give(HtmlFuncs::GetDivPairTag(std::move(argument0), std::move(argument1), std::move(argument2), new_line));
    });
}

vyr_status vyr_html_get_div_pair_tag_with_id_attributes(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* id,
    ptrdiff_t id_length,
    const uint16_t* attributes,
    ptrdiff_t attributes_length,
    const uint16_t* content,
    ptrdiff_t content_length,
    int32_t new_line,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(class_name, class_name_length, "class_name");
        auto argument1 = ToText(id, id_length, "id");
        auto argument2 = ToText(attributes, attributes_length, "attributes");
        auto argument3 = ToText(content, content_length, "content");
        return textResult.Give(HtmlFuncs::GetDivPairTag(std::move(argument0), std::move(argument1), std::move(argument2), std::move(argument3), new_line));
    });
}

vyr_status vyr_html_get_br_tag(int32_t new_line, uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(HtmlFuncs::GetBrTag(new_line));
    });
}

vyr_status vyr_html_get_a_tag(
    const uint16_t* href,
    ptrdiff_t href_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(href, href_length, "href");
        return textResult.Give(HtmlFuncs::GetATag(std::move(argument0)));
    });
}

vyr_status vyr_html_get_a_tag_with_class_name(
    const uint16_t* href,
    ptrdiff_t href_length,
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(href, href_length, "href");
        auto argument1 = ToText(class_name, class_name_length, "class_name");
        return textResult.Give(HtmlFuncs::GetATag(std::move(argument0), std::move(argument1)));
    });
}

vyr_status vyr_html_get_a_tag_with_class_name_target(
    const uint16_t* href,
    ptrdiff_t href_length,
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* target,
    ptrdiff_t target_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(href, href_length, "href");
        auto argument1 = ToText(class_name, class_name_length, "class_name");
        auto argument2 = ToText(target, target_length, "target");
        return textResult.Give(HtmlFuncs::GetATag(std::move(argument0), std::move(argument1), std::move(argument2)));
    });
}

vyr_status vyr_html_get_a_closing_tag(uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(HtmlFuncs::GetAClosingTag());
    });
}

vyr_status vyr_html_get_a_pair_tag(
    const uint16_t* href,
    ptrdiff_t href_length,
    const uint16_t* content,
    ptrdiff_t content_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(href, href_length, "href");
        auto argument1 = ToText(content, content_length, "content");
        return textResult.Give(HtmlFuncs::GetAPairTag(std::move(argument0), std::move(argument1)));
    });
}

vyr_status vyr_html_get_a_pair_tag_with_class_name(
    const uint16_t* href,
    ptrdiff_t href_length,
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* content,
    ptrdiff_t content_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(href, href_length, "href");
        auto argument1 = ToText(class_name, class_name_length, "class_name");
        auto argument2 = ToText(content, content_length, "content");
        return textResult.Give(HtmlFuncs::GetAPairTag(std::move(argument0), std::move(argument1), std::move(argument2)));
    });
}

vyr_status vyr_html_get_a_pair_tag_with_class_name_target(
    const uint16_t* href,
    ptrdiff_t href_length,
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* target,
    ptrdiff_t target_length,
    const uint16_t* content,
    ptrdiff_t content_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(href, href_length, "href");
        auto argument1 = ToText(class_name, class_name_length, "class_name");
        auto argument2 = ToText(target, target_length, "target");
        auto argument3 = ToText(content, content_length, "content");
        return textResult.Give(HtmlFuncs::GetAPairTag(std::move(argument0), std::move(argument1), std::move(argument2), std::move(argument3)));
    });
}

vyr_status vyr_html_get_img_tag(
    const uint16_t* src,
    ptrdiff_t src_length,
    int32_t width,
    int32_t height,
    const uint16_t* alt,
    ptrdiff_t alt_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(src, src_length, "src");
        auto argument3 = ToText(alt, alt_length, "alt");
        return textResult.Give(HtmlFuncs::GetImgTag(std::move(argument0), width, height, std::move(argument3)));
    });
}

vyr_status vyr_html_get_img_tag_with_class_name(
    const uint16_t* src,
    ptrdiff_t src_length,
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    int32_t width,
    int32_t height,
    const uint16_t* alt,
    ptrdiff_t alt_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(src, src_length, "src");
        auto argument1 = ToText(class_name, class_name_length, "class_name");
        auto argument4 = ToText(alt, alt_length, "alt");
        return textResult.Give(HtmlFuncs::GetImgTag(std::move(argument0), std::move(argument1), width, height, std::move(argument4)));
    });
}

vyr_status vyr_html_get_img_tag_with_class_name_id(
    const uint16_t* src,
    ptrdiff_t src_length,
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    int32_t width,
    int32_t height,
    const uint16_t* alt,
    ptrdiff_t alt_length,
    const uint16_t* id,
    ptrdiff_t id_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(src, src_length, "src");
        auto argument1 = ToText(class_name, class_name_length, "class_name");
        auto argument4 = ToText(alt, alt_length, "alt");
        auto argument5 = ToText(id, id_length, "id");
        return textResult.Give(HtmlFuncs::GetImgTag(std::move(argument0), std::move(argument1), width, height, std::move(argument4), std::move(argument5)));
    });
}

vyr_status vyr_html_get_img_tag_with_class_name_id_title(
    const uint16_t* src,
    ptrdiff_t src_length,
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    int32_t width,
    int32_t height,
    const uint16_t* alt,
    ptrdiff_t alt_length,
    const uint16_t* id,
    ptrdiff_t id_length,
    const uint16_t* title,
    ptrdiff_t title_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(src, src_length, "src");
        auto argument1 = ToText(class_name, class_name_length, "class_name");
        auto argument4 = ToText(alt, alt_length, "alt");
        auto argument5 = ToText(id, id_length, "id");
        auto argument6 = ToText(title, title_length, "title");
        return textResult.Give(HtmlFuncs::GetImgTag(std::move(argument0), std::move(argument1), width, height, std::move(argument4), std::move(argument5), std::move(argument6)));
    });
}

vyr_status vyr_html_get_table_tag(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* id,
    ptrdiff_t id_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(class_name, class_name_length, "class_name");
        auto argument1 = ToText(id, id_length, "id");
        return textResult.Give(HtmlFuncs::GetTableTag(std::move(argument0), std::move(argument1)));
    });
}

vyr_status vyr_html_get_table_closing_tag(uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(HtmlFuncs::GetTableClosingTag());
    });
}

vyr_status vyr_html_get_thead_tag(uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(HtmlFuncs::GetTheadTag());
    });
}

vyr_status vyr_html_get_thead_closing_tag(uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(HtmlFuncs::GetTheadClosingTag());
    });
}

vyr_status vyr_html_get_tbody_tag(uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(HtmlFuncs::GetTbodyTag());
    });
}

vyr_status vyr_html_get_tbody_closing_tag(uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(HtmlFuncs::GetTbodyClosingTag());
    });
}

vyr_status vyr_html_get_tr_tag(uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(HtmlFuncs::GetTrTag());
    });
}

vyr_status vyr_html_get_tr_tag_with_class_name(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(class_name, class_name_length, "class_name");
        return textResult.Give(HtmlFuncs::GetTrTag(std::move(argument0)));
    });
}

vyr_status vyr_html_get_tr_tag_with_class_name_id(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* id,
    ptrdiff_t id_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(class_name, class_name_length, "class_name");
        auto argument1 = ToText(id, id_length, "id");
        return textResult.Give(HtmlFuncs::GetTrTag(std::move(argument0), std::move(argument1)));
    });
}

vyr_status vyr_html_get_tr_closing_tag(uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(HtmlFuncs::GetTrClosingTag());
    });
}

vyr_status vyr_html_get_tr_pair_tag(
    const uint16_t* content,
    ptrdiff_t content_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(content, content_length, "content");
        return textResult.Give(HtmlFuncs::GetTrPairTag(std::move(argument0)));
    });
}

vyr_status vyr_html_get_tr_pair_tag_with_class_name(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* content,
    ptrdiff_t content_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(class_name, class_name_length, "class_name");
        auto argument1 = ToText(content, content_length, "content");
        return textResult.Give(HtmlFuncs::GetTrPairTag(std::move(argument0), std::move(argument1)));
    });
}

vyr_status vyr_html_get_tr_pair_tag_with_class_name_id(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* id,
    ptrdiff_t id_length,
    const uint16_t* content,
    ptrdiff_t content_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(class_name, class_name_length, "class_name");
        auto argument1 = ToText(id, id_length, "id");
        auto argument2 = ToText(content, content_length, "content");
        return textResult.Give(HtmlFuncs::GetTrPairTag(std::move(argument0), std::move(argument1), std::move(argument2)));
    });
}

vyr_status vyr_html_get_th_tag(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(class_name, class_name_length, "class_name");
        return textResult.Give(HtmlFuncs::GetThTag(std::move(argument0)));
    });
}

vyr_status vyr_html_get_th_closing_tag(uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(HtmlFuncs::GetThClosingTag());
    });
}

vyr_status vyr_html_get_th_pair_tag(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* content,
    ptrdiff_t content_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(class_name, class_name_length, "class_name");
        auto argument1 = ToText(content, content_length, "content");
        return textResult.Give(HtmlFuncs::GetThPairTag(std::move(argument0), std::move(argument1)));
    });
}

vyr_status vyr_html_get_td_tag(uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(HtmlFuncs::GetTdTag());
    });
}

vyr_status vyr_html_get_td_tag_with_class_name(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(class_name, class_name_length, "class_name");
        return textResult.Give(HtmlFuncs::GetTdTag(std::move(argument0)));
    });
}

vyr_status vyr_html_get_td_tag_with_class_name_id(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* id,
    ptrdiff_t id_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(class_name, class_name_length, "class_name");
        auto argument1 = ToText(id, id_length, "id");
        return textResult.Give(HtmlFuncs::GetTdTag(std::move(argument0), std::move(argument1)));
    });
}

vyr_status vyr_html_get_td_tag_with_class_name_id_attributes(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* id,
    ptrdiff_t id_length,
    const uint16_t* attributes,
    ptrdiff_t attributes_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(class_name, class_name_length, "class_name");
        auto argument1 = ToText(id, id_length, "id");
        auto argument2 = ToText(attributes, attributes_length, "attributes");
        return textResult.Give(HtmlFuncs::GetTdTag(std::move(argument0), std::move(argument1), std::move(argument2)));
    });
}

vyr_status vyr_html_get_td_tag_with_class_name_id_width_height(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* id,
    ptrdiff_t id_length,
    int32_t width,
    int32_t height,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(class_name, class_name_length, "class_name");
        auto argument1 = ToText(id, id_length, "id");
        return textResult.Give(HtmlFuncs::GetTdTag(std::move(argument0), std::move(argument1), width, height));
    });
}

vyr_status vyr_html_get_td_col_tag(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* colspan,
    ptrdiff_t colspan_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(class_name, class_name_length, "class_name");
        auto argument1 = ToText(colspan, colspan_length, "colspan");
        return textResult.Give(HtmlFuncs::GetTdColTag(std::move(argument0), std::move(argument1)));
    });
}

vyr_status vyr_html_get_td_col_tag_with_attributes(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* colspan,
    ptrdiff_t colspan_length,
    const uint16_t* attributes,
    ptrdiff_t attributes_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(class_name, class_name_length, "class_name");
        auto argument1 = ToText(colspan, colspan_length, "colspan");
        auto argument2 = ToText(attributes, attributes_length, "attributes");
        return textResult.Give(HtmlFuncs::GetTdColTag(std::move(argument0), std::move(argument1), std::move(argument2)));
    });
}

vyr_status vyr_html_get_td_closing_tag(uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(HtmlFuncs::GetTdClosingTag());
    });
}

vyr_status vyr_html_get_td_pair_tag(
    const uint16_t* content,
    ptrdiff_t content_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(content, content_length, "content");
        return textResult.Give(HtmlFuncs::GetTdPairTag(std::move(argument0)));
    });
}

vyr_status vyr_html_get_td_pair_tag_with_class_name(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* content,
    ptrdiff_t content_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(class_name, class_name_length, "class_name");
        auto argument1 = ToText(content, content_length, "content");
        return textResult.Give(HtmlFuncs::GetTdPairTag(std::move(argument0), std::move(argument1)));
    });
}

vyr_status vyr_html_get_td_pair_tag_with_class_name_id(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* id,
    ptrdiff_t id_length,
    const uint16_t* content,
    ptrdiff_t content_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(class_name, class_name_length, "class_name");
        auto argument1 = ToText(id, id_length, "id");
        auto argument2 = ToText(content, content_length, "content");
        return textResult.Give(HtmlFuncs::GetTdPairTag(std::move(argument0), std::move(argument1), std::move(argument2)));
    });
}

vyr_status vyr_mshtml_img_set_resize_img_style(void* document, const vyr_rect* client)
{
    return Guard([&] {
        auto argument0 = HostObject(document, "document");
        auto argument1 = ToRect(client, "client");
        MSHTMLImgFuncs::SetResizeImgStyle(argument0, std::move(argument1));
        return VYR_OK;
    });
}

vyr_status vyr_output_get_output_file_path(uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(OutputFuncs::GetOutputFilePath());
    });
}

vyr_status vyr_output_set_output_file_path(const uint16_t* path, ptrdiff_t path_length)
{
    return Guard([&] {
        auto argument0 = ToText(path, path_length, "path");
        OutputFuncs::SetOutputFilePath(std::move(argument0));
        return VYR_OK;
    });
}

vyr_status vyr_output_get_output_filter_index(int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        return numberResult.Give(OutputFuncs::GetOutputFilterIndex());
    });
}

vyr_status vyr_output_set_output_filter_index(int32_t index)
{
    return Guard([&] {
        OutputFuncs::SetOutputFilterIndex(index);
        return VYR_OK;
    });
}

vyr_status vyr_output_get_generator_output_string(uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(OutputFuncs::GetGeneratorOutputString());
    });
}

vyr_status vyr_output_get_generator_output_string_with_name(
    const uint16_t* name,
    ptrdiff_t name_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(name, name_length, "name");
        return textResult.Give(OutputFuncs::GetGeneratorOutputString(std::move(argument0)));
    });
}

vyr_status vyr_output_get_property_size(int32_t choice, int32_t custom, int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        return numberResult.Give(OutputFuncs::GetPropertySize(choice, custom));
    });
}

vyr_status vyr_output_get_dialog_property_width(int32_t width, uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(OutputFuncs::GetDialogPropertyWidth(width));
    });
}

vyr_status vyr_attributes_set_modified_file_attributes(
    const uint16_t* path,
    ptrdiff_t path_length,
    const vyr_attributes_item* item,
    int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToText(path, path_length, "path");
        const auto& argument1 = ToCpp(item, "item");
        return numberResult.Give(AttributesFuncs::SetModifiedFileAttributes(std::move(argument0), argument1));
    });
}

vyr_status vyr_attributes_get_selected_read_only_attributes(
    const uint16_t* text,
    ptrdiff_t text_length,
    int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToText(text, text_length, "text");
        return numberResult.Give(AttributesFuncs::GetSelectedReadOnlyAttributes(std::move(argument0)));
    });
}

vyr_status vyr_attributes_get_selected_hidden_attributes(const uint16_t* text, ptrdiff_t text_length, int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToText(text, text_length, "text");
        return numberResult.Give(AttributesFuncs::GetSelectedHiddenAttributes(std::move(argument0)));
    });
}

vyr_status vyr_attributes_get_selected_system_attributes(const uint16_t* text, ptrdiff_t text_length, int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToText(text, text_length, "text");
        return numberResult.Give(AttributesFuncs::GetSelectedSystemAttributes(std::move(argument0)));
    });
}

vyr_status vyr_attributes_get_selected_archive_attributes(const uint16_t* text, ptrdiff_t text_length, int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToText(text, text_length, "text");
        return numberResult.Give(AttributesFuncs::GetSelectedArchiveAttributes(std::move(argument0)));
    });
}

vyr_status vyr_attributes_get_selected_temporary_attributes(
    const uint16_t* text,
    ptrdiff_t text_length,
    int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToText(text, text_length, "text");
        return numberResult.Give(AttributesFuncs::GetSelectedTemporaryAttributes(std::move(argument0)));
    });
}

vyr_status vyr_attributes_get_selected_not_content_indexed_attributes(
    const uint16_t* text,
    ptrdiff_t text_length,
    int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToText(text, text_length, "text");
        return numberResult.Give(AttributesFuncs::GetSelectedNotContentIndexedAttributes(std::move(argument0)));
    });
}

vyr_status vyr_attributes_set_read_only_attributes(
    const uint16_t* path,
    ptrdiff_t path_length,
    int32_t is_on,
    int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToText(path, path_length, "path");
        return numberResult.Give(AttributesFuncs::SetReadOnlyAttributes(std::move(argument0), is_on));
    });
}

vyr_status vyr_attributes_set_hidden_attributes(
    const uint16_t* path,
    ptrdiff_t path_length,
    int32_t is_on,
    int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToText(path, path_length, "path");
        return numberResult.Give(AttributesFuncs::SetHiddenAttributes(std::move(argument0), is_on));
    });
}

vyr_status vyr_attributes_set_system_attributes(
    const uint16_t* path,
    ptrdiff_t path_length,
    int32_t is_on,
    int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToText(path, path_length, "path");
        return numberResult.Give(AttributesFuncs::SetSystemAttributes(std::move(argument0), is_on));
    });
}

vyr_status vyr_attributes_set_archive_attributes(
    const uint16_t* path,
    ptrdiff_t path_length,
    int32_t is_on,
    int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToText(path, path_length, "path");
        return numberResult.Give(AttributesFuncs::SetArchiveAttributes(std::move(argument0), is_on));
    });
}

vyr_status vyr_attributes_set_temporary_attributes(
    const uint16_t* path,
    ptrdiff_t path_length,
    int32_t is_on,
    int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToText(path, path_length, "path");
        return numberResult.Give(AttributesFuncs::SetTemporaryAttributes(std::move(argument0), is_on));
    });
}

vyr_status vyr_attributes_set_not_content_indexed_attributes(
    const uint16_t* path,
    ptrdiff_t path_length,
    int32_t is_on,
    int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToText(path, path_length, "path");
        return numberResult.Give(AttributesFuncs::SetNotContentIndexedAttributes(std::move(argument0), is_on));
    });
}

vyr_status vyr_attributes_get_arrtibutes_priority(const uint16_t* letter, ptrdiff_t letter_length, int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToText(letter, letter_length, "letter");
        return numberResult.Give(AttributesFuncs::GetArrtibutesPriority(std::move(argument0)));
    });
}

vyr_status vyr_date_time_get_other_date_time(
    const uint16_t* path,
    ptrdiff_t path_length,
    int32_t date_time_target,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(path, path_length, "path");
        return textResult.Give(DateTimeFuncs::GetOtherDateTime(std::move(argument0), date_time_target));
    });
}

vyr_status vyr_date_time_get_selected_file_date_time(
    const uint16_t* path,
    ptrdiff_t path_length,
    int32_t date_time_target,
    int32_t is_enabled,
    uint64_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToText(path, path_length, "path");
        return numberResult.Give(ToTicks(DateTimeFuncs::GetSelectedFileDateTime(std::move(argument0), date_time_target, is_enabled)));
    });
}

vyr_status vyr_date_time_get_modified_file_date_time(
    const uint16_t* path,
    ptrdiff_t path_length,
    int32_t is_enabled,
    double date,
    int32_t date_status,
    double time,
    int32_t time_status,
    int32_t date_time_mode,
    uint64_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToText(path, path_length, "path");
        auto argument2 = ToDateTime(date, date_status, "date");
        auto argument3 = ToDateTime(time, time_status, "time");
        return numberResult.Give(ToTicks(DateTimeFuncs::GetModifiedFileDateTime(std::move(argument0), is_enabled, std::move(argument2), std::move(argument3), date_time_mode)));
    });
}

vyr_status vyr_date_time_set_modified_file_date_time(
    const uint16_t* path,
    ptrdiff_t path_length,
    const uint64_t* created,
    const uint64_t* modified,
    const uint64_t* accessed,
    int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToText(path, path_length, "path");
        const auto created_made = ToOptionalFileTime(created, "created");
        const auto modified_made = ToOptionalFileTime(modified, "modified");
        const auto accessed_made = ToOptionalFileTime(accessed, "accessed");
        return numberResult.Give(DateTimeFuncs::SetModifiedFileDateTime(std::move(argument0), created_made ? &*created_made : nullptr, modified_made ? &*modified_made : nullptr, accessed_made ? &*accessed_made : nullptr));
    });
}

vyr_status vyr_date_time_get_stagger_file_date_time(
    int32_t index,
    int32_t is_enabled,
    double base,
    int32_t base_status,
    const vyr_date_time_stagger_item* item,
    uint64_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument2 = ToDateTime(base, base_status, "base");
        const auto& argument3 = ToCpp(item, "item");
        return numberResult.Give(ToTicks(DateTimeFuncs::GetStaggerFileDateTime(index, is_enabled, std::move(argument2), argument3)));
    });
}

vyr_status vyr_date_time_get_cal_date_time(
    double date_time,
    int32_t date_time_status,
    int32_t years,
    int32_t months,
    int32_t days,
    vyr_date_time* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToDateTime(date_time, date_time_status, "date_time");
        return numberResult.Give(ToC(DateTimeFuncs::GetCalDateTime(std::move(argument0), years, months, days)));
    });
}

vyr_status vyr_date_time_get_time_difference_date_time(
    double date_time,
    int32_t date_time_status,
    int32_t hours,
    vyr_date_time* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToDateTime(date_time, date_time_status, "date_time");
        return numberResult.Give(ToC(DateTimeFuncs::GetTimeDifferenceDateTime(std::move(argument0), hours)));
    });
}

vyr_status vyr_date_time_get_yesterday_date_time(double date_time, int32_t date_time_status, vyr_date_time* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToDateTime(date_time, date_time_status, "date_time");
        return numberResult.Give(ToC(DateTimeFuncs::GetYesterdayDateTime(std::move(argument0))));
    });
}

vyr_status vyr_date_time_get_last_month_date_time(double date_time, int32_t date_time_status, vyr_date_time* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToDateTime(date_time, date_time_status, "date_time");
        return numberResult.Give(ToC(DateTimeFuncs::GetLastMonthDateTime(std::move(argument0))));
    });
}

vyr_status vyr_date_time_get_last_year_date_time(double date_time, int32_t date_time_status, vyr_date_time* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToDateTime(date_time, date_time_status, "date_time");
        return numberResult.Give(ToC(DateTimeFuncs::GetLastYearDateTime(std::move(argument0))));
    });
}

vyr_status vyr_date_time_get_begin_this_week_date_time(
    double date_time,
    int32_t date_time_status,
    vyr_date_time* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToDateTime(date_time, date_time_status, "date_time");
        return numberResult.Give(ToC(DateTimeFuncs::GetBeginThisWeekDateTime(std::move(argument0))));
    });
}

vyr_status vyr_date_time_get_begin_last_week_date_time(
    double date_time,
    int32_t date_time_status,
    vyr_date_time* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToDateTime(date_time, date_time_status, "date_time");
        return numberResult.Give(ToC(DateTimeFuncs::GetBeginLastWeekDateTime(std::move(argument0))));
    });
}

vyr_status vyr_date_time_get_end_week_date_time(double date_time, int32_t date_time_status, vyr_date_time* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToDateTime(date_time, date_time_status, "date_time");
        return numberResult.Give(ToC(DateTimeFuncs::GetEndWeekDateTime(std::move(argument0))));
    });
}

vyr_status vyr_date_time_is_match_date_month(
    double left,
    int32_t left_status,
    double right,
    int32_t right_status,
    int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToDateTime(left, left_status, "left");
        auto argument1 = ToDateTime(right, right_status, "right");
        return numberResult.Give(DateTimeFuncs::IsMatchDateMonth(std::move(argument0), std::move(argument1)));
    });
}

vyr_status vyr_date_time_is_match_date(
    double left,
    int32_t left_status,
    double right,
    int32_t right_status,
    int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToDateTime(left, left_status, "left");
        auto argument1 = ToDateTime(right, right_status, "right");
        return numberResult.Give(DateTimeFuncs::IsMatchDate(std::move(argument0), std::move(argument1)));
    });
}

vyr_status vyr_office_property_get_class_id_item_list(
    const vyr_text_and_number* extensions,
    size_t extensions_count,
    vyr_list* result)
{
    return Guard([&] {
        const ListResult listResult(result);
        auto argument0 = ToVector(extensions, extensions_count, "extensions", [](const vyr_text_and_number& element, const char* argument) { return std::pair<CString, int>(ToText(element.text, argument), element.number); });
        return listResult.Give(OfficePropertyFuncs::GetClassIdItemList(std::move(argument0)));
    });
}

vyr_status vyr_office_property_get_class_id(
    const uint16_t* extension,
    ptrdiff_t extension_length,
    const vyr_office_property_handler* items,
    size_t items_count,
    vyr_guid* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToText(extension, extension_length, "extension");
        auto argument1 = ToRecords(items, items_count, "items", [](const vyr_office_property_handler& element, const char* argument) { return ToCpp(&element, argument); });
        return numberResult.Give(ToC(OfficePropertyFuncs::GetClassId(std::move(argument0), std::move(argument1))));
    });
}

vyr_status vyr_office_property_get_property_handler_reg_key(
    const uint16_t* extension,
    ptrdiff_t extension_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(extension, extension_length, "extension");
        return textResult.Give(OfficePropertyFuncs::GetPropertyHandlerRegKey(std::move(argument0)));
    });
}

vyr_status vyr_office_property_set_dump_props(
    const uint16_t* path,
    ptrdiff_t path_length,
    uint32_t property_id,
    const vyr_value* value,
    const vyr_guid* clsid,
    int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToText(path, path_length, "path");
        PropertyValue value_made(value, "value");
        auto argument3 = ToGuid(clsid, "clsid");
        return numberResult.Give(OfficePropertyFuncs::SetDumpProps(std::move(argument0), property_id, value_made.Get(), std::move(argument3)));
    });
}

vyr_status vyr_unblock_delete_zone_id(const uint16_t* path, ptrdiff_t path_length, int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToText(path, path_length, "path");
        return numberResult.Give(UnblockFuncs::DeleteZoneId(std::move(argument0)));
    });
}

[[gnu::flatten]]
vyr_status vyr_name_get_rename_file_path(const vyr_name_item* item, uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        const auto& argument0 = ToCpp(item, "item");
        return textResult.Give(NameFuncs::GetRenameFilePath(argument0));
    });
}

vyr_status vyr_name_get_rename_file_paths(const vyr_name_item* items, size_t items_count, vyr_list* result)
{
    return Guard([&] {
        const ListResult listResult(result);
        auto argument0 = ToRecords(items, items_count, "items", [](const vyr_name_item& element, const char* argument) { return NameFuncs::GetRenameFilePath(ToCpp(&element, argument)); });
        return listResult.Give(std::move(argument0));
    });
}

vyr_status vyr_name_get_f_name(
    const uint16_t* path,
    ptrdiff_t path_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(path, path_length, "path");
        return textResult.Give(NameFuncs::GetFName(std::move(argument0)));
    });
}

vyr_status vyr_name_get_extension(
    const uint16_t* path,
    ptrdiff_t path_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(path, path_length, "path");
        return textResult.Give(NameFuncs::GetExtension(std::move(argument0)));
    });
}

vyr_status vyr_name_is_resolve_conflict(const vyr_name_item* item, int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        const auto& argument0 = ToCpp(item, "item");
        return numberResult.Give(NameFuncs::IsResolveConflict(argument0));
    });
}

vyr_status vyr_name_get_sequence_number_file_path(
    const vyr_name_item* item,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        const auto& argument0 = ToCpp(item, "item");
        return textResult.Give(NameFuncs::GetSequenceNumberFilePath(argument0));
    });
}

vyr_status vyr_name_get_date_time_file_path(
    const vyr_name_item* item,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        const auto& argument0 = ToCpp(item, "item");
        return textResult.Give(NameFuncs::GetDateTimeFilePath(argument0));
    });
}

vyr_status vyr_name_get_add_delete_file_path(
    const vyr_name_item* item,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        const auto& argument0 = ToCpp(item, "item");
        return textResult.Give(NameFuncs::GetAddDeleteFilePath(argument0));
    });
}

vyr_status vyr_name_get_convert_file_path(const vyr_name_item* item, uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        const auto& argument0 = ToCpp(item, "item");
        return textResult.Give(NameFuncs::GetConvertFilePath(argument0));
    });
}

vyr_status vyr_name_get_replace_file_path(const vyr_name_item* item, uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        const auto& argument0 = ToCpp(item, "item");
        return textResult.Give(NameFuncs::GetReplaceFilePath(argument0));
    });
}

vyr_status vyr_name_get_extension_file_path(
    const vyr_name_item* item,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        const auto& argument0 = ToCpp(item, "item");
        return textResult.Give(NameFuncs::GetExtensionFilePath(argument0));
    });
}

vyr_status vyr_name_get_resolve_conflict_file_path(
    const uint16_t* path,
    ptrdiff_t path_length,
    const vyr_name_conflict_item* item,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(path, path_length, "path");
        const auto& argument1 = ToCpp(item, "item");
        return textResult.Give(NameFuncs::GetResolveConflictFilePath(std::move(argument0), argument1));
    });
}

vyr_status vyr_name_get_rename_to_sample_formated(
    const uint16_t* format,
    ptrdiff_t format_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(format, format_length, "format");
        return textResult.Give(NameFuncs::GetRenameToSampleFormated(std::move(argument0)));
    });
}

vyr_status vyr_name_get_date_time_format(
    const uint16_t* path,
    ptrdiff_t path_length,
    const uint16_t* format,
    ptrdiff_t format_length,
    int32_t target,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(path, path_length, "path");
        auto argument1 = ToText(format, format_length, "format");
        return textResult.Give(NameFuncs::GetDateTimeFormat(std::move(argument0), std::move(argument1), target));
    });
}

vyr_status vyr_name_get_folder_format(
    const uint16_t* format,
    ptrdiff_t format_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(format, format_length, "format");
        return textResult.Give(NameFuncs::GetFolderFormat(std::move(argument0)));
    });
}

vyr_status vyr_name_get_exif_format(
    const uint16_t* path,
    ptrdiff_t path_length,
    const uint16_t* format,
    ptrdiff_t format_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(path, path_length, "path");
        auto argument1 = ToText(format, format_length, "format");
        return textResult.Give(NameFuncs::GetExifFormat(std::move(argument0), std::move(argument1)));
    });
}

vyr_status vyr_name_copy_folder(
    const uint16_t* source,
    ptrdiff_t source_length,
    const uint16_t* destination,
    ptrdiff_t destination_length,
    vyr_list* records,
    int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToText(source, source_length, "source");
        auto argument1 = ToText(destination, destination_length, "destination");
        RequireAligned(records, "records");
        std::list<NameFuncs::RENAMEITEM> records_made;
        const auto given = NameFuncs::CopyFolder(std::move(argument0), std::move(argument1), records ? &records_made : nullptr);
        if (records)
            *records = Hold(std::make_shared<RecordList<NameFuncs::RENAMEITEM>>(
                std::vector<NameFuncs::RENAMEITEM>(records_made.begin(), records_made.end())));
        return numberResult.Give(given);
    });
}

vyr_status vyr_name_move_folder(
    const uint16_t* source,
    ptrdiff_t source_length,
    const uint16_t* destination,
    ptrdiff_t destination_length,
    vyr_list* records,
    int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToText(source, source_length, "source");
        auto argument1 = ToText(destination, destination_length, "destination");
        RequireAligned(records, "records");
        std::list<NameFuncs::RENAMEITEM> records_made;
        const auto given = NameFuncs::MoveFolder(std::move(argument0), std::move(argument1), records ? &records_made : nullptr);
        if (records)
            *records = Hold(std::make_shared<RecordList<NameFuncs::RENAMEITEM>>(
                std::vector<NameFuncs::RENAMEITEM>(records_made.begin(), records_made.end())));
        return numberResult.Give(given);
    });
}

vyr_status vyr_programs_get_programs_features_items_list(int32_t scope, int32_t include_wow6432_node, vyr_list* result)
{
    return Guard([&] {
        const ListResult listResult(result);
        return listResult.Give(ProgramsFeaturesFuncs::GetProgramsFeaturesItemsList(scope, include_wow6432_node));
    });
}

vyr_status vyr_programs_get_programs_features_windows_installer_items_list(int32_t scope, vyr_list* result)
{
    return Guard([&] {
        const ListResult listResult(result);
        return listResult.Give(ProgramsFeaturesFuncs::GetProgramsFeaturesWindowsInstallerItemsList(scope));
    });
}

vyr_status vyr_programs_get_list_view_item_text(
    int32_t column,
    const vyr_programs_item* item,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        const auto& argument1 = ToCpp(item, "item");
        return textResult.Give(ProgramsFeaturesFuncs::GetListViewItemText(column, argument1));
    });
}

vyr_status vyr_programs_get_programs_features_installer_products_items_list(vyr_list* result)
{
    return Guard([&] {
        const ListResult listResult(result);
        return listResult.Give(ProgramsFeaturesFuncs::GetProgramsFeaturesInstallerProductsItemsList());
    });
}

vyr_status vyr_programs_get_product_icon(
    const uint16_t* icon_filter,
    ptrdiff_t icon_filter_length,
    const uint16_t* product_name,
    ptrdiff_t product_name_length,
    const vyr_programs_product* products,
    size_t products_count,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(icon_filter, icon_filter_length, "icon_filter");
        auto argument1 = ToText(product_name, product_name_length, "product_name");
        auto argument2 = ToRecords(products, products_count, "products", [](const vyr_programs_product& element, const char* argument) { return ToCpp(&element, argument); });
        return textResult.Give(ProgramsFeaturesFuncs::GetProductIcon(std::move(argument0), std::move(argument1), std::move(argument2)));
    });
}

vyr_status vyr_programs_get_application_icon(
    const uint16_t* icon_text,
    ptrdiff_t icon_text_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length,
    int32_t* result)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        const NumberResult numberResult(result);
        auto argument0 = ToText(icon_text, icon_text_length, "icon_text");
        const auto [given, number] = ProgramsFeaturesFuncs::GetApplicationIcon(std::move(argument0));
        const vyr_status status = textResult.Give(given);
        return status == VYR_OK ? numberResult.Give(number) : status;
    });
}

vyr_status vyr_programs_get_install_date(
    const uint16_t* install_date,
    ptrdiff_t install_date_length,
    const uint16_t* fallback_date,
    ptrdiff_t fallback_date_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(install_date, install_date_length, "install_date");
        auto argument1 = ToText(fallback_date, fallback_date_length, "fallback_date");
        return textResult.Give(ProgramsFeaturesFuncs::GetInstallDate(std::move(argument0), std::move(argument1)));
    });
}

vyr_status vyr_programs_get_formated_size(
    const uint16_t* text,
    ptrdiff_t text_length,
    uint64_t size,
    int32_t format,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(text, text_length, "text");
        return textResult.Give(ProgramsFeaturesFuncs::GetFormatedSize(std::move(argument0), size, format));
    });
}

vyr_status vyr_programs_compare_reg_key(
    const uint16_t* key1,
    ptrdiff_t key1_length,
    const uint16_t* key2,
    ptrdiff_t key2_length,
    int32_t flag1,
    int32_t flag2,
    int32_t descending,
    int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToText(key1, key1_length, "key1");
        auto argument1 = ToText(key2, key2_length, "key2");
        return numberResult.Give(ProgramsFeaturesFuncs::CompareRegKey(std::move(argument0), std::move(argument1), flag1, flag2, descending));
    });
}

vyr_status vyr_programs_get_key_parent_name(intptr_t root, uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToHandle<HKEY>(root);
        return textResult.Give(ProgramsFeaturesFuncs::GetKeyParentName(argument0));
    });
}

vyr_status vyr_programs_is_wow6432_node(const uint16_t* key_path, ptrdiff_t key_path_length, int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToText(key_path, key_path_length, "key_path");
        return numberResult.Give(ProgramsFeaturesFuncs::IsWow6432Node(std::move(argument0)));
    });
}

vyr_status vyr_programs_get_icon_folder_name(uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(ProgramsFeaturesFuncs::GetIconFolderName());
    });
}

vyr_status vyr_programs_set_output_file_path(const uint16_t* path, ptrdiff_t path_length)
{
    return Guard([&] {
        auto argument0 = ToText(path, path_length, "path");
        ProgramsFeaturesFuncs::SetOutputFilePath(std::move(argument0));
        return VYR_OK;
    });
}

vyr_status vyr_programs_get_output_file_path(uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(ProgramsFeaturesFuncs::GetOutputFilePath());
    });
}

vyr_status vyr_programs_set_open_output_file(int32_t is_opened)
{
    return Guard([&] {
        ProgramsFeaturesFuncs::SetOpenOutputFile(is_opened);
        return VYR_OK;
    });
}

vyr_status vyr_programs_get_open_output_file(int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        return numberResult.Give(ProgramsFeaturesFuncs::GetOpenOutputFile());
    });
}

vyr_status vyr_registry_get_product_reg_key(
    const uint16_t* vendor_name,
    ptrdiff_t vendor_name_length,
    const uint16_t* product_name,
    ptrdiff_t product_name_length,
    int32_t version,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(vendor_name, vendor_name_length, "vendor_name");
        auto argument1 = ToText(product_name, product_name_length, "product_name");
        return textResult.Give(RegistryFuncs::GetProductRegKey(std::move(argument0), std::move(argument1), version));
    });
}

vyr_status vyr_registry_get_uninstall_product_reg_key(
    const uint16_t* uninstall_key_name,
    ptrdiff_t uninstall_key_name_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(uninstall_key_name, uninstall_key_name_length, "uninstall_key_name");
        return textResult.Give(RegistryFuncs::GetUninstallProductRegKey(std::move(argument0)));
    });
}

vyr_status vyr_registry_get_product_install_date(
    const uint16_t* uninstall_key_name,
    ptrdiff_t uninstall_key_name_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = ToText(uninstall_key_name, uninstall_key_name_length, "uninstall_key_name");
        return textResult.Give(RegistryFuncs::GetProductInstallDate(std::move(argument0)));
    });
}

vyr_status vyr_column_is_visible_column(
    intptr_t list_control,
    const uint16_t* name,
    ptrdiff_t name_length,
    int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        CListCtrl list_control_made = ToListControl(list_control);
        auto argument1 = ToText(name, name_length, "name");
        return numberResult.Give(ColumnFuncs::IsVisibleColumn(list_control_made, std::move(argument1)));
    });
}

vyr_status vyr_column_get_column_header_item(
    intptr_t list_control,
    const uint16_t* name,
    ptrdiff_t name_length,
    int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        CListCtrl list_control_made = ToListControl(list_control);
        auto argument1 = ToText(name, name_length, "name");
        return numberResult.Give(ColumnFuncs::GetColumnHeaderItem(list_control_made, std::move(argument1)));
    });
}

vyr_status vyr_column_get_column_item_order(
    intptr_t list_control,
    const uint16_t* name,
    ptrdiff_t name_length,
    int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        CListCtrl list_control_made = ToListControl(list_control);
        auto argument1 = ToText(name, name_length, "name");
        return numberResult.Give(ColumnFuncs::GetColumnItemOrder(list_control_made, std::move(argument1)));
    });
}

vyr_status vyr_column_get_column_item_text(
    intptr_t list_control,
    int32_t index,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        CListCtrl list_control_made = ToListControl(list_control);
        return textResult.Give(ColumnFuncs::GetColumnItemText(list_control_made, index));
    });
}

vyr_status vyr_filter_is_match(
    const uint16_t* path,
    ptrdiff_t path_length,
    int32_t mode,
    const vyr_filter_condition* items,
    size_t items_count,
    int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToText(path, path_length, "path");
        auto argument2 = ToRecords(items, items_count, "items", [](const vyr_filter_condition& element, const char* argument) { return ToCpp(&element, argument); });
        return numberResult.Give(FilterFuncs::IsMatch(std::move(argument0), mode, std::move(argument2)));
    });
}

vyr_status vyr_filter_is_match_name(
    const uint16_t* name,
    ptrdiff_t name_length,
    int32_t mode,
    const vyr_filter_condition* items,
    size_t items_count,
    int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToText(name, name_length, "name");
        auto argument2 = ToRecords(items, items_count, "items", [](const vyr_filter_condition& element, const char* argument) { return ToCpp(&element, argument); });
        return numberResult.Give(FilterFuncs::IsMatchName(std::move(argument0), mode, std::move(argument2)));
    });
}

vyr_status vyr_filter_is_already_added(
    const uint16_t* text,
    ptrdiff_t text_length,
    const vyr_text* list,
    size_t list_count,
    int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToText(text, text_length, "text");
        auto argument1 = ToVector(list, list_count, "list", [](const vyr_text& element, const char* argument) { return ToText(element, argument); });
        return numberResult.Give(FilterFuncs::IsAlreadyAdded(std::move(argument0), std::move(argument1)));
    });
}

vyr_status vyr_search_is_match_path(const uint16_t* path, ptrdiff_t path_length, int32_t reserved, int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToText(path, path_length, "path");
        return numberResult.Give(SearchFuncs::IsMatch(std::move(argument0), reserved));
    });
}

vyr_status vyr_search_is_match(const vyr_search_item* item, int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        const auto& argument0 = ToCpp(item, "item");
        return numberResult.Give(SearchFuncs::IsMatch(argument0));
    });
}

vyr_status vyr_search_is_match_date_time(const uint16_t* path, ptrdiff_t path_length, int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToText(path, path_length, "path");
        return numberResult.Give(SearchFuncs::IsMatchDateTime(std::move(argument0)));
    });
}

vyr_status vyr_search_is_match_date_time_value(double value, int32_t value_status, int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToDateTime(value, value_status, "value");
        return numberResult.Give(SearchFuncs::IsMatchDateTime(std::move(argument0)));
    });
}

vyr_status vyr_search_is_match_size_path(
    const uint16_t* path,
    ptrdiff_t path_length,
    int32_t with_folders,
    int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToText(path, path_length, "path");
        return numberResult.Give(SearchFuncs::IsMatchSize(std::move(argument0), with_folders));
    });
}

vyr_status vyr_search_is_match_size(int64_t size, int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        return numberResult.Give(SearchFuncs::IsMatchSize(size));
    });
}

vyr_status vyr_search_get_search_closed(int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        return numberResult.Give(SearchFuncs::GetSearchClosed());
    });
}

vyr_status vyr_search_set_search_closed(int32_t closed)
{
    return Guard([&] {
        SearchFuncs::SetSearchClosed(closed);
        return VYR_OK;
    });
}

vyr_status vyr_search_get_date_time_search(int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        return numberResult.Give(SearchFuncs::GetDateTimeSearch());
    });
}

vyr_status vyr_search_set_date_time_search(int32_t search)
{
    return Guard([&] {
        SearchFuncs::SetDateTimeSearch(search);
        return VYR_OK;
    });
}

vyr_status vyr_search_get_date_time_target(int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        return numberResult.Give(SearchFuncs::GetDateTimeTarget());
    });
}

vyr_status vyr_search_set_date_time_target(int32_t target)
{
    return Guard([&] {
        SearchFuncs::SetDateTimeTarget(target);
        return VYR_OK;
    });
}

vyr_status vyr_search_get_date_time_range(int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        return numberResult.Give(SearchFuncs::GetDateTimeRange());
    });
}

vyr_status vyr_search_set_date_time_range(int32_t range)
{
    return Guard([&] {
        SearchFuncs::SetDateTimeRange(range);
        return VYR_OK;
    });
}

vyr_status vyr_search_get_date_time_from_date_time(vyr_date_time* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        return numberResult.Give(ToC(SearchFuncs::GetDateTimeFromDateTime()));
    });
}

vyr_status vyr_search_set_date_time_from_date_time(double from, int32_t from_status)
{
    return Guard([&] {
        auto argument0 = ToDateTime(from, from_status, "from");
        SearchFuncs::SetDateTimeFromDateTime(std::move(argument0));
        return VYR_OK;
    });
}

vyr_status vyr_search_get_date_time_to_date_time(vyr_date_time* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        return numberResult.Give(ToC(SearchFuncs::GetDateTimeToDateTime()));
    });
}

vyr_status vyr_search_set_date_time_to_date_time(double to, int32_t to_status)
{
    return Guard([&] {
        auto argument0 = ToDateTime(to, to_status, "to");
        SearchFuncs::SetDateTimeToDateTime(std::move(argument0));
        return VYR_OK;
    });
}

vyr_status vyr_search_get_size_search(int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        return numberResult.Give(SearchFuncs::GetSizeSearch());
    });
}

vyr_status vyr_search_set_size_search(int32_t search)
{
    return Guard([&] {
        SearchFuncs::SetSizeSearch(search);
        return VYR_OK;
    });
}

vyr_status vyr_search_get_size_target(int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        return numberResult.Give(SearchFuncs::GetSizeTarget());
    });
}

vyr_status vyr_search_set_size_target(int32_t target)
{
    return Guard([&] {
        SearchFuncs::SetSizeTarget(target);
        return VYR_OK;
    });
}

vyr_status vyr_search_get_size_range(int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        return numberResult.Give(SearchFuncs::GetSizeRange());
    });
}

vyr_status vyr_search_set_size_range(int32_t range)
{
    return Guard([&] {
        SearchFuncs::SetSizeRange(range);
        return VYR_OK;
    });
}

vyr_status vyr_search_get_size_from_size(int64_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        return numberResult.Give(SearchFuncs::GetSizeFromSize());
    });
}

vyr_status vyr_search_set_size_from_size(int64_t from)
{
    return Guard([&] {
        SearchFuncs::SetSizeFromSize(from);
        return VYR_OK;
    });
}

vyr_status vyr_search_get_size_to_size(int64_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        return numberResult.Give(SearchFuncs::GetSizeToSize());
    });
}

vyr_status vyr_search_set_size_to_size(int64_t to)
{
    return Guard([&] {
        SearchFuncs::SetSizeToSize(to);
        return VYR_OK;
    });
}

vyr_status vyr_browser_get_browser_items_list(vyr_list* result)
{
    return Guard([&] {
        const ListResult listResult(result);
        return listResult.Give(BrowserFuncs::GetBrowserItemsList());
    });
}

vyr_status vyr_browser_get_microsoft_edge_app_item(vyr_list* result)
{
    return Guard([&] {
        const ListResult listResult(result);
        return listResult.Give(std::vector{BrowserFuncs::GetMicrosoftEdgeAppItem()});
    });
}

vyr_status vyr_browser_is_installed_microsoft_edge_chromium(int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        return numberResult.Give(BrowserFuncs::IsInstalledMicrosoftEdgeChromium());
    });
}

vyr_status vyr_control_panel_exec_date_and_time(intptr_t owner, int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToHandle<HWND>(owner);
        return numberResult.Give(ControlPanelFuncs::ExecDateAndTime(argument0));
    });
}

vyr_status vyr_control_panel_exec_programs_and_features(intptr_t owner, int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToHandle<HWND>(owner);
        return numberResult.Give(ControlPanelFuncs::ExecProgramsAndFeatures(argument0));
    });
}

vyr_status vyr_feature_control_set_feature_security_band(int32_t enable)
{
    return Guard([&] {
        FeatureControlFuncs::SetFeatureSecurityBand(enable);
        return VYR_OK;
    });
}

vyr_status vyr_feature_control_set_feature_weboc_popup_management(int32_t enable)
{
    return Guard([&] {
        FeatureControlFuncs::SetFeatureWebocPopupManagement(enable);
        return VYR_OK;
    });
}

vyr_status vyr_feature_control_set_feature_local_machine_lock_down(int32_t enable)
{
    return Guard([&] {
        FeatureControlFuncs::SetFeatureLocalMachineLockDown(enable);
        return VYR_OK;
    });
}

vyr_status vyr_feature_control_set_feature_restrict_file_download(int32_t enable)
{
    return Guard([&] {
        FeatureControlFuncs::SetFeatureRestrictFileDownload(enable);
        return VYR_OK;
    });
}

vyr_status vyr_feature_control_set_feature_restrict_active_x_install(int32_t enable)
{
    return Guard([&] {
        FeatureControlFuncs::SetFeatureRestrictActiveXInstall(enable);
        return VYR_OK;
    });
}

vyr_status vyr_feature_control_set_feature_tabbed_browsing(int32_t enable)
{
    return Guard([&] {
        FeatureControlFuncs::SetFeatureTabbedBrowsing(enable);
        return VYR_OK;
    });
}

vyr_status vyr_feature_control_set_feature_disable_navigation_sounds(int32_t enable)
{
    return Guard([&] {
        FeatureControlFuncs::SetFeatureDisableNavigationSounds(enable);
        return VYR_OK;
    });
}

vyr_status vyr_feature_control_set_feature_feeds(int32_t enable)
{
    return Guard([&] {
        FeatureControlFuncs::SetFeatureFeeds(enable);
        return VYR_OK;
    });
}

vyr_status vyr_feature_control_set_feature_block_lmz_img(uint32_t value)
{
    return Guard([&] {
        FeatureControlFuncs::SetFeatureBlockLMZImg(value);
        return VYR_OK;
    });
}

vyr_status vyr_feature_control_set_feature_block_lmz_object(uint32_t value)
{
    return Guard([&] {
        FeatureControlFuncs::SetFeatureBlockLMZObject(value);
        return VYR_OK;
    });
}

vyr_status vyr_feature_control_set_feature_block_lmz_script(uint32_t value)
{
    return Guard([&] {
        FeatureControlFuncs::SetFeatureBlockLMZScript(value);
        return VYR_OK;
    });
}

vyr_status vyr_feature_control_set_feature_browser_emulation(uint32_t value)
{
    return Guard([&] {
        FeatureControlFuncs::SetFeatureBrowserEmulation(value);
        return VYR_OK;
    });
}

vyr_status vyr_log_get_log_file_name(uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(LogFuncs::GetLogFileName());
    });
}

vyr_status vyr_log_get_application_log_file_path(uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(LogFuncs::GetApplicationLogFilePath());
    });
}

vyr_status vyr_log_write_with_path_level(
    const uint16_t* path,
    ptrdiff_t path_length,
    const uint16_t* message,
    ptrdiff_t message_length,
    int32_t level,
    int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToText(path, path_length, "path");
        auto argument1 = ToText(message, message_length, "message");
        return numberResult.Give(LogFuncs::Write(std::move(argument0), std::move(argument1), level));
    });
}

vyr_status vyr_log_write_with_level(const uint16_t* message, ptrdiff_t message_length, int32_t level, int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToText(message, message_length, "message");
        return numberResult.Give(LogFuncs::Write(std::move(argument0), level));
    });
}

vyr_status vyr_log_write(const uint16_t* message, ptrdiff_t message_length, int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToText(message, message_length, "message");
        return numberResult.Give(LogFuncs::Write(std::move(argument0)));
    });
}

vyr_status vyr_application_get_local_data_application_version(uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(ApplicationFuncs::GetLocalDataApplicationVersion());
    });
}

vyr_status vyr_application_is_alpha_version(int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        return numberResult.Give(ApplicationFuncs::IsAlphaVersion());
    });
}

vyr_status vyr_application_is_beta_version(int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        return numberResult.Give(ApplicationFuncs::IsBetaVersion());
    });
}

vyr_status vyr_application_is_release_candidate_version(int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        return numberResult.Give(ApplicationFuncs::IsReleaseCandidateVersion());
    });
}

vyr_status vyr_application_is_release_to_manufacturing_version(int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        return numberResult.Give(ApplicationFuncs::IsReleaseToManufacturingVersion());
    });
}

vyr_status vyr_application_is_release_version(int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        return numberResult.Give(ApplicationFuncs::IsReleaseVersion());
    });
}

vyr_status vyr_application_is_product_release_version(int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        return numberResult.Give(ApplicationFuncs::IsProductReleaseVersion());
    });
}

vyr_status vyr_application_get_online_support_url(uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(ApplicationFuncs::GetOnlineSupportUrl());
    });
}

vyr_status vyr_application_get_send_feedback_url(uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(ApplicationFuncs::GetSendFeedbackUrl());
    });
}

vyr_status vyr_application_get_send_questionnaire_url(uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(ApplicationFuncs::GetSendQuestionnaireUrl());
    });
}

vyr_status vyr_updates_initialize_updates_information()
{
    return Guard([&] {
        UpdatesFuncs::InitializeUpdatesInformation();
        return VYR_OK;
    });
}

vyr_status vyr_updates_set_type(const uint16_t* type, ptrdiff_t type_length)
{
    return Guard([&] {
        auto argument0 = ToText(type, type_length, "type");
        UpdatesFuncs::SetType(std::move(argument0));
        return VYR_OK;
    });
}

vyr_status vyr_updates_get_type(uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(UpdatesFuncs::GetType());
    });
}

vyr_status vyr_updates_set_product_name(const uint16_t* product_name, ptrdiff_t product_name_length)
{
    return Guard([&] {
        auto argument0 = ToText(product_name, product_name_length, "product_name");
        UpdatesFuncs::SetProductName(std::move(argument0));
        return VYR_OK;
    });
}

vyr_status vyr_updates_get_product_name(uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(UpdatesFuncs::GetProductName());
    });
}

vyr_status vyr_updates_set_version(const uint16_t* version, ptrdiff_t version_length)
{
    return Guard([&] {
        auto argument0 = ToText(version, version_length, "version");
        UpdatesFuncs::SetVersion(std::move(argument0));
        return VYR_OK;
    });
}

vyr_status vyr_updates_get_version(uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(UpdatesFuncs::GetVersion());
    });
}

vyr_status vyr_updates_set_edition(const uint16_t* edition, ptrdiff_t edition_length)
{
    return Guard([&] {
        auto argument0 = ToText(edition, edition_length, "edition");
        UpdatesFuncs::SetEdition(std::move(argument0));
        return VYR_OK;
    });
}

vyr_status vyr_updates_get_edition(uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(UpdatesFuncs::GetEdition());
    });
}

vyr_status vyr_updates_set_platform_bit(const uint16_t* platform_bit, ptrdiff_t platform_bit_length)
{
    return Guard([&] {
        auto argument0 = ToText(platform_bit, platform_bit_length, "platform_bit");
        UpdatesFuncs::SetPlatformBit(std::move(argument0));
        return VYR_OK;
    });
}

vyr_status vyr_updates_get_platform_bit(uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(UpdatesFuncs::GetPlatformBit());
    });
}

vyr_status vyr_updates_set_details_url(const uint16_t* details_url, ptrdiff_t details_url_length)
{
    return Guard([&] {
        auto argument0 = ToText(details_url, details_url_length, "details_url");
        UpdatesFuncs::SetDetailsURL(std::move(argument0));
        return VYR_OK;
    });
}

vyr_status vyr_updates_get_details_url(uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(UpdatesFuncs::GetDetailsURL());
    });
}

vyr_status vyr_updates_set_download_url(const uint16_t* download_url, ptrdiff_t download_url_length)
{
    return Guard([&] {
        auto argument0 = ToText(download_url, download_url_length, "download_url");
        UpdatesFuncs::SetDownloadURL(std::move(argument0));
        return VYR_OK;
    });
}

vyr_status vyr_updates_get_download_url(uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(UpdatesFuncs::GetDownloadURL());
    });
}

vyr_status vyr_updates_set_update_items_list(const vyr_updates_item* items, size_t items_count)
{
    return Guard([&] {
        auto argument0 = ToRecords(items, items_count, "items", [](const vyr_updates_item& element, const char* argument) { return ToCpp(&element, argument); });
        UpdatesFuncs::SetUpdateItemsList(std::move(argument0));
        return VYR_OK;
    });
}

vyr_status vyr_updates_get_update_items_list(vyr_list* result)
{
    return Guard([&] {
        const ListResult listResult(result);
        return listResult.Give(UpdatesFuncs::GetUpdateItemsList());
    });
}

vyr_status vyr_updates_set_checked_date(const uint16_t* checked_date, ptrdiff_t checked_date_length)
{
    return Guard([&] {
        auto argument0 = ToText(checked_date, checked_date_length, "checked_date");
        UpdatesFuncs::SetCheckedDate(std::move(argument0));
        return VYR_OK;
    });
}

vyr_status vyr_updates_get_checked_date(uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(UpdatesFuncs::GetCheckedDate());
    });
}

vyr_status vyr_updates_check_for_updates(const uint16_t* version, ptrdiff_t version_length, int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToText(version, version_length, "version");
        return numberResult.Give(UpdatesFuncs::CheckForUpdates(std::move(argument0)));
    });
}

vyr_status vyr_updates_get_check_for_updates_url(uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        return textResult.Give(UpdatesFuncs::GetCheckForUpdatesUrl());
    });
}

vyr_status vyr_updates_get_agree_ignore_server(int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        return numberResult.Give(UpdatesFuncs::GetAgreeIgnoreServer());
    });
}

vyr_status vyr_updates_get_updates_information(const uint16_t* path, ptrdiff_t path_length, int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToText(path, path_length, "path");
        return numberResult.Give(UpdatesFuncs::GetUpdatesInformation(std::move(argument0)));
    });
}

vyr_status vyr_updates_load_check_for_updates_date()
{
    return Guard([&] {
        UpdatesFuncs::LoadCheckForUpdatesDate();
        return VYR_OK;
    });
}

vyr_status vyr_updates_save_check_for_updates_date()
{
    return Guard([&] {
        UpdatesFuncs::SaveCheckForUpdatesDate();
        return VYR_OK;
    });
}

vyr_status vyr_updates_is_date_interval_check_for_updates(int32_t days, int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        return numberResult.Give(UpdatesFuncs::IsDateIntervalCheckForUpdates(days));
    });
}

vyr_status vyr_msxml_load_xml_file(const uint16_t* path, ptrdiff_t path_length, void** result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToText(path, path_length, "path");
        return numberResult.Give(ToC(MSXMLFuncs::LoadXmlFile(std::move(argument0))));
    });
}

vyr_status vyr_msxml_load_xslt_file(const uint16_t* path, ptrdiff_t path_length, void** result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToText(path, path_length, "path");
        return numberResult.Give(ToC(MSXMLFuncs::LoadXsltFile(std::move(argument0))));
    });
}

vyr_status vyr_style_initialize_styles_information()
{
    return Guard([&] {
        StyleFuncs::InitializeStylesInformation();
        return VYR_OK;
    });
}

vyr_status vyr_style_get_styles_information(const uint16_t* path, ptrdiff_t path_length, int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToText(path, path_length, "path");
        return numberResult.Give(StyleFuncs::GetStylesInformation(std::move(argument0)));
    });
}

vyr_status vyr_style_set_design_items_list(const vyr_style_item* items, size_t items_count)
{
    return Guard([&] {
        auto argument0 = ToRecords(items, items_count, "items", [](const vyr_style_item& element, const char* argument) { return ToCpp(&element, argument); });
        StyleFuncs::SetDesignItemsList(std::move(argument0));
        return VYR_OK;
    });
}

vyr_status vyr_style_get_design_items_list(vyr_list* result)
{
    return Guard([&] {
        const ListResult listResult(result);
        return listResult.Give(StyleFuncs::GetDesignItemsList());
    });
}

vyr_status vyr_xml_get_root(void* document, void** result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = GivenObject(document, "document");
        return numberResult.Give(ToC(XmlNodes::GetRoot(argument0)));
    });
}

vyr_status vyr_xml_get_text(void* element, uint16_t* buffer, size_t capacity, size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = GivenObject(element, "element");
        return textResult.Give(XmlNodes::GetText(argument0));
    });
}

vyr_status vyr_xml_get_attribute(
    void* element,
    const uint16_t* name,
    ptrdiff_t name_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length)
{
    return Guard([&] {
        const TextResult textResult(buffer, capacity, length);
        auto argument0 = GivenObject(element, "element");
        auto argument1 = ToText(name, name_length, "name");
        return textResult.Give(XmlNodes::GetAttribute(argument0, std::move(argument1)));
    });
}

vyr_status vyr_xml_count_elements(void* element, const uint16_t* name, ptrdiff_t name_length, int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = GivenObject(element, "element");
        auto argument1 = ToText(name, name_length, "name");
        return numberResult.Give(XmlNodes::CountElements(argument0, std::move(argument1)));
    });
}

vyr_status vyr_xml_get_element(void* element, const uint16_t* name, ptrdiff_t name_length, int32_t index, void** result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = GivenObject(element, "element");
        auto argument1 = ToText(name, name_length, "name");
        return numberResult.Give(ToC(XmlNodes::GetElement(argument0, std::move(argument1), index)));
    });
}

vyr_status vyr_xml_release(void* object)
{
    return Guard([&] {
        auto argument0 = GivenObject(object, "object");
        XmlNodes::Release(argument0);
        return VYR_OK;
    });
}

vyr_status vyr_host_list_create(intptr_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        return numberResult.Give(ToC(HostLists::Create()));
    });
}

vyr_status vyr_host_list_destroy(intptr_t list, int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToHandle<HWND>(list);
        return numberResult.Give(HostLists::Destroy(argument0));
    });
}

vyr_status vyr_host_list_insert_column(
    intptr_t list,
    int32_t index,
    const uint16_t* heading,
    ptrdiff_t heading_length,
    int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToHandle<HWND>(list);
        auto argument2 = ToText(heading, heading_length, "heading");
        return numberResult.Give(HostLists::InsertColumn(argument0, index, std::move(argument2)));
    });
}

vyr_status vyr_host_list_delete_column(intptr_t list, int32_t index, int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToHandle<HWND>(list);
        return numberResult.Give(HostLists::DeleteColumn(argument0, index));
    });
}

vyr_status vyr_host_list_move_column(intptr_t list, int32_t index, int32_t position, int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToHandle<HWND>(list);
        return numberResult.Give(HostLists::MoveColumn(argument0, index, position));
    });
}

vyr_status vyr_host_list_set_has_header(intptr_t list, int32_t has_header, int32_t* result)
{
    return Guard([&] {
        const NumberResult numberResult(result);
        auto argument0 = ToHandle<HWND>(list);
        return numberResult.Give(HostLists::SetHasHeader(argument0, has_header));
    });
}

vyr_status vyr_host_registry_show_wine_prefix(const uint16_t* folder, ptrdiff_t folder_length, vyr_list* result)
{
    return Guard([&] {
        const ListResult listResult(result);
        auto argument0 = ToText(folder, folder_length, "folder");
        return listResult.Give(std::vector{HostRegistry::ShowWinePrefix(std::move(argument0))});
    });
}

vyr_status vyr_host_registry_show_hives(const vyr_host_registry_hive_files* files, vyr_list* result)
{
    return Guard([&] {
        const ListResult listResult(result);
        const auto& argument0 = ToCpp(files, "files");
        return listResult.Give(std::vector{HostRegistry::ShowHives(argument0)});
    });
}

vyr_status vyr_host_registry_show_user_hives(
    const uint16_t* user,
    ptrdiff_t user_length,
    const uint16_t* user_classes,
    ptrdiff_t user_classes_length,
    vyr_list* result)
{
    return Guard([&] {
        const ListResult listResult(result);
        auto argument0 = ToText(user, user_length, "user");
        auto argument1 = ToText(user_classes, user_classes_length, "user_classes");
        return listResult.Give(std::vector{HostRegistry::ShowUserHives(std::move(argument0), std::move(argument1))});
    });
}

vyr_status vyr_host_registry_close()
{
    return Guard([&] {
        HostRegistry::Close();
        return VYR_OK;
    });
}

vyr_status vyr_host_queue_set_drain(vyr_drain drain, void* context)
{
    return Guard([&] {
        auto argument0 = ToDrain(drain, context);
        HostQueue::SetDrain(std::move(argument0));
        return VYR_OK;
    });
}
