// Hands a tree to the library, which copies or moves it.
#include <VyrHost/trees/TreeTransfer.h>

#include <VyrHostPlatform/QueueTimer.h>
#include <VyrLibraryUtils/DateTimeUtils.h>
#include <VyrPlatform/files/FileSystem.h>

namespace VyrHost {

using VyrLibraryFuncs::NameFuncs;
using VyrLibraryUtils::DateTimeUtils;
namespace FileSystem = VyrPlatform::FileSystem;

std::uint32_t TransferTree(const Tree& tree, const CString& target, TreeAction action, TreeRecords& records,
                           const TreeProgress& progress)
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
    if (action == TreeAction::Copy)
        static_cast<void>(NameFuncs::CopyFolder(tree.root, target, &records));
    else
        static_cast<void>(NameFuncs::MoveFolder(tree.root, target, &records));
    return 0;
}

} // namespace VyrHost
