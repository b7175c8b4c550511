/// @file
/// Changes of metadata: their kinds, the proposals for a list, the batch of them, and its results.
#pragma once

#include <VyrHost/batch/Batches.h>
#include <VyrHost/model/Change.h>
#include <VyrHost/model/EntryList.h>
#include <VyrHost/model/Result.h>
#include <VyrPlatform/text/CString.h>

#include <cstddef>
#include <functional>
#include <memory>
#include <string_view>
#include <vector>

namespace VyrHost::Metadata {

/// The proposal for one entry. Without a change and a refusal the file already has the new values.
struct Proposal
{
    std::shared_ptr<const Model::Change> change;
    /// The reason why it is not changed, in words.
    CString refusal;
};

/// Makes a proposal for an entry. It reads the file and changes nothing.
class ChangeRule
{
public:
    ChangeRule() = default;
    ChangeRule(const ChangeRule&) = delete;
    ChangeRule& operator=(const ChangeRule&) = delete;
    virtual ~ChangeRule() = default;

    /// @param index  the index of the entry in the list.
    [[nodiscard]] virtual Proposal Propose(const CString& path, const Model::Entry& entry, std::size_t index) const = 0;
    /// Whether two threads may call Propose at the same time.
    [[nodiscard]] virtual bool IsThreadSafe() const { return false; }
};

/// Applies `rule` to each entry of `list`. Entries that do not exist on the disk are refused. Two threads share a long
/// list, where the rule allows it. Calls `report` now and then, and at the end, with the number of entries done.
[[nodiscard]] std::vector<Proposal> ProposeChanges(const ChangeRule& rule, const Model::EntryList& list,
                                                   const std::function<void(std::size_t done)>& report);

/// The changes of `proposals`, one for each entry of `list`, as a batch of `command`.
/// @param entries  gets the index in the list for each change of the batch.
[[nodiscard]] Batch::NewBatch MakeBatch(const CString& command, const Model::EntryList& list,
                                        const std::vector<Proposal>& proposals, std::vector<std::size_t>& entries);

/// The proposals for a list, and later their outcomes.
class ChangeResults final : public Model::Results
{
public:
    /// @param kind  the kind of the changes. The list must outlive the results.
    ChangeResults(std::string_view kind, const Model::EntryList& list, std::vector<Proposal> proposals);

    /// Sets the outcome of the change of an entry.
    void Set(std::size_t entry, const Model::Outcome& outcome) { m_outcomes[entry] = outcome; }

    [[nodiscard]] std::size_t Count() const override { return m_proposals.size(); }
    [[nodiscard]] Model::Result At(std::size_t index) const override;

private:
    std::string_view m_kind;
    const Model::EntryList& m_list;
    std::vector<Proposal> m_proposals;
    std::vector<Model::Outcome> m_outcomes;
};

/// Times, attributes and marks.
[[nodiscard]] Model::ChangeKinds Kinds();

} // namespace VyrHost::Metadata
