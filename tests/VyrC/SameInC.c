/* Calls each operation with the shared values; written by VyrC/generate from VyrC/interface.txt. */
#include "SameInC.h"

#include "SharedValues.h"

#include <stdlib.h>

static vyr_attributes_item make_vyr_attributes_item(shared_values* values)
{
    vyr_attributes_item record = {0};
    record.struct_size = sizeof record;
    record.read_only = (int32_t)next_number(values);
    record.hidden = (int32_t)next_number(values);
    record.system = (int32_t)next_number(values);
    record.archive = (int32_t)next_number(values);
    record.temporary = (int32_t)next_number(values);
    record.not_content_indexed = (int32_t)next_number(values);
    return record;
}

static vyr_date_time_stagger_item make_vyr_date_time_stagger_item(shared_values* values)
{
    vyr_date_time_stagger_item record = {0};
    record.struct_size = sizeof record;
    record.use_start_date_time = (int32_t)next_number(values);
    record.start_date = next_date_time(values);
    record.start_time = next_date_time(values);
    record.numbering_mode = (int32_t)next_number(values);
    record.direction = (int32_t)next_number(values);
    record.start_number = (int32_t)next_number(values);
    record.years = (int32_t)next_number(values);
    record.months = (int32_t)next_number(values);
    record.days = (int32_t)next_number(values);
    record.hours = (int32_t)next_number(values);
    record.minutes = (int32_t)next_number(values);
    record.seconds = (int32_t)next_number(values);
    return record;
}

static vyr_office_property_handler make_vyr_office_property_handler(shared_values* values)
{
    vyr_office_property_handler record = {0};
    record.struct_size = sizeof record;
    record.extension = next_text(values);
    record.clsid = next_guid(values);
    record.flag = (int32_t)next_number(values);
    return record;
}

static vyr_name_item make_vyr_name_item(shared_values* values)
{
    vyr_name_item record = {0};
    record.struct_size = sizeof record;
    record.file_path = next_text(values);
    record.aux_text1 = next_text(values);
    record.aux_text2 = next_text(values);
    record.aux_text3 = next_text(values);
    record.aux_text4 = next_text(values);
    record.dir_path = next_text(values);
    record.file_name = next_text(values);
    record.extension = next_text(values);
    record.index = (int32_t)next_number(values);
    record.rename_type = (int32_t)next_number(values);
    record.number_position = (int32_t)next_number(values);
    record.number_text1 = next_text(values);
    record.number_text2 = next_text(values);
    record.start_number = (int32_t)next_number(values);
    record.digits = (int32_t)next_number(values);
    record.step = (int32_t)next_number(values);
    record.date_time_position = (int32_t)next_number(values);
    record.date_time_target = (int32_t)next_number(values);
    record.date_time_format = next_text(values);
    record.add_delete_type = (int32_t)next_number(values);
    record.position = (int32_t)next_number(values);
    record.delete_count = (int32_t)next_number(values);
    record.add_text = next_text(values);
    record.convert_type = (int32_t)next_number(values);
    record.find_text = next_text(values);
    record.replace_text = next_text(values);
    record.extension_type = (int32_t)next_number(values);
    record.new_extension = next_text(values);
    return record;
}

static vyr_name_conflict_item make_vyr_name_conflict_item(shared_values* values)
{
    vyr_name_conflict_item record = {0};
    record.struct_size = sizeof record;
    record.number_format = next_text(values);
    record.position = (int32_t)next_number(values);
    record.start_number = (int32_t)next_number(values);
    record.step = (int32_t)next_number(values);
    return record;
}

static vyr_programs_item make_vyr_programs_item(shared_values* values)
{
    vyr_programs_item record = {0};
    record.struct_size = sizeof record;
    record.key_name = next_text(values);
    record.sub_key_name = next_text(values);
    record.display_icon = next_text(values);
    record.display_name = next_text(values);
    record.display_name_localized = next_text(values);
    record.display_version = next_text(values);
    record.install_location = next_text(values);
    record.publisher = next_text(values);
    record.url_info_about = next_text(values);
    record.url_update_info = next_text(values);
    record.comments = next_text(values);
    record.contact = next_text(values);
    record.help_link = next_text(values);
    record.help_telephone = next_text(values);
    record.install_date = next_text(values);
    record.install_source = next_text(values);
    record.readme = next_text(values);
    record.unused18 = next_text(values);
    record.unused19 = next_text(values);
    record.reg_company = next_text(values);
    record.reg_owner = next_text(values);
    record.unused22 = next_text(values);
    record.last_write_time = next_text(values);
    record.parent_display_name = next_text(values);
    record.parent_key_name = next_text(values);
    record.uninstall_string = next_text(values);
    record.unused27 = next_text(values);
    record.estimated_size_bytes = (uint64_t)next_number(values);
    record.estimated_size = (uint32_t)next_number(values);
    record.system_component = (uint32_t)next_number(values);
    record.windows_installer = (uint32_t)next_number(values);
    record.version_major = (uint32_t)next_number(values);
    record.version_minor = (uint32_t)next_number(values);
    record.unused34 = (uint32_t)next_number(values);
    record.language = (uint32_t)next_number(values);
    record.no_modify = (uint32_t)next_number(values);
    record.no_repair = (uint32_t)next_number(values);
    record.no_remove = (uint32_t)next_number(values);
    record.no_elevate_on_modify = (uint32_t)next_number(values);
    record.full_key_name = next_text(values);
    record.formatted_size = next_text(values);
    record.unused42 = next_text(values);
    record.is_wow6432_node = (int32_t)next_number(values);
    return record;
}

static vyr_programs_product make_vyr_programs_product(shared_values* values)
{
    vyr_programs_product record = {0};
    record.struct_size = sizeof record;
    record.product_key = next_text(values);
    record.package_code = next_text(values);
    record.product_name = next_text(values);
    record.product_icon = next_text(values);
    record.deployment_flags = (uint32_t)next_number(values);
    record.language = (uint32_t)next_number(values);
    record.version = (uint32_t)next_number(values);
    return record;
}

static vyr_filter_condition make_vyr_filter_condition(shared_values* values)
{
    vyr_filter_condition record = {0};
    record.struct_size = sizeof record;
    record.filter_value = (int32_t)next_number(values);
    record.enabled = (int32_t)next_number(values);
    record.text = next_text(values);
    record.condition = (int32_t)next_number(values);
    record.match_case = (int32_t)next_number(values);
    return record;
}

static vyr_search_item make_vyr_search_item(shared_values* values)
{
    vyr_search_item record = {0};
    record.struct_size = sizeof record;
    record.date_time = next_date_time(values);
    record.size = (int64_t)next_number(values);
    return record;
}

static vyr_updates_item make_vyr_updates_item(shared_values* values)
{
    vyr_updates_item record = {0};
    record.struct_size = sizeof record;
    record.category = (int32_t)next_number(values);
    record.description = next_text(values);
    return record;
}

static vyr_style_item make_vyr_style_item(shared_values* values)
{
    vyr_style_item record = {0};
    record.struct_size = sizeof record;
    record.id = (int32_t)next_number(values);
    record.value = next_text(values);
    record.name = next_text(values);
    return record;
}

const char* same_mshtml_img_set_resize_img_style(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    void* a0;
    vyr_rect a1;
    all.next = round;
    begin_showing();
    a0 = next_page(values);
    a1 = next_rect(values);
    status = vyr_mshtml_img_set_resize_img_style(a0, &a1);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_word("done");
    return all_shown();
}

const char* same_output_set_output_file_path(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_output_set_output_file_path(a0.units, a0.length);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_word("done");
    return all_shown();
}

const char* same_output_set_output_filter_index(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int32_t a0;
    all.next = round;
    begin_showing();
    a0 = (int32_t)next_number(values);
    status = vyr_output_set_output_filter_index(a0);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_word("done");
    return all_shown();
}

const char* same_programs_set_output_file_path(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_programs_set_output_file_path(a0.units, a0.length);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_word("done");
    return all_shown();
}

const char* same_programs_set_open_output_file(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int32_t a0;
    all.next = round;
    begin_showing();
    a0 = (int32_t)next_number(values);
    status = vyr_programs_set_open_output_file(a0);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_word("done");
    return all_shown();
}

const char* same_search_set_search_closed(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int32_t a0;
    all.next = round;
    begin_showing();
    a0 = (int32_t)next_number(values);
    status = vyr_search_set_search_closed(a0);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_word("done");
    return all_shown();
}

const char* same_search_set_date_time_search(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int32_t a0;
    all.next = round;
    begin_showing();
    a0 = (int32_t)next_number(values);
    status = vyr_search_set_date_time_search(a0);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_word("done");
    return all_shown();
}

const char* same_search_set_date_time_target(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int32_t a0;
    all.next = round;
    begin_showing();
    a0 = (int32_t)next_number(values);
    status = vyr_search_set_date_time_target(a0);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_word("done");
    return all_shown();
}

const char* same_search_set_date_time_range(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int32_t a0;
    all.next = round;
    begin_showing();
    a0 = (int32_t)next_number(values);
    status = vyr_search_set_date_time_range(a0);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_word("done");
    return all_shown();
}

const char* same_search_set_date_time_from_date_time(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_date_time a0;
    all.next = round;
    begin_showing();
    a0 = next_date_time(values);
    status = vyr_search_set_date_time_from_date_time(a0.days, a0.status);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_word("done");
    return all_shown();
}

const char* same_search_set_date_time_to_date_time(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_date_time a0;
    all.next = round;
    begin_showing();
    a0 = next_date_time(values);
    status = vyr_search_set_date_time_to_date_time(a0.days, a0.status);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_word("done");
    return all_shown();
}

const char* same_search_set_size_search(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int32_t a0;
    all.next = round;
    begin_showing();
    a0 = (int32_t)next_number(values);
    status = vyr_search_set_size_search(a0);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_word("done");
    return all_shown();
}

