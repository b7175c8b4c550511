/// @file
/// Finds the folders of a plan by their paths.
#pragma once

#include <VyrHost/plan/Planner.h>
#include <VyrHost/plan/SlotTable.h>

#include <optional>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace VyrHost {

/// Collects the folders that paths name, one for each place, in whatever way its path is written.
class FolderTree
{
public:
    /// Adds to the folders of `plan`, each parent before what stands in it.
    FolderTree(RenamePlan& plan, const FoldingOfFolder& foldingOf);

    /// The place that `path` names; nothing when the path is not full, is longer than any system takes, or its name is
    /// empty, "." or "..".
    [[nodiscard]] std::optional<Place> PlaceOf(const PlannedPath& path);
    /// `place` as its file system sees it: its name is folded. Good for the life of the tree.
    [[nodiscard]] Place SlotOf(const Place& place);
    /// Whether nothing is folded in `folder`.
    [[nodiscard]] bool TakesNamesAsTheyAre(PlanIndex folder) const
    {
        return m_foldings[folder] == VyrHostPlatform::NameFolding::None;
    }
    /// The folder at `slot`; `none` when no path has named it.
    [[nodiscard]] PlanIndex FolderAt(const Place& slot) const
    {
        const PlanIndex* const folder = m_bySlot.Find(slot);
        return folder ? *folder : none;
    }
    /// The folder at `place`, whose path is `path`.
    PlanIndex Collect(const Place& place, std::u16string_view path);

private:
    [[nodiscard]] PlanIndex FolderOf(const CString& folderPath);
    [[nodiscard]] PlanIndex Walk(std::u16string_view folderPath);
    [[nodiscard]] PlanIndex RootOf(std::u16string_view root);
    [[nodiscard]] PlanIndex Add(const Place& place, std::u16string_view path);

    RenamePlan& m_plan;
    const FoldingOfFolder& m_foldingOf;
    NameStore m_foldedNames;
    std::vector<VyrHostPlatform::NameFolding> m_foldings;
    SlotTable<PlanIndex> m_bySlot;
    std::unordered_map<CString, PlanIndex> m_byPath;
    /// Lists name the entries of one folder after another.
    CString m_lastPath;
    PlanIndex m_lastFolder = none;
};

} // namespace VyrHost
