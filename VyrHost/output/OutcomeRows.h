/// @file
/// The rows of a preview, or of what became of it.
#pragma once

#include <VyrHost/entries/EntryList.h>
#include <VyrHost/output/Table.h>
#include <VyrHost/preview/Decision.h>

namespace VyrHost {

/// The row of the entry `index` of `list`: its name, the new one, and what there is to say.
[[nodiscard]] TableRow RowOf(const EntryList& list, const Outcome& outcome, std::size_t index);

} // namespace VyrHost
