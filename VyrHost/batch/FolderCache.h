/// @file
/// The folders that are being worked in, kept open.
#pragma once

#include <VyrHost/batch/FileOperations.h>
#include <VyrHost/batch/PlanProgress.h>

#include <memory>
#include <vector>

namespace VyrHost::Batch {

/// A folder, or why there is none.
struct OpenedFolder
{
    FolderOperations* folder = nullptr;
    /// The system's error code; 0 when it is not known where the folder is.
    std::uint32_t error = 0;
};

class FolderCache
{
public:
    FolderCache(const PlanProgress& progress, FileOperations& files);

    /// The folder `folder` of the plan, where it stands now. It stays good while one other is opened.
    [[nodiscard]] OpenedFolder Open(Model::PlanIndex folder);
    /// To be called when `folder` has got another path: forgets it and what is in it.
    void Forget(Model::PlanIndex folder);
    /// What stands at `place`.
    [[nodiscard]] VyrPlatform::FileState Look(const Model::Place& place);

private:
    struct Cached
    {
        Model::PlanIndex folder;
        std::unique_ptr<FolderOperations> operations;
    };

    [[nodiscard]] bool IsIn(Model::PlanIndex folder, Model::PlanIndex outer) const;

    const PlanProgress& m_progress;
    FileOperations& m_files;
    /// The last used first.
    std::vector<Cached> m_cached;
};

} // namespace VyrHost::Batch
