/* A host in C: renames, dates, filters and settings with answers that are known. */
#include "ExpectInC.h"

#include <VyrC/vyr.h>

enum
{
    capacity = 64
};

/* A text of ASCII as UTF-16, good until four more were made. */
static const uint16_t* wide(const char* narrow)
{
    static uint16_t texts[4][capacity];
    static int next;
    uint16_t* const text = texts[next = (next + 1) % 4];
    size_t at = 0;
    do
        text[at] = (unsigned char)narrow[at];
    while (narrow[at++] != 0);
    return text;
}

static int is_same(const uint16_t* text, const char* narrow)
{
    while (*text != 0 && *text == (unsigned char)*narrow) {
        ++text;
        ++narrow;
    }
    return *text == (unsigned char)*narrow;
}

static vyr_text given(const char* narrow)
{
    vyr_text text;
    text.units = wide(narrow);
    text.length = -1;
    return text;
}

static void judge_renames(void)
{
    uint16_t path[capacity];
    size_t length = 0;
    int32_t is_numbered = 0;
    vyr_name_item item = {0};
    item.struct_size = sizeof item;
    item.dir_path = given("/d/");
    item.number_text1 = given("a");
    item.extension = given(".txt");
    item.digits = 3;
    item.index = 4;
    item.step = 2;
    item.start_number = 1;
    EXPECT(vyr_name_get_rename_file_path(&item, path, capacity, &length) == VYR_OK);
    EXPECT(is_same(path, "/d/a009.txt") && length == 11);
    EXPECT(vyr_name_is_resolve_conflict(&item, &is_numbered) == VYR_OK && is_numbered == 1);

    /* A length counts, whatever follows. */
    item.number_text1.units = wide("abcdef");
    item.number_text1.length = 2;
    EXPECT(vyr_name_get_rename_file_path(&item, path, capacity, &length) == VYR_OK);
    EXPECT(is_same(path, "/d/ab009.txt"));

    item.rename_type = 6;
    EXPECT(vyr_name_get_rename_file_path(&item, path, capacity, &length) == VYR_OK && length == 0 && path[0] == 0);
}

static void judge_buffers(void)
{
    uint16_t text[4] = {'x', 'x', 'x', 'x'};
    size_t length = 0;
    EXPECT(vyr_name_get_folder_format(wide("abcd"), -1, text, 4, &length) == VYR_BUFFER_TOO_SMALL);
    EXPECT(length == 4 && text[0] == 'x');
    EXPECT(vyr_name_get_folder_format(wide("abcd"), -1, 0, 0, &length) == VYR_BUFFER_TOO_SMALL && length == 4);
    EXPECT(vyr_name_get_folder_format(wide("abc"), -1, text, 4, &length) == VYR_OK && is_same(text, "abc"));
    EXPECT(vyr_name_get_folder_format(0, 0, text, 1, &length) == VYR_OK && length == 0);
}

static void judge_dates(void)
{
    vyr_date_time moment = {0, 0};
    int32_t is_same_day = 0;
    /* 31 January 2024 is day 45322; a month later is the last of February. */
    EXPECT(vyr_date_time_get_cal_date_time(45322.25, 0, 0, 1, 0, &moment) == VYR_OK);
    EXPECT(moment.days == 45351.25 && moment.status == 0);
    EXPECT(vyr_date_time_is_match_date(45322.25, 0, 45322.75, 0, &is_same_day) == VYR_OK && is_same_day == 1);
    EXPECT(vyr_date_time_is_match_date(45322.25, 0, 45323.25, 0, &is_same_day) == VYR_OK && is_same_day == 0);
}

