/// @file
/// The invalid-argument exception of the platform class library.
#pragma once

#include <VyrPlatform/Export.h>

/// What is thrown for an argument that no caller may pass, such as a null pointer for a text. It is thrown by value.
class VYR_PLATFORM_API CInvalidArgException
{
public:
    CInvalidArgException();
    CInvalidArgException(const CInvalidArgException&);
    CInvalidArgException& operator=(const CInvalidArgException&);
    ~CInvalidArgException();
};
