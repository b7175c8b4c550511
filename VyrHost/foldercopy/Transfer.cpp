// Hands a tree to the library, which copies or moves it.
#include <VyrHost/foldercopy/Transfer.h>

#include <VyrHostPlatform/QueueTimer.h>
#include <VyrLibraryUtils/DateTimeUtils.h>
#include <VyrPlatform/files/FileSystem.h>

namespace VyrHost::FolderCopy {

using VyrLibraryFuncs::NameFuncs;
using VyrLibraryUtils::DateTimeUtils;
namespace FileSystem = VyrPlatform::FileSystem;

std::uint32_t TransferFolder(const FolderSnapshot& tree, const CString& target, TransferAction action,
                             TransferRecords& records, const TransferProgress& progress)
{
    constexpr std::chrono::milliseconds interval{100};
    if (!FileSystem::IsFolder(target)) {
        const NameFuncs::RENAMEITEM root = {tree.root, target, DateTimeUtils::GetDateCreated(tree.root),
                                            DateTimeUtils::GetDateModified(tree.root)};
        if (const std::uint32_t error = FileSystem::CreateFolder(target))
            return error;
        records.push_back(root);
    }
    const VyrHostPlatform::QueueTimer timer(interval, [&records, &progress] { progress(records.size()); });
    // The result tells of the last operation alone.
    if (action == TransferAction::Copy)
        static_cast<void>(NameFuncs::CopyFolder(tree.root, target, &records));
    else
        static_cast<void>(NameFuncs::MoveFolder(tree.root, target, &records));
    return 0;
}

} // namespace VyrHost::FolderCopy
