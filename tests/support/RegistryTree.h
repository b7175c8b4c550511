// For tests: keys and values of a registry, as data.
#pragma once

#include <VyrPlatform/files/FileTimes.h>
#include <VyrPlatform/registry/RegistryValue.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace VyrTests {

/// The bytes of a text in the registry, with its NUL.
[[nodiscard]] std::string TextBytes(std::u16string_view text);
/// The bytes of `units` alone.
[[nodiscard]] std::string UnitBytes(std::u16string_view units);
/// The bytes of a number in the registry.
[[nodiscard]] std::string NumberBytes(std::uint32_t number);

struct RegistryEntry
{
    /// The key's path below its root.
    CString path;
    CString name;
    std::uint32_t type;
    std::string bytes;
};

struct RegistryTree
{
    /// Keys, beside those of the values.
    std::vector<CString> keys;
    std::vector<RegistryEntry> values;
};

/// The names of the keys directly below `key`, in their order.
[[nodiscard]] std::vector<CString> KeyNames(VyrPlatform::Registry::Handle key);
/// The names of its values, sorted.
[[nodiscard]] std::vector<CString> ValueNames(VyrPlatform::Registry::Handle key);

} // namespace VyrTests
