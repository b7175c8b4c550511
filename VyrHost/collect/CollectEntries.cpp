// Collects entries from arguments, from the standard input and from folders.
#include <VyrHost/collect/CollectEntries.h>

#include <VyrHost/collect/Choice.h>
#include <VyrHost/model/FolderSet.h>
#include <VyrHost/text/Errors.h>
#include <VyrHost/text/Input.h>
#include <VyrHost/text/NormalForm.h>
#include <VyrHost/text/SafeText.h>
#include <VyrHostPlatform/NameFolding.h>
#include <VyrLibraryUtils/FileUtils.h>
#include <VyrPlatform/files/FileIdentity.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/files/FullPath.h>
#include <VyrPlatform/process/Process.h>

#include <algorithm>
#include <string>
#include <unordered_map>
#include <unordered_set>

namespace VyrHost::Collect {

namespace {

using VyrLibraryUtils::FileUtils;
using VyrPlatform::FileSystem::IsSeparator;
using VyrPlatform::FileSystem::Kind;
using VyrPlatform::FileSystem::WithSeparator;

/// A path split into the folder, as the user wrote it, and the name in it.
struct CutPath
{
    CString folder;
    CString name;
};

/// Whether `path` can be split at its last separator: `name`, its last part, is the name of an entry.
bool IsPlain(std::u16string_view path, std::u16string_view name)
{
    // Where a backslash is a separator, a drive may come before a colon.
    const bool mayHaveDrive = IsSeparator(u'\\') && path.find(u':') != std::u16string_view::npos;
    return !name.empty() && name != u"." && name != u".." && !mayHaveDrive;
}

std::u16string_view LastStep(std::u16string_view path)
{
    const std::u16string_view step = Model::NamePart(path);
    const std::size_t drive = IsSeparator(u'\\') ? step.find(u':') : std::u16string_view::npos;
    return drive == std::u16string_view::npos ? step : step.substr(drive + 1);
}

/// Whether `path` ends in "..": it names no entry, though Windows would resolve it to one.
bool LeadsUp(std::u16string_view path)
{
    std::u16string_view step = LastStep(path);
    while (!path.empty() && (step.empty() || step == u".")) {
        path.remove_suffix(std::max<std::size_t>(step.size(), 1));
        step = LastStep(path);
    }
    return step == u"..";
}

CutPath Cut(const CString& path)
{
    const std::u16string_view name = Model::NamePart(path);
    if (IsPlain(path, name))
        return {Model::FolderPart(path), name};
    const CString full = VyrPlatform::GetFullPath(path);
    const CString folder = FileUtils::GetSplitDirPath(full);
    return {folder, full.Mid(folder.GetLength())};
}

/// The folder as it is shown before names.
CString Shown(const CString& folder)
{
    const bool isHere = folder == u"." || (folder.GetLength() == 2 && folder[0] == u'.' && IsSeparator(folder[1]));
    return folder.IsEmpty() || isHere ? CString() : WithSeparator(folder);
}

/// The name at the end of `path`; empty where there is none.
std::u16string_view OwnName(std::u16string_view path)
{
    while (!path.empty() && IsSeparator(path.back()))
        path.remove_suffix(1);
    const std::u16string_view name = LastStep(path);
    return name == u"." || name == u".." ? std::u16string_view() : name;
}

class EntryCollector
{
public:
    explicit EntryCollector(const SourceSettings& settings) : m_settings(settings) {}

    CollectedEntries Run()
    {
        for (const CString& path : m_settings.paths)
            Add(path, !m_settings.areNames);
        if (m_settings.input != InputNames::None)
            AddInput();
        RefuseNested();
        return std::move(m_result);
    }

private:
    void AddInput()
    {
        Text::NameReader reader(m_settings.input == InputNames::Lines ? '\n' : '\0');
        const auto add = [this](const CString& path) {
            Add(path, false);
        };
        Text::ReadStandardInput([&reader, &add](std::string_view piece) { reader.Read(piece, add); });
        reader.Finish(add);
    }

