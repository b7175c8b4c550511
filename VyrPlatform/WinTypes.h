/// @file
/// The names that the interface takes from the Windows headers. On Windows they are the system's own; on Linux they are
/// defined here with the same layout, and only those that the interface carries.
///
/// Headers that merely mention one of the structures declare it by its tag (`struct _SYSTEMTIME;`) and do not include
/// this file, so that the macros of the Windows headers stay out of their users' way.
#pragma once

#if defined(_WIN32)
#include <windows.h>

#include <objidl.h>
#include <propidl.h>
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

/// A globally unique id: of a class, an interface, a property set.
struct _GUID // NOLINT(bugprone-reserved-identifier): the system's own tag
{
    std::uint32_t Data1;
    std::uint16_t Data2;
    std::uint16_t Data3;
    std::uint8_t Data4[8];

    friend constexpr bool operator==(const _GUID&, const _GUID&) = default;
};
using GUID = _GUID;

/// The type of a value: PROPVARIANT::vt, VARIANT::vt.
using VARTYPE = std::uint16_t;
enum VARENUM : VARTYPE
{
    VT_EMPTY = 0,
    VT_NULL = 1,
    VT_I2 = 2,
    VT_I4 = 3,
    VT_R4 = 4,
    VT_R8 = 5,
    VT_CY = 6,
    VT_DATE = 7,
    VT_BSTR = 8,
    VT_ERROR = 10,
    VT_BOOL = 11,
    VT_I1 = 16,
    VT_UI1 = 17,
    VT_UI2 = 18,
    VT_UI4 = 19,
    VT_I8 = 20,
    VT_UI8 = 21,
    VT_INT = 22,
    VT_UINT = 23,
    VT_LPSTR = 30,
    VT_LPWSTR = 31,
    VT_FILETIME = 64,
    VT_BLOB = 65,
    VT_CF = 71,
    VT_CLSID = 72
};

/// A count of bytes and their address.
struct tagBLOB
{
    std::uint32_t cbSize;
    std::uint8_t* pBlobData;
};
using BLOB = tagBLOB;

union LARGE_INTEGER {
    std::int64_t QuadPart;
};
union ULARGE_INTEGER {
    std::uint64_t QuadPart;
};

/// A value of the type `vt`, which selects the member of the union. Only the members that a document property can have.
struct tagPROPVARIANT
{
    VARTYPE vt;
    WORD wReserved1;
    WORD wReserved2;
    WORD wReserved3;
    union {
        char cVal;
        std::uint8_t bVal;
        std::int16_t iVal;
        WORD uiVal;
        std::int32_t lVal;
        std::uint32_t ulVal;
        std::int32_t intVal;
        std::uint32_t uintVal;
        LARGE_INTEGER hVal;
        ULARGE_INTEGER uhVal;
        float fltVal;
        double dblVal;
        /// 0 or -1.
        std::int16_t boolVal;
        std::int32_t scode;
        double date;
        FILETIME filetime;
        GUID* puuid;
        BLOB blob;
        char16_t* bstrVal;
        char* pszVal;
        char16_t* pwszVal;
    };
};
using PROPVARIANT = tagPROPVARIANT;

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
