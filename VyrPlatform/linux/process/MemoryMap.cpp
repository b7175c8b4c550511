// The kernel lists the areas of memory as `BEGIN-END rwxp ...`, in hexadecimal.
#include <VyrPlatform/process/MemoryMap.h>

#include <fstream>
#include <limits>
#include <optional>
#include <string>

namespace VyrPlatform::MemoryMap {

namespace {

struct Area
{
    std::uintptr_t end;
    std::string access;
};

/// The area in which `address` lies.
std::optional<Area> Find(std::uintptr_t address)
{
    std::ifstream areas("/proc/self/maps");
    std::uintptr_t begin = 0;
    Area area{};
    char dash = 0;
    while (areas >> std::hex >> begin >> dash >> area.end >> area.access) {
        if (begin <= address && address < area.end)
            return area;
        areas.ignore(std::numeric_limits<std::streamsize>::max(), '\n');
    }
    return std::nullopt;
}

} // namespace

bool IsReadable(std::uintptr_t address, std::size_t size)
{
    const std::optional<Area> area = Find(address);
    return area && size <= area->end - address && area->access.starts_with('r');
}

bool IsCode(std::uintptr_t address)
{
    const std::optional<Area> area = Find(address);
    return area && area->access.find('x') != std::string::npos;
}

} // namespace VyrPlatform::MemoryMap
