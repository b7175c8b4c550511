/// @file
/// Settles who gets which name when names clash.
#pragma once

#include <VyrHost/rename/Preview.h>

#include <vector>

namespace VyrHost::Rename {

/// Goes through `decisions` group by group and gives those that are to be renamed their names, numbered ones, or none.
/// Numbers are tried as the engine tries them; time grows with the number of entries, however many want one name.
/// @param mayNumber  whether numbering is allowed at all.
void ResolveConflicts(Model::EntryList& list, const Groups& groups, std::vector<Decision>& decisions,
                      const ConflictSettings& settings, bool mayNumber);

} // namespace VyrHost::Rename
