/// @file
/// The parts that all interfaces to documents share: smart interface pointers, texts, variants, and the exception for a
/// failing call. On Windows they are the system's own; on Linux LinuxCom.h has the same names.
#pragma once

#if defined(_WIN32)
#include <windows.h>

#include <comdef.h>
#else
#include <VyrPlatform/documents/LinuxCom.h>
#endif
