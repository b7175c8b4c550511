/* The calls of the other sources in C as a program of its own, for other compilers. */
#include "CalledFromC.h"

#include <stdio.h>

static int faults;

static void report(const char* call, const char* what)
{
    ++faults;
    printf("%s: %s\n", what, call);
}

int main(void)
{
    const int wrong = call_with_wrong_arguments(&report);
    const int known = call_with_known_answers(&report);
    printf("%d and %d calls, %d faults\n", wrong, known, faults);
    return faults == 0 && wrong > 1000 && known > 30 ? 0 : 1;
}
