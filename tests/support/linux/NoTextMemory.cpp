// On Linux the texts of COM come from the operator new that answers with a null pointer instead of an exception.
#include <tests/support/NoTextMemory.h>

#include <new>

namespace {

bool isMemoryLacking = false;

} // namespace

void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept
{
    try {
        return isMemoryLacking ? nullptr : ::operator new(size);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

namespace VyrTests {

struct NoTextMemory::Spy
{};

NoTextMemory::NoTextMemory()
{
    isMemoryLacking = true;
}

NoTextMemory::~NoTextMemory()
{
    isMemoryLacking = false;
}

} // namespace VyrTests
