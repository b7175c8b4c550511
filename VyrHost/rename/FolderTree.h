/// @file
/// Finds the folders of a plan by their paths.
#pragma once

#include <VyrHost/model/SlotTable.h>
#include <VyrHost/rename/Planner.h>

#include <optional>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace VyrHost::Rename {

/// Collects the folders that paths name, one for each place, in whatever way its path is written.
class FolderTree
{
public:
    /// Adds to the folders of `plan`, each parent before what stands in it.
    FolderTree(Model::RenamePlan& plan, const FoldingOfFolder& foldingOf);

    /// The place that `path` names; nothing when the path is not full, is longer than any system takes, or its name is
    /// empty, "." or "..".
    [[nodiscard]] std::optional<Model::Place> PlaceOf(const Model::PlannedPath& path);
    /// `place` as its file system sees it: its name is folded. Good for the life of the tree.
    [[nodiscard]] Model::Place SlotOf(const Model::Place& place);
    /// Whether nothing is folded in `folder`.
    [[nodiscard]] bool TakesNamesAsTheyAre(Model::PlanIndex folder) const
    {
        return m_foldings[folder] == VyrHostPlatform::NameFolding::None;
    }
    /// The folder at `slot`; `none` when no path has named it.
    [[nodiscard]] Model::PlanIndex FolderAt(const Model::Place& slot) const
    {
        const Model::PlanIndex* const folder = m_bySlot.Find(slot);
        return folder ? *folder : Model::none;
    }
    /// The folder at `place`, whose path is `path`.
    Model::PlanIndex Collect(const Model::Place& place, std::u16string_view path);

private:
    [[nodiscard]] Model::PlanIndex FolderOf(const CString& folderPath);
    [[nodiscard]] Model::PlanIndex Walk(std::u16string_view folderPath);
    [[nodiscard]] Model::PlanIndex RootOf(std::u16string_view root);
    [[nodiscard]] Model::PlanIndex Add(const Model::Place& place, std::u16string_view path);

    Model::RenamePlan& m_plan;
    const FoldingOfFolder& m_foldingOf;
    Model::NamePool m_foldedNames;
    std::vector<VyrHostPlatform::NameFolding> m_foldings;
    Model::SlotTable<Model::PlanIndex> m_bySlot;
    std::unordered_map<CString, Model::PlanIndex> m_byPath;
    /// Lists name the entries of one folder after another.
    CString m_lastPath;
    Model::PlanIndex m_lastFolder = Model::none;
};

} // namespace VyrHost::Rename
