// For tests: the forms in which this system keeps a registry.
#pragma once

#include <tests/support/RegistryTree.h>

#include <memory>
#include <string>
#include <vector>

namespace VyrTests {

/// Shows a tree below HKEY_CURRENT_USER until its end of life.
class ShownRegistry
{
public:
    ShownRegistry() = default;
    ShownRegistry(const ShownRegistry&) = delete;
    ShownRegistry& operator=(const ShownRegistry&) = delete;
    virtual ~ShownRegistry() = default;
};

/// A form: how `show` makes a registry that holds just the given tree.
struct RegistryForm
{
    std::string name;
    std::unique_ptr<ShownRegistry> (*show)(const RegistryTree& tree);
};

[[nodiscard]] std::vector<RegistryForm> RegistryForms();

} // namespace VyrTests
