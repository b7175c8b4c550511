/// @file
/// What a call of "vyr copy" or "vyr move" asks for.
#pragma once

#include <VyrHost/foldercopy/Transfer.h>

#include <vector>

namespace VyrHost::Cli {

struct TransferRequest
{
    FolderCopy::TransferAction action = FolderCopy::TransferAction::Copy;
    /// As the user gave them.
    std::vector<CString> sources;
    CString destination;
    bool apply = false;
    bool json = false;
    bool quiet = false;
};

/// Carries `request` out and writes what became of it.
/// @return the program's exit code.
/// @throws UsageError
[[nodiscard]] int RunTransfer(const TransferRequest& request);

} // namespace VyrHost::Cli
