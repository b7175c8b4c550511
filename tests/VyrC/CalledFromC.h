/* For tests: what the sources in C offer to the test program. */
#ifndef CALLED_FROM_C_H
#define CALLED_FROM_C_H

#ifdef __cplusplus
extern "C" {
#endif

/* Takes a call that did not do as it should, and what it was about. */
typedef void (*report_function)(const char* call, const char* what);

/* Each gives the number of calls that were judged. */
int call_with_wrong_arguments(report_function report);
int call_with_known_answers(report_function report);

#ifdef __cplusplus
}
#endif

#endif
