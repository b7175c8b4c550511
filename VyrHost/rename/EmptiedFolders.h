/// @file
/// The folders that a batch of renames empties, and their removal as a change of the batch.
#pragma once

#include <VyrHost/model/Change.h>
#include <VyrHost/model/FolderSet.h>
#include <VyrHost/model/RenamePlan.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

namespace VyrHost::Rename {

/// Removes an empty folder, and makes it again.
class FolderRemoval final : public Model::Change
{
public:
    static constexpr std::string_view kind = "emptied";

    /// @param state  what ReadFolderState tells of the folder.
    explicit FolderRemoval(CString state) : m_state(std::move(state)) {}
    [[nodiscard]] static std::shared_ptr<const Model::Change> Read(const CString& before, const CString& after);

    [[nodiscard]] std::string_view Kind() const override { return kind; }
    [[nodiscard]] CString Before() const override { return m_state; }
    [[nodiscard]] CString After() const override { return u"removed"; }
    [[nodiscard]] CString ShownBefore() const override { return u"empty folder"; }
    [[nodiscard]] CString ShownAfter() const override { return u"removed"; }
    /// It is empty once its entries have left it.
    [[nodiscard]] bool FollowsRenames() const override { return true; }

    [[nodiscard]] Model::ChangeLook Look(const CString& path) const override;
    [[nodiscard]] std::uint32_t Apply(const CString& path) const override;
    [[nodiscard]] std::uint32_t Undo(const CString& path) const override;

private:
    CString m_state;
};

/// A folder that will be empty.
struct EmptiedFolder
{
    /// In the plan that empties it.
    Model::Place place;
    std::shared_ptr<const Model::Change> removal;
};

/// The folders out of which `plan` moves the last entry, and those in which nothing but such folders is left, the
/// innermost first. Left out are a folder that is an entry itself, one that could not be listed, the current folder,
/// those that it stands in, and folders above those that the entries were looked for in.
/// @param folders  brings the listings of the folders of `plan`.
[[nodiscard]] std::vector<EmptiedFolder> FindEmptied(const Model::RenamePlan& plan, const Model::FolderSet& folders);

/// The removal of a folder.
[[nodiscard]] Model::ChangeKinds Kinds();

} // namespace VyrHost::Rename
