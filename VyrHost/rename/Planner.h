/// @file
/// From a list of renames to the steps that bring them about.
#pragma once

#include <VyrHost/model/RenameList.h>
#include <VyrHost/model/RenamePlan.h>

#include <VyrHostPlatform/NameFolding.h>

#include <functional>

namespace VyrHost::Rename {

/// Answers how the folder at a path compares names; asked once for each folder.
using FoldingOfFolder = std::function<VyrHostPlatform::NameFolding(const CString& path)>;

struct PlanRefusal
{
    /// In the list of renames.
    std::size_t index = 0;
    CString reason;
};

struct PlannerResult
{
    Model::RenamePlan plan;
    /// For each entry of the plan its index in the list of renames.
    std::vector<std::size_t> indexes;
    /// What cannot be planned, and what depends on it.
    std::vector<PlanRefusal> refused;
};

/// Plans `list` without looking at the disk.
///
/// Chains (a to b, b to c) are done from their free end, cycles (a to b, b to a) through one temporary name, as are
/// changes that the file system takes for the same name. A folder and what stands in it may be renamed together.
///
/// Refused are: a path that is not full or has empty, "." or ".." parts; a source named twice, two entries to one new
/// path; a folder that would end up inside itself; and whatever needs the place of a refused one. Takes time in
/// proportion to the list, nearly.
[[nodiscard]] PlannerResult PlanRenames(const Model::RenameList& list, const FoldingOfFolder& foldingOf);

} // namespace VyrHost::Rename
