// For tests: renames by their paths, and drafts and plans of them.
#pragma once

#include <VyrHost/rename/Planner.h>

#include <functional>
#include <vector>

namespace VyrTests {

/// The paths differ, are full and have no empty, "." or ".." parts.
struct PathRename
{
    CString from;
    CString to;
    VyrPlatform::FileSystem::Kind kind = VyrPlatform::FileSystem::Kind::File;
};

struct PathRenames
{
    std::vector<PathRename> renames;
    /// Those that are to be created, each parent before what stands in it.
    std::vector<CString> newFolders;

    void Add(const CString& from, const CString& to,
             VyrPlatform::FileSystem::Kind kind = VyrPlatform::FileSystem::Kind::File)
    {
        renames.push_back({from, to, kind});
    }
};

/// Answers how the folder at a path compares names.
using FoldingOfFolder = std::function<VyrHostPlatform::NameFolding(const CString& path)>;

/// The folders of the paths, and all those that they stand in, have one number for each path.
[[nodiscard]] VyrHost::Rename::RenameDraft DraftOf(const PathRenames& list, const FoldingOfFolder& foldingOf);

[[nodiscard]] VyrHost::Rename::PlannerResult PlanRenames(const PathRenames& list, const FoldingOfFolder& foldingOf);

} // namespace VyrTests
