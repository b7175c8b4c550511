/// @file
/// The batches of the user, with every kind of change that this program knows.
#pragma once

#include <VyrHost/batch/Batches.h>

namespace VyrHost::Cli {

/// @param wait  called while another program works on a batch.
[[nodiscard]] Batch::Batches OpenBatches(const Batch::LockWait& wait = {});

} // namespace VyrHost::Cli
