// For tests and benchmarks: hives, made byte by byte.
#pragma once

#include <tests/support/RegistryTree.h>

#include <string>

namespace VyrTests {

/// Where the fields of a built hive stand, for those who damage it.
struct BuiltHive
{
    std::string bytes;
    /// The offset of the cell of each key's record, by the key's path in upper case; the top is the empty path.
    std::vector<std::pair<CString, std::size_t>> keys;
};

/// The time of every key of a built hive: 5 January 2024 10:30:00 UTC.
inline constexpr VyrPlatform::FileTicks hiveTime = 0x1DA3FC222BF0400;

/// A hive with the keys and values of `tree`, as Windows writes it (format 1.3, one bin). A key holds at most 65,535
/// others.
[[nodiscard]] BuiltHive BuildHive(const RegistryTree& tree);
/// Makes the checksum of the head right again.
void SealHive(std::string& bytes);

} // namespace VyrTests
