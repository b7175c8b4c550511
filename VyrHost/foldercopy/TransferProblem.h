/// @file
/// What is in the way of an entry of a tree, or what became of it.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <vector>

namespace VyrHost::FolderCopy {

enum class TransferFault : std::uint8_t
{
    // Found beforehand; nothing is touched then.

    /// Something stands where it would go.
    TargetExists,
    /// The target takes its name and that of another entry for one.
    TwoNamesInOne,
    /// The folder where it would go cannot be looked through.
    TargetNotRead,

    // Found afterwards.

    /// The system refused it.
    System,
    /// The folder could not be read, so that what is in it is not known.
    NotRead,
    /// It is a pipe or a device.
    NoContent,
    /// Its folder could not be made.
    NoFolder,
    /// What stands at the target is not what stood at the source.
    Differs,
    /// It is at the target, and at the source, too, where it could not be removed.
    StillAtSource,
    /// The folder is not empty, though all that was known of is gone.
    NotEmpty,
    /// The times, permissions or attributes of the folder could not be set.
    FolderNotSet
};

struct TransferProblem
{
    /// From the root of the tree on; empty for the root itself.
    CString path;
    TransferFault fault = TransferFault::System;
    /// The system's error code; 0 where none tells more.
    std::uint32_t error = 0;
};

/// Why, for people.
[[nodiscard]] CString ReasonOf(const TransferProblem& problem);

using TransferProblems = std::vector<TransferProblem>;

} // namespace VyrHost::FolderCopy
