#include <windows.h>

#include <VyrPlatform/process/MemoryMap.h>

namespace VyrPlatform::MemoryMap {

namespace {

constexpr DWORD runnable = PAGE_EXECUTE | PAGE_EXECUTE_READ | PAGE_EXECUTE_READWRITE | PAGE_EXECUTE_WRITECOPY;
constexpr DWORD readable = PAGE_READONLY | PAGE_READWRITE | PAGE_WRITECOPY | PAGE_EXECUTE_READ |
                           PAGE_EXECUTE_READWRITE | PAGE_EXECUTE_WRITECOPY;

/// Whether the `size` bytes at `address` have one of the protections in `wanted`.
bool Has(std::uintptr_t address, std::size_t size, DWORD wanted)
{
    MEMORY_BASIC_INFORMATION area{};
    // NOLINTNEXTLINE(performance-no-int-to-ptr): nothing is read there
    if (::VirtualQuery(reinterpret_cast<const void*>(address), &area, sizeof area) == 0 || area.State != MEM_COMMIT)
        return false;
    const std::size_t left = reinterpret_cast<std::uintptr_t>(area.BaseAddress) + area.RegionSize - address;
    return size <= left && (area.Protect & wanted) != 0 && (area.Protect & PAGE_GUARD) == 0;
}

} // namespace

bool IsReadable(std::uintptr_t address, std::size_t size)
{
    return Has(address, size, readable);
}

bool IsCode(std::uintptr_t address)
{
    return Has(address, 1, runnable);
}

} // namespace VyrPlatform::MemoryMap
