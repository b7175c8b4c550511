// Goes through a list, and puts what is to be changed into a batch.
#include <VyrHost/metadata/Proposal.h>

#include <VyrHost/text/ErrorText.h>
#include <VyrPlatform/files/FileIdentity.h>

namespace VyrHost::Metadata {

namespace {

/// Puts folders of a list into the plan of a batch.
class PlannedFolders
{
public:
    PlannedFolders(const Model::FolderSet& folders, Model::RenamePlan& plan)
        : m_folders(folders), m_plan(plan), m_indexes(folders.Count(), Model::none)
    {}

    /// The index in the plan of the folder `number`, which is added with those that it stands in.
    Model::PlanIndex Add(std::uint32_t number)
    {
        if (m_indexes[number] != Model::none)
            return m_indexes[number];
        Model::PlanFolder planned;
        planned.place.name = m_folders[number].name;
        if (m_folders[number].parent != Model::NoFolder)
            planned.place.folder = Add(m_folders[number].parent);
        m_indexes[number] = static_cast<Model::PlanIndex>(m_plan.folders.size());
        m_plan.folders.push_back(planned);
        return m_indexes[number];
    }

private:
    const Model::FolderSet& m_folders;
    Model::RenamePlan& m_plan;
    std::vector<Model::PlanIndex> m_indexes;
};

} // namespace

std::vector<Proposal> ProposeChanges(const ChangeRule& rule, const Model::EntryList& list,
                                     const std::function<void(std::size_t done)>& report)
{
    std::vector<Proposal> proposals;
    proposals.reserve(list.entries.size());
    for (const Model::Entry& entry : list.entries) {
        const CString path = list.PathOf(entry);
        if (entry.kind == VyrPlatform::FileSystem::Kind::Missing)
            proposals.push_back({nullptr, Text::ErrorText(VyrPlatform::LookAtFile(path).error)});
        else
            proposals.push_back(rule.Propose(path, entry, proposals.size()));
        report(proposals.size());
    }
    return proposals;
}

Batch::NewBatch MakeBatch(const CString& command, const Model::EntryList& list, const std::vector<Proposal>& proposals,
                          std::vector<std::size_t>& entries)
{
    Batch::NewBatch batch;
    batch.command = command;
    batch.plan.texts = list.folders.Texts();
    PlannedFolders folders(list.folders, batch.plan);
    for (std::size_t index = 0; index < proposals.size(); ++index) {
        if (!proposals[index].change)
            continue;
        const Model::Entry& entry = list.entries[index];
        batch.changes.push_back({{folders.Add(entry.folder), entry.name}, proposals[index].change});
        entries.push_back(index);
    }
    return batch;
}

} // namespace VyrHost::Metadata
