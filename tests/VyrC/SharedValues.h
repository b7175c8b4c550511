/* For tests: the values with which operations are called in C and in C++, and what a call in C gave, as a text. */
#ifndef SHARED_VALUES_H
#define SHARED_VALUES_H

#include <VyrC/vyr.h>

#ifdef __cplusplus
extern "C" {
#endif

/* The values of one round, which `next` begins with: each is another than the last of its type. */
typedef struct shared_values
{
    size_t next;
} shared_values;

/* None is the path of a file that is there. */
vyr_text next_text(shared_values* values);
vyr_date_time next_date_time(shared_values* values);
vyr_guid next_guid(shared_values* values);
vyr_text_and_number next_text_and_number(shared_values* values);
/* No key and no window has it. */
intptr_t next_handle(shared_values* values);
int64_t next_number(shared_values* values);

/* Begins a new text; the others append to it. */
void begin_showing(void);
void show_word(const char* word);
void show_text(vyr_text text);
void show_signed(int64_t number);
void show_unsigned(uint64_t number);
void show_date_time(vyr_date_time moment);
void show_guid(vyr_guid id);
void show_object(const void* object);
/* Any status but VYR_OK. */
void show_failure(vyr_status status);
const char* all_shown(void);

#ifdef __cplusplus
}
#endif

#endif
