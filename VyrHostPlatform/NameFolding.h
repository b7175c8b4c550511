/// @file
/// Which names a folder takes for one and the same.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <cstdint>

namespace VyrHostPlatform {

/// What a folder's file system overlooks when it compares names.
enum class NameFolding : std::uint8_t
{
    /// Nothing: every name that differs is another name.
    None = 0,
    /// Upper and lower case.
    Case = 1,
    /// The Unicode normal form (a letter with its accent in one code point or in two).
    Form = 2,
    CaseAndForm = 3
};

/// How the folder at `path` compares names. Where that folder is not there yet, its nearest parent that is answers for
/// it. A file system that does not tell is tried, without changing anything, on a name that the folder has.
[[nodiscard]] NameFolding GetNameFolding(const CString& path);

/// The key of `name`: two names of a folder are one to its file system when their keys are equal. The name itself (no
/// copy is made) under NameFolding::None.
[[nodiscard]] CString FoldName(const CString& name, NameFolding folding);

/// Whether the folder at `path`, which is there, takes the names `left` and `right` for one. This is tried with empty
/// folders in a new one, which is removed again: for names of which much depends, since an empty folder may be one of
/// those whose file system tells nothing. False, too, where nothing can be made there.
[[nodiscard]] bool TryIsOneName(const CString& path, const CString& left, const CString& right);

} // namespace VyrHostPlatform
