/// @file
/// COM on the calling thread.
#pragma once

#include <VyrPlatform/Export.h>

namespace VyrPlatform {

/// Initialises COM on the calling thread (single-threaded apartment), and uninitialises it when destroyed; on Linux it
/// does nothing. Create it on the stack, and let no COM object outlive it.
class VYR_PLATFORM_API ComApartment
{
public:
    ComApartment();
    ComApartment(const ComApartment&) = delete;
    ComApartment& operator=(const ComApartment&) = delete;
    ~ComApartment();

private:
    [[maybe_unused]] bool m_isInitialised;
};

} // namespace VyrPlatform
