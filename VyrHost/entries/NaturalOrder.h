/// @file
/// The order in which people expect names: 2 before 10, a and A together.
#pragma once

#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

namespace VyrHost {

/// Whether `left` comes before `right`: runs of ASCII digits by their value, ASCII letters without regard to case, all
/// else by code unit. Names that are alike so far are ordered by their code units.
[[nodiscard]] bool IsNaturallyLess(std::u16string_view left, std::u16string_view right);

/// Answers the name of an index.
using NameOfIndex = std::function<std::u16string_view(std::uint32_t index)>;

/// Sorts `indexes` by their names in natural order. Quicker than a sort by IsNaturallyLess where names begin alike.
void SortNaturally(std::vector<std::uint32_t>& indexes, const NameOfIndex& nameOf);

} // namespace VyrHost
