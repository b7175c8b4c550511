/// @file
/// How far the work on a plan has come: where each of its entries and folders stands now.
#pragma once

#include <VyrHost/plan/RenamePlan.h>

#include <cstdint>
#include <optional>
#include <vector>

namespace VyrHost {

enum class Standing : std::uint8_t
{
    /// At its old path.
    Before,
    /// Under its temporary name.
    Aside,
    /// At its new path.
    After,
    /// It was not found at any of them.
    Unknown
};

enum class NewFolder : std::uint8_t
{
    Absent,
    /// The batch has made it.
    Made,
    /// It was there when the batch was to make it.
    Found
};

/// Starts with every entry before its rename and no folder made.
class PlanProgress
{
public:
    /// @param token distinguishes the temporary names of this batch.
    PlanProgress(const RenamePlan& plan, std::uint64_t token);

    [[nodiscard]] Standing Of(PlanIndex entry) const { return m_standings[entry]; }
    void Set(PlanIndex entry, Standing standing) { m_standings[entry] = standing; }
    [[nodiscard]] NewFolder OfFolder(PlanIndex folder) const { return m_newFolders[folder]; }
    void SetFolder(PlanIndex folder, NewFolder state) { m_newFolders[folder] = state; }
    /// Whether `folder` is one that was there before, or is there by now.
    [[nodiscard]] bool IsThere(PlanIndex folder) const
    {
        return !m_plan.folders[folder].isNew || m_newFolders[folder] != NewFolder::Absent;
    }

    /// The place of `entry` where it stands as `standing` says (not Unknown).
    [[nodiscard]] Place PlaceOf(PlanIndex entry, Standing standing) const;
    /// Where `folder` stands now; nothing when it was not found.
    [[nodiscard]] std::optional<Place> PlaceOfFolder(PlanIndex folder) const;
    /// The path of `folder` now; nothing when it or one that it stands in was not found.
    [[nodiscard]] std::optional<CString> PathOfFolder(PlanIndex folder) const;
    /// The path of `place` now. For people: where the folder was not found, the path before the batch.
    [[nodiscard]] CString PathOf(const Place& place) const;

private:
    const RenamePlan& m_plan;
    std::uint64_t m_token;
    std::vector<Standing> m_standings;
    std::vector<NewFolder> m_newFolders;
};

} // namespace VyrHost
