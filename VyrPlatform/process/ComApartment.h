/// @file
/// COM on the calling thread.
#pragma once

#include <VyrPlatform/Export.h>

namespace VyrPlatform {

/// Initialises COM on the calling thread, for its interface, and ends that when it is destroyed; on Linux there is
/// nothing to initialise. Create it on the stack, and let no object of COM outlive it.
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