    void Add(const CString& path, bool mayBePattern)
    {
        if (m_settings.recursive && VyrPlatform::FileSystem::IsFolder(path)) {
            if (!MayEnter(OwnName(path)))
                return;
            const CString full = WithSeparator(VyrPlatform::GetFullPath(path));
            NoteSourceFolder(full, path);
            Walk(full, Shown(path), 1);
            return;
        }
        const CutPath cut = Cut(path);
        if (cut.name.IsEmpty() || LeadsUp(path))
            throw Text::UsageError("'" + Text::SafeText(path) +
                                   "' has no name that can be changed; --recursive renames what is in the folder");
        AddNamed(OpenParent(cut.folder), cut.name, mayBePattern);
    }

    std::uint32_t OpenParent(const CString& folder)
    {
        if (m_parent == Model::noEntry || m_parentText != folder) {
            const CString path =
                folder.IsEmpty() ? VyrPlatform::Process::GetCurrentFolder() : VyrPlatform::GetFullPath(folder);
            m_parent = List().folders.Open(WithSeparator(path), Shown(folder));
            m_parentText = folder;
        }
        return m_parent;
    }

    void AddNamed(std::uint32_t folder, const CString& name, bool mayBePattern)
    {
        m_namedIn.insert(folder);
        Model::NameRecord* const record = FindNamed(folder, name);
        if (!record) {
            if (mayBePattern && IsPattern(name) && AddMatches(folder, name))
                return;
            List().entries.push_back({List().folders.Intern(name), folder, Kind::Missing});
            return;
        }
        AddSource(folder, *record);
    }

    /// The record of `name` as written, else in any normal form; null when there is none.
    Model::NameRecord* FindNamed(std::uint32_t folder, const CString& name)
    {
        Model::NameTable& names = List().folders[folder].names;
        if (Model::NameRecord* const record = names.Find(name))
            return record;
        const CString composed = Text::Composed(name);
        if (Model::NameRecord* const record = names.Find(composed))
            return record;
        const auto [known, isNew] = m_decomposed.try_emplace(folder);
        auto& records = known->second;
        if (isNew)
            for (Model::NameRecord& record : names.Records())
                if (const CString own(record.name.View()); !Text::IsComposed(own))
                    records.emplace(Text::Composed(own), &record);
        const auto found = records.find(composed);
        return found == records.end() ? nullptr : found->second;
    }

    /// Adds the entry of a name; with recursion the entries below it, if it is a folder.
    void AddSource(std::uint32_t folder, Model::NameRecord& record)
    {
        const bool isFolder = record.kind == Kind::Folder && !record.isLink;
        const CString path =
            isFolder ? WithSeparator(CString::Join({List().folders[folder].path, record.name})) : CString();
        const CString shown = CString::Join({List().folders[folder].shown, record.name});
        if (isFolder && m_settings.recursive && !MayEnter(record.name))
            return;
        if (isFolder)
            NoteSourceFolder(path, shown);
        if (isFolder && m_settings.recursive)
            Walk(path, WithSeparator(shown), 1);
        else if (!m_settings.recursive || IsPicked(record))
            AddListed(folder, record);
    }

    void NoteSourceFolder(const CString& path, const CString& shown)
    {
        m_sourceFolders.emplace(VyrPlatform::LookAtFile(path).identity, shown);
    }

    /// @return false when nothing matches.
    bool AddMatches(std::uint32_t folder, const CString& pattern)
    {
        Model::NameTable& names = List().folders[folder].names;
        const auto keyOf = [&names](const CString& name) {
            return Text::Composed(VyrHostPlatform::FoldName(name, names.Folding()));
        };
        const CString folded = keyOf(pattern);
        bool matched = false;
        for (Model::NameRecord& record : names.Records()) {
            if (IsShown(record) && MatchesPattern(folded, keyOf(record.name.View()))) {
                AddSource(folder, record);
                matched = true;
            }
        }
        return matched;
    }

    /// Whether recursion enters a folder of this name.
    bool MayEnter(std::u16string_view name)
    {
        if (!m_settings.choice.Excludes(name))
            return true;
        ++m_result.notEntered;
        return false;
    }

