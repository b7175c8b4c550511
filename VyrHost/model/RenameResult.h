/// @file
/// What became of a rename.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <cstdint>

namespace VyrHost::Model {

/// What became of one rename.
enum class RenameOutcome : std::uint8_t
{
    Done,
    /// The system refused: the result's error code says why.
    Failed,
    /// The executor did not try: the result's reason says why (a rename that it depends on failed, another file
    /// system).
    Refused,
    /// The work was ended before it came to this one.
    NotReached
};

struct RenameResult
{
    RenameOutcome outcome = RenameOutcome::NotReached;
    /// The system's error code; 0 unless the outcome is Failed.
    std::uint32_t error = 0;
    /// For people; empty when the rename was done.
    CString reason;
};

} // namespace VyrHost::Model
