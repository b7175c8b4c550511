/// @file
/// The order in which people expect names: 2 before 10, a and A together.
#pragma once

#include <string_view>

namespace VyrHost {

/// Whether `left` comes before `right`: runs of ASCII digits by their value, ASCII letters without regard to case, all
/// else by code unit. Names that are alike so far are ordered by their code units.
[[nodiscard]] bool IsNaturallyLess(std::u16string_view left, std::u16string_view right);

} // namespace VyrHost
