/// @file
/// The progress of a plan: the present location of each of its entries and folders.
#pragma once

#include <VyrHost/model/RenamePlan.h>

#include <cstdint>
#include <optional>
#include <vector>

namespace VyrHost::Batch {

/// The direction of the work on a batch.
enum class Direction : std::uint8_t
{
    /// From the old state to the new one.
    Forward,
    Backward
};

enum class Location : std::uint8_t
{
    /// At its old path.
    Before,
    /// Under its temporary name.
    Temporary,
    /// At its new path.
    After,
    /// It was not found.
    Unknown
};

enum class NewFolder : std::uint8_t
{
    Absent,
    /// The batch has made it.
    Made,
    /// It existed when the batch was to make it.
    Found
};

/// Starts with every entry before its rename and no folder made.
class PlanProgress
{
public:
    /// @param token distinguishes the temporary names of this batch.
    PlanProgress(const Model::RenamePlan& plan, std::uint64_t token);

    [[nodiscard]] Location Of(Model::PlanIndex entry) const { return m_locations[entry]; }
    void Set(Model::PlanIndex entry, Location location) { m_locations[entry] = location; }
    [[nodiscard]] NewFolder OfFolder(Model::PlanIndex folder) const { return m_newFolders[folder]; }
    void SetFolder(Model::PlanIndex folder, NewFolder state) { m_newFolders[folder] = state; }
    /// Whether `folder` existed before the batch, or exists now.
    [[nodiscard]] bool IsThere(Model::PlanIndex folder) const
    {
        return !m_plan.folders[folder].isNew || m_newFolders[folder] != NewFolder::Absent;
    }

    /// The place of `entry` if it is at `location` (not Unknown).
    [[nodiscard]] Model::Place PlaceOf(Model::PlanIndex entry, Location location) const;
    /// Where `folder` is now; nothing when it was not found.
    [[nodiscard]] std::optional<Model::Place> PlaceOfFolder(Model::PlanIndex folder) const;
    /// The present path of `folder`; nothing when it or one of its parents was not found.
    [[nodiscard]] std::optional<CString> PathOfFolder(Model::PlanIndex folder) const;
    /// The present path of `place`, for people: if the folder was not found, the path before the batch.
    [[nodiscard]] CString PathOf(const Model::Place& place) const;

private:
    const Model::RenamePlan& m_plan;
    std::uint64_t m_token;
    std::vector<Location> m_locations;
    std::vector<NewFolder> m_newFolders;
};

} // namespace VyrHost::Batch