static void judge_filters(void)
{
    int32_t is_kept = -1;
    vyr_text known[2];
    vyr_filter_condition conditions[2] = {{0}, {0}};
    conditions[0].struct_size = conditions[1].struct_size = sizeof conditions[0];
    conditions[0].enabled = 1;
    conditions[0].condition = 3;
    conditions[0].text = given(".JPG");
    conditions[1].enabled = 1;
    conditions[1].condition = 2;
    conditions[1].text = given("img");
    EXPECT(vyr_filter_is_match_name(wide("a.jpg"), -1, 0, conditions, 2, &is_kept) == VYR_OK && is_kept == 1);
    EXPECT(vyr_filter_is_match_name(wide("a.png"), -1, 0, conditions, 2, &is_kept) == VYR_OK && is_kept == 0);
    EXPECT(vyr_filter_is_match_name(wide("IMG_1.png"), -1, 0, conditions, 2, &is_kept) == VYR_OK && is_kept == 1);
    conditions[1].struct_size = 8;
    EXPECT(vyr_filter_is_match_name(wide("a"), -1, 0, conditions, 2, &is_kept) == VYR_WRONG_ARGUMENT);
    known[0] = given("one");
    known[1] = given("two");
    EXPECT(vyr_filter_is_already_added(wide("TWO"), -1, known, 2, &is_kept) == VYR_OK && is_kept == 1);
    EXPECT(vyr_filter_is_already_added(wide("three"), -1, known, 2, &is_kept) == VYR_OK && is_kept == 0);
}

static void judge_settings_and_lists(void)
{
    int64_t size = 0;
    uint16_t text[capacity];
    size_t length = 0;
    size_t number = 0;
    vyr_list list = 0;
    vyr_updates_item items[2] = {{0}, {0}};
    vyr_updates_item item = {0};
    vyr_browser_app_item browser = {0};
    items[0].struct_size = items[1].struct_size = item.struct_size = sizeof item;
    browser.struct_size = sizeof browser;

    EXPECT(vyr_search_set_size_from_size(INT64_MAX) == VYR_OK);
    EXPECT(vyr_search_get_size_from_size(&size) == VYR_OK && size == INT64_MAX);
    EXPECT(vyr_output_set_output_file_path(wide("/tmp/r.html"), -1) == VYR_OK);
    EXPECT(vyr_output_get_output_file_path(text, capacity, &length) == VYR_OK && is_same(text, "/tmp/r.html"));

    items[0].category = 1;
    items[0].description = given("first");
    items[1].category = -2;
    items[1].description = given("second");
    EXPECT(vyr_updates_set_update_items_list(items, 2) == VYR_OK);
    EXPECT(vyr_updates_get_update_items_list(&list) == VYR_OK && list != 0);
    EXPECT(vyr_list_get_count(list, &number) == VYR_OK && number == 2);
    EXPECT(vyr_updates_item_get(list, 1, &item) == VYR_OK && item.category == -2 && is_same(item.description.units, "second"));
    EXPECT(item.description.length == 6);
    EXPECT(vyr_updates_item_get(list, 2, &item) == VYR_WRONG_ARGUMENT);
    EXPECT(vyr_browser_app_item_get(list, 0, &browser) == VYR_WRONG_ARGUMENT);
    EXPECT(vyr_list_release(list) == VYR_OK);
    EXPECT(vyr_list_release(list) == VYR_WRONG_ARGUMENT);
    EXPECT(vyr_list_get_count(list, &number) == VYR_WRONG_ARGUMENT);
}

static void judge_errors(void)
{
    uint16_t text[capacity];
    size_t length = 0;
    EXPECT(vyr_version() == VYR_VERSION);
    EXPECT(vyr_name_get_f_name(0, -1, text, capacity, &length) == VYR_WRONG_ARGUMENT);
    /* The text stays while its buffer is too small. */
    EXPECT(vyr_get_last_error(text, 4, &length) == VYR_BUFFER_TOO_SMALL);
    EXPECT(vyr_get_last_error(text, capacity, &length) == VYR_OK && is_same(text, "wrong argument: path"));
}

int call_with_known_answers(report_function report)
{
    report_to = report;
    count = 0;
    judge_renames();
    judge_buffers();
    judge_dates();
    judge_filters();
    judge_settings_and_lists();
    judge_errors();
    return count;
}
