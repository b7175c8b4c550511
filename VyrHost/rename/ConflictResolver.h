/// @file
/// Resolves conflicts of names, and numbers names.
#pragma once

#include <VyrHost/rename/NamesAfter.h>
#include <VyrHost/rename/Preview.h>
#include <VyrLibraryFuncs/name/NameFuncs.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <vector>

namespace VyrHost::Rename {

/// Numbers one name like the engine's conflict resolution.
class NumberedName
{
public:
    /// @param path the name with its folder. A folder's name is numbered at its end, a file's before its extension.
    NumberedName(const CString& path, bool isFolder);

    /// The name of a sidecar: this one, and `extension` after it (Groups::MainFileOf).
    [[nodiscard]] NumberedName OfSidecar(std::u16string_view extension) const;

    /// The name with the number of the attempt `attempt` (from 0). `digits`, which the engine does not have, is the
    /// minimum number of digits, padded with zeros (after a minus sign).
    [[nodiscard]] CString With(const VyrLibraryFuncs::NameFuncs::CONFLICTITEM& numbering, int digits,
                               std::uint64_t attempt) const;

private:
    NumberedName(CString stem, CString extension);

    CString m_stem;
    CString m_extension;
};

/// The number of attempts before the first number recurs: numbers wrap in 32 bits. `step` is not 0.
[[nodiscard]] std::uint64_t CountNumbers(int step);

/// Decides, group by group, whether the entries to be renamed get their wanted names, numbered ones, or none. Tries
/// numbers like the engine; takes linear time, however many entries want one name.
/// @param after  contains the names of new folders.
/// @param mayNumber  whether numbering is allowed.
void ResolveConflicts(Model::EntryList& list, const Groups& groups, std::vector<Decision>& decisions, NamesAfter& after,
                      const ConflictSettings& settings, bool mayNumber);

} // namespace VyrHost::Rename
