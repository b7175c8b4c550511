/// @file
/// The names that the interface takes from the Windows headers. On Windows they are the system's own; on Linux they are
/// defined here with the same layout, and only those that the interface carries.
///
/// Headers that merely mention one of the structures declare it by its tag (`struct _SYSTEMTIME;`) and do not include
/// this file, so that the macros of the Windows headers stay out of their users' way.
#pragma once

#if defined(_WIN32)
#include <windows.h>
#else
#include <cstdint>

using WORD = std::uint16_t;
using DWORD = std::uint32_t;

/// Calendar fields of a date-time. wDayOfWeek: 0 = Sunday to 6 = Saturday.
struct _SYSTEMTIME // NOLINT(bugprone-reserved-identifier): the system's own tag
{
    WORD wYear;
    WORD wMonth;
    WORD wDayOfWeek;
    WORD wDay;
    WORD wHour;
    WORD wMinute;
    WORD wSecond;
    WORD wMilliseconds;
};
using SYSTEMTIME = _SYSTEMTIME;

/// A count of 100-nanosecond intervals since 1 January 1601 UTC, in two halves.
struct _FILETIME // NOLINT(bugprone-reserved-identifier): the system's own tag
{
    DWORD dwLowDateTime;
    DWORD dwHighDateTime;
};
using FILETIME = _FILETIME;
#endif
