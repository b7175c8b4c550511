// Finds sources and targets, and refuses impossible tasks.
#include <VyrHost/foldercopy/TransferBatch.h>

#include <VyrHost/text/Errors.h>
#include <VyrHost/text/SafeText.h>
#include <VyrHostPlatform/NameFolding.h>
#include <VyrLibraryUtils/FileUtils.h>
#include <VyrPlatform/files/FileIdentity.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/files/FullPath.h>

#include <map>
#include <optional>
#include <string>
#include <unordered_set>
#include <utility>

namespace VyrHost::FolderCopy {

namespace {

using VyrLibraryUtils::FileUtils;
using VyrPlatform::FileState;
using VyrPlatform::LookAtFile;
namespace FileSystem = VyrPlatform::FileSystem;

/// A file's identity as a key for maps.
using Identity = std::pair<std::uint64_t, std::uint64_t>;

Identity IdentityOf(const FileState& state)
{
    return {state.identity.device, state.identity.number};
}

std::string Quoted(const CString& path)
{
    return "'" + Text::SafeText(path) + "'";
}

/// The identities of the folder at `path` and of all its parents.
std::vector<Identity> UpFrom(const CString& path)
{
    std::vector<Identity> identities;
    CString above = VyrPlatform::GetRealPath(path);
    // Some volumes of Windows have no path.
    if (above.IsEmpty())
        above = VyrPlatform::GetFullPath(path);
    for (CString folder; above != folder; above = FolderOf(folder)) {
        folder = above;
        const FileState state = LookAtFile(folder);
        if (state.kind != FileSystem::Kind::Missing)
            identities.push_back(IdentityOf(state));
    }
    return identities;
}

class TaskMaker
{
public:
    TaskMaker(const std::vector<CString>& sources, const CString& destination)
        : m_destination(destination), m_folder(VyrPlatform::GetFullPath(destination))
    {
        for (const CString& source : sources)
            AddSource(source);
    }

    std::vector<TransferTask> Make()
    {
        RefuseNestedSources();
        FindDestination();
        RefuseDestinationInSource();
        for (TransferTask& task : m_tasks)
            SetTarget(task);
        return std::move(m_tasks);
    }

private:
    void AddSource(const CString& given)
    {
        TransferTask task;
        task.shownSource = given;
        task.source = VyrPlatform::GetFullPath(given);
        const FileState state = LookAtFile(task.source);
        if (state.kind == FileSystem::Kind::Missing)
            throw Text::UsageError(Quoted(given) + " cannot be found: " + Text::SafeText(Text::ErrorText(state.error)));
        if (state.kind == FileSystem::Kind::Other && FileSystem::IsFolder(task.source))
            throw Text::UsageError(Quoted(given) + " is a link; name the folder that it leads to");
        if (state.kind != FileSystem::Kind::Folder)
            throw Text::UsageError(Quoted(given) + " is not a folder");
        if (!m_sources.emplace(IdentityOf(state), m_tasks.size()).second)
            throw Text::UsageError(Quoted(given) + " is named twice");
        // The source must have a name that its copy can have.
        if (FileUtils::GetSplitFileName(task.source) == u"..")
            task.source = VyrPlatform::GetRealPath(task.source);
        m_tasks.push_back(std::move(task));
    }

    /// The source with this identity; null when there is none.
    [[nodiscard]] const TransferTask* SourceAt(const Identity& identity) const
    {
        const auto found = m_sources.find(identity);
        return found == m_sources.end() ? nullptr : &m_tasks[found->second];
    }

    void RefuseNestedSources() const
    {
        for (const TransferTask& task : m_tasks)
            for (const Identity& identity : UpFrom(FolderOf(task.source)))
                if (const TransferTask* const outer = SourceAt(identity); outer && outer != &task)
                    throw Text::UsageError(Quoted(task.shownSource) + " is inside " + Quoted(outer->shownSource) +
                                           ", which is named, too");
    }

    /// Finds out whether the folders go into the destination, or it is the new path of the only source.
    void FindDestination()
    {
        m_goesInto = FileSystem::IsFolder(m_folder);
        if (m_goesInto)
            return;
        if (m_folder.IsEmpty())
            throw Text::UsageError("the destination is empty");
        if (FileSystem::Exists(m_folder))
            throw Text::UsageError(Quoted(m_destination) + " is there already, and is not a folder");
        if (m_tasks.size() > 1)
            throw Text::UsageError("there is no folder " + Quoted(m_destination) +
                                   "; several folders go into one that is there");
        m_newPath = m_folder;
        m_folder = FolderOf(m_newPath);
        if (!FileSystem::IsFolder(m_folder))
            throw Text::UsageError("the folder in which " + Quoted(m_destination) + " would stand is not there");
    }

    void RefuseDestinationInSource() const
    {
        for (const Identity& identity : UpFrom(m_folder))
            if (const TransferTask* const source = SourceAt(identity))
                throw Text::UsageError(Quoted(m_destination) + " is inside " + Quoted(source->shownSource));
    }

    void SetTarget(TransferTask& task)
    {
        const CString name = FileUtils::GetSplitFileName(task.source);
        if (m_goesInto && name.IsEmpty())
            throw Text::UsageError(Quoted(task.shownSource) + " has no name to use in " + Quoted(m_destination));
        task.target = m_goesInto ? FileUtils::GetCombinePath(m_folder, name) : m_newPath;
        task.shownTarget = m_goesInto ? FileUtils::GetCombinePath(m_destination, name) : m_destination;
        if (m_goesInto && !m_names.insert(VyrHostPlatform::FoldName(name, Folding())).second)
            throw Text::UsageError("two of the folders would become " + Quoted(task.shownTarget));
        RefuseMeeting(task);
    }

    /// The source and the entry at its target must not be the same folder, nor one inside the other.
    void RefuseMeeting(const TransferTask& task) const
    {
        const FileState there = LookAtFile(task.target);
        if (there.kind == FileSystem::Kind::Missing)
            return;
        if (const TransferTask* const source = SourceAt(IdentityOf(there)))
            throw Text::UsageError(Quoted(task.shownTarget) + " is the folder " + Quoted(source->shownSource) +
                                   " itself");
        for (const Identity& identity : UpFrom(task.source))
            if (identity == IdentityOf(there))
                throw Text::UsageError(Quoted(task.shownSource) + " is inside " + Quoted(task.shownTarget) +
                                       ", with which it would become one");
    }

    [[nodiscard]] VyrHostPlatform::NameFolding Folding()
    {
        if (m_tasks.size() > 1 && !m_folding)
            m_folding = VyrHostPlatform::GetNameFolding(m_folder);
        return m_folding.value_or(VyrHostPlatform::NameFolding::None);
    }

    const CString m_destination;
    std::vector<TransferTask> m_tasks;
    std::map<Identity, std::size_t> m_sources;
    /// The existing folder into which the sources go.
    CString m_folder;
    /// The new path of the only source, if it gets a new name.
    CString m_newPath;
    bool m_goesInto = false;
    std::optional<VyrHostPlatform::NameFolding> m_folding;
    /// The keys of the new names so far.
    std::unordered_set<CString> m_names;
};

} // namespace

std::vector<TransferTask> MakeTransferTasks(const std::vector<CString>& sources, const CString& destination)
{
    return TaskMaker(sources, destination).Make();
}

} // namespace VyrHost::FolderCopy
