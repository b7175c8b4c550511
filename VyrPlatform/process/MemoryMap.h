/// @file
/// The access rights of this process's memory.
#pragma once

#include <VyrPlatform/Export.h>

#include <cstddef>
#include <cstdint>

namespace VyrPlatform::MemoryMap {

/// Whether the `size` bytes at `address` can be read. They must not extend over two areas of memory.
[[nodiscard]] VYR_PLATFORM_API bool IsReadable(std::uintptr_t address, std::size_t size);
/// Whether `address` may be that of a function.
[[nodiscard]] VYR_PLATFORM_API bool IsCode(std::uintptr_t address);

} // namespace VyrPlatform::MemoryMap
