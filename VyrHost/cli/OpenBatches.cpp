// Joins the batches with the kinds of change.
#include <VyrHost/cli/OpenBatches.h>

#include <VyrHost/batch/FileOperations.h>
#include <VyrHost/metadata/Kinds.h>

#include <utility>

namespace VyrHost::Cli {

Batch::Batches OpenBatches(const Batch::LockWait& wait)
{
    Batch::BatchSettings settings = Batch::SettingsFromEnvironment();
    settings.wait = wait;
    settings.kinds = Metadata::Kinds();
    return {Batch::SystemFiles(), std::move(settings)};
}

} // namespace VyrHost::Cli
