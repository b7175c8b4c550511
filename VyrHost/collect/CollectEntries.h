/// @file
/// Makes the list of entries from the user's paths.
#pragma once

#include <VyrHost/collect/Choice.h>
#include <VyrHost/model/EntryList.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace VyrHost::Collect {

/// The entries that recursion takes.
enum class Pick : std::uint8_t
{
    Files,
    Folders,
    All
};

/// The form of names on the standard input.
enum class InputNames : std::uint8_t
{
    None,
    /// One per line.
    Lines,
    /// Each ended by a NUL.
    Terminated
};

struct SourceSettings
{
    /// As the user gave them.
    std::vector<CString> paths;
    InputNames input = InputNames::None;
    /// A folder means the entries below it instead of itself. Links to folders are not followed.
    bool recursive = false;
    Pick pick = Pick::Files;
    /// The paths have no wildcards: all characters are literal. Each names another entry.
    bool areNames = false;
    /// How deep recursion goes: 1 takes what is in a named folder itself. Any depth when not given.
    std::optional<int> maxDepth;
    /// Recursion also takes and enters entries that begin with a dot.
    bool hidden = false;
    /// Also applies to named entries, but not to a path that does not exist.
    Choice choice;
};

struct CollectedEntries
{
    Model::EntryList list;
    /// Messages about folders that could not be read.
    std::vector<CString> problems;
    /// The number of entries that the choice left out, without those in folders that were not entered.
    std::size_t leftOut = 0;
    /// The number of folders that were not entered because their names are excluded.
    std::size_t notEntered = 0;
};

/// The entries in the order given. Recursion gives the files of a folder and then those of its subfolders, each in
/// natural order. An entry that is named again stays where it was named first. A path that does not exist is an entry
/// of kind Missing.
///
/// The kind of an entry comes from the listing of its folder, which is read once, however many entries it has.
/// @throws UsageError when an entry is inside a folder that is named too, or cannot be one (a root, ".."), and where
/// one of `areNames` is named twice.
[[nodiscard]] CollectedEntries CollectEntries(const SourceSettings& settings);

} // namespace VyrHost::Collect
