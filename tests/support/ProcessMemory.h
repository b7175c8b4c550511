// For tests: how much memory the process takes.
#pragma once

#include <cstdint>

namespace VyrTests {

/// The most memory, in bytes, that the process has had at a time; what was asked for but not touched counts, except
/// under Wine.
[[nodiscard]] std::uint64_t PeakMemory();

} // namespace VyrTests
