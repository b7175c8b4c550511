// For tests: a registry as Wine writes it.
#pragma once

#include <tests/support/RegistryTree.h>

#include <string>

namespace VyrTests {

/// The text of a file with the keys and values of `tree`.
[[nodiscard]] std::string WineText(const RegistryTree& tree);

} // namespace VyrTests
