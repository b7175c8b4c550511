/// @file
/// What the program says on the error stream.
#pragma once

#include <VyrHost/batch/Batches.h>
#include <VyrHost/ui/OutputBuffer.h>

#include <string>

namespace VyrHost::Cli {

/// Writes "vyr: " and `what` (UTF-8, safe to show) as a line.
void Complain(const std::string& what);

/// Writes the rest of `output`; complains where any of it could not be written.
/// @return `code`, or ExitCode::Output.
[[nodiscard]] int Finish(Ui::OutputBuffer& output, int code);

/// That a batch was cut off, and what ends it.
[[nodiscard]] std::string CutOffNotice(const Batch::BatchInformation& batch);

/// Complains of a batch that was cut off, if there is one, for a command that need not wait for its end: what such a
/// command finds on the disk may be half of the batch.
void OfferRecovery();

/// What a command does while another vyr is at work: says so once, and waits up to ten seconds, or until Ctrl-C.
[[nodiscard]] Batch::LockWait WaitTenSeconds();

} // namespace VyrHost::Cli
