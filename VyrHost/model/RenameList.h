/// @file
/// What the preview hands to the executor: the renames that were accepted, and what became of each.
#pragma once

#include <VyrHost/model/NamePool.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/text/CString.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace VyrHost::Model {

/// An absolute path, cut behind its last separator: the entries of one folder share the folder's text.
struct PlannedPath
{
    [[nodiscard]] CString Path() const { return CString::Join({folder, name}); }

    /// With its separator; empty where the path has none.
    CString folder;
    InternedName name;
};

/// Cuts `path`, whose name `texts` is to keep.
[[nodiscard]] PlannedPath Cut(const CString& path, NamePool& texts);

/// One accepted rename. The paths differ.
struct PlannedRename
{
    PlannedPath from;
    PlannedPath to;
    /// What stands at `from`, as the listing told it: File, Folder or Other.
    VyrPlatform::FileSystem::Kind kind = VyrPlatform::FileSystem::Kind::File;
};

/// The accepted renames in the order of the list.
///
/// The preview guarantees: no `from` stands twice; every `to` is unique as its folder's file system folds names;
/// nothing that the batch leaves in place stands at a `to`. An entry inside a folder that is itself renamed names that
/// folder as it is before the batch, in `from` and in `to`.
struct RenameList
{
    std::vector<PlannedRename> renames;
    /// The folders that renames move into and that are not there yet, each parent before what stands in it.
    std::vector<CString> newFolders;
    /// What keeps the names.
    std::shared_ptr<NamePool> texts = std::make_shared<NamePool>();

    /// Adds the rename of the absolute path `from` to `to`.
    void Add(const CString& from, const CString& to,
             VyrPlatform::FileSystem::Kind kind = VyrPlatform::FileSystem::Kind::File)
    {
        renames.push_back({Cut(from, *texts), Cut(to, *texts), kind});
    }
};

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

/// Called once for each rename of the list, by its index there, as soon as its fate is known.
using RenameReport = std::function<void(std::size_t index, const RenameResult& result)>;

} // namespace VyrHost::Model
