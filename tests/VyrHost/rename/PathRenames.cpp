#include <tests/VyrHost/rename/PathRenames.h>

#include <VyrLibraryUtils/FileUtils.h>
#include <VyrPlatform/files/FileSystem.h>

#include <map>
#include <string>

namespace VyrTests {

namespace {

using VyrHost::Model::none;
using VyrHost::Model::Place;
using VyrHost::Model::PlanIndex;
using VyrPlatform::FileSystem::IsSeparator;

class DraftBuilder
{
public:
    explicit DraftBuilder(const FoldingOfFolder& foldingOf) : m_foldingOf(foldingOf) {}

    Place PlaceOf(std::u16string_view path)
    {
        const auto root =
            static_cast<std::size_t>(VyrLibraryUtils::FileUtils::GetSplitPath(CString(path), 1).GetLength());
        PlanIndex folder = FolderAt(none, path.substr(0, root), path.substr(0, root));
        std::size_t start = root;
        for (std::size_t end = start; end < path.size(); ++end)
            if (IsSeparator(path[end])) {
                folder = FolderAt(folder, path.substr(start, end - start), path.substr(0, end));
                start = end + 1;
            }
        return {folder, m_draft.plan.texts->Intern(path.substr(start))};
    }

    PlanIndex FolderAt(PlanIndex parent, std::u16string_view name, std::u16string_view path)
    {
        const auto folding = parent == none ? VyrHostPlatform::NameFolding::None : m_draft.foldings[parent];
        const CString key = VyrHostPlatform::FoldName(CString(name), folding);
        const auto number = static_cast<PlanIndex>(m_draft.plan.folders.size());
        const auto [known, isNew] = m_numbers.try_emplace({parent, std::u16string(key.View())}, number);
        if (isNew) {
            m_draft.plan.folders.push_back({.place = {parent, m_draft.plan.texts->Intern(name)}});
            m_draft.foldings.push_back(m_foldingOf(CString(path)));
        }
        return known->second;
    }

    VyrHost::Rename::RenameDraft Take() { return std::move(m_draft); }
    [[nodiscard]] VyrHost::Model::RenamePlan& Plan() { return m_draft.plan; }
    /// Adds `entry` as a group of its own.
    void Add(const VyrHost::Model::PlanEntry& entry)
    {
        m_draft.groups.push_back(static_cast<std::uint32_t>(m_draft.groups.size()));
        m_draft.plan.entries.push_back(entry);
    }

private:
    const FoldingOfFolder& m_foldingOf;
    VyrHost::Rename::RenameDraft m_draft;
    std::map<std::pair<PlanIndex, std::u16string>, PlanIndex> m_numbers;
};

} // namespace

VyrHost::Rename::RenameDraft DraftOf(const PathRenames& list, const FoldingOfFolder& foldingOf)
{
    DraftBuilder builder(foldingOf);
    for (const PathRename& rename : list.renames) {
        const Place from = builder.PlaceOf(rename.from);
        const Place to = builder.PlaceOf(rename.to);
        builder.Add({.kind = rename.kind, .from = from, .to = to});
    }
    for (const CString& path : list.newFolders) {
        const Place place = builder.PlaceOf(path);
        builder.Plan().folders[builder.FolderAt(place.folder, place.name, path)].isNew = true;
    }
    return builder.Take();
}

VyrHost::Rename::PlannerResult PlanRenames(const PathRenames& list, const FoldingOfFolder& foldingOf)
{
    return VyrHost::Rename::PlanRenames(DraftOf(list, foldingOf));
}

} // namespace VyrTests