    void AddListed(std::uint32_t folder, Model::NameRecord& record)
    {
        if (!m_settings.choice.Keeps(List().folders[folder].path, record.name)) {
            ++m_result.leftOut;
            return;
        }
        if (record.owner != Model::noEntry) {
            if (m_settings.areNames)
                throw Text::UsageError("'" +
                                       Text::SafeText(CString::Join({List().folders[folder].shown, record.name})) +
                                       "' is named twice");
            return;
        }
        record.owner = static_cast<std::uint32_t>(List().entries.size());
        List().entries.push_back({record.name, folder, record.kind});
    }

    /// @param depth  the depth of the folder's entries; 1 in a named folder.
    void Walk(const CString& path, const CString& shown, int depth)
    {
        const std::uint32_t number = List().folders.Open(path, shown);
        Model::Folder& folder = List().folders[number];
        if (!folder.exists) {
            m_result.problems.push_back(CString::Join({u"cannot read the folder ", folder.shown, u": ",
                                                       VyrPlatform::Process::GetErrorMessage(folder.error)}));
            return;
        }
        MakeRoom(folder.names.Records().size());
        const bool entersFolders = !m_settings.maxDepth || depth < *m_settings.maxDepth;
        std::vector<std::u16string_view> below;
        for (Model::NameRecord& record : folder.names.Records()) {
            if (!IsShown(record))
                continue;
            if (IsPicked(record))
                AddListed(number, record);
            if (entersFolders && record.kind == Kind::Folder && !record.isLink && MayEnter(record.name))
                below.push_back(record.name);
        }
        for (const std::u16string_view name : below)
            Walk(WithSeparator(CString::Join({path, name})), WithSeparator(CString::Join({shown, name})), depth + 1);
    }

    void MakeRoom(std::size_t count)
    {
        std::vector<Model::Entry>& entries = List().entries;
        if (count > entries.capacity() - entries.size())
            entries.reserve(std::max(entries.size() + count, 2 * entries.capacity()));
    }

    [[nodiscard]] bool IsShown(const Model::NameRecord& record) const
    {
        return m_settings.hidden || !record.name.View().starts_with(u'.');
    }

    [[nodiscard]] bool IsPicked(const Model::NameRecord& record) const
    {
        const Pick wanted = record.kind == Kind::Folder ? Pick::Folders : Pick::Files;
        return m_settings.pick == Pick::All || m_settings.pick == wanted;
    }

    /// Refuses a folder together with entries inside it: only recursion handles both.
    void RefuseNested() const
    {
        std::unordered_set<VyrPlatform::FileIdentity, Model::IdentityHash> known;
        for (const std::uint32_t folder : m_namedIn) {
            CString path = List().folders[folder].path;
            for (auto state = VyrPlatform::LookAtFile(path);
                 state.kind == Kind::Folder && known.insert(state.identity).second;
                 state = VyrPlatform::LookAtFile(path)) {
                if (const auto source = m_sourceFolders.find(state.identity); source != m_sourceFolders.end())
                    throw Text::UsageError("'" + Text::SafeText(source->second) +
                                           "' is named together with something inside it");
                path = WithSeparator(path + u"..");
            }
        }
    }

    [[nodiscard]] Model::EntryList& List() { return m_result.list; }
    [[nodiscard]] const Model::EntryList& List() const { return m_result.list; }

    const SourceSettings& m_settings;
    CollectedEntries m_result;
    /// The folder of the last name, as the user wrote it: consecutive names are mostly in the same folder.
    CString m_parentText;
    std::uint32_t m_parent = Model::noEntry;
    /// The records of names that are not composed, by folder and composed form.
    std::unordered_map<std::uint32_t, std::unordered_map<CString, Model::NameRecord*>> m_decomposed;
    /// The folders of the named entries.
    std::unordered_set<std::uint32_t> m_namedIn;
    /// The folders that were named themselves, as the user wrote them.
    std::unordered_map<VyrPlatform::FileIdentity, CString, Model::IdentityHash> m_sourceFolders;
};

} // namespace

CollectedEntries CollectEntries(const SourceSettings& settings)
{
    return EntryCollector(settings).Run();
}

} // namespace VyrHost::Collect
