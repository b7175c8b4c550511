/* For sources in C alone: what a test expects. */
#ifndef EXPECT_IN_C_H
#define EXPECT_IN_C_H

#include "CalledFromC.h"

/* How many conditions were checked, and what is told of one that does not hold. */
static int count;
static report_function report_to;

#define EXPECT(condition)                                                                                              \
    do {                                                                                                               \
        ++count;                                                                                                       \
        if (!(condition))                                                                                              \
            report_to(#condition, "known answer");                                                                     \
    } while (0)

#endif
