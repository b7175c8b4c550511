// For tests: renames given by paths, and drafts and plans made from them.
#pragma once

#include <VyrHost/rename/Planner.h>

#include <functional>
#include <vector>

namespace VyrTests {

/// The paths are different, full, and without empty, "." or ".." parts.
struct PathRename
{
    CString from;
    CString to;
    VyrPlatform::FileSystem::Kind kind = VyrPlatform::FileSystem::Kind::File;
};

struct PathRenames
{
    std::vector<PathRename> renames;
    /// Folders to be created, each parent before its subfolders.
    std::vector<CString> newFolders;

    void Add(const CString& from, const CString& to,
             VyrPlatform::FileSystem::Kind kind = VyrPlatform::FileSystem::Kind::File)
    {
        renames.push_back({from, to, kind});
    }
};

/// Tells how the folder at a path compares names.
using FoldingOfFolder = std::function<VyrHostPlatform::NameFolding(const CString& path)>;

/// The draft of the renames. All folders of the paths, and their parents, have one number for each path.
[[nodiscard]] VyrHost::Rename::RenameDraft DraftOf(const PathRenames& list, const FoldingOfFolder& foldingOf);

[[nodiscard]] VyrHost::Rename::PlannerResult PlanRenames(const PathRenames& list, const FoldingOfFolder& foldingOf);

} // namespace VyrTests
