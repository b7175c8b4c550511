// Words problems.
#include <VyrHost/foldercopy/Transfer.h>

#include <VyrHost/model/Result.h>
#include <VyrHost/text/Errors.h>
#include <VyrHostPlatform/QueueTimer.h>
#include <VyrLibraryUtils/DateTimeUtils.h>
#include <VyrPlatform/files/FileSystem.h>

#include <string_view>

namespace VyrHost::FolderCopy {

namespace {

std::u16string_view WordsFor(TransferFault fault)
{
    switch (fault) {
    case TransferFault::TargetExists:
        return u"the new path is there already";
    case TransferFault::TwoNamesInOne:
        return u"another entry's name is the same there";
    case TransferFault::TargetNotRead:
        return u"the folder where it would go cannot be read";
    case TransferFault::TargetLocked:
        return u"nothing may be added to the folder where it would go";
    case TransferFault::SourceLocked:
        return u"nothing may be moved out of this folder";
    case TransferFault::RootLocked:
        return u"it may not be moved out of its folder";
    case TransferFault::NotOwnEntry:
        return u"in its folder only its owner may move it";
    case TransferFault::NotRead:
        return u"the folder cannot be read";
    case TransferFault::LittleSpace:
        return u"there may be too little space";
    case TransferFault::NoContent:
        return u"a pipe or a device has no content";
    case TransferFault::NoFolder:
        return u"its folder could not be made";
    case TransferFault::Differs:
        return u"what is there now is something else";
    case TransferFault::StillAtSource:
        return u"it is at the target, but could not be removed here";
    case TransferFault::NotEmpty:
        return u"something new is in it";
    case TransferFault::FolderNotSet:
        return u"the times or permissions of the folder could not be set";
    case TransferFault::System:
        break;
    }
    return {};
}

} // namespace

CString ReasonOf(const TransferProblem& problem)
{
    return Model::ReasonAndCause(WordsFor(problem.fault),
                                 problem.error != 0 ? Text::ErrorText(problem.error) : CString());
}

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
    // The result is that of the last operation only.
    if (action == TransferAction::Copy)
        static_cast<void>(NameFuncs::CopyFolder(tree.root, target, &records));
    else
        static_cast<void>(NameFuncs::MoveFolder(tree.root, target, &records));
    return 0;
}

} // namespace VyrHost::FolderCopy
