// Tells proposals as results.
#include <VyrHost/metadata/ChangeResults.h>

#include <utility>

namespace VyrHost::Metadata {

using Model::Status;

namespace {

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
        result.values = {proposal.change->ShownBefore(), proposal.change->ShownAfter()};
    result.status = m_outcomes[index].status;
    result.reason = m_outcomes[index].reason;
    return result;
}

} // namespace VyrHost::Metadata
