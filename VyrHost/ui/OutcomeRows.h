/// @file
/// The rows of a preview, or of what became of it.
#pragma once

#include <VyrHost/model/Decision.h>
#include <VyrHost/model/EntryList.h>
#include <VyrHost/ui/Table.h>

namespace VyrHost::Ui {

/// The row of the entry `index` of `list`: its name, the new one, and what there is to say.
[[nodiscard]] TableRow RowOf(const Model::EntryList& list, const Model::Outcome& outcome, std::size_t index);

} // namespace VyrHost::Ui
