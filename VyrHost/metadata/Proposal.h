/// @file
/// What becomes of each entry of a list whose times, attributes or marks are to be changed.
#pragma once

#include <VyrHost/batch/Batches.h>
#include <VyrHost/model/Change.h>
#include <VyrHost/model/EntryList.h>
#include <VyrPlatform/text/CString.h>

#include <cstddef>
#include <functional>
#include <memory>
#include <vector>

namespace VyrHost::Metadata {

/// What becomes of one entry. Without a change and a refusal it stays as it is, since it is so already.
struct Proposal
{
    std::shared_ptr<const Model::Change> change;
    /// Why it is not changed, for people.
    CString refusal;
};

/// A rule that says for an entry what is to become of it. It looks at the file and changes nothing.
class ChangeRule
{
public:
    ChangeRule() = default;
    ChangeRule(const ChangeRule&) = delete;
    ChangeRule& operator=(const ChangeRule&) = delete;
    virtual ~ChangeRule() = default;

    /// @param index  the entry's place in the list.
    [[nodiscard]] virtual Proposal Propose(const CString& path, const Model::Entry& entry, std::size_t index) const = 0;
};

/// Asks `rule` about each entry of `list`. What the list names and the disk does not have is refused. `report` is
/// called after each with how many are done.
[[nodiscard]] std::vector<Proposal> ProposeChanges(const ChangeRule& rule, const Model::EntryList& list,
                                                   const std::function<void(std::size_t done)>& report);

/// The changes of `proposals`, one for each entry of `list`, as a batch of `command`.
/// @param entries  gets the index in the list of each change of the batch.
[[nodiscard]] Batch::NewBatch MakeBatch(const CString& command, const Model::EntryList& list,
                                        const std::vector<Proposal>& proposals, std::vector<std::size_t>& entries);

} // namespace VyrHost::Metadata
