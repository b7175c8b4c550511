/// @file
/// The invalid-argument exception of the platform class library.
#pragma once

#include <VyrPlatform/Export.h>

/// Thrown by value for an argument that is never allowed, such as a null pointer for a text.
class VYR_PLATFORM_API CInvalidArgException
{
public:
    CInvalidArgException();
    CInvalidArgException(const CInvalidArgException&);
    CInvalidArgException& operator=(const CInvalidArgException&);
    ~CInvalidArgException();
};
