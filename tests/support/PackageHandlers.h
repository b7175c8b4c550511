// Which documents in ZIP archives a test can change.
#pragma once

namespace VyrTests {

/// Whether there are handlers of Office Open XML and OpenDocument without any that an office program has registered.
[[nodiscard]] bool HasPackageHandlers() noexcept;

} // namespace VyrTests
