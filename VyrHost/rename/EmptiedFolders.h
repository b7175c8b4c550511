/// @file
/// The folders that a batch of renames empties, and their removal as a change of the batch.
#pragma once

#include <VyrHost/model/Change.h>
#include <VyrHost/model/FolderSet.h>
#include <VyrHost/model/RenamePlan.h>
#include <VyrHostPlatform/FolderTraits.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

namespace VyrHost::Rename {

/// Removes an empty folder; an undo creates it again.
class FolderRemoval final : public Model::Change
{
public:
    static constexpr std::string_view kind = "emptied";

    /// @param traits  those of the folder.
    explicit FolderRemoval(VyrHostPlatform::FolderTraits traits) : m_traits(std::move(traits)) {}
    [[nodiscard]] static std::shared_ptr<const Model::Change> Read(const CString& before, const CString& after);

    [[nodiscard]] std::string_view Kind() const override { return kind; }
    [[nodiscard]] CString Before() const override { return VyrHostPlatform::ToText(m_traits); }
    [[nodiscard]] CString After() const override { return u"removed"; }
    [[nodiscard]] CString ShownBefore() const override { return u"empty folder"; }
    [[nodiscard]] CString ShownAfter() const override { return u"removed"; }
    /// It is empty once its entries have left it.
    [[nodiscard]] bool FollowsRenames() const override { return true; }

    [[nodiscard]] Model::ChangeLook Look(const CString& path) const override;
    [[nodiscard]] std::uint32_t Apply(const CString& path) const override;
    [[nodiscard]] std::uint32_t Undo(const CString& path) const override;

private:
    VyrHostPlatform::FolderTraits m_traits;
};

/// A folder that will be empty.
struct EmptiedFolder
{
    /// Its place in the plan.
    Model::Place place;
    std::shared_ptr<const Model::Change> removal;
};

/// The folders from which `plan` moves the last entry, and those with nothing but such folders left, the innermost
/// first. Excludes folders that are entries themselves or could not be listed, the current folder and its parents, and
/// parents of the folders in which entries were searched.
/// @param folders  the listings of the folders of `plan`.
[[nodiscard]] std::vector<EmptiedFolder> FindEmptied(const Model::RenamePlan& plan, const Model::FolderSet& folders);

/// The removal of a folder.
[[nodiscard]] Model::ChangeKinds Kinds();

} // namespace VyrHost::Rename
