/// @file
/// The names that numbering makes of one name.
#pragma once

#include <VyrLibraryFuncs/name/NameFuncs.h>
#include <VyrPlatform/CString.h>

#include <cstdint>

namespace VyrHost {

/// Numbers one name, from the first number on, as the engine's conflict resolution does: each number once.
class NumberedNames
{
public:
    /// `path` is the name with its folder; a folder's name is numbered at its end, a file's before its extension.
    NumberedNames(const CString& path, bool isFolder, const VyrLibraryFuncs::NameFuncs::CONFLICTITEM& numbering);

    /// The next name; empty when every number was tried.
    [[nodiscard]] CString Next();

private:
    CString m_stem;
    CString m_extension;
    VyrLibraryFuncs::NameFuncs::CONFLICTITEM m_numbering;
    std::uint64_t m_attempt = 0;
};

} // namespace VyrHost
