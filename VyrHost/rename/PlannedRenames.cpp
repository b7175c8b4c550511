// Picks out of a preview what is to be renamed.
#include <VyrHost/rename/PlannedRenames.h>

#include <VyrHost/rename/TargetFolders.h>

namespace VyrHost::Rename {

PlannedRenames PlanOf(Model::EntryList& list, const std::vector<Model::Decision>& decisions)
{
    PlannedRenames planned;
    planned.list.texts = list.folders.Texts();
    planned.list.renames.reserve(decisions.size());
    planned.entries.reserve(decisions.size());
    for (std::uint32_t index = 0; index < decisions.size(); ++index) {
        const Model::Decision& decision = decisions[index];
        if (!decision.IsRename())
            continue;
        const Model::Entry& entry = list.entries[index];
        planned.list.renames.push_back({{list.folders[entry.folder].path, entry.name},
                                        {list.folders[decision.folder].path, decision.name},
                                        entry.kind});
        planned.entries.push_back(index);
    }
    planned.list.newFolders = FoldersToMake(list, decisions);
    return planned;
}

} // namespace VyrHost::Rename
