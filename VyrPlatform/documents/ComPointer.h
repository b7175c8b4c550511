/// @file
/// What all interfaces to documents are made of: interface pointers that count, texts, variants, and the error that a
/// failing call becomes. On Windows it is the system's own; on Linux LinuxCom.h gives the same names.
#pragma once

#if defined(_WIN32)
#include <windows.h>

#include <comdef.h>
#else
#include <VyrPlatform/documents/LinuxCom.h>
#endif
