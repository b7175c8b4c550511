/* For tests: what the sources in C offer to the test program. */
#ifndef CALLED_FROM_C_H
#define CALLED_FROM_C_H

#include <VyrC/vyr.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Takes a call that did not do as it should, and what it was about. */
typedef void (*report_function)(const char* call, const char* what);

/* What a host has, by its full paths. */
typedef struct host_files
{
    /* Whether this system knows lists and registries that a host describes; without, no file of a registry is there. */
    int has_models;
    vyr_text software;
    vyr_text user;
    vyr_text prefix;
    vyr_text document;
} host_files;

/* Each gives the number of calls that were judged. */
int call_with_wrong_arguments(report_function report);
int call_with_known_answers(report_function report);
int call_with_host_models(const host_files* files, report_function report);

#ifdef __cplusplus
}
#endif

#endif
