/// @file
/// Finds the folders of a plan by their paths.
#pragma once

#include <VyrHost/plan/Planner.h>

#include <functional>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace VyrHost {

/// A place as its file system sees it: the name is folded.
struct Slot
{
    PlanIndex folder = none;
    CString key;

    friend bool operator==(const Slot&, const Slot&) noexcept = default;
};

struct SlotHash
{
    std::size_t operator()(const Slot& slot) const noexcept
    {
        return std::hash<CString>()(slot.key) ^ (slot.folder * std::size_t{0x9E3779B97F4A7C15});
    }
};

/// Collects the folders that paths name, one for each place, in whatever way its path is written.
class FolderTree
{
public:
    /// Adds to `folders`, each parent before what stands in it.
    FolderTree(std::vector<PlanFolder>& folders, const FoldingOfFolder& foldingOf);

    /// The place that `path` names; nothing when the path is not full, is longer than any system takes, or its name is
    /// empty, "." or "..".
    [[nodiscard]] std::optional<Place> PlaceOf(const CString& path);
    [[nodiscard]] Slot SlotOf(const Place& place) const;
    /// The folder at `slot`; `none` when no path has named it.
    [[nodiscard]] PlanIndex FolderAt(const Slot& slot) const;
    /// The folder at `place`, whose path is `path`.
    PlanIndex Collect(const Place& place, std::u16string_view path);

private:
    [[nodiscard]] PlanIndex FolderOf(std::u16string_view folderPath);
    [[nodiscard]] PlanIndex Walk(std::u16string_view folderPath);
    [[nodiscard]] PlanIndex RootOf(std::u16string_view root);
    [[nodiscard]] PlanIndex Add(const Place& place, std::u16string_view path);

    std::vector<PlanFolder>& m_folders;
    const FoldingOfFolder& m_foldingOf;
    std::vector<VyrPlatform::NameFolding> m_foldings;
    std::unordered_map<Slot, PlanIndex, SlotHash> m_bySlot;
    std::unordered_map<CString, PlanIndex> m_byPath;
    /// Lists name the entries of one folder after another.
    CString m_lastPath;
    PlanIndex m_lastFolder = none;
};

} // namespace VyrHost
