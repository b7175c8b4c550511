/// @file
/// The names that the interface takes from the Windows headers. On Windows they are the system's own; on Linux they are
/// defined here with the same layout, and only those that the interface carries.
///
/// Headers that merely mention one of the structures declare it by its tag (`struct _SYSTEMTIME;`) and do not include
/// this file, so that the macros of the Windows headers stay out of their users' way.
#pragma once

#if defined(_WIN32)
#include <windows.h>

#include <urlmon.h>
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

/// A key of the registry: a root key, or one that Registry opened.
using HKEY = struct HKEY__*; // NOLINT(bugprone-reserved-identifier): the system's own tag

// Macros, as the system's own are: the numbers of the root keys are no addresses that a constant could hold.
// NOLINTNEXTLINE(performance-no-int-to-ptr)
#define VYR_ROOT_KEY(number) (reinterpret_cast<HKEY>(static_cast<std::intptr_t>(static_cast<std::int32_t>(number))))
#define HKEY_CLASSES_ROOT VYR_ROOT_KEY(0x80000000)
#define HKEY_CURRENT_USER VYR_ROOT_KEY(0x80000001)
#define HKEY_LOCAL_MACHINE VYR_ROOT_KEY(0x80000002)
#define HKEY_USERS VYR_ROOT_KEY(0x80000003)
#define HKEY_PERFORMANCE_DATA VYR_ROOT_KEY(0x80000004)
#define HKEY_CURRENT_CONFIG VYR_ROOT_KEY(0x80000005)

/// The features of the web control that FeatureControlFuncs switches.
enum INTERNETFEATURELIST : int
{
    FEATURE_WEBOC_POPUPMANAGEMENT = 5,
    FEATURE_LOCALMACHINE_LOCKDOWN = 8,
    FEATURE_SECURITYBAND = 9,
    FEATURE_RESTRICT_ACTIVEXINSTALL = 10,
    FEATURE_RESTRICT_FILEDOWNLOAD = 12,
    FEATURE_TABBED_BROWSING = 19,
    FEATURE_DISABLE_NAVIGATION_SOUNDS = 21,
    FEATURE_FEEDS = 26
};
#endif
