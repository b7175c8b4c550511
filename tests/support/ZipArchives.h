// For tests: ZIP archives, written and read in another way than the library does.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace VyrTests {

/// Names and contents, in their order.
using ZipMembers = std::vector<std::pair<std::string, std::string>>;

/// An archive whose members are not packed.
[[nodiscard]] std::string BuildArchive(const ZipMembers& members);
/// The members of an archive; of those that are packed only the name.
[[nodiscard]] ZipMembers ReadArchive(std::string_view bytes);

} // namespace VyrTests
