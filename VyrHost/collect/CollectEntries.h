/// @file
/// Turns what the user names into the list of entries.
#pragma once

#include <VyrHost/collect/Choice.h>
#include <VyrHost/model/EntryList.h>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace VyrHost::Collect {

/// What recursion takes from the folders that it goes through.
enum class Pick : std::uint8_t
{
    Files,
    Folders,
    All
};

/// How names come from the standard input.
enum class InputNames : std::uint8_t
{
    None,
    /// One a line.
    Lines,
    /// Each ended by a NUL.
    Terminated
};

struct SourceSettings
{
    /// As the user gave them.
    std::vector<CString> paths;
    InputNames input = InputNames::None;
    /// A folder stands for what is below it instead of for itself. Links to folders are not followed.
    bool recursive = false;
    Pick pick = Pick::Files;
    /// The paths are names as they stand: no wildcards in them.
    bool areNames = false;
    /// Recursion takes and goes into what begins with a dot, too.
    bool hidden = false;
    /// Holds for named entries, too, but not for a path that leads nowhere.
    Choice choice;
};

struct CollectedEntries
{
    Model::EntryList list;
    /// What could not be read, for people.
    std::vector<CString> problems;
    /// How many entries the choice left out, those in folders that were not entered uncounted.
    std::size_t leftOut = 0;
    /// How many folders were not entered because their names are excluded.
    std::size_t notEntered = 0;
};

/// The entries in the order given; in a folder that is gone through, its own first and then its folders', each by name
/// (natural order). A path that leads nowhere is an entry of kind Missing.
///
/// The kind of an entry comes from its folder's listing, which is read once for each folder, however many entries are
/// in it.
/// @throws UsageError when something is named twice, or stands inside a folder that is named too, or names no entry
/// (a root, "..").
[[nodiscard]] CollectedEntries CollectEntries(const SourceSettings& settings);

} // namespace VyrHost::Collect
