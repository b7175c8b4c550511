// Applies a rule to a list, and makes a batch of the changes.
#include <VyrHost/metadata/Changes.h>

#include <VyrHost/metadata/Attributes.h>
#include <VyrHost/metadata/Marks.h>
#include <VyrHost/metadata/Times.h>
#include <VyrHost/model/TwoThreads.h>
#include <VyrHost/text/Errors.h>
#include <VyrPlatform/files/FileIdentity.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>

namespace VyrHost::Metadata {

namespace {

Proposal ProposeChange(const ChangeRule& rule, const Model::EntryList& list, std::size_t index)
{
    const Model::Entry& entry = list.entries[index];
    const CString path = list.PathOf(entry);
    if (entry.kind == VyrPlatform::FileSystem::Kind::Missing)
        return {nullptr, Text::ErrorText(VyrPlatform::LookAtFile(path).error)};
    return rule.Propose(path, entry, index);
}

} // namespace

std::vector<Proposal> ProposeChanges(const ChangeRule& rule, const Model::EntryList& list,
                                     const std::function<void(std::size_t done)>& report)
{
    const std::size_t together = rule.IsThreadSafe() ? 1024 : 1;
    std::vector<Proposal> proposals(list.entries.size());
    const auto propose = [&](std::size_t index, std::size_t end) {
        for (; index < end; ++index)
            proposals[index] = ProposeChange(rule, list, index);
    };
    for (std::size_t first = 0; first < proposals.size(); first += together) {
        const std::size_t end = std::min(first + together, proposals.size());
        Model::OnTwoThreads(first, end, propose);
        report(end);
    }
    return proposals;
}

Batch::NewBatch MakeBatch(const CString& command, const Model::EntryList& list, const std::vector<Proposal>& proposals,
                          std::vector<std::size_t>& entries)
{
    Batch::NewBatch batch;
    batch.command = command;
    batch.plan.texts = list.folders.Texts();
    Model::PlannedFolders folders(list.folders, batch.plan);
    for (std::size_t index = 0; index < proposals.size(); ++index) {
        if (!proposals[index].change)
            continue;
        const Model::Entry& entry = list.entries[index];
        batch.changes.push_back({{folders.Add(entry.folder), entry.name}, proposals[index].change});
        entries.push_back(index);
    }
    return batch;
}

namespace {

using Model::Status;

Model::Outcome OutcomeOf(const Proposal& proposal)
{
    if (proposal.change)
        return {Status::Done, 0, {}};
    return {proposal.refusal.IsEmpty() ? Status::Unchanged : Status::Refused, 0, proposal.refusal};
}

} // namespace

ChangeResults::ChangeResults(std::string_view kind, const Model::EntryList& list, std::vector<Proposal> proposals)
    : m_kind(kind), m_list(list), m_proposals(std::move(proposals))
{
    m_outcomes.reserve(m_proposals.size());
    for (const Proposal& proposal : m_proposals)
        m_outcomes.push_back(OutcomeOf(proposal));
}

Model::Result ChangeResults::At(std::size_t index) const
{
    const Model::Entry& entry = m_list.entries[index];
    const Model::Folder& folder = m_list.folders[entry.folder];
    const Proposal& proposal = m_proposals[index];
    Model::Result result;
    result.kind = m_kind;
    result.from = {folder.path, folder.shown, entry.name};
    if (proposal.change)
        result.values = [change = proposal.change.get()] {
            return Model::ResultValues{change->ShownBefore(), change->ShownAfter()};
        };
    result.status = m_outcomes[index].status;
    result.reason = m_outcomes[index].reason;
    return result;
}

Model::ChangeKinds Kinds()
{
    return {{std::string(TimesChange::kind), TimesChange::Read},
            {std::string(AttributesChange::kind), AttributesChange::Read},
            {std::string(MarkChange::kind), MarkChange::Read}};
}

} // namespace VyrHost::Metadata
