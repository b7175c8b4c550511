/// @file
/// Settles who gets which name when names clash.
#pragma once

#include <VyrHost/preview/Preview.h>

#include <vector>

namespace VyrHost {

/// Goes through `decisions` in order and gives each entry that is to be renamed its name, a numbered one, or none.
/// Numbers are tried as the engine tries them; time grows with the number of entries, however many want one name.
/// @param mayNumber  whether the rules allow numbering at all.
void Allot(EntryList& list, std::vector<Decision>& decisions, const ConflictSettings& settings, bool mayNumber);

} // namespace VyrHost
