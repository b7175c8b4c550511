/// @file
/// Decides who gets which name when names clash, and numbers names.
#pragma once

#include <VyrHost/rename/NamesAfter.h>
#include <VyrHost/rename/Preview.h>
#include <VyrLibraryFuncs/name/NameFuncs.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <vector>

namespace VyrHost::Rename {

/// Numbers one name as the engine's conflict resolution does.
class NumberedName
{
public:
    /// `path` is the name with its folder; a folder's name is numbered at its end, a file's before its extension.
    NumberedName(const CString& path, bool isFolder);

    /// The name of a sidecar: this one, and `extension` behind it (Groups::MainFileOf).
    [[nodiscard]] NumberedName OfSidecar(std::u16string_view extension) const;

    /// The name with the number of the attempt `attempt` (from 0). The engine has no `digits`: the least number of
    /// digits, filled up with zeros behind a minus sign.
    [[nodiscard]] CString With(const VyrLibraryFuncs::NameFuncs::CONFLICTITEM& numbering, int digits,
                               std::uint64_t attempt) const;

private:
    NumberedName(CString stem, CString extension);

    CString m_stem;
    CString m_extension;
};

/// How many attempts there are before the first number comes again: numbers wrap in 32 bits. `step` is not 0.
[[nodiscard]] std::uint64_t CountNumbers(int step);

/// Goes through `decisions` group by group and gives those that are to be renamed their names, numbered ones, or none.
/// Numbers are tried as the engine tries them; time grows with the number of entries, however many want one name.
/// @param after  has the names that new folders get.
/// @param mayNumber  whether numbering is allowed at all.
void ResolveConflicts(Model::EntryList& list, const Groups& groups, std::vector<Decision>& decisions, NamesAfter& after,
                      const ConflictSettings& settings, bool mayNumber);

} // namespace VyrHost::Rename
