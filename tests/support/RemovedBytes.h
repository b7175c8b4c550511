// What a compound document's file holds of properties that were removed.
#pragma once

namespace VyrTests {

/// Whether the system leaves their bytes in parts of the file that are no longer used.
[[nodiscard]] bool LeavesRemovedBytes() noexcept;

} // namespace VyrTests
