/* For tests: the values with which operations are called in C and in C++, and what a call in C gave, as a text. */
#ifndef SHARED_VALUES_H
#define SHARED_VALUES_H

#include <VyrC/vyr.h>

#ifdef __cplusplus
extern "C" {
#endif

/* What stands on the machine while operations are called. */
typedef struct shared_places
{
    vyr_text document;
    /* A folder with folders and a file, and an empty one. */
    vyr_text source;
    vyr_text target;
    vyr_text missing;
    vyr_text updates;
    vyr_text designs;
    /* A list with columns; 0 where none is needed. */
    intptr_t list;
    void* page;
    /* A root of the registry. */
    intptr_t key;
} shared_places;

/* They are copied; what they point to is not. */
void set_places(const shared_places* places);

/* The values of one round, which `next` begins with: each is another than the last of its type. */
typedef struct shared_values
{
    size_t next;
} shared_values;

/* Some are the paths of files that are there. */
vyr_text next_text(shared_values* values);
/* For operations that act: a path in the scratch folder. */
vyr_text next_path(shared_values* values);
/* A text that is the path of no file. */
vyr_text next_free_path(shared_values* values);
vyr_date_time next_date_time(shared_values* values);
vyr_guid next_guid(shared_values* values);
vyr_text_and_number next_text_and_number(shared_values* values);
/* No key and no window has it. */
intptr_t next_handle(shared_values* values);
/* The root, or a key that nothing has. */
intptr_t next_key(shared_values* values);
/* The list, or none. */
intptr_t next_list(shared_values* values);
/* The page, or none. */
void* next_page(shared_values* values);
/* None, or a time that is written to `place`. */
const uint64_t* next_file_time(shared_values* values, uint64_t* place);
vyr_rect next_rect(shared_values* values);
/* None, or a value that is written to `place`: a text or a number. */
const vyr_value* next_value(shared_values* values, vyr_value* place);
/* That of no handler, or one that no system has. */
vyr_guid next_handler(shared_values* values);
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
