/// @file
/// Applies or takes back the changes of a batch that are no renames.
#pragma once

#include <VyrHost/batch/Executor.h>
#include <VyrHost/batch/JournalText.h>
#include <VyrHost/batch/PlanProgress.h>

#include <cstdint>
#include <functional>
#include <unordered_map>
#include <vector>

namespace VyrHost::Batch {

class ChangeWork
{
public:
    using Report = std::function<void(std::size_t index, const Model::Outcome& result)>;

    /// @param progress tells where the files stand while the same batch renames them.
    ChangeWork(const Journal& journal, const PlanProgress& progress);

    /// Takes the changes that the journal's checkpoint says so for as not done: nothing is done to them, nor said.
    void TrustCheckpoint();
    /// Looks at what every file has.
    void Locate();
    /// Whether there is one that is not kept, and whose file has the change or can get it.
    [[nodiscard]] bool IsAnyFound() const;

    /// Applies the changes, or takes them back in reverse order. What another program has changed since stays.
    /// @param report called once for each change.
    /// @return false when it was stopped before the end.
    bool Run(Direction direction, const Report& report, const Executor::StopRequest& isStopAsked);
    /// After Locate: what Run would report of a change.
    [[nodiscard]] Model::Outcome Foresee(std::size_t index, Direction direction) const;

    [[nodiscard]] bool IsKept(std::size_t index) const { return m_isKept[index]; }
    /// Whether it is done, or may turn out to be at the next attempt to take it back.
    [[nodiscard]] bool MayBeDone(std::size_t index, Direction direction) const;
    [[nodiscard]] bool IsAnyDone() const;
    /// Where the file stands now; where it was not found, before the batch.
    [[nodiscard]] CString PathOf(std::size_t index) const;

private:
    [[nodiscard]] bool IsDone(std::size_t index) const;
    [[nodiscard]] Model::Outcome Perform(std::size_t index, Direction direction);

    const Journal& m_journal;
    const PlanProgress& m_progress;
    std::vector<Model::ChangeLook> m_looks;
    std::vector<bool> m_isKept;
    /// For each change the rename of the same file.
    std::vector<Model::PlanIndex> m_renames;
};

} // namespace VyrHost::Batch
