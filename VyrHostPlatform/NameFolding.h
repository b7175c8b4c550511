/// @file
/// Which names are equal in a folder.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <cstdint>

namespace VyrHostPlatform {

/// What a file system ignores when it compares the names of a folder.
enum class NameFolding : std::uint8_t
{
    /// Nothing: names that differ in one byte are different names.
    None = 0,
    /// Upper and lower case.
    Case = 1,
    /// The Unicode normal form (a letter with its accent in one code point or in two).
    Form = 2,
    CaseAndForm = 3
};

/// How the folder at `path` compares names. A folder that does not exist yet counts as its nearest existing parent. If
/// the file system does not say it, tries it on existing names in the folder, without changing anything.
[[nodiscard]] NameFolding GetNameFolding(const CString& path);

/// The key of `name`: two names are equal in a folder when their keys are equal. `A.JPG` and `a.jpg` have one key under
/// NameFolding::Case. Under NameFolding::None the key is the name itself, without a copy.
[[nodiscard]] CString FoldName(const CString& name, NameFolding folding);

/// Whether `left` and `right` are equal names in the existing folder `path`. Tries it with empty folders in a new
/// subfolder, and removes them. Use it when the answer must be certain: GetNameFolding may not know it for an empty
/// folder. False also when the user may not create folders there.
[[nodiscard]] bool TryIsOneName(const CString& path, const CString& left, const CString& right);

} // namespace VyrHostPlatform
