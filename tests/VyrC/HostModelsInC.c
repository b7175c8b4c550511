/* A host in C: what it describes to the library, and the documents that the library gives it. */
#include "ExpectInC.h"

#include <VyrC/vyr.h>

enum
{
    capacity = 256
};

static int is_same(const uint16_t* text, const uint16_t* other)
{
    while (*text != 0 && *text == *other) {
        ++text;
        ++other;
    }
    return *text == *other;
}

static const uint16_t name[] = {'N', 'a', 'm', 'e', 0};
static const uint16_t size[] = {'S', 'i', 'z', 'e', 0};

static void judge_lists(int has_lists)
{
    intptr_t list = 0;
    int32_t is_done = 0;
    int32_t found = -5;
    EXPECT(vyr_host_list_create(&list) == VYR_OK && (list != 0) == has_lists);
    EXPECT(vyr_host_list_insert_column(list, 0, name, -1, &is_done) == VYR_OK && is_done == has_lists);
    EXPECT(vyr_host_list_insert_column(list, 1, size, -1, &is_done) == VYR_OK && is_done == has_lists);
    EXPECT(vyr_host_list_move_column(list, 1, 0, &is_done) == VYR_OK && is_done == has_lists);
    EXPECT(vyr_column_get_column_item_order(list, name, -1, &found) == VYR_OK && found == (has_lists ? 1 : -1));
    EXPECT(vyr_host_list_delete_column(list, 0, &is_done) == VYR_OK && is_done == has_lists);
    EXPECT(vyr_column_get_column_header_item(list, size, -1, &found) == VYR_OK && found == (has_lists ? 0 : -1));
    EXPECT(vyr_host_list_set_has_header(list, 0, &is_done) == VYR_OK && is_done == has_lists);
    EXPECT(vyr_column_get_column_header_item(list, size, -1, &found) == VYR_OK && found == -1);
    EXPECT(vyr_host_list_destroy(list, &is_done) == VYR_OK && is_done == has_lists);
    EXPECT(vyr_host_list_destroy(list, &is_done) == VYR_OK && is_done == 0);
}

/* What became of opening files; the list is released. */
static int32_t outcome_of(vyr_status status, vyr_list list)
{
    vyr_host_registry_open_result result = {0};
    result.struct_size = sizeof result;
    EXPECT(status == VYR_OK);
    EXPECT(vyr_host_registry_open_result_get(list, 0, &result) == VYR_OK);
    EXPECT(vyr_list_release(list) == VYR_OK);
    return result.outcome;
}

static size_t count_programs(void)
{
    vyr_list list = 0;
    size_t programs = 0;
    EXPECT(vyr_programs_get_programs_features_items_list(0, 1, &list) == VYR_OK);
    EXPECT(vyr_list_get_count(list, &programs) == VYR_OK);
    EXPECT(vyr_list_release(list) == VYR_OK);
    return programs;
}

/* 5: this system does not open such files. */
static void judge_registries(const host_files* files)
{
    const int32_t shown = files->has_models ? 0 : 5;
    vyr_host_registry_hive_files hives = {0};
    vyr_list list = 0;
    vyr_status status;
    hives.struct_size = sizeof hives;
    hives.software = files->software;
    status = vyr_host_registry_show_hives(&hives, &list);
    EXPECT(outcome_of(status, list) == shown);
    EXPECT(!files->has_models || count_programs() == 1);
    status = vyr_host_registry_show_user_hives(files->user.units, files->user.length, 0, 0, &list);
    EXPECT(outcome_of(status, list) == shown);
    EXPECT(!files->has_models || count_programs() == 2);
    status = vyr_host_registry_show_wine_prefix(files->prefix.units, files->prefix.length, &list);
    EXPECT(outcome_of(status, list) == shown);
    EXPECT(!files->has_models || count_programs() == 1);
    EXPECT(vyr_host_registry_close() == VYR_OK);
    EXPECT(!files->has_models || count_programs() == 0);
}

static void judge_documents(const host_files* files)
{
    static const uint16_t two[] = {'t', 'w', 'o', 0};
    static const uint16_t product[] = {'p', 'r', 'o', 'd', 'u', 'c', 't', 0};
    static const uint16_t item[] = {'i', 't', 'e', 'm', 0};
    uint16_t text[capacity];
    size_t length = 0;
    int32_t items = 0;
    void* document = 0;
    void* root = 0;
    void* element = 0;
    void* other = 0;
    EXPECT(vyr_msxml_load_xml_file(files->document.units, files->document.length, &document) == VYR_OK && document);
    EXPECT(vyr_xml_get_root(document, &root) == VYR_OK && root);
    EXPECT(vyr_xml_get_attribute(root, product, -1, text, capacity, &length) == VYR_OK && length == 1 &&
           text[0] == 'V');
    EXPECT(vyr_xml_count_elements(root, item, -1, &items) == VYR_OK && items == 2);
    EXPECT(vyr_xml_get_element(root, item, -1, 1, &element) == VYR_OK && element);
    EXPECT(vyr_xml_get_text(element, text, capacity, &length) == VYR_OK && is_same(text, two));
    EXPECT(vyr_xml_get_element(root, item, -1, 2, &other) == VYR_OK && !other);
    EXPECT(vyr_xml_get_root(element, &other) == VYR_OK && !other);
    EXPECT(vyr_xml_release(element) == VYR_OK);
    EXPECT(vyr_xml_release(root) == VYR_OK);
    EXPECT(vyr_xml_release(document) == VYR_OK);
    EXPECT(vyr_xml_release(document) == VYR_WRONG_ARGUMENT);
    EXPECT(vyr_xml_get_root(document, &other) == VYR_WRONG_ARGUMENT);
    EXPECT(vyr_xml_get_text(&items, text, capacity, &length) == VYR_WRONG_ARGUMENT);
    EXPECT(vyr_xml_release(0) == VYR_OK);
}

static int calls;

static int32_t count_call(void* context)
{
    calls += *(const int*)context;
    return 0;
}

/* The operation drains once for each entry. */
static void list_handlers(void)
{
    static const uint16_t extension[] = {'.', 'd', 'o', 'c', 0};
    vyr_text_and_number extensions[2] = {{{0, 0}, 0}, {{0, 0}, 0}};
    vyr_list list = 0;
    extensions[0].text.units = extensions[1].text.units = extension;
    extensions[0].text.length = extensions[1].text.length = -1;
    EXPECT(vyr_office_property_get_class_id_item_list(extensions, 2, &list) == VYR_OK);
    EXPECT(vyr_list_release(list) == VYR_OK);
}

static void judge_drain(void)
{
    int step = 5;
    calls = 0;
    EXPECT(vyr_host_queue_set_drain(&count_call, &step) == VYR_OK);
    list_handlers();
    EXPECT(calls == 10);
    EXPECT(vyr_host_queue_set_drain(0, 0) == VYR_OK);
    list_handlers();
    EXPECT(calls == 10);
}

int call_with_host_models(const host_files* files, report_function report)
{
    report_to = report;
    count = 0;
    judge_lists(files->has_models);
    judge_registries(files);
    judge_documents(files);
    judge_drain();
    return count;
}