const char* same_search_set_size_target(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int32_t a0;
    all.next = round;
    begin_showing();
    a0 = (int32_t)next_number(values);
    status = vyr_search_set_size_target(a0);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_word("done");
    return all_shown();
}

const char* same_search_set_size_range(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int32_t a0;
    all.next = round;
    begin_showing();
    a0 = (int32_t)next_number(values);
    status = vyr_search_set_size_range(a0);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_word("done");
    return all_shown();
}

const char* same_search_set_size_from_size(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int64_t a0;
    all.next = round;
    begin_showing();
    a0 = (int64_t)next_number(values);
    status = vyr_search_set_size_from_size(a0);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_word("done");
    return all_shown();
}

const char* same_search_set_size_to_size(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int64_t a0;
    all.next = round;
    begin_showing();
    a0 = (int64_t)next_number(values);
    status = vyr_search_set_size_to_size(a0);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_word("done");
    return all_shown();
}

const char* same_feature_control_set_feature_security_band(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int32_t a0;
    all.next = round;
    begin_showing();
    a0 = (int32_t)next_number(values);
    status = vyr_feature_control_set_feature_security_band(a0);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_word("done");
    return all_shown();
}

const char* same_feature_control_set_feature_weboc_popup_management(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int32_t a0;
    all.next = round;
    begin_showing();
    a0 = (int32_t)next_number(values);
    status = vyr_feature_control_set_feature_weboc_popup_management(a0);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_word("done");
    return all_shown();
}

const char* same_feature_control_set_feature_local_machine_lock_down(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int32_t a0;
    all.next = round;
    begin_showing();
    a0 = (int32_t)next_number(values);
    status = vyr_feature_control_set_feature_local_machine_lock_down(a0);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_word("done");
    return all_shown();
}

const char* same_feature_control_set_feature_restrict_file_download(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int32_t a0;
    all.next = round;
    begin_showing();
    a0 = (int32_t)next_number(values);
    status = vyr_feature_control_set_feature_restrict_file_download(a0);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_word("done");
    return all_shown();
}

const char* same_feature_control_set_feature_restrict_active_x_install(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int32_t a0;
    all.next = round;
    begin_showing();
    a0 = (int32_t)next_number(values);
    status = vyr_feature_control_set_feature_restrict_active_x_install(a0);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_word("done");
    return all_shown();
}

const char* same_feature_control_set_feature_tabbed_browsing(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int32_t a0;
    all.next = round;
    begin_showing();
    a0 = (int32_t)next_number(values);
    status = vyr_feature_control_set_feature_tabbed_browsing(a0);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_word("done");
    return all_shown();
}

const char* same_feature_control_set_feature_disable_navigation_sounds(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int32_t a0;
    all.next = round;
    begin_showing();
    a0 = (int32_t)next_number(values);
    status = vyr_feature_control_set_feature_disable_navigation_sounds(a0);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_word("done");
    return all_shown();
}

const char* same_feature_control_set_feature_feeds(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int32_t a0;
    all.next = round;
    begin_showing();
    a0 = (int32_t)next_number(values);
    status = vyr_feature_control_set_feature_feeds(a0);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_word("done");
    return all_shown();
}

const char* same_feature_control_set_feature_block_lmz_img(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    uint32_t a0;
    all.next = round;
    begin_showing();
    a0 = (uint32_t)next_number(values);
    status = vyr_feature_control_set_feature_block_lmz_img(a0);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_word("done");
    return all_shown();
}

const char* same_feature_control_set_feature_block_lmz_object(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    uint32_t a0;
    all.next = round;
    begin_showing();
    a0 = (uint32_t)next_number(values);
    status = vyr_feature_control_set_feature_block_lmz_object(a0);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_word("done");
    return all_shown();
}

const char* same_feature_control_set_feature_block_lmz_script(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    uint32_t a0;
    all.next = round;
    begin_showing();
    a0 = (uint32_t)next_number(values);
    status = vyr_feature_control_set_feature_block_lmz_script(a0);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_word("done");
    return all_shown();
}

const char* same_feature_control_set_feature_browser_emulation(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    uint32_t a0;
    all.next = round;
    begin_showing();
    a0 = (uint32_t)next_number(values);
    status = vyr_feature_control_set_feature_browser_emulation(a0);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_word("done");
    return all_shown();
}

const char* same_updates_initialize_updates_information(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    all.next = round;
    begin_showing();
    status = vyr_updates_initialize_updates_information();
    if (status != VYR_OK)
        show_failure(status);
    else
        show_word("done");
    (void)values;
    return all_shown();
}

const char* same_updates_set_type(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_updates_set_type(a0.units, a0.length);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_word("done");
    return all_shown();
}

const char* same_updates_set_product_name(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_updates_set_product_name(a0.units, a0.length);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_word("done");
    return all_shown();
}

const char* same_updates_set_version(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_updates_set_version(a0.units, a0.length);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_word("done");
    return all_shown();
}

const char* same_updates_set_edition(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_updates_set_edition(a0.units, a0.length);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_word("done");
    return all_shown();
}

const char* same_updates_set_platform_bit(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_updates_set_platform_bit(a0.units, a0.length);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_word("done");
    return all_shown();
}

const char* same_updates_set_details_url(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_updates_set_details_url(a0.units, a0.length);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_word("done");
    return all_shown();
}

const char* same_updates_set_download_url(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_updates_set_download_url(a0.units, a0.length);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_word("done");
    return all_shown();
}

const char* same_updates_set_update_items_list(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_updates_item a0[2];
    all.next = round;
    begin_showing();
    a0[0] = make_vyr_updates_item(values);
    a0[1] = make_vyr_updates_item(values);
    status = vyr_updates_set_update_items_list(a0, 2);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_word("done");
    return all_shown();
}

const char* same_updates_set_checked_date(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_updates_set_checked_date(a0.units, a0.length);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_word("done");
    return all_shown();
}

const char* same_updates_load_check_for_updates_date(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    all.next = round;
    begin_showing();
    status = vyr_updates_load_check_for_updates_date();
    if (status != VYR_OK)
        show_failure(status);
    else
        show_word("done");
    (void)values;
    return all_shown();
}

const char* same_updates_save_check_for_updates_date(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    all.next = round;
    begin_showing();
    status = vyr_updates_save_check_for_updates_date();
    if (status != VYR_OK)
        show_failure(status);
    else
        show_word("done");
    (void)values;
    return all_shown();
}

const char* same_style_initialize_styles_information(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    all.next = round;
    begin_showing();
    status = vyr_style_initialize_styles_information();
    if (status != VYR_OK)
        show_failure(status);
    else
        show_word("done");
    (void)values;
    return all_shown();
}

const char* same_style_set_design_items_list(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_style_item a0[2];
    all.next = round;
    begin_showing();
    a0[0] = make_vyr_style_item(values);
    a0[1] = make_vyr_style_item(values);
    status = vyr_style_set_design_items_list(a0, 2);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_word("done");
    return all_shown();
}

