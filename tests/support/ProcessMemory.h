// For tests: how much memory the process takes.
#pragma once

#include <cstdint>

namespace VyrTests {

/// The process's peak memory in bytes. Memory that was allocated and never touched counts, except under Wine.
[[nodiscard]] std::uint64_t PeakMemory();

} // namespace VyrTests
