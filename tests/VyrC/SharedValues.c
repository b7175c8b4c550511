#include "SharedValues.h"

#include <inttypes.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

enum
{
    step = 11,
    text_count = 7,
    placed_count = 3,
    longest = 301
};

static const char* const texts[text_count - 1] = {"",           "/no such/a b.txt", "IMG_0001.JPG",
                                                  "<Folder>%s", "C:\\none\\x.y.z",  "1.2.3.4"};

static shared_places places;

void set_places(const shared_places* given)
{
    places = *given;
}

static size_t take(shared_values* values)
{
    const size_t number = values->next;
    values->next += step;
    return number;
}

/* The texts as UTF-16; the last is long and not Latin. */
static const uint16_t* wide_text(size_t number)
{
    static uint16_t made[text_count][longest];
    uint16_t* const text = made[number];
    size_t at;
    if (number == text_count - 1)
        for (at = 0; at < longest - 1; ++at)
            text[at] = 0x4e2d;
    else
        for (at = 0; texts[number][at] != 0; ++at)
            text[at] = (unsigned char)texts[number][at];
    return text;
}

static vyr_text text_at(size_t number)
{
    vyr_text text;
    text.units = wide_text(number);
    text.length = number == text_count - 1 ? longest - 1 : (ptrdiff_t)strlen(texts[number]);
    return text;
}

vyr_text next_text(shared_values* values)
{
    const vyr_text* const placed[placed_count] = {&places.updates, &places.designs, &places.document};
    const size_t number = take(values) % (text_count + placed_count);
    return number < text_count ? text_at(number) : *placed[number - text_count];
}

vyr_text next_free_path(shared_values* values)
{
    return text_at(take(values) % text_count);
}

vyr_text next_path(shared_values* values)
{
    const vyr_text* const paths[] = {&places.document, &places.target, &places.source, &places.missing};
    return *paths[take(values) % (sizeof paths / sizeof *paths)];
}

vyr_date_time next_date_time(shared_values* values)
{
    static const double days[] = {0.0, 45322.25, -1.75, 2.5, 45000.9999};
    const size_t number = take(values);
    vyr_date_time moment;
    moment.days = days[number % (sizeof days / sizeof *days)];
    moment.status = number % 7 == 6 ? 2 : 0;
    return moment;
}

vyr_guid next_guid(shared_values* values)
{
    vyr_guid id = {0, 2, 3, {4, 5, 6, 7, 8, 9, 10, 11}};
    id.data1 = (uint32_t)take(values);
    return id;
}

vyr_text_and_number next_text_and_number(shared_values* values)
{
    vyr_text_and_number both;
    both.text = next_text(values);
    both.number = (int32_t)next_number(values);
    return both;
}

intptr_t next_handle(shared_values* values)
{
    return (intptr_t)(take(values) % 3);
}

intptr_t next_key(shared_values* values)
{
    const size_t number = take(values) % 3;
    return number == 0 ? places.key : (intptr_t)number;
}

intptr_t next_list(shared_values* values)
{
    return take(values) % 4 == 3 ? 0 : places.list;
}

void* next_page(shared_values* values)
{
    return take(values) % 4 == 3 ? 0 : places.page;
}

const uint64_t* next_file_time(shared_values* values, uint64_t* place)
{
    const size_t number = take(values);
    if (number % 3 == 0)
        return 0;
    /* Days of 2024. */
    *place = 133485408000000000U + number * 864000000000U;
    return place;
}

vyr_rect next_rect(shared_values* values)
{
    vyr_rect rectangle = {0, 0, 800, 600};
    rectangle.right += (int32_t)take(values);
    return rectangle;
}

const vyr_value* next_value(shared_values* values, vyr_value* place)
{
    static const vyr_value none = {0};
    const size_t number = take(values);
    *place = none;
    place->struct_size = sizeof *place;
    place->type = number % 3 == 1 ? 31 : 3;
    place->text.units = wide_text(3);
    place->text.length = 8;
    place->number = (int64_t)number;
    return number % 3 == 2 ? 0 : place;
}

vyr_guid next_handler(shared_values* values)
{
    static const vyr_guid none = {0, 0, 0, {0}};
    const vyr_guid id = next_guid(values);
    return id.data1 % 4 == 3 ? id : none;
}

int64_t next_number(shared_values* values)
{
    static const int64_t numbers[] = {0, 1, 2, 3, -1, 4, 260};
    return numbers[take(values) % (sizeof numbers / sizeof *numbers)];
}

static char shown[1 << 20];
static size_t shown_length;

static void append(const char* text, size_t length)
{
    if (length >= sizeof shown - shown_length)
        abort();
    memcpy(shown + shown_length, text, length);
    shown_length += length;
    shown[shown_length] = 0;
}

void begin_showing(void)
{
    shown_length = 0;
    shown[0] = 0;
}

void show_word(const char* word)
{
    append(word, strlen(word));
}

void show_text(vyr_text text)
{
    ptrdiff_t at;
    char unit[8];
    for (at = 0; at < text.length; ++at) {
        const unsigned unit_number = text.units[at];
        const int is_ascii = unit_number > 31 && unit_number < 127;
        const int length = is_ascii ? snprintf(unit, sizeof unit, "%c", (int)unit_number)
                                    : snprintf(unit, sizeof unit, "\\%04x", unit_number);
        append(unit, (size_t)length);
    }
}

void show_signed(int64_t number)
{
    char digits[32];
    append(digits, (size_t)snprintf(digits, sizeof digits, "%" PRId64, number));
}

void show_unsigned(uint64_t number)
{
    char digits[32];
    append(digits, (size_t)snprintf(digits, sizeof digits, "%" PRIu64, number));
}

void show_date_time(vyr_date_time moment)
{
    char digits[400];
    append(digits, (size_t)snprintf(digits, sizeof digits, "%f/%" PRId32, moment.days, moment.status));
}

void show_guid(vyr_guid id)
{
    size_t at;
    show_unsigned(id.data1);
    show_word(" ");
    show_unsigned(id.data2);
    show_word(" ");
    show_unsigned(id.data3);
    for (at = 0; at < sizeof id.data4; ++at) {
        show_word(" ");
        show_unsigned(id.data4[at]);
    }
}

void show_object(const void* object)
{
    show_word(object ? "object" : "none");
}

void show_failure(vyr_status status)
{
    if (status == VYR_FAILED) {
        show_word("failed");
        return;
    }
    show_word("status ");
    show_signed(status);
}

const char* all_shown(void)
{
    return shown;
}
