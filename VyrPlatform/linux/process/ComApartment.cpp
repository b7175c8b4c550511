// COM on the calling thread: Linux has nothing to initialise.
#include <VyrPlatform/process/ComApartment.h>

namespace VyrPlatform {

ComApartment::ComApartment() : m_isInitialised(true) {}

ComApartment::~ComApartment() = default;

} // namespace VyrPlatform