const char* same_html_get_doctype_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    status = vyr_html_get_doctype_tag(0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_doctype_tag(buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    (void)values;
    return all_shown();
}

const char* same_html_get_saved_from_url_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    status = vyr_html_get_saved_from_url_tag(0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_saved_from_url_tag(buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    (void)values;
    return all_shown();
}

const char* same_html_get_html_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_html_get_html_tag(a0.units, a0.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_html_tag(a0.units, a0.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_html_closing_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    status = vyr_html_get_html_closing_tag(0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_html_closing_tag(buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    (void)values;
    return all_shown();
}

const char* same_html_get_head_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    status = vyr_html_get_head_tag(0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_head_tag(buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    (void)values;
    return all_shown();
}

const char* same_html_get_head_closing_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    status = vyr_html_get_head_closing_tag(0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_head_closing_tag(buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    (void)values;
    return all_shown();
}

const char* same_html_get_meta_xua_compatible_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_html_get_meta_xua_compatible_tag(a0.units, a0.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_meta_xua_compatible_tag(a0.units, a0.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_meta_content_type_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_html_get_meta_content_type_tag(a0.units, a0.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_meta_content_type_tag(a0.units, a0.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_meta_generator_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_html_get_meta_generator_tag(a0.units, a0.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_meta_generator_tag(a0.units, a0.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_link_css_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_html_get_link_css_tag(a0.units, a0.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_link_css_tag(a0.units, a0.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_script_src_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_html_get_script_src_tag(a0.units, a0.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_script_src_tag(a0.units, a0.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_script_closing_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    status = vyr_html_get_script_closing_tag(0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_script_closing_tag(buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    (void)values;
    return all_shown();
}

const char* same_html_get_script_src_pair_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_html_get_script_src_pair_tag(a0.units, a0.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_script_src_pair_tag(a0.units, a0.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_title_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_html_get_title_tag(a0.units, a0.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_title_tag(a0.units, a0.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_body_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    status = vyr_html_get_body_tag(0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_body_tag(buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    (void)values;
    return all_shown();
}

const char* same_html_get_body_tag_with_attributes(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_html_get_body_tag_with_attributes(a0.units, a0.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_body_tag_with_attributes(a0.units, a0.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_body_closing_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    status = vyr_html_get_body_closing_tag(0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_body_closing_tag(buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    (void)values;
    return all_shown();
}

const char* same_html_get_header_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text a1;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1 = next_text(values);
    status = vyr_html_get_header_tag(a0.units, a0.length, a1.units, a1.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_header_tag(a0.units, a0.length, a1.units, a1.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_header_closing_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    status = vyr_html_get_header_closing_tag(0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_header_closing_tag(buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    (void)values;
    return all_shown();
}

const char* same_html_get_footer_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text a1;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1 = next_text(values);
    status = vyr_html_get_footer_tag(a0.units, a0.length, a1.units, a1.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_footer_tag(a0.units, a0.length, a1.units, a1.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_footer_closing_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    status = vyr_html_get_footer_closing_tag(0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_footer_closing_tag(buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    (void)values;
    return all_shown();
}

const char* same_html_get_h1_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_html_get_h1_tag(a0.units, a0.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_h1_tag(a0.units, a0.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_h1_closing_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    status = vyr_html_get_h1_closing_tag(0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_h1_closing_tag(buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    (void)values;
    return all_shown();
}

const char* same_html_get_h1_pair_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text a1;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1 = next_text(values);
    status = vyr_html_get_h1_pair_tag(a0.units, a0.length, a1.units, a1.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_h1_pair_tag(a0.units, a0.length, a1.units, a1.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_p_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    status = vyr_html_get_p_tag(0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_p_tag(buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    (void)values;
    return all_shown();
}

const char* same_html_get_p_tag_with_class_name(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_html_get_p_tag_with_class_name(a0.units, a0.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_p_tag_with_class_name(a0.units, a0.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_p_closing_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    status = vyr_html_get_p_closing_tag(0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_p_closing_tag(buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    (void)values;
    return all_shown();
}

const char* same_html_get_span_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    status = vyr_html_get_span_tag(0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_span_tag(buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    (void)values;
    return all_shown();
}

const char* same_html_get_span_tag_with_class_name(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_html_get_span_tag_with_class_name(a0.units, a0.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_span_tag_with_class_name(a0.units, a0.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_span_tag_with_class_name_id(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text a1;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1 = next_text(values);
    status = vyr_html_get_span_tag_with_class_name_id(a0.units, a0.length, a1.units, a1.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_span_tag_with_class_name_id(a0.units, a0.length, a1.units, a1.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_span_closing_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int32_t a0;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = (int32_t)next_number(values);
    status = vyr_html_get_span_closing_tag(a0, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_span_closing_tag(a0, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_span_pair_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text a1;
    int32_t a2;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1 = next_text(values);
    a2 = (int32_t)next_number(values);
    status = vyr_html_get_span_pair_tag(a0.units, a0.length, a1.units, a1.length, a2, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_span_pair_tag(a0.units, a0.length, a1.units, a1.length, a2, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_span_pair_tag_with_id(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text a1;
    vyr_text a2;
    int32_t a3;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1 = next_text(values);
    a2 = next_text(values);
    a3 = (int32_t)next_number(values);
    status = vyr_html_get_span_pair_tag_with_id(a0.units, a0.length, a1.units, a1.length, a2.units, a2.length, a3, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_span_pair_tag_with_id(a0.units, a0.length, a1.units, a1.length, a2.units, a2.length, a3, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_div_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    status = vyr_html_get_div_tag(0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_div_tag(buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    (void)values;
    return all_shown();
}

const char* same_html_get_div_tag_with_class_name(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_html_get_div_tag_with_class_name(a0.units, a0.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_div_tag_with_class_name(a0.units, a0.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_div_tag_with_class_name_id(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text a1;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1 = next_text(values);
    status = vyr_html_get_div_tag_with_class_name_id(a0.units, a0.length, a1.units, a1.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_div_tag_with_class_name_id(a0.units, a0.length, a1.units, a1.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_div_tag_with_class_name_id_attributes(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text a1;
    vyr_text a2;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1 = next_text(values);
    a2 = next_text(values);
    status = vyr_html_get_div_tag_with_class_name_id_attributes(a0.units, a0.length, a1.units, a1.length, a2.units, a2.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_div_tag_with_class_name_id_attributes(a0.units, a0.length, a1.units, a1.length, a2.units, a2.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_div_closing_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int32_t a0;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = (int32_t)next_number(values);
    status = vyr_html_get_div_closing_tag(a0, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_div_closing_tag(a0, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_div_pair_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text a1;
    int32_t a2;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1 = next_text(values);
    a2 = (int32_t)next_number(values);
    status = vyr_html_get_div_pair_tag(a0.units, a0.length, a1.units, a1.length, a2, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_div_pair_tag(a0.units, a0.length, a1.units, a1.length, a2, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_div_pair_tag_with_id(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text a1;
    vyr_text a2;
    int32_t a3;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1 = next_text(values);
    a2 = next_text(values);
    a3 = (int32_t)next_number(values);
    status = vyr_html_get_div_pair_tag_with_id(a0.units, a0.length, a1.units, a1.length, a2.units, a2.length, a3, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_div_pair_tag_with_id(a0.units, a0.length, a1.units, a1.length, a2.units, a2.length, a3, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_div_pair_tag_with_id_attributes(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text a1;
    vyr_text a2;
    vyr_text a3;
    int32_t a4;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1 = next_text(values);
    a2 = next_text(values);
    a3 = next_text(values);
    a4 = (int32_t)next_number(values);
    status = vyr_html_get_div_pair_tag_with_id_attributes(a0.units, a0.length, a1.units, a1.length, a2.units, a2.length, a3.units, a3.length, a4, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_div_pair_tag_with_id_attributes(a0.units, a0.length, a1.units, a1.length, a2.units, a2.length, a3.units, a3.length, a4, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_br_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int32_t a0;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = (int32_t)next_number(values);
    status = vyr_html_get_br_tag(a0, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_br_tag(a0, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_a_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_html_get_a_tag(a0.units, a0.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_a_tag(a0.units, a0.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_a_tag_with_class_name(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text a1;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1 = next_text(values);
    status = vyr_html_get_a_tag_with_class_name(a0.units, a0.length, a1.units, a1.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_a_tag_with_class_name(a0.units, a0.length, a1.units, a1.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_a_tag_with_class_name_target(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text a1;
    vyr_text a2;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1 = next_text(values);
    a2 = next_text(values);
    status = vyr_html_get_a_tag_with_class_name_target(a0.units, a0.length, a1.units, a1.length, a2.units, a2.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_a_tag_with_class_name_target(a0.units, a0.length, a1.units, a1.length, a2.units, a2.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_a_closing_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    status = vyr_html_get_a_closing_tag(0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_a_closing_tag(buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    (void)values;
    return all_shown();
}

const char* same_html_get_a_pair_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text a1;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1 = next_text(values);
    status = vyr_html_get_a_pair_tag(a0.units, a0.length, a1.units, a1.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_a_pair_tag(a0.units, a0.length, a1.units, a1.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_a_pair_tag_with_class_name(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text a1;
    vyr_text a2;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1 = next_text(values);
    a2 = next_text(values);
    status = vyr_html_get_a_pair_tag_with_class_name(a0.units, a0.length, a1.units, a1.length, a2.units, a2.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_a_pair_tag_with_class_name(a0.units, a0.length, a1.units, a1.length, a2.units, a2.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_a_pair_tag_with_class_name_target(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text a1;
    vyr_text a2;
    vyr_text a3;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1 = next_text(values);
    a2 = next_text(values);
    a3 = next_text(values);
    status = vyr_html_get_a_pair_tag_with_class_name_target(a0.units, a0.length, a1.units, a1.length, a2.units, a2.length, a3.units, a3.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_a_pair_tag_with_class_name_target(a0.units, a0.length, a1.units, a1.length, a2.units, a2.length, a3.units, a3.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_img_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    int32_t a1;
    int32_t a2;
    vyr_text a3;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1 = (int32_t)next_number(values);
    a2 = (int32_t)next_number(values);
    a3 = next_text(values);
    status = vyr_html_get_img_tag(a0.units, a0.length, a1, a2, a3.units, a3.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_img_tag(a0.units, a0.length, a1, a2, a3.units, a3.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_img_tag_with_class_name(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text a1;
    int32_t a2;
    int32_t a3;
    vyr_text a4;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1 = next_text(values);
    a2 = (int32_t)next_number(values);
    a3 = (int32_t)next_number(values);
    a4 = next_text(values);
    status = vyr_html_get_img_tag_with_class_name(a0.units, a0.length, a1.units, a1.length, a2, a3, a4.units, a4.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_img_tag_with_class_name(a0.units, a0.length, a1.units, a1.length, a2, a3, a4.units, a4.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_img_tag_with_class_name_id(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text a1;
    int32_t a2;
    int32_t a3;
    vyr_text a4;
    vyr_text a5;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1 = next_text(values);
    a2 = (int32_t)next_number(values);
    a3 = (int32_t)next_number(values);
    a4 = next_text(values);
    a5 = next_text(values);
    status = vyr_html_get_img_tag_with_class_name_id(a0.units, a0.length, a1.units, a1.length, a2, a3, a4.units, a4.length, a5.units, a5.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_img_tag_with_class_name_id(a0.units, a0.length, a1.units, a1.length, a2, a3, a4.units, a4.length, a5.units, a5.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_img_tag_with_class_name_id_title(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text a1;
    int32_t a2;
    int32_t a3;
    vyr_text a4;
    vyr_text a5;
    vyr_text a6;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1 = next_text(values);
    a2 = (int32_t)next_number(values);
    a3 = (int32_t)next_number(values);
    a4 = next_text(values);
    a5 = next_text(values);
    a6 = next_text(values);
    status = vyr_html_get_img_tag_with_class_name_id_title(a0.units, a0.length, a1.units, a1.length, a2, a3, a4.units, a4.length, a5.units, a5.length, a6.units, a6.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_img_tag_with_class_name_id_title(a0.units, a0.length, a1.units, a1.length, a2, a3, a4.units, a4.length, a5.units, a5.length, a6.units, a6.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_table_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text a1;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1 = next_text(values);
    status = vyr_html_get_table_tag(a0.units, a0.length, a1.units, a1.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_table_tag(a0.units, a0.length, a1.units, a1.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_table_closing_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    status = vyr_html_get_table_closing_tag(0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_table_closing_tag(buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    (void)values;
    return all_shown();
}

const char* same_html_get_thead_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    status = vyr_html_get_thead_tag(0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_thead_tag(buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    (void)values;
    return all_shown();
}

const char* same_html_get_thead_closing_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    status = vyr_html_get_thead_closing_tag(0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_thead_closing_tag(buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    (void)values;
    return all_shown();
}

const char* same_html_get_tbody_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    status = vyr_html_get_tbody_tag(0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_tbody_tag(buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    (void)values;
    return all_shown();
}

const char* same_html_get_tbody_closing_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    status = vyr_html_get_tbody_closing_tag(0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_tbody_closing_tag(buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    (void)values;
    return all_shown();
}

const char* same_html_get_tr_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    status = vyr_html_get_tr_tag(0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_tr_tag(buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    (void)values;
    return all_shown();
}

const char* same_html_get_tr_tag_with_class_name(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_html_get_tr_tag_with_class_name(a0.units, a0.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_tr_tag_with_class_name(a0.units, a0.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_tr_tag_with_class_name_id(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text a1;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1 = next_text(values);
    status = vyr_html_get_tr_tag_with_class_name_id(a0.units, a0.length, a1.units, a1.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_tr_tag_with_class_name_id(a0.units, a0.length, a1.units, a1.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_tr_closing_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    status = vyr_html_get_tr_closing_tag(0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_tr_closing_tag(buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    (void)values;
    return all_shown();
}

const char* same_html_get_tr_pair_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_html_get_tr_pair_tag(a0.units, a0.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_tr_pair_tag(a0.units, a0.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_tr_pair_tag_with_class_name(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text a1;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1 = next_text(values);
    status = vyr_html_get_tr_pair_tag_with_class_name(a0.units, a0.length, a1.units, a1.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_tr_pair_tag_with_class_name(a0.units, a0.length, a1.units, a1.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_tr_pair_tag_with_class_name_id(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text a1;
    vyr_text a2;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1 = next_text(values);
    a2 = next_text(values);
    status = vyr_html_get_tr_pair_tag_with_class_name_id(a0.units, a0.length, a1.units, a1.length, a2.units, a2.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_tr_pair_tag_with_class_name_id(a0.units, a0.length, a1.units, a1.length, a2.units, a2.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_th_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_html_get_th_tag(a0.units, a0.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_th_tag(a0.units, a0.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_th_closing_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    status = vyr_html_get_th_closing_tag(0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_th_closing_tag(buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    (void)values;
    return all_shown();
}

const char* same_html_get_th_pair_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text a1;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1 = next_text(values);
    status = vyr_html_get_th_pair_tag(a0.units, a0.length, a1.units, a1.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_th_pair_tag(a0.units, a0.length, a1.units, a1.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_td_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    status = vyr_html_get_td_tag(0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_td_tag(buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    (void)values;
    return all_shown();
}

const char* same_html_get_td_tag_with_class_name(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_html_get_td_tag_with_class_name(a0.units, a0.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_td_tag_with_class_name(a0.units, a0.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_td_tag_with_class_name_id(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text a1;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1 = next_text(values);
    status = vyr_html_get_td_tag_with_class_name_id(a0.units, a0.length, a1.units, a1.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_td_tag_with_class_name_id(a0.units, a0.length, a1.units, a1.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_td_tag_with_class_name_id_attributes(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text a1;
    vyr_text a2;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1 = next_text(values);
    a2 = next_text(values);
    status = vyr_html_get_td_tag_with_class_name_id_attributes(a0.units, a0.length, a1.units, a1.length, a2.units, a2.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_td_tag_with_class_name_id_attributes(a0.units, a0.length, a1.units, a1.length, a2.units, a2.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_td_tag_with_class_name_id_width_height(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text a1;
    int32_t a2;
    int32_t a3;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1 = next_text(values);
    a2 = (int32_t)next_number(values);
    a3 = (int32_t)next_number(values);
    status = vyr_html_get_td_tag_with_class_name_id_width_height(a0.units, a0.length, a1.units, a1.length, a2, a3, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_td_tag_with_class_name_id_width_height(a0.units, a0.length, a1.units, a1.length, a2, a3, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_td_col_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text a1;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1 = next_text(values);
    status = vyr_html_get_td_col_tag(a0.units, a0.length, a1.units, a1.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_td_col_tag(a0.units, a0.length, a1.units, a1.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_td_col_tag_with_attributes(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text a1;
    vyr_text a2;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1 = next_text(values);
    a2 = next_text(values);
    status = vyr_html_get_td_col_tag_with_attributes(a0.units, a0.length, a1.units, a1.length, a2.units, a2.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_td_col_tag_with_attributes(a0.units, a0.length, a1.units, a1.length, a2.units, a2.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_td_closing_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    status = vyr_html_get_td_closing_tag(0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_td_closing_tag(buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    (void)values;
    return all_shown();
}

const char* same_html_get_td_pair_tag(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_html_get_td_pair_tag(a0.units, a0.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_td_pair_tag(a0.units, a0.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_td_pair_tag_with_class_name(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text a1;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1 = next_text(values);
    status = vyr_html_get_td_pair_tag_with_class_name(a0.units, a0.length, a1.units, a1.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_td_pair_tag_with_class_name(a0.units, a0.length, a1.units, a1.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_html_get_td_pair_tag_with_class_name_id(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text a1;
    vyr_text a2;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1 = next_text(values);
    a2 = next_text(values);
    status = vyr_html_get_td_pair_tag_with_class_name_id(a0.units, a0.length, a1.units, a1.length, a2.units, a2.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_html_get_td_pair_tag_with_class_name_id(a0.units, a0.length, a1.units, a1.length, a2.units, a2.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_output_get_output_file_path(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    status = vyr_output_get_output_file_path(0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_output_get_output_file_path(buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    (void)values;
    return all_shown();
}

const char* same_output_get_output_filter_index(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    status = vyr_output_get_output_filter_index(&result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    (void)values;
    return all_shown();
}

const char* same_output_get_generator_output_string(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    status = vyr_output_get_generator_output_string(0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_output_get_generator_output_string(buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    (void)values;
    return all_shown();
}

const char* same_output_get_generator_output_string_with_name(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_output_get_generator_output_string_with_name(a0.units, a0.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_output_get_generator_output_string_with_name(a0.units, a0.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_output_get_property_size(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int32_t a0;
    int32_t a1;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    a0 = (int32_t)next_number(values);
    a1 = (int32_t)next_number(values);
    status = vyr_output_get_property_size(a0, a1, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    return all_shown();
}

const char* same_output_get_dialog_property_width(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int32_t a0;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = (int32_t)next_number(values);
    status = vyr_output_get_dialog_property_width(a0, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_output_get_dialog_property_width(a0, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_attributes_set_modified_file_attributes(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_attributes_item a1;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    a0 = next_path(values);
    a1 = make_vyr_attributes_item(values);
    status = vyr_attributes_set_modified_file_attributes(a0.units, a0.length, &a1, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    return all_shown();
}

const char* same_attributes_get_selected_read_only_attributes(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_attributes_get_selected_read_only_attributes(a0.units, a0.length, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    return all_shown();
}

const char* same_attributes_get_selected_hidden_attributes(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_attributes_get_selected_hidden_attributes(a0.units, a0.length, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    return all_shown();
}

const char* same_attributes_get_selected_system_attributes(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_attributes_get_selected_system_attributes(a0.units, a0.length, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    return all_shown();
}

const char* same_attributes_get_selected_archive_attributes(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_attributes_get_selected_archive_attributes(a0.units, a0.length, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    return all_shown();
}

const char* same_attributes_get_selected_temporary_attributes(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_attributes_get_selected_temporary_attributes(a0.units, a0.length, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    return all_shown();
}

const char* same_attributes_get_selected_not_content_indexed_attributes(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_attributes_get_selected_not_content_indexed_attributes(a0.units, a0.length, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    return all_shown();
}

const char* same_attributes_set_read_only_attributes(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    int32_t a1;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    a0 = next_path(values);
    a1 = (int32_t)next_number(values);
    status = vyr_attributes_set_read_only_attributes(a0.units, a0.length, a1, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    return all_shown();
}

const char* same_attributes_set_hidden_attributes(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    int32_t a1;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    a0 = next_path(values);
    a1 = (int32_t)next_number(values);
    status = vyr_attributes_set_hidden_attributes(a0.units, a0.length, a1, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    return all_shown();
}

const char* same_attributes_set_system_attributes(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    int32_t a1;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    a0 = next_path(values);
    a1 = (int32_t)next_number(values);
    status = vyr_attributes_set_system_attributes(a0.units, a0.length, a1, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    return all_shown();
}

const char* same_attributes_set_archive_attributes(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    int32_t a1;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    a0 = next_path(values);
    a1 = (int32_t)next_number(values);
    status = vyr_attributes_set_archive_attributes(a0.units, a0.length, a1, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    return all_shown();
}

const char* same_attributes_set_temporary_attributes(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    int32_t a1;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    a0 = next_path(values);
    a1 = (int32_t)next_number(values);
    status = vyr_attributes_set_temporary_attributes(a0.units, a0.length, a1, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    return all_shown();
}

const char* same_attributes_set_not_content_indexed_attributes(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    int32_t a1;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    a0 = next_path(values);
    a1 = (int32_t)next_number(values);
    status = vyr_attributes_set_not_content_indexed_attributes(a0.units, a0.length, a1, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    return all_shown();
}

const char* same_attributes_get_arrtibutes_priority(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_attributes_get_arrtibutes_priority(a0.units, a0.length, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    return all_shown();
}

const char* same_date_time_get_other_date_time(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    int32_t a1;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1 = (int32_t)next_number(values);
    status = vyr_date_time_get_other_date_time(a0.units, a0.length, a1, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_date_time_get_other_date_time(a0.units, a0.length, a1, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_date_time_get_selected_file_date_time(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    int32_t a1;
    int32_t a2;
    uint64_t result = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1 = (int32_t)next_number(values);
    a2 = (int32_t)next_number(values);
    status = vyr_date_time_get_selected_file_date_time(a0.units, a0.length, a1, a2, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_unsigned(result);
    return all_shown();
}

const char* same_date_time_get_modified_file_date_time(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    int32_t a1;
    vyr_date_time a2;
    vyr_date_time a3;
    int32_t a4;
    uint64_t result = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1 = (int32_t)next_number(values);
    a2 = next_date_time(values);
    a3 = next_date_time(values);
    a4 = (int32_t)next_number(values);
    status = vyr_date_time_get_modified_file_date_time(a0.units, a0.length, a1, a2.days, a2.status, a3.days, a3.status, a4, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_unsigned(result);
    return all_shown();
}

const char* same_date_time_set_modified_file_date_time(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    uint64_t a1_place;
    const uint64_t* a1;
    uint64_t a2_place;
    const uint64_t* a2;
    uint64_t a3_place;
    const uint64_t* a3;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    a0 = next_path(values);
    a1 = next_file_time(values, &a1_place);
    a2 = next_file_time(values, &a2_place);
    a3 = next_file_time(values, &a3_place);
    status = vyr_date_time_set_modified_file_date_time(a0.units, a0.length, a1, a2, a3, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    return all_shown();
}

const char* same_date_time_get_stagger_file_date_time(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int32_t a0;
    int32_t a1;
    vyr_date_time a2;
    vyr_date_time_stagger_item a3;
    uint64_t result = 0;
    all.next = round;
    begin_showing();
    a0 = (int32_t)next_number(values);
    a1 = (int32_t)next_number(values);
    a2 = next_date_time(values);
    a3 = make_vyr_date_time_stagger_item(values);
    status = vyr_date_time_get_stagger_file_date_time(a0, a1, a2.days, a2.status, &a3, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_unsigned(result);
    return all_shown();
}

const char* same_date_time_get_cal_date_time(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_date_time a0;
    int32_t a1;
    int32_t a2;
    int32_t a3;
    vyr_date_time result = {0};
    all.next = round;
    begin_showing();
    a0 = next_date_time(values);
    a1 = (int32_t)next_number(values);
    a2 = (int32_t)next_number(values);
    a3 = (int32_t)next_number(values);
    status = vyr_date_time_get_cal_date_time(a0.days, a0.status, a1, a2, a3, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_date_time(result);
    return all_shown();
}

const char* same_date_time_get_time_difference_date_time(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_date_time a0;
    int32_t a1;
    vyr_date_time result = {0};
    all.next = round;
    begin_showing();
    a0 = next_date_time(values);
    a1 = (int32_t)next_number(values);
    status = vyr_date_time_get_time_difference_date_time(a0.days, a0.status, a1, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_date_time(result);
    return all_shown();
}

const char* same_date_time_get_yesterday_date_time(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_date_time a0;
    vyr_date_time result = {0};
    all.next = round;
    begin_showing();
    a0 = next_date_time(values);
    status = vyr_date_time_get_yesterday_date_time(a0.days, a0.status, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_date_time(result);
    return all_shown();
}

const char* same_date_time_get_last_month_date_time(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_date_time a0;
    vyr_date_time result = {0};
    all.next = round;
    begin_showing();
    a0 = next_date_time(values);
    status = vyr_date_time_get_last_month_date_time(a0.days, a0.status, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_date_time(result);
    return all_shown();
}

const char* same_date_time_get_last_year_date_time(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_date_time a0;
    vyr_date_time result = {0};
    all.next = round;
    begin_showing();
    a0 = next_date_time(values);
    status = vyr_date_time_get_last_year_date_time(a0.days, a0.status, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_date_time(result);
    return all_shown();
}

const char* same_date_time_get_begin_this_week_date_time(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_date_time a0;
    vyr_date_time result = {0};
    all.next = round;
    begin_showing();
    a0 = next_date_time(values);
    status = vyr_date_time_get_begin_this_week_date_time(a0.days, a0.status, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_date_time(result);
    return all_shown();
}

const char* same_date_time_get_begin_last_week_date_time(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_date_time a0;
    vyr_date_time result = {0};
    all.next = round;
    begin_showing();
    a0 = next_date_time(values);
    status = vyr_date_time_get_begin_last_week_date_time(a0.days, a0.status, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_date_time(result);
    return all_shown();
}

const char* same_date_time_get_end_week_date_time(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_date_time a0;
    vyr_date_time result = {0};
    all.next = round;
    begin_showing();
    a0 = next_date_time(values);
    status = vyr_date_time_get_end_week_date_time(a0.days, a0.status, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_date_time(result);
    return all_shown();
}

const char* same_date_time_is_match_date_month(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_date_time a0;
    vyr_date_time a1;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    a0 = next_date_time(values);
    a1 = next_date_time(values);
    status = vyr_date_time_is_match_date_month(a0.days, a0.status, a1.days, a1.status, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    return all_shown();
}

const char* same_date_time_is_match_date(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_date_time a0;
    vyr_date_time a1;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    a0 = next_date_time(values);
    a1 = next_date_time(values);
    status = vyr_date_time_is_match_date(a0.days, a0.status, a1.days, a1.status, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    return all_shown();
}

const char* same_office_property_get_class_id_item_list(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text_and_number a0[2];
    vyr_list list = 0;
    size_t count = 0;
    size_t index;
    vyr_office_property_handler found = {0};
    all.next = round;
    begin_showing();
    a0[0] = next_text_and_number(values);
    a0[1] = next_text_and_number(values);
    status = vyr_office_property_get_class_id_item_list(a0, 2, &list);
    if (status != VYR_OK)
        show_failure(status);
    if (status == VYR_OK && vyr_list_get_count(list, &count) != VYR_OK)
        show_word("no count");
    found.struct_size = sizeof found;
    for (index = 0; index < count; ++index) {
        if (vyr_office_property_handler_get(list, index, &found) != VYR_OK)
            show_word("no record");
        show_text(found.extension);
        show_word("|");
        show_guid(found.clsid);
        show_word("|");
        show_signed(found.flag);
        show_word("\n");
    }
    if (status == VYR_OK && vyr_list_release(list) != VYR_OK)
        show_word("not released");
    return all_shown();
}

const char* same_office_property_get_class_id(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_office_property_handler a1[2];
    vyr_guid result = {0};
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1[0] = make_vyr_office_property_handler(values);
    a1[1] = make_vyr_office_property_handler(values);
    status = vyr_office_property_get_class_id(a0.units, a0.length, a1, 2, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_guid(result);
    return all_shown();
}

const char* same_office_property_get_property_handler_reg_key(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_office_property_get_property_handler_reg_key(a0.units, a0.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_office_property_get_property_handler_reg_key(a0.units, a0.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_office_property_set_dump_props(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    uint32_t a1;
    vyr_value a2_place;
    const vyr_value* a2;
    vyr_guid a3;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    a0 = next_path(values);
    a1 = (uint32_t)next_number(values);
    a2 = next_value(values, &a2_place);
    a3 = next_handler(values);
    status = vyr_office_property_set_dump_props(a0.units, a0.length, a1, a2, &a3, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    return all_shown();
}

const char* same_unblock_delete_zone_id(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    a0 = next_path(values);
    status = vyr_unblock_delete_zone_id(a0.units, a0.length, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    return all_shown();
}

const char* same_name_get_rename_file_path(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_name_item a0;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = make_vyr_name_item(values);
    status = vyr_name_get_rename_file_path(&a0, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_name_get_rename_file_path(&a0, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_name_get_rename_file_paths(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_name_item a0[2];
    vyr_list list = 0;
    size_t count = 0;
    size_t index;
    vyr_text found = {0};
    all.next = round;
    begin_showing();
    a0[0] = make_vyr_name_item(values);
    a0[1] = make_vyr_name_item(values);
    status = vyr_name_get_rename_file_paths(a0, 2, &list);
    if (status != VYR_OK)
        show_failure(status);
    if (status == VYR_OK && vyr_list_get_count(list, &count) != VYR_OK)
        show_word("no count");
    for (index = 0; index < count; ++index) {
        if (vyr_text_get(list, index, &found) != VYR_OK)
            show_word("no record");
        show_text(found);
        show_word("\n");
    }
    if (status == VYR_OK && vyr_list_release(list) != VYR_OK)
        show_word("not released");
    return all_shown();
}

const char* same_name_get_f_name(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_name_get_f_name(a0.units, a0.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_name_get_f_name(a0.units, a0.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_name_get_extension(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_name_get_extension(a0.units, a0.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_name_get_extension(a0.units, a0.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_name_is_resolve_conflict(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_name_item a0;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    a0 = make_vyr_name_item(values);
    status = vyr_name_is_resolve_conflict(&a0, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    return all_shown();
}

const char* same_name_get_sequence_number_file_path(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_name_item a0;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = make_vyr_name_item(values);
    status = vyr_name_get_sequence_number_file_path(&a0, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_name_get_sequence_number_file_path(&a0, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_name_get_date_time_file_path(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_name_item a0;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = make_vyr_name_item(values);
    status = vyr_name_get_date_time_file_path(&a0, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_name_get_date_time_file_path(&a0, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_name_get_add_delete_file_path(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_name_item a0;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = make_vyr_name_item(values);
    status = vyr_name_get_add_delete_file_path(&a0, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_name_get_add_delete_file_path(&a0, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_name_get_convert_file_path(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_name_item a0;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = make_vyr_name_item(values);
    status = vyr_name_get_convert_file_path(&a0, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_name_get_convert_file_path(&a0, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_name_get_replace_file_path(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_name_item a0;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = make_vyr_name_item(values);
    status = vyr_name_get_replace_file_path(&a0, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_name_get_replace_file_path(&a0, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_name_get_extension_file_path(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_name_item a0;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = make_vyr_name_item(values);
    status = vyr_name_get_extension_file_path(&a0, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_name_get_extension_file_path(&a0, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_name_get_resolve_conflict_file_path(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_name_conflict_item a1;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_free_path(values);
    a1 = make_vyr_name_conflict_item(values);
    status = vyr_name_get_resolve_conflict_file_path(a0.units, a0.length, &a1, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_name_get_resolve_conflict_file_path(a0.units, a0.length, &a1, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_name_get_rename_to_sample_formated(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_name_get_rename_to_sample_formated(a0.units, a0.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_name_get_rename_to_sample_formated(a0.units, a0.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_name_get_date_time_format(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text a1;
    int32_t a2;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1 = next_text(values);
    a2 = (int32_t)next_number(values);
    status = vyr_name_get_date_time_format(a0.units, a0.length, a1.units, a1.length, a2, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_name_get_date_time_format(a0.units, a0.length, a1.units, a1.length, a2, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_name_get_folder_format(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_name_get_folder_format(a0.units, a0.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_name_get_folder_format(a0.units, a0.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_name_get_exif_format(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text a1;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1 = next_text(values);
    status = vyr_name_get_exif_format(a0.units, a0.length, a1.units, a1.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_name_get_exif_format(a0.units, a0.length, a1.units, a1.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_name_copy_folder(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text a1;
    vyr_list a2 = 0;
    vyr_name_rename_item found = {0};
    size_t count = 0;
    size_t index;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    a0 = next_path(values);
    a1 = next_path(values);
    status = vyr_name_copy_folder(a0.units, a0.length, a1.units, a1.length, &a2, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    show_word("\n");
    if (status == VYR_OK && vyr_list_get_count(a2, &count) != VYR_OK)
        show_word("no count");
    found.struct_size = sizeof found;
    for (index = 0; index < count; ++index) {
        if (vyr_name_rename_item_get(a2, index, &found) != VYR_OK)
            show_word("no record");
        show_text(found.source_path);
        show_word("|");
        show_text(found.destination_path);
        show_word("|");
        show_date_time(found.date_created);
        show_word("|");
        show_date_time(found.date_modified);
        show_word("\n");
    }
    if (status == VYR_OK && vyr_list_release(a2) != VYR_OK)
        show_word("not released");
    return all_shown();
}

const char* same_name_move_folder(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text a1;
    vyr_list a2 = 0;
    vyr_name_rename_item found = {0};
    size_t count = 0;
    size_t index;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    a0 = next_path(values);
    a1 = next_path(values);
    status = vyr_name_move_folder(a0.units, a0.length, a1.units, a1.length, &a2, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    show_word("\n");
    if (status == VYR_OK && vyr_list_get_count(a2, &count) != VYR_OK)
        show_word("no count");
    found.struct_size = sizeof found;
    for (index = 0; index < count; ++index) {
        if (vyr_name_rename_item_get(a2, index, &found) != VYR_OK)
            show_word("no record");
        show_text(found.source_path);
        show_word("|");
        show_text(found.destination_path);
        show_word("|");
        show_date_time(found.date_created);
        show_word("|");
        show_date_time(found.date_modified);
        show_word("\n");
    }
    if (status == VYR_OK && vyr_list_release(a2) != VYR_OK)
        show_word("not released");
    return all_shown();
}

const char* same_programs_get_programs_features_items_list(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int32_t a0;
    int32_t a1;
    vyr_list list = 0;
    size_t count = 0;
    size_t index;
    vyr_programs_item found = {0};
    all.next = round;
    begin_showing();
    a0 = (int32_t)next_number(values);
    a1 = (int32_t)next_number(values);
    status = vyr_programs_get_programs_features_items_list(a0, a1, &list);
    if (status != VYR_OK)
        show_failure(status);
    if (status == VYR_OK && vyr_list_get_count(list, &count) != VYR_OK)
        show_word("no count");
    found.struct_size = sizeof found;
    for (index = 0; index < count; ++index) {
        if (vyr_programs_item_get(list, index, &found) != VYR_OK)
            show_word("no record");
        show_text(found.key_name);
        show_word("|");
        show_text(found.sub_key_name);
        show_word("|");
        show_text(found.display_icon);
        show_word("|");
        show_text(found.display_name);
        show_word("|");
        show_text(found.display_name_localized);
        show_word("|");
        show_text(found.display_version);
        show_word("|");
        show_text(found.install_location);
        show_word("|");
        show_text(found.publisher);
        show_word("|");
        show_text(found.url_info_about);
        show_word("|");
        show_text(found.url_update_info);
        show_word("|");
        show_text(found.comments);
        show_word("|");
        show_text(found.contact);
        show_word("|");
        show_text(found.help_link);
        show_word("|");
        show_text(found.help_telephone);
        show_word("|");
        show_text(found.install_date);
        show_word("|");
        show_text(found.install_source);
        show_word("|");
        show_text(found.readme);
        show_word("|");
        show_text(found.unused18);
        show_word("|");
        show_text(found.unused19);
        show_word("|");
        show_text(found.reg_company);
        show_word("|");
        show_text(found.reg_owner);
        show_word("|");
        show_text(found.unused22);
        show_word("|");
        show_text(found.last_write_time);
        show_word("|");
        show_text(found.parent_display_name);
        show_word("|");
        show_text(found.parent_key_name);
        show_word("|");
        show_text(found.uninstall_string);
        show_word("|");
        show_text(found.unused27);
        show_word("|");
        show_unsigned(found.estimated_size_bytes);
        show_word("|");
        show_unsigned(found.estimated_size);
        show_word("|");
        show_unsigned(found.system_component);
        show_word("|");
        show_unsigned(found.windows_installer);
        show_word("|");
        show_unsigned(found.version_major);
        show_word("|");
        show_unsigned(found.version_minor);
        show_word("|");
        show_unsigned(found.unused34);
        show_word("|");
        show_unsigned(found.language);
        show_word("|");
        show_unsigned(found.no_modify);
        show_word("|");
        show_unsigned(found.no_repair);
        show_word("|");
        show_unsigned(found.no_remove);
        show_word("|");
        show_unsigned(found.no_elevate_on_modify);
        show_word("|");
        show_text(found.full_key_name);
        show_word("|");
        show_text(found.formatted_size);
        show_word("|");
        show_text(found.unused42);
        show_word("|");
        show_signed(found.is_wow6432_node);
        show_word("\n");
    }
    if (status == VYR_OK && vyr_list_release(list) != VYR_OK)
        show_word("not released");
    return all_shown();
}

const char* same_programs_get_programs_features_windows_installer_items_list(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int32_t a0;
    vyr_list list = 0;
    size_t count = 0;
    size_t index;
    vyr_programs_item found = {0};
    all.next = round;
    begin_showing();
    a0 = (int32_t)next_number(values);
    status = vyr_programs_get_programs_features_windows_installer_items_list(a0, &list);
    if (status != VYR_OK)
        show_failure(status);
    if (status == VYR_OK && vyr_list_get_count(list, &count) != VYR_OK)
        show_word("no count");
    found.struct_size = sizeof found;
    for (index = 0; index < count; ++index) {
        if (vyr_programs_item_get(list, index, &found) != VYR_OK)
            show_word("no record");
        show_text(found.key_name);
        show_word("|");
        show_text(found.sub_key_name);
        show_word("|");
        show_text(found.display_icon);
        show_word("|");
        show_text(found.display_name);
        show_word("|");
        show_text(found.display_name_localized);
        show_word("|");
        show_text(found.display_version);
        show_word("|");
        show_text(found.install_location);
        show_word("|");
        show_text(found.publisher);
        show_word("|");
        show_text(found.url_info_about);
        show_word("|");
        show_text(found.url_update_info);
        show_word("|");
        show_text(found.comments);
        show_word("|");
        show_text(found.contact);
        show_word("|");
        show_text(found.help_link);
        show_word("|");
        show_text(found.help_telephone);
        show_word("|");
        show_text(found.install_date);
        show_word("|");
        show_text(found.install_source);
        show_word("|");
        show_text(found.readme);
        show_word("|");
        show_text(found.unused18);
        show_word("|");
        show_text(found.unused19);
        show_word("|");
        show_text(found.reg_company);
        show_word("|");
        show_text(found.reg_owner);
        show_word("|");
        show_text(found.unused22);
        show_word("|");
        show_text(found.last_write_time);
        show_word("|");
        show_text(found.parent_display_name);
        show_word("|");
        show_text(found.parent_key_name);
        show_word("|");
        show_text(found.uninstall_string);
        show_word("|");
        show_text(found.unused27);
        show_word("|");
        show_unsigned(found.estimated_size_bytes);
        show_word("|");
        show_unsigned(found.estimated_size);
        show_word("|");
        show_unsigned(found.system_component);
        show_word("|");
        show_unsigned(found.windows_installer);
        show_word("|");
        show_unsigned(found.version_major);
        show_word("|");
        show_unsigned(found.version_minor);
        show_word("|");
        show_unsigned(found.unused34);
        show_word("|");
        show_unsigned(found.language);
        show_word("|");
        show_unsigned(found.no_modify);
        show_word("|");
        show_unsigned(found.no_repair);
        show_word("|");
        show_unsigned(found.no_remove);
        show_word("|");
        show_unsigned(found.no_elevate_on_modify);
        show_word("|");
        show_text(found.full_key_name);
        show_word("|");
        show_text(found.formatted_size);
        show_word("|");
        show_text(found.unused42);
        show_word("|");
        show_signed(found.is_wow6432_node);
        show_word("\n");
    }
    if (status == VYR_OK && vyr_list_release(list) != VYR_OK)
        show_word("not released");
    return all_shown();
}

const char* same_programs_get_list_view_item_text(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int32_t a0;
    vyr_programs_item a1;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = (int32_t)next_number(values);
    a1 = make_vyr_programs_item(values);
    status = vyr_programs_get_list_view_item_text(a0, &a1, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_programs_get_list_view_item_text(a0, &a1, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_programs_get_programs_features_installer_products_items_list(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_list list = 0;
    size_t count = 0;
    size_t index;
    vyr_programs_product found = {0};
    all.next = round;
    begin_showing();
    status = vyr_programs_get_programs_features_installer_products_items_list(&list);
    if (status != VYR_OK)
        show_failure(status);
    if (status == VYR_OK && vyr_list_get_count(list, &count) != VYR_OK)
        show_word("no count");
    found.struct_size = sizeof found;
    for (index = 0; index < count; ++index) {
        if (vyr_programs_product_get(list, index, &found) != VYR_OK)
            show_word("no record");
        show_text(found.product_key);
        show_word("|");
        show_text(found.package_code);
        show_word("|");
        show_text(found.product_name);
        show_word("|");
        show_text(found.product_icon);
        show_word("|");
        show_unsigned(found.deployment_flags);
        show_word("|");
        show_unsigned(found.language);
        show_word("|");
        show_unsigned(found.version);
        show_word("\n");
    }
    if (status == VYR_OK && vyr_list_release(list) != VYR_OK)
        show_word("not released");
    (void)values;
    return all_shown();
}

const char* same_programs_get_product_icon(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text a1;
    vyr_programs_product a2[2];
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1 = next_text(values);
    a2[0] = make_vyr_programs_product(values);
    a2[1] = make_vyr_programs_product(values);
    status = vyr_programs_get_product_icon(a0.units, a0.length, a1.units, a1.length, a2, 2, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_programs_get_product_icon(a0.units, a0.length, a1.units, a1.length, a2, 2, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_programs_get_application_icon(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    int32_t number = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_programs_get_application_icon(a0.units, a0.length, 0, 0, &length, &number);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_programs_get_application_icon(a0.units, a0.length, buffer, length + 1, &length, &number);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    show_word("/");
    show_signed(number);
    free(buffer);
    return all_shown();
}

const char* same_programs_get_install_date(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text a1;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1 = next_text(values);
    status = vyr_programs_get_install_date(a0.units, a0.length, a1.units, a1.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_programs_get_install_date(a0.units, a0.length, a1.units, a1.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_programs_get_formated_size(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    uint64_t a1;
    int32_t a2;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1 = (uint64_t)next_number(values);
    a2 = (int32_t)next_number(values);
    status = vyr_programs_get_formated_size(a0.units, a0.length, a1, a2, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_programs_get_formated_size(a0.units, a0.length, a1, a2, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_programs_compare_reg_key(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text a1;
    int32_t a2;
    int32_t a3;
    int32_t a4;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1 = next_text(values);
    a2 = (int32_t)next_number(values);
    a3 = (int32_t)next_number(values);
    a4 = (int32_t)next_number(values);
    status = vyr_programs_compare_reg_key(a0.units, a0.length, a1.units, a1.length, a2, a3, a4, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    return all_shown();
}

const char* same_programs_get_key_parent_name(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    intptr_t a0;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_key(values);
    status = vyr_programs_get_key_parent_name(a0, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_programs_get_key_parent_name(a0, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_programs_is_wow6432_node(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_programs_is_wow6432_node(a0.units, a0.length, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    return all_shown();
}

const char* same_programs_get_icon_folder_name(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    status = vyr_programs_get_icon_folder_name(0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_programs_get_icon_folder_name(buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    (void)values;
    return all_shown();
}

const char* same_programs_get_output_file_path(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    status = vyr_programs_get_output_file_path(0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_programs_get_output_file_path(buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    (void)values;
    return all_shown();
}

const char* same_programs_get_open_output_file(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    status = vyr_programs_get_open_output_file(&result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    (void)values;
    return all_shown();
}

const char* same_registry_get_product_reg_key(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text a1;
    int32_t a2;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1 = next_text(values);
    a2 = (int32_t)next_number(values);
    status = vyr_registry_get_product_reg_key(a0.units, a0.length, a1.units, a1.length, a2, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_registry_get_product_reg_key(a0.units, a0.length, a1.units, a1.length, a2, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_registry_get_uninstall_product_reg_key(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_registry_get_uninstall_product_reg_key(a0.units, a0.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_registry_get_uninstall_product_reg_key(a0.units, a0.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_registry_get_product_install_date(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_registry_get_product_install_date(a0.units, a0.length, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_registry_get_product_install_date(a0.units, a0.length, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_column_is_visible_column(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    intptr_t a0;
    vyr_text a1;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    a0 = next_list(values);
    a1 = next_text(values);
    status = vyr_column_is_visible_column(a0, a1.units, a1.length, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    return all_shown();
}

const char* same_column_get_column_header_item(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    intptr_t a0;
    vyr_text a1;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    a0 = next_list(values);
    a1 = next_text(values);
    status = vyr_column_get_column_header_item(a0, a1.units, a1.length, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    return all_shown();
}

const char* same_column_get_column_item_order(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    intptr_t a0;
    vyr_text a1;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    a0 = next_list(values);
    a1 = next_text(values);
    status = vyr_column_get_column_item_order(a0, a1.units, a1.length, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    return all_shown();
}

const char* same_column_get_column_item_text(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    intptr_t a0;
    int32_t a1;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    a0 = next_list(values);
    a1 = (int32_t)next_number(values);
    status = vyr_column_get_column_item_text(a0, a1, 0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_column_get_column_item_text(a0, a1, buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    return all_shown();
}

const char* same_filter_is_match(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    int32_t a1;
    vyr_filter_condition a2[2];
    int32_t result = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1 = (int32_t)next_number(values);
    a2[0] = make_vyr_filter_condition(values);
    a2[1] = make_vyr_filter_condition(values);
    status = vyr_filter_is_match(a0.units, a0.length, a1, a2, 2, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    return all_shown();
}

const char* same_filter_is_match_name(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    int32_t a1;
    vyr_filter_condition a2[2];
    int32_t result = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1 = (int32_t)next_number(values);
    a2[0] = make_vyr_filter_condition(values);
    a2[1] = make_vyr_filter_condition(values);
    status = vyr_filter_is_match_name(a0.units, a0.length, a1, a2, 2, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    return all_shown();
}

const char* same_filter_is_already_added(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text a1[2];
    int32_t result = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1[0] = next_text(values);
    a1[1] = next_text(values);
    status = vyr_filter_is_already_added(a0.units, a0.length, a1, 2, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    return all_shown();
}

const char* same_search_is_match_path(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    int32_t a1;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1 = (int32_t)next_number(values);
    status = vyr_search_is_match_path(a0.units, a0.length, a1, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    return all_shown();
}

const char* same_search_is_match(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_search_item a0;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    a0 = make_vyr_search_item(values);
    status = vyr_search_is_match(&a0, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    return all_shown();
}

const char* same_search_is_match_date_time(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_search_is_match_date_time(a0.units, a0.length, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    return all_shown();
}

const char* same_search_is_match_date_time_value(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_date_time a0;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    a0 = next_date_time(values);
    status = vyr_search_is_match_date_time_value(a0.days, a0.status, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    return all_shown();
}

const char* same_search_is_match_size_path(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    int32_t a1;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1 = (int32_t)next_number(values);
    status = vyr_search_is_match_size_path(a0.units, a0.length, a1, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    return all_shown();
}

const char* same_search_is_match_size(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int64_t a0;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    a0 = (int64_t)next_number(values);
    status = vyr_search_is_match_size(a0, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    return all_shown();
}

const char* same_search_get_search_closed(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    status = vyr_search_get_search_closed(&result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    (void)values;
    return all_shown();
}

const char* same_search_get_date_time_search(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    status = vyr_search_get_date_time_search(&result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    (void)values;
    return all_shown();
}

const char* same_search_get_date_time_target(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    status = vyr_search_get_date_time_target(&result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    (void)values;
    return all_shown();
}

const char* same_search_get_date_time_range(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    status = vyr_search_get_date_time_range(&result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    (void)values;
    return all_shown();
}

const char* same_search_get_date_time_from_date_time(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_date_time result = {0};
    all.next = round;
    begin_showing();
    status = vyr_search_get_date_time_from_date_time(&result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_date_time(result);
    (void)values;
    return all_shown();
}

const char* same_search_get_date_time_to_date_time(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_date_time result = {0};
    all.next = round;
    begin_showing();
    status = vyr_search_get_date_time_to_date_time(&result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_date_time(result);
    (void)values;
    return all_shown();
}

const char* same_search_get_size_search(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    status = vyr_search_get_size_search(&result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    (void)values;
    return all_shown();
}

const char* same_search_get_size_target(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    status = vyr_search_get_size_target(&result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    (void)values;
    return all_shown();
}

const char* same_search_get_size_range(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    status = vyr_search_get_size_range(&result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    (void)values;
    return all_shown();
}

const char* same_search_get_size_from_size(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int64_t result = 0;
    all.next = round;
    begin_showing();
    status = vyr_search_get_size_from_size(&result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    (void)values;
    return all_shown();
}

const char* same_search_get_size_to_size(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int64_t result = 0;
    all.next = round;
    begin_showing();
    status = vyr_search_get_size_to_size(&result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    (void)values;
    return all_shown();
}

const char* same_browser_get_browser_items_list(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_list list = 0;
    size_t count = 0;
    size_t index;
    vyr_browser_app_item found = {0};
    all.next = round;
    begin_showing();
    status = vyr_browser_get_browser_items_list(&list);
    if (status != VYR_OK)
        show_failure(status);
    if (status == VYR_OK && vyr_list_get_count(list, &count) != VYR_OK)
        show_word("no count");
    found.struct_size = sizeof found;
    for (index = 0; index < count; ++index) {
        if (vyr_browser_app_item_get(list, index, &found) != VYR_OK)
            show_word("no record");
        show_signed(found.app_type);
        show_word("|");
        show_text(found.app_key);
        show_word("|");
        show_text(found.display_name);
        show_word("|");
        show_text(found.command);
        show_word("|");
        show_text(found.executable_path);
        show_word("\n");
    }
    if (status == VYR_OK && vyr_list_release(list) != VYR_OK)
        show_word("not released");
    (void)values;
    return all_shown();
}

const char* same_browser_get_microsoft_edge_app_item(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_list list = 0;
    size_t count = 0;
    size_t index;
    vyr_browser_app_item found = {0};
    all.next = round;
    begin_showing();
    status = vyr_browser_get_microsoft_edge_app_item(&list);
    if (status != VYR_OK)
        show_failure(status);
    if (status == VYR_OK && vyr_list_get_count(list, &count) != VYR_OK)
        show_word("no count");
    found.struct_size = sizeof found;
    for (index = 0; index < count; ++index) {
        if (vyr_browser_app_item_get(list, index, &found) != VYR_OK)
            show_word("no record");
        show_signed(found.app_type);
        show_word("|");
        show_text(found.app_key);
        show_word("|");
        show_text(found.display_name);
        show_word("|");
        show_text(found.command);
        show_word("|");
        show_text(found.executable_path);
        show_word("\n");
    }
    if (status == VYR_OK && vyr_list_release(list) != VYR_OK)
        show_word("not released");
    (void)values;
    return all_shown();
}

const char* same_browser_is_installed_microsoft_edge_chromium(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    status = vyr_browser_is_installed_microsoft_edge_chromium(&result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    (void)values;
    return all_shown();
}

const char* same_control_panel_exec_date_and_time(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    intptr_t a0;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    a0 = next_handle(values);
    status = vyr_control_panel_exec_date_and_time(a0, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    return all_shown();
}

const char* same_control_panel_exec_programs_and_features(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    intptr_t a0;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    a0 = next_handle(values);
    status = vyr_control_panel_exec_programs_and_features(a0, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    return all_shown();
}

const char* same_log_get_log_file_name(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    status = vyr_log_get_log_file_name(0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_log_get_log_file_name(buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    (void)values;
    return all_shown();
}

const char* same_log_get_application_log_file_path(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    status = vyr_log_get_application_log_file_path(0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_log_get_application_log_file_path(buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    (void)values;
    return all_shown();
}

const char* same_log_write_with_path_level(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    vyr_text a1;
    int32_t a2;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    a0 = next_path(values);
    a1 = next_text(values);
    a2 = (int32_t)next_number(values);
    status = vyr_log_write_with_path_level(a0.units, a0.length, a1.units, a1.length, a2, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    return all_shown();
}

const char* same_log_write_with_level(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    int32_t a1;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    a1 = (int32_t)next_number(values);
    status = vyr_log_write_with_level(a0.units, a0.length, a1, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    return all_shown();
}

const char* same_log_write(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_log_write(a0.units, a0.length, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    return all_shown();
}

const char* same_application_get_local_data_application_version(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    status = vyr_application_get_local_data_application_version(0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_application_get_local_data_application_version(buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    (void)values;
    return all_shown();
}

const char* same_application_is_alpha_version(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    status = vyr_application_is_alpha_version(&result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    (void)values;
    return all_shown();
}

const char* same_application_is_beta_version(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    status = vyr_application_is_beta_version(&result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    (void)values;
    return all_shown();
}

const char* same_application_is_release_candidate_version(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    status = vyr_application_is_release_candidate_version(&result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    (void)values;
    return all_shown();
}

const char* same_application_is_release_to_manufacturing_version(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    status = vyr_application_is_release_to_manufacturing_version(&result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    (void)values;
    return all_shown();
}

const char* same_application_is_release_version(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    status = vyr_application_is_release_version(&result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    (void)values;
    return all_shown();
}

const char* same_application_is_product_release_version(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    status = vyr_application_is_product_release_version(&result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    (void)values;
    return all_shown();
}

const char* same_application_get_online_support_url(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    status = vyr_application_get_online_support_url(0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_application_get_online_support_url(buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    (void)values;
    return all_shown();
}

const char* same_application_get_send_feedback_url(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    status = vyr_application_get_send_feedback_url(0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_application_get_send_feedback_url(buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    (void)values;
    return all_shown();
}

const char* same_application_get_send_questionnaire_url(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    status = vyr_application_get_send_questionnaire_url(0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_application_get_send_questionnaire_url(buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    (void)values;
    return all_shown();
}

const char* same_updates_get_type(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    status = vyr_updates_get_type(0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_updates_get_type(buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    (void)values;
    return all_shown();
}

const char* same_updates_get_product_name(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    status = vyr_updates_get_product_name(0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_updates_get_product_name(buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    (void)values;
    return all_shown();
}

const char* same_updates_get_version(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    status = vyr_updates_get_version(0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_updates_get_version(buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    (void)values;
    return all_shown();
}

const char* same_updates_get_edition(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    status = vyr_updates_get_edition(0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_updates_get_edition(buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    (void)values;
    return all_shown();
}

const char* same_updates_get_platform_bit(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    status = vyr_updates_get_platform_bit(0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_updates_get_platform_bit(buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    (void)values;
    return all_shown();
}

const char* same_updates_get_details_url(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    status = vyr_updates_get_details_url(0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_updates_get_details_url(buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    (void)values;
    return all_shown();
}

const char* same_updates_get_download_url(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    status = vyr_updates_get_download_url(0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_updates_get_download_url(buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    (void)values;
    return all_shown();
}

const char* same_updates_get_update_items_list(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_list list = 0;
    size_t count = 0;
    size_t index;
    vyr_updates_item found = {0};
    all.next = round;
    begin_showing();
    status = vyr_updates_get_update_items_list(&list);
    if (status != VYR_OK)
        show_failure(status);
    if (status == VYR_OK && vyr_list_get_count(list, &count) != VYR_OK)
        show_word("no count");
    found.struct_size = sizeof found;
    for (index = 0; index < count; ++index) {
        if (vyr_updates_item_get(list, index, &found) != VYR_OK)
            show_word("no record");
        show_signed(found.category);
        show_word("|");
        show_text(found.description);
        show_word("\n");
    }
    if (status == VYR_OK && vyr_list_release(list) != VYR_OK)
        show_word("not released");
    (void)values;
    return all_shown();
}

const char* same_updates_get_checked_date(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    status = vyr_updates_get_checked_date(0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_updates_get_checked_date(buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    (void)values;
    return all_shown();
}

const char* same_updates_check_for_updates(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_updates_check_for_updates(a0.units, a0.length, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    return all_shown();
}

const char* same_updates_get_check_for_updates_url(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text text = {0, 0};
    uint16_t* buffer = 0;
    size_t length = 0;
    all.next = round;
    begin_showing();
    status = vyr_updates_get_check_for_updates_url(0, 0, &length);
    if (status == VYR_BUFFER_TOO_SMALL) {
        buffer = malloc((length + 1) * sizeof *buffer);
        status = vyr_updates_get_check_for_updates_url(buffer, length + 1, &length);
    }
    text.units = buffer;
    text.length = (ptrdiff_t)length;
    if (status != VYR_OK)
        show_failure(status);
    else
        show_text(text);
    free(buffer);
    (void)values;
    return all_shown();
}

const char* same_updates_get_agree_ignore_server(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    status = vyr_updates_get_agree_ignore_server(&result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    (void)values;
    return all_shown();
}

const char* same_updates_get_updates_information(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_updates_get_updates_information(a0.units, a0.length, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    return all_shown();
}

const char* same_updates_is_date_interval_check_for_updates(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    int32_t a0;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    a0 = (int32_t)next_number(values);
    status = vyr_updates_is_date_interval_check_for_updates(a0, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    return all_shown();
}

const char* same_msxml_load_xml_file(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    void* result = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_msxml_load_xml_file(a0.units, a0.length, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_object(result);
    if (vyr_xml_release(result) != VYR_OK)
        show_word("not released");
    return all_shown();
}

const char* same_msxml_load_xslt_file(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    void* result = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_msxml_load_xslt_file(a0.units, a0.length, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_object(result);
    if (vyr_xml_release(result) != VYR_OK)
        show_word("not released");
    return all_shown();
}

const char* same_style_get_styles_information(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_text a0;
    int32_t result = 0;
    all.next = round;
    begin_showing();
    a0 = next_text(values);
    status = vyr_style_get_styles_information(a0.units, a0.length, &result);
    if (status != VYR_OK)
        show_failure(status);
    else
        show_signed(result);
    return all_shown();
}

const char* same_style_get_design_items_list(size_t round)
{
    shared_values all = {0};
    shared_values* const values = &all;
    vyr_status status;
    vyr_list list = 0;
    size_t count = 0;
    size_t index;
    vyr_style_item found = {0};
    all.next = round;
    begin_showing();
    status = vyr_style_get_design_items_list(&list);
    if (status != VYR_OK)
        show_failure(status);
    if (status == VYR_OK && vyr_list_get_count(list, &count) != VYR_OK)
        show_word("no count");
    found.struct_size = sizeof found;
    for (index = 0; index < count; ++index) {
        if (vyr_style_item_get(list, index, &found) != VYR_OK)
            show_word("no record");
        show_signed(found.id);
        show_word("|");
        show_text(found.value);
        show_word("|");
        show_text(found.name);
        show_word("\n");
    }
    if (status == VYR_OK && vyr_list_release(list) != VYR_OK)
        show_word("not released");
    (void)values;
    return all_shown();
}
