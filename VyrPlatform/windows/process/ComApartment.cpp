#include <VyrPlatform/process/ComApartment.h>

#include <windows.h>

#include <objbase.h>

namespace VyrPlatform {

// A thread that has COM in another mode keeps that mode.
ComApartment::ComApartment() : m_isInitialised(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {}

ComApartment::~ComApartment()
{
    if (m_isInitialised)
        CoUninitialize();
}

} // namespace VyrPlatform
